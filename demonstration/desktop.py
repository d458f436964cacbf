"""A desktop of its own for the program: an Xvfb with a window manager, real mouse and real keys."""
import os
import shutil
import sqlite3
import subprocess
import time

TIMEOUT = 60
TOOLS = ("Xvfb", "xdotool", "openbox", "import")


def require_tools():
    for tool in TOOLS:
        if shutil.which(tool) is None:
            raise SystemExit(f"{tool} is not installed")


def wait(condition, what):
    """The first true result of `condition`; ends the run when none comes."""
    end = time.monotonic() + TIMEOUT
    while time.monotonic() < end:
        result = condition()
        if result:
            return result
        time.sleep(0.05)
    raise SystemExit(f"never came: {what}")


def rows(database, sql, shared=False):
    """The first column of a query on the file; `shared` while the program has it open."""
    access = "mode=ro" if shared else "immutable=1"
    connection = sqlite3.connect(f"file:{database}?{access}", uri=True, timeout=10)
    try:
        return [row[0] for row in connection.execute(sql)]
    finally:
        connection.close()


class Display:
    """An Xvfb with a window manager; ends both when it is left."""

    def __enter__(self):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1366x768x24", "-nolisten", "tcp", "-r"],
            pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as pipe:
            self.name = ":" + pipe.readline().strip()
        self.environment = dict(os.environ, DISPLAY=self.name, QT_QPA_PLATFORM="xcb")
        self.manager = subprocess.Popen(["openbox"], env=self.environment,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return self

    def __exit__(self, *_):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *map(str, arguments)], env=self.environment,
                              capture_output=True, text=True).stdout.strip()

    def windows(self, title):
        """The visible windows of that very title."""
        return self.xdotool("search", "--onlyvisible", "--name", f"^{title}$").splitlines()

    def window(self, title):
        """Waits for a visible window of that very title."""
        return wait(lambda: self.windows(title), f"the window {title!r}")[-1]

    def no_window(self, title):
        wait(lambda: not self.windows(title), f"the window {title!r} to close")

    def focus(self, title):
        """Waits for the window and until it has the keyboard."""
        window = self.window(title)
        self.xdotool("windowactivate", "--sync", window)
        wait(lambda: self.xdotool("getwindowfocus") == window, f"the keyboard for {title!r}")
        return window

    def key(self, *keys):
        self.xdotool("key", "--delay", 60, *keys)

    def type(self, text):
        self.xdotool("type", "--delay", 40, text)

    def click(self, window, x, y):
        self.xdotool("mousemove", "--window", window, x, y)
        time.sleep(0.2)
        self.xdotool("click", 1)

    def picture(self, path):
        """The whole screen as a PNG."""
        subprocess.run(["import", "-window", "root", str(path)], env=self.environment, check=True)
