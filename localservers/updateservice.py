"""An update service (HTTPS) that answers "/checkUpdate" and "/download" with what it is told.

Options: certificate and key (files), and the replies by their paths. Messages: a reply by its path,
or "release". A reply is an object with the members of LocalWebReply, but its body stands in a
file, named by "file", which may go once the reply is taken.
"""
import http.server
import math
import socket
import socketserver
import ssl
import sys
import threading
import time

import serverlink

PATTERN = bytes(range(251))
# Whole patterns, about a megabyte: TLS is no faster with more at once.
GENERATED = memoryview(PATTERN * 4096)
BUFFER_SIZE = len(GENERATED)
STATUSES_WITHOUT_BODY = (204, 304)


class Reply:
    """What is answered on one path. Never changes, so that transfers need no lock."""

    def __init__(self, fields):
        self.status = fields["status"]
        self.location = fields["location"]
        self.is_silent = fields["isSilent"]
        self.piece_size = fields["pieceSize"]
        self.pause_seconds = fields["pauseMilliseconds"] / 1000
        self.hold_after = fields["holdAfter"]
        self.is_generated = fields["generatedSize"] >= 0
        if self.is_generated:
            self.size, self.bytes = fields["generatedSize"], GENERATED
        else:
            self._read(fields["file"], fields["endless"])
        # Of nothing, no repetition makes a body.
        is_endless = fields["endless"] and self.size > 0
        self.tells_length = fields["tellsLength"] and not is_endless
        self.end = math.inf if is_endless else self.size
        self.is_cut = 0 <= fields["cutAfter"] <= self.end
        self.last = fields["cutAfter"] if self.is_cut else self.end

    def _read(self, path, is_endless):
        with open(path, "rb") as file:
            content = file.read()
        if is_endless and content:
            content *= BUFFER_SIZE // len(content) + 1
        self.size, self.bytes = len(content), memoryview(content)

    def part_at(self, position):
        """Returns what goes out at once: up to the next place where something may happen."""
        start = position % self.size
        count = min(BUFFER_SIZE, self.size - start, self.last - position)
        if position < self.hold_after:
            count = min(count, self.hold_after - position)
        if self.piece_size > 0:
            count = min(count, self.piece_size - position % self.piece_size)
        if self.is_generated:
            start %= len(PATTERN)
            count = min(count, BUFFER_SIZE - start)
        return self.bytes[start:start + count]


class Replies:
    """The replies in force, and what wakes those who wait."""

    def __init__(self):
        self.by_path = {}
        self.released = threading.Event()

    def take(self, message):
        """Puts the replies of a message in force, or lets the waiting ones go on."""
        if "release" in message:
            # Who waits holds on to the old one; the requests to come wait for the new one.
            released, self.released = self.released, threading.Event()
            released.set()
        else:
            self.by_path.update({path: Reply(fields) for path, fields in message.items()})


class Connection(http.server.BaseHTTPRequestHandler):
    """One connection: its requests one by one."""

    protocol_version = "HTTP/1.1"
    disable_nagle_algorithm = True

    def handle(self):
        # Not where connections are taken: a client that is slow at it would stop all others.
        self.connection.do_handshake()
        super().handle()

    def parse_request(self):
        is_request = super().parse_request()
        if is_request:
            self.released = self.server.replies.released
            path, _, query = self.path.partition("?")
            serverlink.report("request", {
                "method": self.command, "path": path, "query": query,
                "headers": list(self.headers.items())})
            serverlink.log(f"{self.command} {self.path}")
        return is_request

    def do_GET(self):
        reply = self.server.replies.by_path.get(self.path.partition("?")[0])
        if reply is None:
            self.send_error(404)
        elif reply.is_silent:
            serverlink.silent()
            self.released.wait()
            self.close_connection = True
        else:
            self._send_head(reply)
            if self.command != "HEAD" and reply.status not in STATUSES_WITHOUT_BODY:
                self._send_body(reply)

    do_HEAD = do_GET

    def _send_head(self, reply):
        self.send_response(reply.status)
        if reply.location:
            self.send_header("Location", reply.location)
        if reply.status not in STATUSES_WITHOUT_BODY:
            if reply.tells_length:
                self.send_header("Content-Length", str(reply.size))
            else:
                self.send_header("Connection", "close")
        self.end_headers()

    def _send_body(self, reply):
        position = 0
        while position < reply.last:
            self._wait(reply, position)
            part = reply.part_at(position)
            self.connection.sendall(part)
            position += len(part)
        if position == reply.hold_after:
            self.released.wait()
        if reply.is_cut:
            self._cut()

    def _cut(self):
        # Forgets TLS, so without its notice. Not by a reset: that would take from the client what
        # it has not read yet.
        self.connection.shutdown(socket.SHUT_WR)
        self.close_connection = True

    def _wait(self, reply, position):
        if position == reply.hold_after:
            self.released.wait()
        if reply.piece_size > 0 and position > 0 and position % reply.piece_size == 0:
            time.sleep(reply.pause_seconds)

    def log_message(self, format, *arguments):
        pass


class Service(socketserver.ThreadingMixIn, socketserver.TCPServer):
    """Takes the connections, each on a thread of its own."""

    daemon_threads = True
    request_queue_size = 128

    def __init__(self, options, replies):
        self.replies = replies
        self.context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        self.context.load_cert_chain(options["certificate"], options["key"])
        super().__init__(("127.0.0.1", 0), Connection)

    def get_request(self):
        plain, address = self.socket.accept()
        return self.context.wrap_socket(
            plain, server_side=True, do_handshake_on_connect=False), address

    def shutdown_request(self, request):
        try:
            # Says goodbye without waiting for the client's: some wait for the end of the line.
            socket.socket.shutdown(request, socket.SHUT_RD)
            request.unwrap()
        except (OSError, ValueError):
            # The client has gone, or TLS has been cut off.
            pass
        super().shutdown_request(request)

    def handle_error(self, request, client_address):
        # Clients go whenever they like.
        if not isinstance(sys.exc_info()[1], OSError):
            super().handle_error(request, client_address)


def serve():
    replies = Replies()
    options = serverlink.begin(replies.take)
    replies.take(options["replies"])
    service = Service(options, replies)
    serverlink.ready(service.server_address[1])
    service.serve_forever()


serve()
