"""A receiver that answers as a plan says, also oddly.

usage: zvgateway-receiver.py PLAN CALLS PORT-FILE [PORT]

Each line of the file PLAN is the answer to one request, the last line that to all later ones:
  STATUS [Name:value ...] [body=TEXT] [echo=FORM] [slow=SECONDS] [torn] [silent] [endless] [chunks] [headers] [drip]
Blanks in values are written "_". A torn answer ends in the middle of its body, a silent one before its beginning.
One that is endless, in chunks or headers has no end, and one that drips adds a byte every 50 ms. An echo repeats the
request, header "Authorization" included, in the form that ECHOES has.
Each request adds a line to the file CALLS; a plan begins with an empty one.
"""
import html
import http.server
import json
import sys
import time
import urllib.parse

plan, calls, port_file = sys.argv[1:4]


ECHOES = {
    "form": lambda form: form,
    "lower": lambda form: urllib.parse.quote(urllib.parse.unquote(form), safe="").lower(),
    "plain": urllib.parse.unquote,
    "plus": lambda form: urllib.parse.quote_plus(urllib.parse.unquote(form)),
    "twice": urllib.parse.quote,
    "json": lambda form: json.dumps(urllib.parse.unquote(form)),
    "html": lambda form: html.escape(urllib.parse.unquote(form)),
    "entities": lambda form: "".join(f"&#{ord(c)};" for c in urllib.parse.unquote(form)),
}


class Receiver(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def do_POST(self):
        form = self.rfile.read(int(self.headers["Content-Length"])).decode()
        with open(calls, "a+") as file:
            file.seek(0)
            number = len(file.readlines())
            file.write(form + "\n")
        with open(plan) as file:
            answers = file.read().splitlines()
        try:
            self.answer(answers[min(number, len(answers) - 1)].split(), form)
        except ConnectionError:
            pass  # Who asked is gone.
        self.close_connection = True

    def answer(self, words, form):
        headers = dict(word.split(":", 1) for word in words[1:] if ":" in word and "=" not in word.split(":")[0])
        options = dict(word.split("=", 1) for word in words[1:] if "=" in word.split(":")[0])
        time.sleep(float(options.get("slow", 0)))
        if "silent" in words:
            return
        body = options.get("body", "").replace("_", " ").encode().decode("unicode_escape").encode("latin-1")
        if "echo" in options:
            # What is of interest: the answer is shown up to some bytes only.
            secrets = "&".join(part for part in form.split("&") if "Password" in part or "Token" in part)
            body = f"{self.headers['Authorization']} {ECHOES[options['echo']](secrets)}".encode()
        self.send_response(int(words[0]))
        for name, value in headers.items():
            self.send_header(name, value.replace("_", " ").replace("ECHO", urllib.parse.quote(form, safe="=&%")))
        if not {"endless", "chunks", "headers", "drip"}.isdisjoint(words):
            self.answer_without_end(words, body or b"x")
        if int(words[0]) not in (204, 304):
            self.send_header("Content-Length", str(len(body) + ("torn" in words)))
        self.send_header("Connection", "close")
        self.end_headers()
        self.wfile.write(body)

    def answer_without_end(self, words, body):
        if "headers" in words:
            self.flush_headers()
            while True:
                self.wfile.write(b"Name: " + b"x" * 1000 + b"\r\n")
        self.send_header(*(("Transfer-Encoding", "chunked") if "chunks" in words else ("Content-Length", str(1 << 40))))
        self.end_headers()
        while True:
            some = body if "drip" in words else body * 1000
            self.wfile.write(b"%x\r\n%s\r\n" % (len(some), some) if "chunks" in words else some)
            time.sleep(0.05 if "drip" in words else 0)

    def log_message(self, *_):
        pass


http.server.HTTPServer.request_queue_size = 16
server = http.server.ThreadingHTTPServer(("127.0.0.1", int(sys.argv[4]) if len(sys.argv) > 4 else 0), Receiver)
with open(port_file, "w") as file:
    file.write(str(server.server_port))
server.serve_forever()
