#!/usr/bin/env python3
"""Writes the icons of the program as SVG, their indexes and icons.qrc beside this script.

The drawings are told here and in parts.py; the files they make are committed, so that a build
needs no Python. Run the script after changing a drawing; the same drawings always give the
same bytes.
"""

from pathlib import Path

from parts import (
    BLUE, GOLD, GREEN, INK, MIST, PAPER, RED, archive_box, badge, box, coin, coin_stack,
    cross_badge, disc, down_badge, flat, folder, gear, large_coin, light, magnifier, number,
    open_folder, padlock, pencil, person, plus_badge, points, requisition, rounded, seal, shade,
    shape, sheet, spanner, stroke, written,
)

FOLDER = Path(__file__).resolve().parent


def include_requisition():
    return requisition() + plus_badge()


def alter_requisition():
    return requisition() + pencil(9.5, 22.5, 9)


def delete_requisition():
    return requisition() + cross_badge()


def standalone_requisition():
    holes = "".join(disc(6, y, 1) for y in (5, 9, 13, 17))
    lines = written(9, 12, [5.5]) + written(9, 14, [8.5, 11.5, 14.5, 17.5])
    one = flat("M15.5 15.5L17 14h1v6h-2v-4h-0.5z", PAPER)
    return sheet(3.5, 1.5, 13, 19) + flat(holes, INK) + lines + badge(BLUE) + one


def find_requisition():
    return requisition() + magnifier()


def processes_in_alert():
    triangle = points((16, 9.5), (22.5, 21.5), (9.5, 21.5))
    sign = flat(box(15, 13, 2, 4) + box(15, 18, 2, 2), INK)
    return requisition() + shape(triangle, GOLD) + sign


def processes_started():
    heading = flat(box(7, 5, 5, 3), BLUE)
    return sheet(4.5, 1.5, 15, 21) + heading + written(7, 17, [10.5, 13.5, 16.5, 19.5])


def processes_open():
    back, front = open_folder(1.5, 4.5, 21, 15, 3)
    paper = shape(box(4.5, 2.5, 11, 12), PAPER) + written(7, 13, [5.5, 8.5])
    return back + paper + front + coin(17.5, 17.5)


def processes_closed():
    return archive_box(1.5, 3.5, 19, 17, 5) + padlock(12.5, 14.5, 10, 8)


def processes_all():
    back = folder(5.5, 1.5, 17, 13, BLUE)
    middle = folder(3.5, 5.5, 17, 13, PAPER)
    return back + middle + folder(1.5, 9.5, 17, 13)


def processes_started_and_open():
    back, front = open_folder(6.5, 9.5, 16, 13, 3)
    paper = sheet(1.5, 1.5, 12, 17) + written(4, 8, [4.5]) + written(4, 11, [7.5, 10.5, 13.5])
    return back + paper + front


def travel_sheet():
    paper = sheet(8.5, 1.5, 12, 14) + written(11, 14, [4.5]) + written(11, 18, [7.5, 10.5])
    body = (
        "M1.5 20.5V16.5q0 -1.6 1.6 -2L4.5 14l2.2 -3.6q0.6 -0.9 1.6 -0.9h4.9q0.9 0 1.5 0.7"
        "L18 14l2.8 0.6q1.7 0.4 1.7 2v3.9z"
    )
    windows = "M6.3 14L8.1 11H10v3zM11 11h2.3L15.8 14H11z"
    wheels = "".join(
        shape(disc(x, 20, 2.5), INK) + flat(disc(x, 20, 1.2), PAPER) for x in (6.5, 17.5)
    )
    lamps = flat(box(21, 16, 1, 2), GOLD) + flat(box(2, 16, 1, 2), RED)
    return paper + shape(body, BLUE) + flat(windows, PAPER) + lamps + wheels


def print_documents():
    return (
        sheet(6.5, 1.5, 11, 9, 3)
        + shape(rounded(1.5, 8.5, 21, 9, 1.5), MIST)
        + light(box(2, 9, 20, 2))
        + shade(box(2, 13, 20, 4))
        + flat(box(18, 10, 2, 2), GREEN)
        + shape(box(5.5, 13.5, 13, 9), PAPER)
        + written(8, 16, [16.5, 19.5])
    )


def listing():
    marks = "".join(box(7, y, 2, 2) for y in (9, 13, 17))
    return (
        shape(rounded(3.5, 3.5, 17, 19, 1.5), GOLD)
        + shape(box(5.5, 6.5, 13, 14), PAPER)
        + flat(marks, GREEN)
        + written(10, 17, [9.5, 13.5, 17.5])
        + shape("M7.5 6.5v-3h2.5q0 -2 2 -2t2 2h2.5v3z", MIST)
    )


def expense_orderer():
    return person() + seal()


def responsible_for_money():
    return person() + coin(17.5, 17.5)


