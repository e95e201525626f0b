"""A MariaDB server with one user, who has all rights in one database and none elsewhere.

There is a second database, "payroll", for whoever needs one that is closed. Options: user,
password, database. The server's data are the folder "data" of the working folder, what it says is
the file "server.log", its process stands in "server.pid". What clients send stands in the table
mysql.general_log, whose file has a line for each row.
"""
import os
import signal
import socket
import subprocess
import sys
import threading

import serverlink

INSTALLER = "/usr/bin/mariadb-install-db"
SERVER = "/usr/sbin/mariadbd"
FIRST_STATEMENTS = "first.sql"

# Small, and careless about a power cut: nothing is to outlive the run.
STORAGE = ["--innodb-buffer-pool-size=16M", "--innodb-log-file-size=4M",
           "--innodb-flush-method=nosync", "--sync-frm=0"]

# The superuser has to say that he means it. The installer would change owners in the system's
# folders for the long form, and hands the short one on.
RUN_AS = ["-uroot"] if os.getuid() == 0 else []

# Runs a program that is killed when this process is gone, however that ended. The program takes
# connections from the socket that comes as the standard input: so its port is never free for
# somebody else between looking for one and listening.
LAUNCHER = ["/usr/bin/setpriv", "--pdeathsig", "KILL", "/bin/sh", "-c",
            '[ "$PPID" = "$0" ] || exit; unset NOTIFY_SOCKET;'
            ' export LISTEN_FDS=1 LISTEN_PID=$$; exec "$@" 3<&0 </dev/null', str(os.getpid())]


class Children:
    """The one process that runs at a time, ended before this one ends."""

    def __init__(self):
        self.lock = threading.Lock()
        self.current = None
        self.is_over = False

    def start(self, command, **options):
        with self.lock:
            if self.is_over:
                sys.exit()
            # A group of its own, which ends as a whole.
            self.current = subprocess.Popen(command, start_new_session=True, **options)
        return self.current

    def end(self):
        with self.lock:
            self.is_over = True
            if self.current and self.current.poll() is None:
                os.killpg(self.current.pid, signal.SIGKILL)
                self.current.wait()


def text(value):
    return "'" + value.replace("\\", "\\\\").replace("'", "''") + "'"


def name(value):
    return "`" + value.replace("`", "``") + "`"


def pattern(value):
    """The name of a database where GRANT would see wildcards."""
    for character in "\\_%":
        value = value.replace(character, "\\" + character)
    return name(value)


def line(statement):
    """The statement as the server reads it from a file: whatever it holds, it is one line."""
    return "EXECUTE IMMEDIATE CONVERT(0x" + statement.encode().hex() + " USING utf8mb4);\n"


def write_first_statements(options):
    # Not on a command line, where everybody could read the password.
    user = text(options["user"]) + "@'127.0.0.1'"
    statements = (
        # The installer's administrators, who would be let in without a password.
        "DELETE FROM mysql.global_priv WHERE User = 'root'",
        "FLUSH PRIVILEGES",
        "CREATE DATABASE " + name(options["database"]) + " CHARACTER SET utf8mb4",
        "CREATE DATABASE payroll CHARACTER SET utf8mb4",
        "CREATE USER " + user + " IDENTIFIED BY " + text(options["password"]),
        "GRANT ALL ON " + pattern(options["database"]) + ".* TO " + user,
        # As it is made, the table would lose the characters that take four bytes.
        "ALTER TABLE mysql.general_log"
        " MODIFY argument MEDIUMTEXT CHARACTER SET utf8mb4 NOT NULL")
    with open(FIRST_STATEMENTS, "w", encoding="ascii") as file:
        file.write("SET NAMES utf8mb4;\n" + "".join(map(line, statements)))


def errors(file):
    """What the server has to complain about, or its last words."""
    with open(file, encoding="utf-8", errors="replace") as said:
        lines = said.read().splitlines()
    # The words about a failed first statement have no brackets.
    marked = [one for one in lines if "[ERROR]" in one or one.startswith("ERROR:")]
    return "\n".join(marked or lines[-5:])


def make_data(children):
    with open("install.log", "wb") as said:
        installer = children.start(
            [INSTALLER, "--no-defaults", *RUN_AS, "--datadir=" + os.path.abspath("data"),
             "--force", "--skip-name-resolve", "--skip-test-db",
             "--auth-root-authentication-method=normal",
             "--extra-file=" + FIRST_STATEMENTS, *STORAGE],
            stdin=subprocess.DEVNULL, stdout=said, stderr=said)
    if installer.wait() != 0 and not children.is_over:
        sys.exit("no data folder could be made:\n" + errors("install.log"))


def run_server(children):
    """Returns the server's process and its port, where connections are taken soon."""
    with socket.socket() as listener, open("server.log", "wb") as said:
        listener.bind(("127.0.0.1", 0))
        listener.listen(128)
        server = children.start(
            LAUNCHER + [SERVER, "--no-defaults", *RUN_AS, "--datadir=" + os.path.abspath("data"),
                        "--pid-file=" + os.path.abspath("server.pid"), "--socket=",
                        "--skip-name-resolve", "--skip-log-bin",
                        "--general-log", "--log-output=TABLE",
                        "--character-set-server=utf8mb4", *STORAGE],
            stdin=listener, stdout=said, stderr=said)
        return server, listener.getsockname()[1]


def greets(port):
    """Waits for the server's first word, which comes when it is ready; false when it has ended."""
    try:
        with socket.create_connection(("127.0.0.1", port)) as connection:
            return connection.recv(1) != b""
    except OSError:
        return False


def serve():
    children = Children()
    options = serverlink.begin(before_end=children.end)
    os.umask(0o077)
    # A server deletes the temporary files of another one that it finds when it starts.
    os.mkdir("tmp")
    os.environ["TMPDIR"] = os.path.abspath("tmp")
    for program in (INSTALLER, SERVER):
        if not os.access(program, os.X_OK):
            sys.exit(program + " is missing; Debian's package mariadb-server-core has it")
    write_first_statements(options)
    make_data(children)
    os.remove(FIRST_STATEMENTS)
    server, port = run_server(children)
    if greets(port):
        serverlink.ready(port)
    server.wait()
    if children.is_over:
        threading.Event().wait()
    sys.exit("the database server has ended:\n" + errors("server.log"))


if __name__ == "__main__":
    serve()
