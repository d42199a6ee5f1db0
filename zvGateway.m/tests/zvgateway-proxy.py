"""Stands before an FTP server, counts what is uploaded and breaks connections.

usage: zvgateway-proxy.py FIRST-PORT PORTS PLAN RECEIVED READY

Takes connections to 127.0.0.2 and passes them on to the same port of 127.0.0.1. The first port is the server's, the
others are its data connections', encrypted or not. Each data connection adds the number of bytes that came from the
client as a line to the file RECEIVED. The file PLAN says what happens to a data connection, as long as it exists:
  cut BYTES    every connection is broken after so many bytes, and the plan is removed
  slow BYTES   not more than so many a second go on
  stall BYTES  nothing goes on after so many bytes, until the plan is removed
"""
import os
import selectors
import socket
import struct
import sys
import threading
import time

first, count = int(sys.argv[1]), int(sys.argv[2])
plan_file, received_file, ready_file = sys.argv[3:6]
CHUNK = 1 << 17
connections = set()
lock = threading.Lock()


def plan():
    try:
        with open(plan_file) as file:
            words = file.read().split()
        return (words[0], int(words[1])) if len(words) == 2 else ("", 0)
    except FileNotFoundError:
        return "", 0


def break_all():
    os.remove(plan_file)
    with lock:
        for connection in connections:
            # Without a good-bye, as when the machine is gone.
            connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
            connection.shutdown(socket.SHUT_RDWR)


class Upload:
    """What comes from the client over one data connection."""

    def __init__(self):
        self.bytes = 0

    def went_on(self, size):
        """Waits as planned; returns whether the connection goes on."""
        self.bytes += size
        what, number = plan()
        if what == "slow":
            time.sleep(size / number)
        while what == "stall" and self.bytes >= number:
            time.sleep(0.05)
            what, number = plan()
        if what == "cut" and self.bytes >= number:
            break_all()
            return False
        return True


def forward(source, target, upload):
    try:
        while data := source.recv(CHUNK):
            if upload and not upload.went_on(len(data)):
                return
            target.sendall(data)
        target.shutdown(socket.SHUT_WR)
    except OSError:
        for connection in (source, target):
            try:
                connection.shutdown(socket.SHUT_RDWR)
            except OSError:
                pass


def serve(client, port):
    try:
        server = socket.create_connection(("127.0.0.1", port))
    except OSError:
        client.close()
        return
    upload = Upload() if port != first else None
    with lock:
        connections.update((client, server))
    back = threading.Thread(target=forward, args=(server, client, None), daemon=True)
    back.start()
    forward(client, server, upload)
    back.join()
    with lock:
        connections.difference_update((client, server))
        if upload:
            with open(received_file, "a") as file:
                print(upload.bytes, file=file)
    client.close()
    server.close()


selector = selectors.DefaultSelector()
for port in range(first, first + count):
    selector.register(socket.create_server(("127.0.0.2", port)), selectors.EVENT_READ, port)
with open(ready_file, "w") as file:
    print("ready", file=file)
while True:
    for key, _ in selector.select():
        threading.Thread(target=serve, args=(key.fileobj.accept()[0], key.data), daemon=True).start()
