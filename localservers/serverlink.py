"""What the servers of this folder share: how they talk to the program that started them.

That program writes one line of JSON, the options, to the standard input and keeps it open as long
as the server is wanted. The server prints its port as one line when it is ready, then one line of
JSON for each event. Long texts go into files of the working folder, which is the server's own.
"""
import json
import logging
import os
import sys
import threading

LONGEST_LOG_LINE = 1000


def begin(before_end=None):
    """Returns the options, and from now on ends the process with its standard input.

    What is to be done before that end, if anything, is called on a thread of its own.
    """
    logging.basicConfig(level=logging.ERROR)
    options = json.loads(sys.stdin.readline())
    threading.Thread(target=_end_with_standard_input, args=(before_end,), daemon=True).start()
    return options


def ready(port):
    """Tells that connections are taken on this port."""
    print(port, flush=True)


def report(event, value=True):
    """Tells one event."""
    print(json.dumps({event: value}), flush=True)


def log(line):
    """Tells what a client asked for."""
    report("log", line[:LONGEST_LOG_LINE])


def silent():
    """Tells that a client gets no answer any more."""
    report("silent")


def _end_with_standard_input(before_end):
    # Not by sys.stdin: its lock, held here, would be missed at the interpreter's own end.
    while os.read(sys.stdin.fileno(), 4096):
        pass
    if before_end:
        before_end()
    os._exit(0)
