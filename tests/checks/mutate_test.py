#!/usr/bin/env python3
"""The breaking script itself: what it changes, that it is repeatable and leaves nothing behind."""
import pathlib
import tempfile
import unittest

import mutate


class Lines(unittest.TestCase):
    def offers(self, line):
        return list(mutate.changed_lines(line))

    def test_a_condition_is_turned(self):
        self.assertIn(("condition", "  if (a != b) {"), self.offers("  if (a == b) {"))
        self.assertIn(("condition", "  return a >= b;"), self.offers("  return a < b;"))
        self.assertIn(("condition", "  if (!isOpen()) {"), self.offers("  if (isOpen()) {"))

    def test_a_constant_is_changed(self):
        self.assertEqual(self.offers("  int most = 64;"), [("constant", "  int most = 65;")])
        self.assertIn(("constant", "  return false;"), self.offers("  return true;"))

    def test_a_call_is_dropped(self):
        self.assertIn(("dropped", "  ;"), self.offers("  button->setEnabled(state);"))

    def test_comments_texts_and_directives_stay(self):
        for line in ("// a == b, 12", "#include <a>", '  "WHERE A = 12"', "  case 12:"):
            self.assertEqual(self.offers(line), [])

    def test_digits_inside_names_and_texts_stay(self):
        self.assertEqual(self.offers('  std::int32_t x = y1(u"12");'), [])


class Choice(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        (self.root / "src/records").mkdir(parents=True)
        self.file = self.root / "src/records/a.cpp"
        self.file.write_text("void f() {\n  g(1);\n  if (h() == 2) {\n    k();\n  }\n}\n")

    def test_the_same_seed_chooses_the_same(self):
        first = [str(each) for each in mutate.chosen(self.root, "src", 7)]
        self.assertEqual(first, [str(each) for each in mutate.chosen(self.root, "src", 7)])
        self.assertEqual(len(first), 3)

    def test_a_break_changes_its_line_alone(self):
        candidate = next(mutate.breaks_of(pathlib.Path("src/records/a.cpp"), self.file.read_text()))
        before = mutate.apply(self.root, candidate)
        now = self.file.read_text()
        different = [pair for pair in zip(before.split("\n"), now.split("\n")) if pair[0] != pair[1]]
        self.assertEqual(different, [(candidate.before, candidate.after)])

    def test_what_no_test_noticed_is_listed_and_the_file_is_whole_again(self):
        class Workshop:
            tree = self.root
            answers = iter([True, None, False])

            def notices(self, candidate):
                return next(self.answers)

        text = self.file.read_text()
        candidates = mutate.chosen(self.root, "src", 7)
        unnoticed = mutate.score(Workshop(), candidates, 2)
        self.assertEqual(len(unnoticed), 1)
        self.assertEqual(self.file.read_text(), text)

    def test_a_source_is_tested_by_its_mirror_first(self):
        self.assertEqual(mutate.mirrored(pathlib.Path("src/records/a.cpp")), r"^records\.")
        self.assertEqual(mutate.mirrored(pathlib.Path("src/platform/values/a.cpp")), r"^platform\.values\.")
        self.assertEqual(mutate.mirrored(pathlib.Path("src/platform/database/engines/sqlite/a.cpp")),
                         r"^platform\.database\.")


if __name__ == "__main__":
    unittest.main()
