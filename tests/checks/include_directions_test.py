#!/usr/bin/env python3
"""The check of the include directions finds what it is there to find."""
import tempfile
import unittest
from pathlib import Path

import include_directions


def problems_of(files):
    with tempfile.TemporaryDirectory() as folder:
        for name, text in files.items():
            path = Path(folder, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        return include_directions.check(Path(folder))[1]


class IncludeDirections(unittest.TestCase):
    def test_downward_is_right(self):
        self.assertEqual([], problems_of({
            "records/a.h": '#include "foundation/b.h"\n#include <QString>\n',
            "foundation/b.h": '#include "platform/values/c.h"\n',
            "platform/values/c.h": ""}))

    def test_upward_is_found(self):
        self.assertEqual(["foundation/b.h:2: foundation must not include records/a.h"], problems_of({
            "records/a.h": "", "foundation/b.h": '\n#include "records/a.h"\n'}))

    def test_neighbours_do_not_know_each_other(self):
        self.assertEqual(1, len(problems_of({
            "platform/controls/a.h": '#include "platform/dialogs/b.h"\n',
            "platform/dialogs/b.h": ""})))

    def test_the_ribbon_knows_nothing_of_the_program(self):
        self.assertEqual(1, len(problems_of({
            "shell/ribbon/a.h": '#include "foundation/b.h"\n', "foundation/b.h": ""})))

    def test_screens_do_not_include_documents(self):
        self.assertEqual(["screens/a.h:1: screens must not include reports/arPrestContas.h"], problems_of({
            "screens/a.h": '#include "reports/arPrestContas.h"\n#include "reports/frmImportar.h"\n',
            "shell/b.h": '#include "reports/Relatorios.h"\n',
            "reports/Relatorios.h": '#include "reports/arPrestContas.h"\n',
            "reports/arPrestContas.h": "", "reports/frmImportar.h": ""}))

    def test_the_globals_are_named_by_record_classes_and_common_routines_alone(self):
        include = '#include "foundation/Banco.h"\n'
        told = "only record classes and common routines name the globals"
        self.assertEqual([f"masterdata/Tela.cpp:1: {told}", f"records/cTodos.h:1: {told}",
                          f"screens/frmAviso.cpp:1: {told}", f"shell/frmOficce.cpp:1: {told}"],
                         problems_of({
            "foundation/Banco.h": "", "foundation/Leitura.cpp": include, "records/cTodos.cpp": include,
            "masterdata/cTipos.cpp": include, "reports/arPrestContas.cpp": include,
            "records/cTodos.h": include, "masterdata/Tela.cpp": include,
            "screens/frmAviso.cpp": include, "shell/frmOficce.cpp": include}))

    def test_an_engine_is_known_to_its_folder_alone(self):
        engine = "platform/database/engines/sqlite/"
        self.assertEqual(
            ["platform/database/b.cpp:1: platform/database must not include " + engine + "a.h"],
            problems_of({
                engine + "a.h": '#include "platform/database/engines/Engine.h"\n',
                engine + "a.cpp": f'#include "{engine}a.h"\n',
                "platform/database/engines/Engine.h": "",
                "platform/database/engines/Engines.cpp": f'#include "{engine}a.h"\n',
                "platform/database/b.cpp": f'#include "{engine}a.h"\n'}))

    def test_a_circle_inside_a_folder_is_found(self):
        self.assertEqual(["circle: records/a.h -> records/b.h -> records/a.h"], problems_of({
            "records/a.h": '#include "records/b.h"\n', "records/b.h": '#include "records/a.h"\n'}))

    def test_a_folder_without_a_place_is_found(self):
        self.assertEqual(1, len(problems_of({"elsewhere/a.h": ""})))


if __name__ == "__main__":
    unittest.main()
