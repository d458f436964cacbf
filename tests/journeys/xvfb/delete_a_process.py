#!/usr/bin/env python3
"""The program itself, in a real window under Xvfb, driven by real mouse and keys: login, alert, filters,
the find dialog, a deletion, the end. What it did is read from the database file afterwards.

Usage: delete_a_process.py BUILD SCREENSHOTS
"""
import sys
import time
from pathlib import Path

from office import answer_alert, laid_out, leave, log_in, rows


def find_by_number(display, shown):
    display.focus("Localizar")
    display.key("shift+Tab", "Down", "Tab")
    display.type(shown)
    display.key("Return")
    display.no_window("Localizar")


def delete_first_row(display, main):
    display.click(main, 150, 155)
    display.key("Delete")
    display.focus("Aviso")
    display.key("Return")
    time.sleep(1.5)
    display.focus("Aviso")
    display.key("Return")
    display.no_window("Aviso")


def play(display, folder, pictures):
    def picture(name):
        display.picture(pictures / f"{name}.png")

    database = folder / "Demonstracao.mdb"
    victim = rows(database, "SELECT max(SEQ) FROM Requisicao WHERE SEQ % 100 = "
                            "(SELECT SEQ % 100 FROM Requisicao ORDER BY DATA DESC LIMIT 1)")[0]
    before = rows(database, "SELECT count(*) FROM Requisicao")[0]
    program = display.start(folder / "quartela")
    log_in(display)
    main = display.window("Quartela 2014")
    display.focus("A L E R T A")
    picture("1-alert")
    answer_alert(display)
    for x in (438, 508, 571, 626, 677):
        display.click(main, x - 43, 105 - 51)
        time.sleep(0.4)
    picture("2-filters")
    display.click(main, 365 - 43, 105 - 51)
    find_by_number(display, f"{victim // 100:04}/{victim % 100:02}")
    picture("3-found")
    delete_first_row(display, main)
    picture("4-deleted")
    leave(display, program)
    gone = rows(database, f"SELECT count(*) FROM Requisicao WHERE SEQ = {victim}")[0] == 0
    after = rows(database, "SELECT count(*) FROM Requisicao")[0]
    if not gone or after != before - 1:
        raise SystemExit(f"process {victim}: gone {gone}, {before} processes before, {after} after")
    left = sorted(path.name for path in folder.glob("Demonstracao*"))
    if left != ["Demonstracao.mdb"]:
        raise SystemExit(f"files left behind: {left}")


def main():
    build, pictures = Path(sys.argv[1]).resolve(), Path(sys.argv[2])
    pictures.mkdir(parents=True, exist_ok=True)
    with laid_out(build) as (display, folder):
        play(display, folder, pictures)
    print("the process was deleted through the real window")


if __name__ == "__main__":
    main()