def process_types():
    tabs = "".join(
        shape(box(16.5, y, 5, 5), colour) for y, colour in ((3.5, RED), (9.5, GOLD), (15.5, GREEN))
    )
    page = shape(box(2.5, 1.5, 15, 21), PAPER)
    spine = shape(box(2.5, 1.5, 3, 21), BLUE)
    return tabs + page + spine + written(8, 15, [6.5, 12.5, 18.5])


def advance_types():
    tag = points((2.5, 1.5), (10.5, 1.5), (19.5, 10.5), (11.5, 18.5), (2.5, 9.5))
    return shape(tag, GREEN) + shape(disc(6.5, 5.5, 1.5), PAPER) + coin(17.5, 17.5)


def funds():
    arrow = points(
        (5.5, 1.5), (9.5, 1.5), (9.5, 6.5), (12.5, 6.5), (7.5, 11.5), (2.5, 6.5), (5.5, 6.5)
    )
    return coin_stack(1.5, 22.5, 3) + coin_stack(12.5, 22.5, 6) + shape(arrow, GREEN)


def town_hall():
    columns = "".join(box(x, 12, 2, 7) for x in (4, 8, 13, 17))
    return (
        shape("M11.5 7V1.5h5v3h-5", GREEN)
        + shape(box(3.5, 11.5, 16, 8), BLUE)
        + flat(columns, PAPER)
        + shape(box(1.5, 19.5, 20, 3), PAPER)
        + shape(points((11.5, 5.5), (21.5, 11.5), (1.5, 11.5)), GOLD)
        + flat(disc(11.5, 9, 1.5), PAPER)
    )


def backup():
    disk = points((1.5, 1.5), (16.5, 1.5), (19.5, 4.5), (19.5, 19.5), (1.5, 19.5))
    return (
        shape(disk, BLUE)
        + shape(box(5.5, 1.5, 10, 6), MIST)
        + flat(box(12, 3, 2, 3), INK)
        + shape(box(4.5, 10.5, 12, 9), PAPER)
        + written(7, 14, [13.5, 16.5])
        + down_badge()
    )


def settings():
    return (
        gear(12, 12, 10.5, 7.5)
        + shape(disc(12, 12, 4), BLUE)
        + shape(disc(12, 12, 1.5), PAPER)
    )


def change_password():
    key = "M10.9 5.5H22.5v3h-2v3h-3v-3h-1v2h-2v-2h-3.6a5 5 0 1 1 0 -3z"
    field = shape(rounded(1.5, 14.5, 21, 8, 1.5), PAPER)
    dots = "".join(disc(x, 18.5, 1.5) for x in (5.5, 9.5, 13.5))
    caret = stroke("M17.5 16V21", BLUE)
    return field + flat(dots, INK) + caret + shape(key, GOLD) + shape(disc(5.5, 7, 1.5), PAPER)


def import_data():
    tray = points(
        (1.5, 13.5), (7.5, 13.5), (9.5, 16.5), (14.5, 16.5), (16.5, 13.5), (22.5, 13.5),
        (22.5, 22.5), (1.5, 22.5),
    )
    arrow = points(
        (9.5, 1.5), (14.5, 1.5), (14.5, 7.5), (18.5, 7.5), (12, 14), (5.5, 7.5), (9.5, 7.5)
    )
    walls = points((4.5, 8.5), (19.5, 8.5), (22.5, 13.5), (22.5, 17.5), (1.5, 17.5), (1.5, 13.5))
    floor = shade(box(2, 19, 20, 3))
    return shape(walls, PAPER) + shape(tray, MIST) + floor + shape(arrow, GREEN)


def goods():
    outline = points((11.5, 1.5), (21.5, 6.5), (21.5, 17.5), (11.5, 22.5), (1.5, 17.5), (1.5, 6.5))
    right = points((11.5, 11.5), (21.5, 6.5), (21.5, 17.5), (11.5, 22.5))
    tape = points((5, 4.75), (8, 3.25), (18, 8.25), (18, 12.5), (15, 14), (15, 9.75))
    edges = stroke("M1.5 6.5L11.5 11.5L21.5 6.5M11.5 11.5V22.5", INK)
    return shape(outline, GOLD) + flat(tape, PAPER) + shade(right) + edges


def service():
    return spanner(16, 8)


def document():
    letters = (
        "M4.5 18V13.5H6.5V15.5H4.5M9.5 13V17.5H11L11.5 17V14L11 13.5H9.5"
        "M14.5 18V13.5H17M14.5 15.5H16.5"
    )
    return (
        sheet(4.5, 1.5, 15, 21)
        + written(7, 13, [5.5, 8.5])
        + written(7, 17, [20.5])
        + shape(box(1.5, 11.5, 18, 7), RED)
        + stroke(letters, PAPER)
    )


