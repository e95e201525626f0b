"""An SFTP server with one user, whose root is the folder "home" of the working folder.

The host key is made anew at each start; its public half is the file "hostkey.pub". Options: user,
password, silentAt ("", "greeting": nothing follows the version line, "user": the password is never
judged).
"""
import asyncio
import functools
import os

import asyncssh

import serverlink

PATH_OPERATIONS = ("realpath", "stat", "lstat", "open", "listdir", "remove", "mkdir", "rmdir",
                   "rename", "setstat", "readlink", "symlink")
HOST_KEY_FILE = "hostkey.pub"


async def stay_silent():
    serverlink.silent()
    await asyncio.Event().wait()


class Logins(asyncssh.SSHServer):
    """Judges the passwords. Keys may be tried, but none is right."""

    options = {}

    def begin_auth(self, username):
        return True

    def password_auth_supported(self):
        return True

    def public_key_auth_supported(self):
        return True

    def validate_public_key(self, username, key):
        serverlink.log(f"key of {username}")
        return False

    def kbdint_auth_supported(self):
        # Else a client tries a refused password a second time in this way.
        return False

    async def validate_password(self, username, password):
        serverlink.log(f"login {username}")
        if self.options["silentAt"] == "user":
            await stay_silent()
        right = (username, password) == (self.options["user"], self.options["password"])
        serverlink.log("accepted" if right else "refused")
        return right


class Files(asyncssh.SFTPServer):
    """Logs each operation with its path."""

    def __init__(self, channel):
        super().__init__(channel, chroot=os.path.abspath("home"))


def recorded(operation):
    method = getattr(asyncssh.SFTPServer, operation)

    @functools.wraps(method)
    def answer(self, path, *arguments):
        serverlink.log(f"{operation} {path.decode(errors='replace')}")
        return method(self, path, *arguments)
    return answer


for name in PATH_OPERATIONS:
    setattr(Files, name, recorded(name))


async def greet_and_stay_silent(_reader, writer):
    writer.write(b"SSH-2.0-localserver\r\n")
    await writer.drain()
    await stay_silent()


async def serve():
    Logins.options = options = serverlink.begin()
    os.mkdir("home")
    key = asyncssh.generate_private_key("ssh-ed25519")
    key.write_public_key(HOST_KEY_FILE)
    if options["silentAt"] == "greeting":
        server = await asyncio.start_server(greet_and_stay_silent, "127.0.0.1", 0)
    else:
        server = await asyncssh.listen(
            "127.0.0.1", 0, server_factory=Logins, server_host_keys=[key], sftp_factory=Files)
    serverlink.ready(server.sockets[0].getsockname()[1])
    await asyncio.Event().wait()


asyncio.run(serve())
