#!/usr/bin/env python3
"""Takes the example out of docs/reports.md, so that a test builds what the page shows.

Usage: doc_example.py REPORTS.md FOLDER. Writes arExemplo.json, srExemplo.json and example.inc.
"""
import re
import sys
from pathlib import Path


def blocks(text, language):
    return re.findall(rf"^```{language}\n(.*?)^```$", text, re.M | re.S)


def main():
    text = Path(sys.argv[1]).read_text(encoding="utf-8")
    folder = Path(sys.argv[2])
    folder.mkdir(parents=True, exist_ok=True)
    (main_layout, sub_layout), (code,) = blocks(text, "json"), blocks(text, "cpp")
    for name, block in (("arExemplo.json", main_layout), ("srExemplo.json", sub_layout), ("example.inc", code)):
        (folder / name).write_text(block, encoding="utf-8")


if __name__ == "__main__":
    main()
