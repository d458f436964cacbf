#!/usr/bin/env python3
"""Proves from the include lines that no folder of src/ includes upward, that no files include in a circle,
and that the global database objects are named where they may be.

Usage: include_directions.py SRC. Prints each wrong line and exits with 1 when there is one.
"""
import re
import sys
from pathlib import Path

# A folder includes itself and folders that stand above it. The folders of one group do not know each
# other; what a line lists more than once stands in the order of its groups.
LAYERS = [
    ["platform/values"],
    ["platform/files"],
    ["platform/database/dialect"],
    ["platform/database", "platform/dialogs", "platform/controls", "platform/spreadsheet"],
    ["platform/reporting"],
    ["foundation"],
    ["records"],
    ["masterdata"],
    ["requests"],
    ["reports"],
    ["screens"],
    ["sheets"],
    ["admin"],
    ["shell/ribbon"],
    ["shell"],
    [""],
]
# The dialect stands on the values alone; the dialogs and the controls know nothing of the database.
FORBIDDEN = {
    "platform/database/dialect": {"platform/files"},
    "platform/dialogs": {"platform/database/dialect"},
    "platform/controls": {"platform/database/dialect"},
    "platform/spreadsheet": {"platform/database/dialect"},
    # The ribbon knows its model and its three events and nothing of the program.
    "shell/ribbon": {"foundation", "records", "masterdata", "requests", "reports", "screens", "sheets",
                     "admin", "platform/database", "platform/database/dialect",
                     "platform/reporting", "platform/spreadsheet"},
}
# The program-wide database objects are named by the common routines, the record classes and the
# documents, which hand the connection on to their data. A header would hand the names on.
GLOBALS = "foundation/Banco.h"
NAMES_GLOBALS = re.compile(
    r"^(foundation/\w+|records/\w+|(masterdata|requests|sheets)/(c[A-Z]\w*|ListaCadastro|Pessoa)"
    r"|reports/ar\w+)\.cpp$")
# An engine is known to its own folder and to the one file that opens it.
ENGINES = "platform/database/engines/"
OPENS_ENGINES = "platform/database/engines/Engines.cpp"
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"')
# Screens ask for documents through records/Impressao, whether they stand above the reports or below
# them; the windows that reports/ has are opened like others.
DOCUMENT = re.compile(r"reports/(?!frm)")
OF_DOCUMENTS = {"reports", "shell"}
RANK = {folder: rank for rank, group in enumerate(LAYERS) for folder in group}


def layer_of(path):
    """The folder of LAYERS that the file `path` (relative to src/) belongs to, or None."""
    folder = Path(path).parent.as_posix()
    folder = "" if folder == "." else folder
    while folder not in RANK:
        if "/" not in folder:
            return None
        folder = folder.rsplit("/", 1)[0]
    return folder


def includes_of(source, path):
    """(line number, included path) of each include of a file of the tree."""
    lines = (source / path).read_text(encoding="utf-8").splitlines()
    for number, line in enumerate(lines, 1):
        match = INCLUDE.match(line)
        if match and (source / match.group(1)).exists():
            yield number, match.group(1)


def names_engine(path, target):
    """Whether the file `path` includes an engine that it must not know."""
    folder = Path(target).parent.as_posix() + "/"
    return (target.startswith(ENGINES) and folder != ENGINES and path != OPENS_ENGINES
            and not path.startswith(folder))


def wrong_directions(path, includes):
    own = layer_of(path)
    if own is None:
        yield f"{path}: its folder has no place in the order of the layers"
        return
    for number, target in includes:
        if target == GLOBALS and not NAMES_GLOBALS.match(path):
            yield f"{path}:{number}: only record classes and common routines name the globals"
        other = layer_of(target)
        same_group = other is not None and RANK[other] == RANK[own] and other != own
        upward = other is not None and RANK[other] > RANK[own]
        document = DOCUMENT.match(target) and own not in OF_DOCUMENTS
        if (other is None or same_group or upward or document or other in FORBIDDEN.get(own, ())
                or names_engine(path, target)):
            yield f"{path}:{number}: {own or 'src'} must not include {target}"


def find_circle(graph):
    """A list of files that include each other in a circle, or None."""
    done, trail = set(), []

    def visit(path):
        if path in trail:
            return trail[trail.index(path):] + [path]
        if path in done:
            return None
        trail.append(path)
        for target in graph.get(path, ()):
            circle = visit(target)
            if circle:
                return circle
        trail.pop()
        done.add(path)
        return None

    for path in graph:
        circle = visit(path)
        if circle:
            return circle
    return None


def check(source):
    files = sorted(p.relative_to(source).as_posix() for p in source.rglob("*")
                   if p.suffix in (".h", ".cpp"))
    includes = {path: list(includes_of(source, path)) for path in files}
    problems = [line for path in files for line in wrong_directions(path, includes[path])]
    circle = find_circle({path: [target for _, target in found] for path, found in includes.items()})
    if circle:
        problems.append("circle: " + " -> ".join(circle))
    return files, problems


def main():
    files, problems = check(Path(sys.argv[1]))
    print("\n".join(problems) or f"{len(files)} files, every include points downward")
    return 1 if problems or not files else 0


if __name__ == "__main__":
    sys.exit(main())
