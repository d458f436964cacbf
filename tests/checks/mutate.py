#!/usr/bin/env python3
"""Breaks the program in many places, one at a time, and lists what no test noticed.

    tests/checks/mutate.py [--seed N] [--count N] [--folder src/records] [--keep FOLDER] [--own]

A seeded choice over the sources of src/: a condition is turned, a constant changed, a statement dropped.
Each break is built and tested in a work tree of its own (a temporary one, or --keep to use it again);
the checkout is never touched. First the tests that mirror the broken folder are built and run, then, where
they stay green and --own is not given, all others. A break that does not compile says nothing and is replaced by the next one.

Prints a line a break and at the end the score: noticed of tried. Ends with 1 when anything went unnoticed.
"""
import argparse
import pathlib
import random
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]

# Pairs of what stands in a condition and what it is turned into.
TURNED = [
    (re.compile(r" == "), " != "),
    (re.compile(r" != "), " == "),
    (re.compile(r" < "), " >= "),
    (re.compile(r" > "), " <= "),
    (re.compile(r" <= "), " > "),
    (re.compile(r" >= "), " < "),
    (re.compile(r" && "), " || "),
    (re.compile(r" \|\| "), " && "),
    (re.compile(r"\bif \((?=[a-z])"), "if (!"),
]
CONSTANTS = [
    (re.compile(r"\btrue\b"), "false"),
    (re.compile(r"\bfalse\b"), "true"),
    (re.compile(r"(?<![\w.\"'])(\d+)(?![\w.\"'])"), lambda found: str(int(found.group(1)) + 1)),
]
# A call that stands alone on its line.
DROPPED = re.compile(r"^\s+(?!return\b|throw\b|delete\b|using\b|static_assert\b|friend\b)"
                     r"[\w:.>\-]+\(.*\);$")
NOT_CODE = re.compile(r"^\s*(//|#|\"|namespace\b|case\b|template\b|static constexpr\b)")


class Break:
    """One changed line of one file."""

    def __init__(self, path, number, kind, before, after):
        self.path, self.number, self.kind = path, number, kind
        self.before, self.after = before, after

    def __str__(self):
        return f"{self.path}:{self.number}: {self.kind}: {self.before.strip()}"


def changed_lines(line):
    """Every (kind, changed line) that one line of code offers."""
    if NOT_CODE.match(line):
        return
    for kind, table in (("condition", TURNED), ("constant", CONSTANTS)):
        for pattern, into in table:
            for found in pattern.finditer(line):
                text = into(found) if callable(into) else into
                yield kind, line[:found.start()] + text + line[found.end():]
    if DROPPED.match(line):
        yield "dropped", re.match(r"\s*", line).group() + ";"


def breaks_of(path, text):
    """All breaks that the text of one source offers, in its order."""
    for number, line in enumerate(text.splitlines(), 1):
        for kind, after in changed_lines(line):
            yield Break(path, number, kind, line, after)


def chosen(root, folder, seed):
    """The breaks of all sources below `folder` in a seeded order, at most one a line; a large file is as
    likely as a small one, so that no folder goes unasked."""
    generator = random.Random(seed)
    sources = sorted((root / folder).rglob("*.cpp"))
    queues = []
    for source in sources:
        path = source.relative_to(root)
        offered = list(breaks_of(path, source.read_text(encoding="utf-8")))
        generator.shuffle(offered)
        queues.append(offered)
    seen = set()
    while any(queues):
        queue = generator.choice([each for each in queues if each])
        candidate = queue.pop()
        if (candidate.path, candidate.number) not in seen:
            seen.add((candidate.path, candidate.number))
            yield candidate


def apply(root, candidate):
    """Writes the break into the file and gives the text that stood there."""
    file = root / candidate.path
    text = file.read_text(encoding="utf-8")
    lines = text.split("\n")
    assert lines[candidate.number - 1] == candidate.before
    lines[candidate.number - 1] = candidate.after
    file.write_text("\n".join(lines), encoding="utf-8")
    return text


