#!/usr/bin/env python3
"""Reads off a program that it was built with the compiler's and linker's protections.

Usage: hardening.py PROGRAM [--fortify]. Ends with 1 and names what is missing. --fortify asks for the
checked library calls too, which only an optimised build without sanitizers has.
"""
import platform
import re
import subprocess
import sys

# The instruction that the processor asks for at the target of an indirect jump.
LANDING = bytes.fromhex("f30f1efa")
LANDINGS_AT_LEAST = 100


def readelf(program, *options):
    return subprocess.run(["readelf", "-W", *options, program], check=True, capture_output=True,
                          text=True).stdout


def missing(program, fortify):
    head = readelf(program, "-h")
    dynamic = readelf(program, "-d")
    segments = readelf(program, "-l")
    symbols = readelf(program, "--dyn-syms")
    checks = {
        "position-independent (PIE)": re.search(r"Type:\s+DYN", head) and "PIE" in dynamic,
        "read-only relocations (RELRO)": "GNU_RELRO" in segments,
        "bound at the start (NOW)": "NOW" in dynamic,
        "no executable stack": re.search(r"GNU_STACK.*\sRW\s", segments),
        "guarded stack (-fstack-protector-strong)": "__stack_chk_fail" in symbols,
    }
    if platform.machine() == "x86_64":
        with open(program, "rb") as file:
            landings = file.read().count(LANDING)
        checks["guarded jumps (-fcf-protection)"] = landings >= LANDINGS_AT_LEAST
    if fortify:
        checks["checked library calls (_FORTIFY_SOURCE)"] = re.search(r"__\w+_chk@GLIBC", re.sub(
            "__stack_chk_fail", "", symbols))
    return [name for name, found in checks.items() if not found]


def main():
    program, *options = sys.argv[1:]
    lacking = missing(program, "--fortify" in options)
    for name in lacking:
        print(f"{program}: {name} is missing", file=sys.stderr)
    return 1 if lacking else 0


if __name__ == "__main__":
    sys.exit(main())
