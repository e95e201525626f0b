"""What the servers of this folder share: how they talk to the program that started them.

That program writes one line of JSON, the options, to the standard input and keeps it open as long
as the server is wanted. The server prints its port as one line when it is ready, then one line of
JSON for each event. Long texts go into files of the working folder, which is the server's own.

Once the server is ready, further lines of JSON may come: messages, each answered by the event
"taken" when it is in force.
"""
import json
import logging
import os
import sys
import threading
import traceback

LONGEST_LOG_LINE = 1000

_output = threading.Lock()


def begin(take=lambda message: None, before_end=lambda: None):
    """Returns the options, and from now on ends the process with its standard input.

    The messages that come are handed to take. What is to be done before the end, if anything, is
    before_end. Both are called on a thread of their own.
    """
    logging.basicConfig(level=logging.ERROR)
    options = json.loads(sys.stdin.readline())
    threading.Thread(target=_follow_standard_input, args=(take, before_end), daemon=True).start()
    return options


def ready(port):
    """Tells that connections are taken on this port."""
    print(port, flush=True)


def report(event, value=True):
    """Tells one event. May be called by several threads."""
    line = json.dumps({event: value}) + "\n"
    with _output:
        sys.stdout.write(line)
        sys.stdout.flush()


def log(line):
    """Tells what a client asked for."""
    report("log", line[:LONGEST_LOG_LINE])


def wait_for_end():
    """Waits while another thread ends the process."""
    threading.Event().wait()


def silent():
    """Tells that a client gets no answer any more."""
    report("silent")


def _follow_standard_input(take, before_end):
    try:
        for line in _lines_of_standard_input():
            take(json.loads(line))
            report("taken")
        before_end()
    except Exception:
        # Whoever sent the message must not wait for its answer.
        traceback.print_exc()
        os._exit(1)
    os._exit(0)


def _lines_of_standard_input():
    # Not by sys.stdin: its lock, held here, would be missed at the interpreter's own end.
    rest = b""
    while data := os.read(sys.stdin.fileno(), 65536):
        *lines, rest = (rest + data).split(b"\n")
        yield from lines
