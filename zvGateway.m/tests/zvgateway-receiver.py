"""A receiver that answers as a plan says, also oddly.

usage: zvgateway-receiver.py PLAN CALLS PORT-FILE [PORT]

Each line of the file PLAN is the answer to one request, the last line that to all later ones:
  STATUS [Name:value ...] [body=TEXT] [slow=SECONDS] [torn] [silent]
Blanks in values are written "_". A torn answer ends in the middle of its body, a silent one before its beginning.
Each request adds a line to the file CALLS; a plan begins with an empty one.
"""
import http.server
import sys
import time

plan, calls, port_file = sys.argv[1:4]


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
            self.answer(answers[min(number, len(answers) - 1)].split())
        except ConnectionError:
            pass  # Who asked is gone.
        self.close_connection = True

    def answer(self, words):
        headers = dict(word.split(":", 1) for word in words[1:] if ":" in word and "=" not in word.split(":")[0])
        options = dict(word.split("=", 1) for word in words[1:] if "=" in word.split(":")[0])
        time.sleep(float(options.get("slow", 0)))
        if "silent" in words:
            return
        body = options.get("body", "").replace("_", " ").encode().decode("unicode_escape").encode("latin-1")
        self.send_response(int(words[0]))
        for name, value in headers.items():
            self.send_header(name, value.replace("_", " "))
        if int(words[0]) not in (204, 304):
            self.send_header("Content-Length", str(len(body) + ("torn" in words)))
        self.send_header("Connection", "close")
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *_):
        pass


http.server.HTTPServer.request_queue_size = 16
server = http.server.ThreadingHTTPServer(("127.0.0.1", int(sys.argv[4]) if len(sys.argv) > 4 else 0), Receiver)
with open(port_file, "w") as file:
    file.write(str(server.server_port))
server.serve_forever()
