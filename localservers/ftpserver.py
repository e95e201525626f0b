"""An FTP server with one user, whose home is the folder "home" of the working folder.

Options: user, password, silentAt ("", "greeting": no command is answered, "user": none after
USER), certificate and key (files; when set, the server speaks TLS from the first byte on its
control connection).
"""
import os

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.handlers import FTPHandler
from pyftpdlib.servers import FTPServer

import serverlink
import tlsrelay

PERMISSIONS = "elradfmwMT"


class Session(FTPHandler):
    """One connection: logs the commands, and falls silent where it is told to."""

    auth_failed_timeout = 0.2
    silent_at = ""

    def pre_process_command(self, line, cmd, arg):
        serverlink.log("PASS" if cmd == "PASS" else line)
        if self.silent_at == "greeting" or (self.silent_at == "user" and cmd != "USER"):
            serverlink.silent()
            return
        super().pre_process_command(line, cmd, arg)


def serve():
    options = serverlink.begin()
    os.mkdir("home")
    authorizer = DummyAuthorizer()
    authorizer.add_user(options["user"], options["password"], "home", perm=PERMISSIONS)
    Session.authorizer = authorizer
    Session.silent_at = options["silentAt"]
    server = FTPServer(("127.0.0.1", 0), Session)
    port = server.address[1]
    if options["certificate"]:
        tlsrelay.start(options["certificate"], options["key"], port, serverlink.ready)
    else:
        serverlink.ready(port)
    server.serve_forever()


serve()
