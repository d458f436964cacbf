#!/usr/bin/env python3
"""Finds handlers of windows that an error could leave without being told.

In the folders of windows signals are connected by liga() (foundation/Evento.h), which traps. The one
exception is ComboBox::picked, whose error must reach the routine that chose the entry.

Usage: connections.py SRC. Prints each wrong line and exits with 1 when there is one.
"""
import re
import sys
from pathlib import Path

FOLDERS = ("foundation", "masterdata", "requests", "reports", "screens", "sheets", "admin", "shell")
# The ribbon is a control: what it connects are its own parts.
NOT_WINDOWS = ("shell/ribbon/",)
LIGA = "foundation/Evento.h"
CALL = re.compile(r"(?<!\w)(connect|addAction|singleShot)\s*\(")
PICKED = re.compile(r"&\s*ComboBox::picked\b")
# A menu's command or a moment's delay that runs a handler of the program's own.
HANDLER = re.compile(r",\s*this\b|\[")


def arguments(code, start):
    """The text between the parenthesis that opens in front of `start` and its partner."""
    depth = 1
    for at in range(start, len(code)):
        depth += {"(": 1, ")": -1}.get(code[at], 0)
        if depth == 0:
            return code[start:at]
    return code[start:]


def needs_a_trap(call, given):
    return not PICKED.search(given) if call == "connect" else bool(HANDLER.search(given))


def problems_of(path, text):
    code = re.sub(r"//[^\n]*", "", text)
    for found in CALL.finditer(code):
        if not needs_a_trap(found.group(1), arguments(code, found.end())):
            continue
        line = code.count("\n", 0, found.start()) + 1
        yield f"{path}:{line}: connect it with liga(), which tells the handler's errors"


def check(source):
    files = [path for folder in FOLDERS for path in sorted(Path(source, folder).rglob("*"))
             if path.suffix in (".h", ".cpp")]
    names = [path.relative_to(source).as_posix() for path in files]
    windows = [name for name in names if name != LIGA and not name.startswith(NOT_WINDOWS)]
    return windows, [problem for name in windows
                     for problem in problems_of(name, Path(source, name).read_text(encoding="utf-8"))]


def main():
    files, problems = check(Path(sys.argv[1]))
    print("\n".join(problems) or f"{len(files)} files, every handler under a trap")
    return 1 if problems or not files else 0


if __name__ == "__main__":
    sys.exit(main())
