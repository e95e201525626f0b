"""A web server (HTTP or HTTPS) with one page, for one user or for everybody.

Options: host and port (0 for any free one), path (encoded, with the slashes around it), user and
password (no user: everybody), certificate (a PEM file with certificate and key; empty: plain HTTP)
and content, the page as HTML.

What is wrong with the options is told in words behind REFUSAL, and ends the server.
"""
import base64
import binascii
import contextlib
import errno
import hmac
import http.server
import posixpath
import re
import socket
import socketserver
import ssl
import sys
import threading
import urllib.parse

import serverlink

REFUSAL = "cannot serve: "
# A client that says nothing for so long is not coming back.
SILENCE_SECONDS = 10
# Whoever comes beyond takes the place of the one that came first.
MOST_CONNECTIONS = 64
# The program that started this one keeps all lines.
MOST_LOG_LINES = 10000

HEADERS = (
    # The page needs nothing but its own styles, whatever stands in it.
    ("Content-Security-Policy", "default-src 'none'; style-src 'unsafe-inline'"),
    ("X-Content-Type-Options", "nosniff"),
    ("Cache-Control", "no-store"),
)


def refuse(reason):
    sys.exit(REFUSAL + reason)


def plain(target):
    """Returns the path that a target means, which some clients send as it is and others shorten."""
    path = urllib.parse.unquote_to_bytes(target)
    shortened = posixpath.normpath(b"/" + path.lstrip(b"/"))
    return shortened + b"/" if path.endswith(b"/") and shortened != b"/" else shortened


class Site:
    """What is served, and to whom."""

    def __init__(self, options):
        self.path = plain(options["path"])
        # Half a character can be typed, but not sent.
        self.user, self.password, self.content = (
            options[name].encode("utf-8", "replace") for name in ("user", "password", "content"))
        self.lines_left = MOST_LOG_LINES
        self.lock = threading.Lock()

    def lets_in(self, authorization):
        """Whether these credentials, the header of a request, are those of the user."""
        if not self.user:
            return True
        scheme, _, token = (authorization or "").partition(" ")
        try:
            given = base64.b64decode(token.strip(), validate=True)
        except (binascii.Error, ValueError):
            return False
        return (scheme.lower() == "basic"
                and hmac.compare_digest(given, self.user + b":" + self.password))

    def log(self, line):
        with self.lock:
            self.lines_left -= 1
            left = self.lines_left
        if left > 0:
            serverlink.log("".join(c if c.isprintable() else "?" for c in line))
        elif left == 0:
            serverlink.log("further requests are answered and not told any more")


class Connection(http.server.BaseHTTPRequestHandler):
    """One connection with one request."""

    server_version = "TXGallery"
    sys_version = ""
    timeout = SILENCE_SECONDS

    def handle(self):
        if isinstance(self.connection, ssl.SSLSocket):
            # Not where connections are taken: a client that is slow at it would stop all others.
            self.connection.do_handshake()
        super().handle()

    def do_GET(self):
        site = self.server.site
        # The bytes as they came: some clients do not encode them.
        target = self.path.partition("?")[0].encode("latin-1")
        if not site.lets_in(self.headers.get("Authorization")):
            self._answer(401, b"<p>Name and password, please.</p>",
                         ("WWW-Authenticate", 'Basic realm="TXGallery", charset="UTF-8"'))
        elif plain(target) != site.path:
            self._answer(404, b"<p>There is nothing here.</p>")
        else:
            self._answer(200, site.content)

    do_HEAD = do_GET

    def _answer(self, status, body, *headers):
        self.send_response(status)
        for name, value in HEADERS + headers:
            self.send_header(name, value)
        self.send_header("Content-Type", "text/html; charset=utf-8")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        if self.command != "HEAD":
            self.wfile.write(body)

    def log_request(self, code="-", size="-"):
        # Without the query, in which forms may send anything, and without a login in the URL.
        words = self.requestline.split()
        targets = [re.sub("//.*@", "//", word.partition("?")[0]) for word in words[1:2]]
        asked = " ".join([self.command or "?"] + targets)
        self.server.site.log(f"{self.client_address[0]}: {asked}, {int(code)}")

    def log_message(self, format, *arguments):
        pass


class Service(socketserver.ThreadingMixIn, socketserver.TCPServer):
    """Takes the connections, each on a thread of its own."""

    daemon_threads = True
    request_queue_size = 128
    # What an earlier run's connections leave behind is no hindrance; a listener still is.
    allow_reuse_address = True

    def __init__(self, options, site):
        self.site = site
        self.context = context_with(options["certificate"]) if options["certificate"] else None
        self.places = threading.Semaphore(MOST_CONNECTIONS)
        self.lock = threading.Lock()
        # In the order in which they came.
        self.connections = {}
        super().__init__((options["host"], options["port"]), Connection)

    def get_request(self):
        plain, address = self.socket.accept()
        if self.context is None:
            return plain, address
        return self.context.wrap_socket(
            plain, server_side=True, do_handshake_on_connect=False), address

    def process_request(self, request, client_address):
        if not self.places.acquire(blocking=False):
            # One that sends a byte now and then would keep its place for ever.
            self._send_away_oldest()
            self.places.acquire()
        with self.lock:
            self.connections[request] = True
        try:
            super().process_request(request, client_address)
        except RuntimeError:
            # The system has no thread to give.
            self.places.release()
            raise

    def process_request_thread(self, request, client_address):
        try:
            super().process_request_thread(request, client_address)
        finally:
            self.places.release()

    def _send_away_oldest(self):
        # Unless it goes by itself.
        with self.lock, contextlib.suppress(OSError, StopIteration):
            socket.socket.shutdown(next(iter(self.connections)), socket.SHUT_RDWR)

    def shutdown_request(self, request):
        with self.lock:
            self.connections.pop(request, None)
        try:
            # Says goodbye without waiting for the client's: some wait for the end of the line.
            socket.socket.shutdown(request, socket.SHUT_RD)
            if self.context is not None:
                request.unwrap()
        except (OSError, ValueError):
            # The client has gone, or TLS has been cut off.
            pass
        super().shutdown_request(request)

    def handle_error(self, request, client_address):
        # Clients go whenever they like, and some speak no TLS.
        if not isinstance(sys.exc_info()[1], OSError):
            super().handle_error(request, client_address)


class LockedKey(Exception):
    """The key asks for a password."""


def no_password():
    # Otherwise it would be asked for at the terminal.
    raise LockedKey


def context_with(certificate):
    context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
    try:
        context.load_cert_chain(certificate, password=no_password)
    except LockedKey:
        refuse(f"the key in {certificate} is locked by a password")
    except ssl.SSLError:
        refuse(f"{certificate} does not hold a certificate and its key")
    except OSError as error:
        refuse(f"{certificate} cannot be read: {error.strerror}")
    return context


def service_with(options, site):
    port = options["port"]
    try:
        return Service(options, site)
    except OSError as error:
        reasons = {errno.EADDRINUSE: "is taken by another program",
                   errno.EACCES: "is for programs with more rights only"}
        refuse(f"port {port} " + reasons.get(error.errno, f"is not given: {error.strerror}"))


def serve():
    options = serverlink.begin()
    service = service_with(options, Site(options))
    serverlink.ready(service.server_address[1])
    service.serve_forever()


serve()
