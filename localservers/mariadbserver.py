"""A MariaDB server with one user, who has all rights in one database and none elsewhere.

There is a second database, "payroll", for whoever needs one that is closed. Options: user,
password, database. The server's data are the folder "data" of the working folder, what it says is
the file "server.log", its process stands in "server.pid". What clients send stands in the table
mysql.general_log, whose file has a line for each row.
"""
import os
import shutil
import socket
import subprocess
import sys

import serverlink
from childprocess import Children, LAUNCHER, launcher

SERVER = "/usr/sbin/mariadbd"
SYSTEM_TABLES = "/usr/share/mysql"

# What of Debian's installer is needed here: without the help texts and the "sys" views, which take
# longer than all else.
SYSTEM_SCRIPTS = ("mysql_system_tables.sql", "mysql_performance_tables.sql",
                  "mysql_system_tables_data.sql")

# How a server begins to tell that it crashed.
CRASH = "got signal"

# Small, and careless about a power cut: nothing is to outlive the run. The kernel's queues for
# asynchronous writing are few, and many servers may run at a time.
STORAGE = ["--innodb-buffer-pool-size=16M", "--innodb-log-file-size=4M",
           "--innodb-flush-method=nosync", "--innodb-use-native-aio=0", "--sync-frm=0"]

# The superuser has to say that he means it.
RUN_AS = ["--user=root"] if os.getuid() == 0 else []


# This one takes connections from the socket that comes as the standard input: so its port is never
# free for somebody else between looking for one and listening.
LISTENING_LAUNCHER = launcher('unset NOTIFY_SOCKET; export LISTEN_FDS=1 LISTEN_PID=$$;'
                              ' exec "$@" 3<&0 </dev/null')


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


def first_statements(options):
    user = text(options["user"]) + "@'127.0.0.1'"
    statements = (
        # Administrators of the system's tables, who would be let in without a password.
        "DELETE FROM mysql.global_priv WHERE User = 'root'",
        "FLUSH PRIVILEGES",
        "CREATE DATABASE " + name(options["database"]) + " CHARACTER SET utf8mb4",
        "CREATE DATABASE payroll CHARACTER SET utf8mb4",
        "CREATE USER " + user + " IDENTIFIED BY " + text(options["password"]),
        "GRANT ALL ON " + pattern(options["database"]) + ".* TO " + user,
        # As it is made, the table would lose the characters that take four bytes.
        "ALTER TABLE mysql.general_log"
        " MODIFY argument MEDIUMTEXT CHARACTER SET utf8mb4 NOT NULL")
    return "SET NAMES utf8mb4;\n" + "".join(map(line, statements))


def system_statements():
    """What makes the server's own tables."""
    parts = ["CREATE DATABASE mysql;\nUSE mysql;\nSET @auth_root_socket = NULL;\n"]
    for script in SYSTEM_SCRIPTS:
        with open(os.path.join(SYSTEM_TABLES, script), encoding="utf-8") as file:
            parts.append(file.read())
    return "".join(parts)


def words(file):
    with open(file, encoding="utf-8", errors="replace") as said:
        return said.read()


def errors(file):
    """What the server has to complain about, or its last words; all of them when it crashed."""
    said = words(file)
    if CRASH in said:
        return said
    lines = said.splitlines()
    # The words about a failed first statement have no brackets.
    marked = [one for one in lines if "[ERROR]" in one or one.startswith("ERROR:")]
    return "\n".join(marked or lines[-5:])


def run_installer(children, statements):
    """Makes the data folder anew; returns how the installer ended."""
    shutil.rmtree("data", ignore_errors=True)
    os.mkdir("data")
    with open("install.log", "wb") as said:
        installer = children.start(
            LAUNCHER + [SERVER, "--no-defaults", *RUN_AS, "--bootstrap", "--log-warnings=0",
                        "--datadir=" + os.path.abspath("data"), "--skip-name-resolve", *STORAGE],
            stdin=subprocess.PIPE, stdout=said, stderr=said)
    # Not on a command line and in no file, where others could read the password.
    installer.communicate(statements.encode())
    return installer.returncode


def make_data(children, statements):
    result = run_installer(children, statements)
    if result < 0 or (result > 0 and CRASH in words("install.log")):
        # Not the statements' fault: a machine that is short of something.
        result = run_installer(children, statements)
    if result != 0 and not children.is_over:
        sys.exit("no data folder could be made:\n" + errors("install.log"))


def run_server(children):
    """Returns the server's process and its port, where connections are taken soon."""
    with socket.socket() as listener, open("server.log", "wb") as said:
        listener.bind(("127.0.0.1", 0))
        listener.listen(128)
        server = children.start(
            LISTENING_LAUNCHER + [
                SERVER, "--no-defaults", *RUN_AS, "--datadir=" + os.path.abspath("data"),
                "--pid-file=" + os.path.abspath("server.pid"), "--socket=",
                "--skip-name-resolve", "--skip-log-bin", "--general-log", "--log-output=TABLE",
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
    for needed in (SERVER, SYSTEM_TABLES):
        if not os.access(needed, os.X_OK):
            sys.exit(needed + " is missing; Debian's package mariadb-server-core has it")
    make_data(children, system_statements() + first_statements(options))
    server, port = run_server(children)
    if greets(port):
        serverlink.ready(port)
    server.wait()
    if children.is_over:
        serverlink.wait_for_end()
    sys.exit("the database server has ended:\n" + errors("server.log"))


if __name__ == "__main__":
    serve()
