#!/usr/bin/env python3
"""Serves the demo programme's weather and sensors on the loopback address, a little different
every few seconds: GET /weather.json and /sensors.json. Ends with --for SECONDS, or when killed."""

import argparse
import hashlib
import json
import math
import threading
import time
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer

STEP = 3  # seconds between two different values


def weather(tick):
    temperature = 19.5 + 4 * math.sin(tick / 7)
    text = "Sunny" if temperature > 19 else "Cloudy"
    return {"temperature": round(temperature, 1), "wind": 8 + tick * 5 % 17, "text": text}


def sensors(tick):
    def level(row, column):
        return round(50 + 40 * math.sin(tick / 5 + row + column * 0.7))

    return {"levels": [[level(row, column) for column in range(6)] for row in range(4)]}


class Handler(BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"
    answers = {"/weather.json": weather, "/sensors.json": sensors}

    def do_GET(self):
        answer = self.answers.get(self.path)
        if answer is None:
            self.send_error(404)
            return
        body = json.dumps(answer(int(time.time() / STEP))).encode()
        tag = '"%s"' % hashlib.sha1(body).hexdigest()[:16]
        is_known = self.headers.get("If-None-Match") == tag
        self.send_response(304 if is_known else 200)
        self.send_header("ETag", tag)
        if not is_known:
            self.send_header("Content-Type", "application/json")
            self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        if not is_known:
            self.wfile.write(body)

    def log_message(self, *_):
        pass


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--port", type=int, default=8394)
    parser.add_argument("--for", type=float, dest="seconds", help="end after so many seconds")
    arguments = parser.parse_args()
    server = ThreadingHTTPServer(("127.0.0.1", arguments.port), Handler)
    server.daemon_threads = True
    if arguments.seconds:
        threading.Timer(arguments.seconds, server.shutdown).start()
    try:
        server.serve_forever()
    except KeyboardInterrupt:
        pass


if __name__ == "__main__":
    main()
