#!/usr/bin/env python3
"""The check of the connections finds what it is there to find."""
import unittest

import connections


def found(text):
    return [problem.split(":")[1] for problem in connections.problems_of("screens/a.cpp", text)]


class Connections(unittest.TestCase):
    def test_a_trap_is_right(self):
        self.assertEqual([], found("liga(ui_->Command1, &QPushButton::clicked, this, &frmX::a);\n"
                                   "comando->disconnect();\n// connect(a)\n"
                                   "menu->addAction(texto);\nliga(menu->addAction(t), &QAction::triggered, this, [] {});\nQTimer::singleShot(0, &a, &B::c);\n"))

    def test_a_bare_connection_is_found(self):
        self.assertEqual(["2", "4"], found("\n  connect(a, &A::b, this, &C::d);\n"
                                           "\n  QObject::connect(a,\n    &A::b, c);\n"))

    def test_what_connects_by_the_way_is_found(self):
        self.assertEqual(["1", "2"], found('menu.addAction("x", this, [] {});\n'
                                           "QTimer::singleShot(0, this, [this] { a(); });\n"))

    def test_a_picked_entry_is_the_exception(self):
        self.assertEqual(["2"], found("connect(c, &ComboBox::picked, this, &C::d);\n"
                                      "connect(c, &ComboBox::dropDown, this, &C::d);\n"))


if __name__ == "__main__":
    unittest.main()
