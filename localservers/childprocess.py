"""Programs that a server's script runs, and that end with it."""
import os
import signal
import subprocess
import sys
import threading
import time


def launcher(last_words):
    """Runs a program that is killed when this process is gone, however that ended."""
    return ["/usr/bin/setpriv", "--pdeathsig", "KILL", "/bin/sh", "-c",
            '[ "$PPID" = "$0" ] || exit; ' + last_words, str(os.getpid())]


LAUNCHER = launcher('exec "$@"')


class Children:
    """The one process that runs at a time, ended before this one ends."""

    def __init__(self, mark=None):
        """Processes with the mark among their arguments belong to it too, wherever they are."""
        self.lock = threading.Lock()
        self.mark = os.fsencode(mark) if mark else None
        self.current = None
        self.is_over = False

    def start(self, command, **options):
        with self.lock:
            if self.is_over:
                sys.exit()
            # A group of its own, which ends as a whole.
            self.current = subprocess.Popen(command, start_new_session=True, **options)
        return self.current

    def wait(self):
        """Waits for the process, and ends with it whatever belongs to it."""
        try:
            # Left unburied, so that nobody else gets its number meanwhile.
            os.waitid(os.P_PID, self.current.pid, os.WEXITED | os.WNOWAIT)
        except ChildProcessError:
            pass
        with self.lock:
            self._end_all()

    def end(self):
        with self.lock:
            self.is_over = True
            self._end_all()

    def _end_all(self):
        if self.current and self.current.returncode is None:
            while left := [one for one in _processes() if self._is_ours(one)]:
                for process in left:
                    _kill(process)
                time.sleep(0.005)
            self.current.wait()

    def _is_ours(self, process):
        try:
            with open("/proc/%s/stat" % process, "rb") as file:
                # "12 (smbd) S 1 12 …": the state, the parent, the group.
                state, _, group = file.read().rpartition(b")")[2].split()[:3]
            if state in b"ZX":
                return False
            if int(group) == self.current.pid:
                return True
            with open("/proc/%s/cmdline" % process, "rb") as file:
                return self.mark in file.read().split(b"\0")
        except OSError:
            return False


def _processes():
    return map(int, filter(str.isdigit, os.listdir("/proc")))


def _kill(process):
    try:
        os.kill(process, signal.SIGKILL)
    except ProcessLookupError:
        pass
