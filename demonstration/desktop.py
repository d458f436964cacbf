"""A desktop of its own for the program: an Xvfb with a window manager, real mouse and real keys."""
import ctypes
import os
import shutil
import signal
import sqlite3
import subprocess
import tempfile
import time
from pathlib import Path

from properties import numbers

TIMEOUT = 60
TOOLS = ("Xvfb", "xdotool", "openbox", "import")
PR_SET_PDEATHSIG = 1
_LIBC = ctypes.CDLL(None)


def require_tools():
    for tool in TOOLS:
        if shutil.which(tool) is None:
            raise SystemExit(f"{tool} is not installed")


def rows(database, sql, shared=False):
    """The first column of a query on the file; `shared` while the program has it open."""
    access = "mode=ro" if shared else "immutable=1"
    connection = sqlite3.connect(f"file:{database}?{access}", uri=True, timeout=10)
    try:
        return [row[0] for row in connection.execute(sql)]
    finally:
        connection.close()


def end_with_the_starter():
    _LIBC.prctl(PR_SET_PDEATHSIG, signal.SIGTERM)


class Started:
    """A program that runs on the desktop. What it says is kept, and told when it ends too early."""

    def __init__(self, command, environment, pass_fds=()):
        self.name = Path(command[0]).name
        self.said = tempfile.TemporaryFile()
        self.process = subprocess.Popen(
            list(map(str, command)), env=environment, pass_fds=pass_fds, stdin=subprocess.DEVNULL,
            stdout=self.said, stderr=subprocess.STDOUT, preexec_fn=end_with_the_starter)

    def words(self):
        # Without moving the place in the file, at which the program writes on.
        file = self.said.fileno()
        return os.pread(file, os.fstat(file).st_size, 0).decode(errors="replace").strip()

    def require(self, what):
        """Ends the run where the program has ended, with its own words."""
        if self.process.poll() is not None:
            raise SystemExit(f"{self.name} ended with {self.process.returncode} before {what}\n{self.words()}")

    def end(self):
        self.process.terminate()
        try:
            self.process.wait(TIMEOUT)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        self.said.close()


class Display:
    """An Xvfb whose window manager answers; ends both, and what was started on it, when it is left."""

    def __enter__(self):
        self.started = []
        self.folder = tempfile.TemporaryDirectory()
        try:
            self._start_server()
            self._start_manager()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for started in reversed(self.started):
            started.end()
        self.folder.cleanup()

    def _start_server(self):
        read, write = os.pipe()
        # Without -noreset the server starts anew when its only client leaves, which the question for the
        # window manager is.
        self._keep(Started(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1366x768x24", "-dpi", "96", "-nolisten", "tcp",
             "-noreset", "-r"], os.environ, pass_fds=[write]))
        os.close(write)
        with os.fdopen(read) as pipe:
            number = pipe.readline().strip()
        if not number:
            self.started[0].process.wait()
            self.started[0].require("it had a display")
        self.name = f":{number}"
        self.environment = dict(os.environ, DISPLAY=self.name, QT_QPA_PLATFORM="xcb",
                                XDG_RUNTIME_DIR=self.folder.name)

    def _start_manager(self):
        # Neither what this user has set up nor what an earlier run has left behind.
        own = {f"XDG_{kind}_HOME": self.folder.name for kind in ("CONFIG", "CACHE", "DATA")}
        self._keep(Started(["openbox"], dict(self.environment, **own)))
        self.wait(self._manager_answers, "the window manager")

    def _manager_answers(self):
        """A window that is mapped while the manager takes over may stay unmapped for ever. What the root names
        as the manager's window names itself early, with cold caches seconds before that is over; only a
        manager that is at work grants a request."""
        window = numbers(self.name, "_NET_SUPPORTING_WM_CHECK")
        if not window or numbers(self.name, "_NET_SUPPORTING_WM_CHECK", window[0]) != window:
            return False
        self.xdotool("set_num_desktops", 1)
        return numbers(self.name, "_NET_NUMBER_OF_DESKTOPS") == [1]

    def _keep(self, started):
        self.started.append(started)
        return started

    def start(self, *command):
        """Starts the program that the run is about; whatever is waited for, the run ends when it does."""
        return self._keep(Started(command, self.environment))

    def finish(self, started, timeout=TIMEOUT):
        """Waits for the end of a program that was told to end; ends the run where it failed."""
        try:
            code = started.process.wait(timeout)
        except subprocess.TimeoutExpired:
            raise SystemExit(f"{started.name} does not end\n{started.words()}")
        if code != 0:
            raise SystemExit(f"{started.name} ended with {code}\n{started.words()}")
        self.started.remove(started)
        started.said.close()

    def wait(self, condition, what):
        """The first true result of `condition`; ends the run when none comes."""
        end = time.monotonic() + TIMEOUT
        while time.monotonic() < end:
            result = condition()
            if result:
                return result
            for started in self.started:
                started.require(f"there was {what}")
            time.sleep(0.05)
        raise SystemExit(f"never came: {what}")

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *map(str, arguments)], env=self.environment,
                              capture_output=True, text=True).stdout.strip()

    def windows(self, title):
        """The visible windows of that very title."""
        return self.xdotool("search", "--onlyvisible", "--name", f"^{title}$").splitlines()

    def window(self, title):
        """Waits for a visible window of that very title."""
        return self.wait(lambda: self.windows(title), f"the window {title!r}")[-1]

    def no_window(self, title):
        self.wait(lambda: not self.windows(title), f"the end of the window {title!r}")

    def active(self):
        """The window that the manager has made the active one; none while it has not."""
        return str((numbers(self.name, "_NET_ACTIVE_WINDOW") or [0])[0])

    def stacking(self):
        """The managed windows, the lowest first."""
        return [str(window) for window in numbers(self.name, "_NET_CLIENT_LIST_STACKING")]

    def focus(self, title):
        """Waits until the manager has put the window in front of all others and given it the keyboard: that is
        its own choice, as an operator finds it."""
        def in_front():
            return [window for window in self.windows(title)
                    if window == self.active() == self.xdotool("getwindowfocus")
                    and self.stacking()[-1:] == [window]]
        return self.wait(in_front, f"the window {title!r} in front with the keyboard")[-1]

    def key(self, *keys):
        self.xdotool("key", "--delay", 60, *keys)

    def type(self, text):
        self.xdotool("type", "--delay", 40, text)

    def place(self, window):
        """Left, top, width and height of the window without its frame, on the screen."""
        said = dict(line.split("=") for line in self.xdotool("getwindowgeometry", "--shell", window).split())
        return [int(said[name]) for name in ("X", "Y", "WIDTH", "HEIGHT")]

    def click(self, window, x, y):
        self.xdotool("mousemove", "--window", window, x, y)
        time.sleep(0.2)
        self.xdotool("click", 1)

    def picture(self, path):
        """The whole screen as a PNG."""
        subprocess.run(["import", "-window", "root", str(path)], env=self.environment, check=True)