def mirrored(path):
    """The CTest name prefix of the tests that mirror a source's folder."""
    parts = path.parts[1:-1]
    parts = parts[:3] if parts[:3] == ("platform", "database", "dialect") else parts
    parts = parts[:2] if parts[:2] == ("platform", "database") and "engines" in parts else parts
    return "^" + ".".join(parts).replace(".", r"\.") + r"\."


class Workshop:
    """A work tree with a build in which the breaks are tried."""

    def __init__(self, tree, own_only=False):
        self.tree, self.own_only = tree, own_only

    def run(self, *command, limit=1200):
        try:
            return subprocess.run(command, cwd=self.tree, stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL, timeout=limit).returncode
        except subprocess.TimeoutExpired:
            return -1

    def builds(self, *targets):
        chosen_targets = ["--target", *targets] if targets else []
        return self.run("cmake", "--build", "--preset", "dev", *chosen_targets) == 0

    def prepare(self):
        if self.run("cmake", "--preset", "dev") != 0 or not self.builds():
            sys.exit("the work tree does not build without any break")
        listed = subprocess.run(["ninja", "-C", str(self.tree / "build/dev"), "-t", "targets", "all"],
                                capture_output=True, text=True, check=True).stdout
        self.executables = re.findall(r"^(?:tests/)?(test\.[\w.]+): (?:phony|CXX_EXECUTABLE\w*)", listed, re.M)

    def test(self, *selection):
        return self.run("ctest", "--preset", "dev", "-j", "3", "--stop-on-failure", "--timeout", "120",
                        *selection)

    def own_targets(self, own):
        return sorted({name for name in self.executables if re.match(own, name.removeprefix("test."))})

    def notices(self, candidate):
        """Whether a test fails with the break in place; None when it does not compile."""
        own = mirrored(candidate.path)
        targets = self.own_targets(own)
        if targets:
            if not self.builds(*targets):
                return None
            if self.test("-R", own, "-E", r"\.desktop$") != 0:
                return True
        if self.own_only:
            return False if targets else None
        if not self.builds():
            return None
        return self.test("-E", own + r"|^journeys\.xvfb|^checks\.") != 0


def attempt(workshop, candidate):
    text = apply(workshop.tree, candidate)
    try:
        return workshop.notices(candidate)
    finally:
        (workshop.tree / candidate.path).write_text(text, encoding="utf-8")


def score(workshop, candidates, count):
    """Tries `count` breaks that compile; prints them and gives those that nothing noticed."""
    tried, unnoticed = 0, []
    for candidate in candidates:
        if tried == count:
            break
        outcome = attempt(workshop, candidate)
        if outcome is None:
            continue
        tried += 1
        print("noticed  " if outcome else "UNNOTICED", candidate, flush=True)
        if not outcome:
            unnoticed.append(candidate)
    print(f"{tried - len(unnoticed)} of {tried} breaks noticed")
    for candidate in unnoticed:
        print(f"  {candidate}\n    became: {candidate.after.strip()}")
    return unnoticed


def work_tree(folder):
    tree = pathlib.Path(folder)
    if not (tree / ".git").exists():
        subprocess.run(["git", "worktree", "add", "--detach", "--quiet", str(tree), "HEAD"], cwd=ROOT,
                       check=True)
    return tree


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--count", type=int, default=100)
    parser.add_argument("--folder", default="src")
    parser.add_argument("--keep")
    parser.add_argument("--own", action="store_true")
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as temporary:
        tree = work_tree(options.keep or f"{temporary}/tree")
        try:
            workshop = Workshop(tree, options.own)
            workshop.prepare()
            candidates = chosen(tree, options.folder, options.seed)
            unnoticed = score(workshop, candidates, options.count)
        finally:
            if not options.keep:
                subprocess.run(["git", "worktree", "remove", "--force", str(tree)], cwd=ROOT)
    return 1 if unnoticed else 0


if __name__ == "__main__":
    sys.exit(main())
