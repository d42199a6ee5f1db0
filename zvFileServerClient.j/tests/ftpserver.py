"""An FTP server on loopback for the tests: user 'gate', password 'Secret-7'. Prints its port, then serves until its
input ends. The options give it the habits and the faults that servers have."""
import argparse
import errno
import io
import logging
import os
import sys
import threading
import time

from OpenSSL import SSL, crypto
from pyftpdlib import handlers
from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.filesystems import AbstractedFS
from pyftpdlib.servers import FTPServer

parser = argparse.ArgumentParser()
parser.add_argument("root")
parser.add_argument("--port", type=int, default=0)
parser.add_argument("--tls", metavar="PEM", help="encrypted, with a new certificate that is written to this file")
parser.add_argument("--tls-name", default="IP:127.0.0.1", help="for whom the certificate is")
parser.add_argument("--implicit", action="store_true", help="encrypted from the start")
parser.add_argument("--old", action="store_true", help="knows none of MLST, MLSD, SIZE, UTF8")
parser.add_argument("--no-replace", action="store_true", help="does not rename over an existing file")
parser.add_argument("--refuse-renames", type=int, default=0, help="to a name without a dot in front, so many times")
parser.add_argument("--read-only", action="store_true")
parser.add_argument("--listing", metavar="NAME", help="lists one more file, of this name")
parser.add_argument("--endless-listing", action="store_true")
parser.add_argument("--echo-password", action="store_true", help="tells the password when it refuses it")
parser.add_argument("--unknown", metavar="COMMANDS", default="", help="that it does not know, with commas")
parser.add_argument("--forget-rest", action="store_true", help="accepts REST, and stores from the start")
parser.add_argument("--ignore-ascii", action="store_true", help="accepts TYPE A, and converts nothing")
parser.add_argument("--system", metavar="NAME", help="its answer to SYST")
parser.add_argument("--pasv-host", metavar="IP", help="the host that its answers to PASV name")
parser.add_argument("--rate", metavar="BYTES", type=int, help="it takes and gives no more of a file in a second")
parser.add_argument("--log", metavar="FILE", help="gets the commands, and the number of bytes of each upload")
parser.add_argument("--fault", choices=["exit", "drop", "stop", "cut", "mkd"],
                    help="what happens in the middle of a transfer; mkd: no answer to MKD, which was carried out")
parser.add_argument("--fault-after", metavar="BYTES", type=int, default=1 << 20)
parser.add_argument("--faults", type=int, default=1000, help="how often it happens")
options = parser.parse_args()

UNKNOWN = set(options.unknown.split(",")) | ({"MLST", "MLSD", "SIZE", "FEAT"} if options.old else set())


def log(line):
    if options.log:
        with open(options.log, "a", encoding="utf-8") as file:
            print(line, file=file)


class CutFile(io.FileIO):
    """Ends early, and nobody notices."""

    def read(self, size=-1):
        return super().read(min(size, options.fault_after - self.tell()))

    def write(self, data):
        return super().write(data[:options.fault_after - self.tell()])


class Files(AbstractedFS):
    def open(self, filename, mode):
        return CutFile(filename, mode) if options.fault == "cut" else super().open(filename, mode)

    def rename(self, src, dst):
        if options.no_replace and os.path.exists(dst):
            raise FileExistsError(errno.EEXIST, "File exists")
        if options.refuse_renames > 0 and not os.path.basename(dst).startswith("."):
            options.refuse_renames -= 1
            raise PermissionError(errno.EACCES, "Permission denied")
        super().rename(src, dst)

    def format_mlsx(self, *args, **kwargs):
        yield from super().format_mlsx(*args, **kwargs)
        if not kwargs.get("ignore_err", True):
            return  # MLST
        yield b"perm=el;type=cdir; /the/directory/itself\r\n"
        if options.listing:
            yield f"type=file;size=3;perm=r; {options.listing}\r\n".encode()
        while options.endless_listing:
            yield b"type=file;size=1;perm=r; " + b"x" * 200 + b"\r\n"


def fail(channel, count):
    if options.faults == 0 or options.fault is None or count < options.fault_after:
        return
    options.faults -= 1
    if options.fault == "exit":
        log(f"received {channel.tot_bytes_received}")
        os._exit(1)
    elif options.fault == "stop":
        time.sleep(3600)
    elif options.fault == "drop":
        channel.cmd_channel.close()


