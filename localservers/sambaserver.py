"""A Samba server with one user and some shared folders.

Options: user, password, shares (names), port (0 for any). Share number n is the folder "share<n>" of the working
folder; what the server says is the file "server.log", the group of its processes stands in
"group.pid".

Nothing of the system is touched: the user is made up by libnss_wrapper, and libuid_wrapper lets the
server believe that it may become him.
"""
import os
import pathlib
import re
import socket
import subprocess
import sys
import time
import unicodedata

import serverlink
from childprocess import Children, LAUNCHER

SERVER = "/usr/sbin/smbd"
PASSWORDS = "/usr/bin/smbpasswd"
LIBRARIES = ("libnss_wrapper.so", "libuid_wrapper.so")
READY_SECONDS = 20

# What the server's configuration gives another meaning, or takes away.
NO_SHARES = ("global", "homes", "printers", "print$", "ipc$")
NOT_IN_SHARES = "[]%/\\"
LONGEST_SHARE = 80
LONGEST_PASSWORD = 127

GLOBAL = """[global]
server role = standalone
interfaces = 127.0.0.1
bind interfaces only = yes
smb ports = {port}
disable netbios = yes
disable spoolss = yes
load printers = no
map to guest = Bad User
restrict anonymous = 0
usershare max shares = 0
passdb backend = smbpasswd:{folder}/smbpasswd
private dir = {folder}/state
lock directory = {folder}/state
state directory = {folder}/state
cache directory = {folder}/state
pid directory = {folder}/state
ncalrpc dir = {folder}/state/ncalrpc
"""

SHARE = """[{name}]
path = {folder}/share{number}
read only = no
"""


def has_line_end(text):
    return any(unicodedata.category(one) in ("Cc", "Zl", "Zp") for one in text)


def problem_of_share(name):
    """Why the server cannot have a share of this name, or nothing."""
    if not name or len(name) > LONGEST_SHARE:
        return "is empty or too long"
    if has_line_end(name) or any(one in NOT_IN_SHARES for one in name):
        return "has a character that no share may have"
    if name != " ".join(name.split()) or name[0] == name[-1] == '"':
        return "has blanks or quotes that would be lost"
    if name.casefold() in NO_SHARES:
        return "means something else"
    return ""


def check(options):
    if not re.fullmatch("[a-z_][a-z0-9_-]{0,31}", options["user"]):
        sys.exit("the user's name is none of Unix")
    password = options["password"]
    # The tool that takes it reads a line; all else it takes.
    if not password or len(password) > LONGEST_PASSWORD or "\n" in password or "\0" in password:
        sys.exit("the password is empty or too long, or has a line feed or a null")
    for name in options["shares"]:
        if problem_of_share(name):
            sys.exit("the share's name %a %s" % (name, problem_of_share(name)))
    if len({name.casefold() for name in options["shares"]}) < len(options["shares"]):
        sys.exit("two shares have the same name")
    folder = os.getcwd()
    if "%" in folder or has_line_end(folder) or folder != " ".join(folder.split()):
        sys.exit("the server cannot work in the folder %a" % folder)


def write(name, text):
    pathlib.Path(name).write_text(text, encoding="utf-8")


def write_configuration(port, shares):
    folder = os.getcwd()
    parts = [GLOBAL.format(port=port, folder=folder)]
    for number, name in enumerate(shares):
        os.mkdir("share%d" % number)
        parts.append(SHARE.format(name=name, folder=folder, number=number))
    write("smb.conf", "".join(parts))


def write_users(user):
    ids = "%d:%d" % (os.getuid(), os.getgid())
    nobody = "nobody:x:65534:65534::/nonexistent:/usr/sbin/nologin\n"
    root = "root:x:0:0::/root:/bin/sh\n"
    others = "".join(one for one in (root, nobody) if not one.startswith(user + ":"))
    write("passwd", user + ":x:" + ids + "::/nonexistent:/usr/sbin/nologin\n" + others)
    write("group", "root:x:0:\nusers:x:%d:\nnogroup:x:65534:\n" % os.getgid())


def environment():
    return dict(os.environ, LD_PRELOAD=":".join(LIBRARIES), UID_WRAPPER="1", UID_WRAPPER_ROOT="1",
                NSS_WRAPPER_PASSWD=os.path.abspath("passwd"),
                NSS_WRAPPER_GROUP=os.path.abspath("group"))


def set_password(user, password):
    tool = subprocess.run([PASSWORDS, "-c", "smb.conf", "-a", "-s", user], env=environment(),
                          input=(password + "\n" + password + "\n").encode(),
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    if tool.returncode != 0:
        sys.exit("the user could not be made:\n" + tool.stdout.decode(errors="replace"))


def is_free(port):
    """Whether nobody listens there. What is left of a server that has ended does not count."""
    with socket.socket() as probe:
        # Without the sharing that a holder asks for: another server of this kind would let us in.
        probe.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
        try:
            probe.bind(("127.0.0.1", port))
        except OSError:
            return False
        return True


def reserve_port(wanted):
    """A port for the server, and the socket that holds it: the server shares it, nobody else."""
    holder = socket.socket()
    holder.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEPORT, 1)
    try:
        holder.bind(("127.0.0.1", wanted if is_free(wanted) else 0))
    except OSError:
        # Somebody was quicker.
        holder.bind(("127.0.0.1", 0))
    return holder, holder.getsockname()[1]


def wait_for(server, port):
    end = time.monotonic() + READY_SECONDS
    while server.poll() is None and time.monotonic() < end:
        try:
            socket.create_connection(("127.0.0.1", port)).close()
            return True
        except OSError:
            time.sleep(0.02)
    return False


def need(file, package):
    if not os.access(file, os.R_OK):
        sys.exit(file + " is missing; Debian's package " + package + " has it")


def need_library(library, package):
    folders = ("/usr/lib", *pathlib.Path("/usr/lib").glob("*-linux-gnu"))
    if not any(os.path.exists(os.path.join(folder, library)) for folder in folders):
        sys.exit(library + " is missing; Debian's package " + package + " has it")


def serve():
    configuration = "--configfile=" + os.path.abspath("smb.conf")
    # Lists of shares are made by programs that leave the server's group.
    children = Children(mark=configuration)
    options = serverlink.begin(before_end=children.end)
    os.umask(0o077)
    need(SERVER, "samba")
    need(PASSWORDS, "samba-common-bin")
    for library in LIBRARIES:
        need_library(library, library.removesuffix(".so").replace("_", "-"))
    check(options)
    os.makedirs("state/ncalrpc")
    holder, port = reserve_port(options.get("port", 0))
    write_configuration(port, options["shares"])
    write_users(options["user"])
    set_password(options["user"], options["password"])
    with open("server.log", "wb") as said:
        server = children.start(
            LAUNCHER + [SERVER, "--foreground", "--no-process-group", "--debug-stdout",
                        configuration],
            stdin=subprocess.DEVNULL, stdout=said, stderr=said, env=environment())
    write("group.pid", str(server.pid))
    if wait_for(server, port):
        serverlink.ready(port)
    children.wait()
    holder.close()
    if children.is_over:
        serverlink.wait_for_end()
    sys.exit("the file server has ended:\n"
             + pathlib.Path("server.log").read_text(encoding="utf-8", errors="replace")[-2000:])


if __name__ == "__main__":
    serve()
