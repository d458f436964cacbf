#!/usr/bin/env python3
"""The desktop that tests and demonstration run on: it is there when it says so, it tells why when it is not,
and nothing of it is left behind."""
import os
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path
from unittest import mock

SOURCE = Path(__file__).resolve().parents[2]
sys.dont_write_bytecode = True
sys.path.insert(0, str(SOURCE / "demonstration"))
from desktop import Display  # noqa: E402
from properties import numbers  # noqa: E402

RUNNER = SOURCE / "tests" / "support" / "on_a_desktop.py"
TELL = 'echo $DISPLAY $QT_QPA_PLATFORM;'


def instead_of(tool, script):
    """A path on which `tool` is that shell script, which itself finds the real one."""
    folder = tempfile.TemporaryDirectory()
    path = Path(folder.name, tool)
    path.write_text(f"#!/bin/sh\nPATH=${{PATH#*:}}\n{script}\n")
    path.chmod(0o755)
    return folder, mock.patch.dict(os.environ, PATH=f"{folder.name}:{os.environ['PATH']}")


def door(display):
    """Where clients come in as long as the server runs."""
    return Path(f"/tmp/.X11-unix/X{display[1:]}")


class Desktop(unittest.TestCase):
    def refusal(self, tool, script):
        folder, path = instead_of(tool, script)
        with folder, path, self.assertRaises(SystemExit) as refused:
            with Display():
                pass
        return str(refused.exception)

    def test_it_waits_for_a_slow_manager(self):
        folder, path = instead_of("openbox", "sleep 2\nexec openbox")
        with folder, path, Display() as display:
            self.assertTrue(numbers(display.name, "_NET_SUPPORTED"))
            self.assertEqual([1], numbers(display.name, "_NET_NUMBER_OF_DESKTOPS"))  # as it was asked for

    def test_a_manager_that_fails_is_told_with_its_words(self):
        self.assertIn("no configuration", self.refusal("openbox", "echo no configuration >&2; exit 1"))

    def test_a_server_that_fails_is_told_with_its_words(self):
        self.assertIn("no screens found", self.refusal("Xvfb", "echo no screens found >&2; exit 1"))

    def test_a_program_that_ends_is_told_at_once_with_its_words(self):
        with Display() as display:
            display.start("sh", "-c", "echo out of order >&2; exit 3")
            with self.assertRaises(SystemExit) as ended:
                display.window("Login")
        self.assertEqual("sh ended with 3 before there was the window 'Login'\nout of order",
                         str(ended.exception))

    def test_a_program_that_fails_in_the_end_is_told_with_its_words(self):
        with Display() as display, self.assertRaises(SystemExit) as ended:
            display.finish(display.start("sh", "-c", "echo leaked >&2; exit 1"))
        self.assertEqual("sh ended with 1\nleaked", str(ended.exception))

    def test_it_survives_its_last_client(self):
        with Display() as display:
            server, manager = display.started
            manager.end()
            display.started.remove(manager)
            for _ in range(3):  # each question is a client that leaves
                self.assertTrue(numbers(display.name, "_NET_WORKAREA"))
            server.require("its clients had left")

    def test_nothing_of_it_is_left(self):
        with Display() as display:
            folder, name = Path(display.folder.name), display.name
            self.assertTrue(door(name).exists())
        self.assertFalse(door(name).exists())
        self.assertFalse(folder.exists())


class Runner(unittest.TestCase):
    def start(self, script):
        return subprocess.Popen([str(RUNNER), "sh", "-c", TELL + script], stdout=subprocess.PIPE, text=True)

    def test_the_test_runs_on_x_and_its_answer_is_handed_on(self):
        with self.start("exit 7") as runner:
            display, platform = runner.stdout.readline().split()
        self.assertEqual(("xcb", 7), (platform, runner.returncode))
        self.assertFalse(door(display).exists())

    def test_a_test_that_crashes_fails(self):
        with self.start("kill -SEGV $$") as runner:
            runner.stdout.read()
        self.assertNotEqual(0, runner.returncode)

    def test_each_has_a_display_of_its_own(self):
        with self.start("read line") as one, self.start("read line") as other:
            displays = {runner.stdout.readline().split()[0] for runner in (one, other)}
            one.kill()
            other.kill()
        self.assertEqual(2, len(displays))

    def test_the_display_ends_with_a_runner_that_is_killed(self):
        with self.start("exec sleep 600") as runner:
            display = runner.stdout.readline().split()[0]
            runner.send_signal(signal.SIGKILL)
        while door(display).exists():  # the whole test has a time limit
            time.sleep(0.05)


if __name__ == "__main__":
    unittest.main()