def keep_rate(count):
    if options.rate:
        time.sleep(count / options.rate)


class Faulty:
    """Of a data channel."""

    def enable_receiving(self, type, cmd):
        super().enable_receiving("i" if options.ignore_ascii else type, cmd)

    def close(self):
        if not self._closed and self.tot_bytes_received:
            log(f"received {self.tot_bytes_received}")
        super().close()

    def send(self, data):
        sent = super().send(data)
        keep_rate(sent)
        fail(self, self.tot_bytes_sent)
        return sent

    def handle_read(self):
        before = self.tot_bytes_received
        super().handle_read()
        keep_rate(self.tot_bytes_received - before)
        fail(self, self.tot_bytes_received)

    def handle_ssl_established(self):
        if not SSL._lib.SSL_session_reused(self.socket._ssl):
            self.cmd_channel.respond("522 SSL connection failed: session reuse required")
            self.close()


class Session:
    """Of a control channel."""
    abstracted_fs = Files
    use_sendfile = False
    auth_failed_timeout = 0

    def handle(self):
        if options.implicit:
            self.secure_connection(self.get_ssl_context())
        super().handle()

    def handle_auth_failed(self, msg, password):
        if options.echo_password:
            self.respond(f"530 No, {password} is wrong.")
        else:
            super().handle_auth_failed(msg, password)

    def pre_process_command(self, line, cmd, arg):
        log(line)
        super().pre_process_command(line, cmd, arg)

    def ftp_REST(self, line):
        super().ftp_REST(line)
        if options.forget_rest:
            self._restart_position = 0

    def ftp_SYST(self, line):
        if options.system:
            self.respond(f"215 {options.system}")
        else:
            super().ftp_SYST(line)

    def ftp_MKD(self, path):
        if options.fault == "mkd" and options.faults > 0:
            options.faults -= 1
            os.mkdir(path)
            self.close()
            return None
        return super().ftp_MKD(path)


def make_certificate(path):
    key = crypto.PKey()
    key.generate_key(crypto.TYPE_RSA, 2048)
    certificate = crypto.X509()
    certificate.set_version(2)
    certificate.set_serial_number(1)
    certificate.get_subject().CN = "file server"
    certificate.set_issuer(certificate.get_subject())
    certificate.gmtime_adj_notBefore(-60)
    certificate.gmtime_adj_notAfter(3600)
    certificate.set_pubkey(key)
    certificate.add_extensions([crypto.X509Extension(b"subjectAltName", False, options.tls_name.encode())])
    certificate.sign(key, "sha256")
    with open(path, "wb") as file:
        file.write(crypto.dump_certificate(crypto.FILETYPE_PEM, certificate))
    with open(path + ".key", "wb") as file:
        file.write(crypto.dump_privatekey(crypto.FILETYPE_PEM, key))


class PlainData(Faulty, handlers.DTPHandler):
    handle_read_event = Faulty.handle_read


class PlainHandler(Session, handlers.FTPHandler):
    dtp_handler = PlainData


class SecureData(Faulty, handlers.TLS_DTPHandler):
    pass


class SecureHandler(Session, handlers.TLS_FTPHandler):
    dtp_handler = SecureData
    certfile = options.tls
    keyfile = f"{options.tls}.key"
    tls_control_required = True
    tls_data_required = True


logging.basicConfig(level=logging.CRITICAL)
if options.tls:
    make_certificate(options.tls)
handler = SecureHandler if options.tls else PlainHandler
handler.masquerade_address = options.pasv_host
handler.proto_cmds = {name: command for name, command in handler.proto_cmds.items() if name not in UNKNOWN}
handler.authorizer = DummyAuthorizer()
handler.authorizer.add_user("gate", "Secret-7", options.root, perm="elr" if options.read_only else "elradfmwMT")
# Exits with the test, which holds the other end of the pipe.
threading.Thread(target=lambda: (sys.stdin.read(), os._exit(0)), daemon=True).start()
server = FTPServer(("127.0.0.1", options.port), handler)
print(server.address[1], flush=True)
server.serve_forever()