def calendar():
    days = "".join(
        box(x, y, 2, 2) for y in (11, 14, 17) for x in (5, 9, 13, 17) if (x, y) != (13, 14)
    )
    rings = "".join(shape(box(x, 1.5, 2, 4), MIST) for x in (6.5, 15.5))
    return (
        shape(rounded(2.5, 3.5, 19, 19, 1), PAPER)
        + shape("M2.5 8.5v-4q0 -1 1 -1h17q1 0 1 1v4z", RED)
        + flat(days, BLUE)
        + flat(box(12, 13, 4, 4), GOLD)
        + rings
    )


def money_slip():
    slip = "M3.5 1.5H16.5V21.5L14.5 19.5L12.25 21.5L10 19.5L7.75 21.5L5.5 19.5L3.5 21.5Z"
    lines = written(6, 10, [5.5]) + written(6, 14, [8.5, 11.5, 14.5])
    return shape(slip, PAPER) + lines + coin(17.5, 17.5)


def help_sign():
    hook = "M8.5 9.5a3.5 3.5 0 1 1 5.5 2.8q-2 1.3 -2 3.2"
    return (
        shape(disc(12, 12, 10.5), BLUE)
        + stroke(hook, PAPER, 2)
        + flat(box(11, 17, 2, 2), PAPER)
    )


def row_open():
    back, front = open_folder(1.5, 6.5, 29, 20, 4)
    lines = written(9, 15, [6.5]) + written(9, 19, [9.5, 12.5])
    return back + shape(box(5.5, 2.5, 17, 16), PAPER) + lines + front + large_coin(23, 22)


def row_closed():
    return archive_box(1.5, 3.5, 27, 23, 7) + padlock(17.5, 19.5, 12, 10)


def row_requisition():
    heading = flat(box(9, 6, 7, 4), BLUE)
    return sheet(5.5, 1.5, 21, 29, 6) + heading + written(9, 23, [13.5, 17.5, 21.5, 25.5])


RIBBON = {
    1: ("include-requisition", include_requisition),
    2: ("alter-requisition", alter_requisition),
    3: ("delete-requisition", delete_requisition),
    4: ("find-requisition", find_requisition),
    5: ("travel-sheet", travel_sheet),
    6: ("goods", goods),
    7: ("service", service),
    8: ("document", document),
    9: ("expense-orderer", expense_orderer),
    10: ("funds", funds),
    11: ("process-types", process_types),
    12: ("advance-types", advance_types),
    13: ("processes-in-alert", processes_in_alert),
    14: ("backup", backup),
    15: ("listing", listing),
    16: ("change-password", change_password),
    17: ("import-data", import_data),
    18: ("processes-open", processes_open),
    19: ("processes-started", processes_started),
    20: ("processes-closed", processes_closed),
    21: ("processes-all", processes_all),
    22: ("processes-started-and-open", processes_started_and_open),
    23: ("settings", settings),
    24: ("print-documents", print_documents),
    25: ("calendar", calendar),
    26: ("money-slip", money_slip),
    27: ("help", help_sign),
    28: ("responsible-for-money", responsible_for_money),
    29: ("town-hall", town_hall),
    30: ("standalone-requisition", standalone_requisition),
}

ROWS = {
    1: ("open", row_open),
    2: ("closed", row_closed),
    3: ("requisition", row_requisition),
}


def document_of(drawing, size):
    """The whole SVG text of one icon."""
    body = drawing.replace("/><", "/>\n    <")
    side = number(size)
    return (
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{side}" height="{side}"'
        f' viewBox="0 0 {side} {side}">\n'
        f'  <g stroke="{INK}" stroke-width="1" stroke-linejoin="round">\n'
        f"    {body}\n  </g>\n</svg>\n"
    )


def write(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text, encoding="utf-8", newline="\n")


def write_set(name, icons, size):
    """Writes one folder of icons with its index, and gives their lines of icons.qrc."""
    index, lines = [], []
    for key, (icon, draw) in sorted(icons.items()):
        write(FOLDER / name / f"{icon}.svg", document_of(draw(), size))
        index.append(f"{key} {icon}\n")
        alias = f"{key:02}" if len(icons) > 9 else f"{key}"
        lines.append(f'    <file alias="{name}/{alias}.svg">{name}/{icon}.svg</file>\n')
    write(FOLDER / name / "index.txt", "".join(index))
    return lines


def main():
    lines = write_set("ribbon", RIBBON, 24) + write_set("rows", ROWS, 32)
    lines.append('    <file alias="crest.svg">../reports/crest.svg</file>\n')
    text = '<RCC>\n  <qresource prefix="/icons">\n' + "".join(lines) + "  </qresource>\n</RCC>\n"
    write(FOLDER / "icons.qrc", text)


if __name__ == "__main__":
    main()
