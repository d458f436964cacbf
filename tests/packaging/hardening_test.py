#!/usr/bin/env python3
"""Compiles a small program with the flags of a release, and without each of them, and lets
packaging/hardening.py read them: hardening_test.py COMPILER FLAGS LINK_FLAGS (lists with semicolons)."""
import os
import subprocess
import sys
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
CHECK = os.path.join(HERE, "..", "..", "packaging", "hardening.py")
COMPILER, FLAGS, LINK = sys.argv[1], sys.argv[2].split(";"), sys.argv[3].split(";")

# Enough functions for the check of their first instruction.
PROGRAM = "#include <cstring>\n#include <cstdio>\n" + "".join(
    f"__attribute__((noinline)) int f{i}(const char* text)"
    f"{{ char copy[40]; std::strcpy(copy, text); return std::puts(copy) + {i}; }}\n"
    for i in range(120)
) + "int (*functions[])(const char*) = {" + ",".join(f"f{i}" for i in range(120)) + """};
int main(int count, char** words) { return functions[count % 120](words[0]); }
"""


class Hardening(unittest.TestCase):
    def build(self, flags, link):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        source, program = (os.path.join(folder.name, name) for name in ("p.cpp", "p"))
        with open(source, "w", encoding="utf-8") as file:
            file.write(PROGRAM)
        subprocess.run([COMPILER, "-O2", *flags, source, "-o", program, *link], check=True)
        return program

    def check(self, flags, link):
        done = subprocess.run([CHECK, self.build(flags, link), "--fortify"], capture_output=True,
                              text=True, check=False)
        return done.returncode, done.stderr

    def test_a_release_has_all(self):
        self.assertEqual(self.check(FLAGS, LINK), (0, ""))

    def test_each_lack_is_found(self):
        lacks = {
            "-fno-stack-protector": "guarded stack",
            "-D_FORTIFY_SOURCE=0": "checked library calls",
            "-fcf-protection=none": "guarded jumps",
        }
        for flag, name in lacks.items():
            with self.subTest(flag):
                code, words = self.check([*FLAGS, "-U_FORTIFY_SOURCE", flag]
                                         if "FORTIFY" in flag else [*FLAGS, flag], LINK)
                self.assertEqual(code, 1)
                self.assertIn(name, words)

    def test_each_lack_of_the_linker_is_found(self):
        lacks = {"-no-pie": "PIE", "-Wl,-z,norelro": "RELRO", "-Wl,-z,lazy": "NOW",
                 "-Wl,-z,execstack": "executable stack"}
        for flag, name in lacks.items():
            with self.subTest(flag):
                flags = [*FLAGS, "-fno-pie"] if flag == "-no-pie" else FLAGS
                code, words = self.check(flags, [*LINK, flag])
                self.assertEqual(code, 1)
                self.assertIn(name, words)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
