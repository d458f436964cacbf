#!/usr/bin/env python3
"""Runs a test in real windows: on a display of its own, with a window manager and the X platform. Both end
with the test, however it ends.

Usage: on_a_desktop.py TEST ARGUMENT...
"""
import subprocess
import sys
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "demonstration"))
from desktop import Display, end_with_the_starter  # noqa: E402


def main():
    with Display() as display:
        return subprocess.run(sys.argv[1:], env=display.environment,
                              preexec_fn=end_with_the_starter).returncode


if __name__ == "__main__":
    # A test that a signal ended has a negative code.
    sys.exit(abs(main()))
