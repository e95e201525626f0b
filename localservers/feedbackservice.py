"""A feedback service (plain HTTP) on a fixed port, that answers notes with what it is told.

Options: port, patience (the seconds to wait while somebody else has the port), and answer, one of
the names of LocalFeedbackService::Answer. Messages: another answer, or "release". Events beside the
common ones: "request", whose parts stand in files of the working folder that the reader removes.
"""
import contextlib
import email.message
import email.parser
import email.utils
import errno
import http.server
import itertools
import socket
import socketserver
import sys
import threading
import time

import serverlink

HOST = "127.0.0.1"
PATH = "/feedback"
LONGEST_BODY = 16 * 1024 * 1024
# A client that says nothing for so long is not coming back.
SILENCE_SECONDS = 60
RETRY_SECONDS = 0.05

ACCEPTED = b'{"result": true}'
REFUSED = b'{"result": false}'
# Neither JSON nor UTF-8.
RUBBISH = b'\xff\xfe{"result": tr\x00'

NOT_FOUND = 404
INTERNAL_ERROR = 500


class Refusal(Exception):
    """A body that is not taken; the argument is the status."""


class Answers:
    """The answer in force, and what wakes those who wait."""

    def __init__(self):
        self.name = "Accepted"
        self.released = threading.Event()

    def take(self, message):
        """Puts the answer of a message in force, or lets the waiting ones go on."""
        if "release" in message:
            # Who waits holds on to the old one; the requests to come wait for the new one.
            released, self.released = self.released, threading.Event()
            released.set()
        else:
            self.name = message["answer"]


def readable(text):
    """Returns a header as its sender meant it: UTF-8, where the parser has only seen bytes."""
    return text.encode("utf-8", "surrogateescape").decode("utf-8", "replace")


def disposition_of(part):
    for name, value in part.raw_items():
        if name.lower() == "content-disposition":
            return readable(value)
    return ""


def parameter(disposition, name):
    """Returns a parameter of such a header, None when it is not there."""
    message = email.message.Message()
    message["Content-Disposition"] = disposition
    try:
        value = message.get_param(name, header="Content-Disposition")
        return None if value is None else email.utils.collapse_rfc2231_value(value)
    except (TypeError, ValueError):
        # The parser trips over pieces without order and over odd encodings.
        return None


def described(part, file):
    """Returns what is told of a part, whose content goes into the file."""
    disposition = disposition_of(part)
    with open(file, "wb") as content:
        # None for a part that has parts itself.
        content.write(part.get_payload(decode=True) or b"")
    return {"disposition": disposition,
            "name": readable(parameter(disposition, "name") or ""),
            "hasFileName": parameter(disposition, "filename") is not None,
            "file": file}


def form_parts(content_type, body):
    """Returns the parts of a body as messages; none where it is no form data."""
    head = b"Content-Type: " + content_type.encode("latin-1") + b"\r\n\r\n"
    try:
        if email.message_from_bytes(head).get_content_type() != "multipart/form-data":
            return []
        # At once: read from a file, line ends would become others.
        message = email.parser.BytesParser().parsebytes(head + body)
    except RecursionError:
        # Parts in parts in parts, without end.
        return []
    return message.get_payload() if message.is_multipart() else []


def body_size(headers):
    """Returns what the client says of its body's size."""
    if "Transfer-Encoding" in headers:
        raise Refusal(411)
    sizes = {size.strip() for size in headers.get_all("Content-Length", ["0"])}
    size = sizes.pop()
    if sizes or not (size.isascii() and size.isdecimal()):
        raise Refusal(400)
    # So many digits are not even worth reading.
    if len(size) > 12 or int(size) > LONGEST_BODY:
        raise Refusal(413)
    return int(size)


class Connection(http.server.BaseHTTPRequestHandler):
    """One connection: its requests one by one."""

    protocol_version = "HTTP/1.1"
    disable_nagle_algorithm = True
    timeout = SILENCE_SECONDS

    def __getattr__(self, name):
        # Whatever the method, there is one answer to it.
        if name.startswith("do_"):
            return self.take_request
        raise AttributeError(name)

    def take_request(self):
        body, refusal = b"", None
        try:
            size = body_size(self.headers)
            body = self.rfile.read(size)
            if len(body) < size:
                raise ConnectionAbortedError
        except Refusal as reason:
            refusal = reason.args[0]
        # Whoever hears of the request may tell something else at once, for the ones to come.
        answer, released = self.server.answers.name, self.server.answers.released
        self._tell(body)
        if refusal:
            # What follows is the body that was not taken.
            self.send_error(refusal)
            self.close_connection = True
        elif self.command != "POST" or self.path.partition("?")[0] != PATH:
            self.send_error(NOT_FOUND)
        else:
            self._answer(answer, released)

    def _tell(self, body):
        parts = form_parts(self.headers.get("Content-Type", ""), body)
        told = [described(part, f"part{next(self.server.numbers)}") for part in parts]
        serverlink.report("request", {
            "method": self.command, "path": self.path, "headers": list(self.headers.items()),
            "parts": told})
        serverlink.log(f"{self.command} {self.path}, parts: {len(told)}")

    def _answer(self, name, released):
        if name == "Silent":
            serverlink.silent()
            released.wait()
        if name == "Error":
            self.send_error(INTERNAL_ERROR)
        elif name == "Dropped":
            self._drop()
        else:
            self._send({"Refused": REFUSED, "Rubbish": RUBBISH}.get(name, ACCEPTED))

    def _send(self, body):
        self._send_head(body)
        self.wfile.write(body)

    def _drop(self):
        self._send_head(ACCEPTED)
        self.wfile.write(ACCEPTED[:len(ACCEPTED) // 2])
        self.close_connection = True
        with contextlib.suppress(OSError):
            # A reset would take from the client what it has not read yet.
            self.connection.shutdown(socket.SHUT_WR)

    def _send_head(self, body):
        self.send_response(200)
        self.send_header("Content-Type", "application/json")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()

    def log_message(self, format, *arguments):
        pass


class Service(socketserver.ThreadingMixIn, socketserver.TCPServer):
    """Takes the connections, each on a thread of its own."""

    daemon_threads = True
    request_queue_size = 128
    # What an earlier run's connections leave behind is no hindrance; a listener still is.
    allow_reuse_address = True

    def __init__(self, port, answers):
        self.answers = answers
        self.numbers = itertools.count()
        super().__init__((HOST, port), Connection)

    def handle_error(self, request, client_address):
        # Clients go whenever they like.
        if not isinstance(sys.exc_info()[1], (ConnectionError, TimeoutError)):
            super().handle_error(request, client_address)


def service_on(port, answers, patience):
    """Returns the service once nobody else has the port; ends the process when that takes long."""
    deadline = time.monotonic() + patience
    while True:
        try:
            return Service(port, answers)
        except OSError as error:
            if error.errno != errno.EADDRINUSE:
                sys.exit(f"{HOST} gives no port {port}: {error.strerror}")
            if time.monotonic() >= deadline:
                sys.exit(f"port {port} of {HOST} is taken by another program")
        time.sleep(RETRY_SECONDS)


def serve():
    answers = Answers()
    options = serverlink.begin(answers.take)
    answers.take(options)
    service = service_on(options["port"], answers, options["patience"])
    serverlink.ready(service.server_address[1])
    service.serve_forever()


serve()
