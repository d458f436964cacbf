"""The program on a desktop as its journeys find it: laid out in a folder of its own, started, logged in."""
import subprocess
import sys
import tempfile
from contextlib import contextmanager
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[3]
sys.dont_write_bytecode = True
sys.path.insert(0, str(SOURCE / "demonstration"))
from desktop import Display, require_tools, rows  # noqa: E402,F401


@contextmanager
def laid_out(build):
    """A display and a fresh folder of the program that was built there."""
    require_tools()
    with tempfile.TemporaryDirectory() as folder, Display() as display:
        subprocess.run([str(SOURCE / "packaging" / "lay-out"), str(build), folder], check=True)
        yield display, Path(folder)


def log_in(display):
    """Into the demonstration town; the alert comes a second after the main window."""
    display.focus("Login")
    display.type("financas")
    display.key("Tab", "Down", "Return")


def answer_alert(display):
    display.focus("A L E R T A")
    display.key("Return")
    display.no_window("A L E R T A")


def leave(display, program):
    display.focus("Quartela 2014")
    display.key("alt+F4")
    display.finish(program)
