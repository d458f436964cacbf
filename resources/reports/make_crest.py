#!/usr/bin/env python3
"""Writes crest.svg, the crest that the printed documents carry, beside this script.

The crest is drawn in black on white, for paper: a shield with the sun that rises out of the
mist in the east, hills and a river, under a mural crown, between two branches and over a ribbon
with the name of the town. The letters are drawn as lines, so that no font is needed. The same
drawing always gives the same bytes.
"""

import math
from pathlib import Path

NAME = "BRUMALESTE"

# Each letter is drawn in a cell 6 wide and 10 high.
LETTERS = {
    "A": "M0 10L3 0L6 10M1.1 6.5H4.9",
    "B": "M0 0H3.3a2.35 2.35 0 0 1 0 4.7H0H3.5a2.65 2.65 0 0 1 0 5.3H0Z",
    "E": "M6 0H0V10H6M0 4.8H4.8",
    "L": "M0 0V10H6",
    "M": "M0 10V0L3 5.5L6 0V10",
    "R": "M0 10V0H3.3a2.6 2.6 0 0 1 0 5.2H0M3 5.2L6 10",
    "S": "M5.8 2.2C5.4 0.7 4.3 0 3 0C1.4 0 0.2 0.9 0.2 2.5C0.2 5.8 6 4.2 6 7.4"
    "C6 9.1 4.7 10 3 10C1.4 10 0.2 9.1 0 7.5",
    "T": "M0 0H6M3 0V10",
    "U": "M0 0V7a3 3 0 0 0 6 0V0",
}


def number(value):
    """A coordinate in the shortest form, with at most two decimals."""
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def path(data, fill="none", width=2.0):
    """A drawn path; a width of 0 leaves the outline out."""
    pen = f' stroke-width="{number(width)}"' if width else ' stroke="none"'
    return f'<path d="{data}" fill="{fill}"{pen}/>'


def tower(x, bottom, width, height):
    """A tower of the wall: three merlons on top, a dark gate in it."""
    tooth = width / 5
    teeth = "".join(
        f"h{number(tooth)}v{number(3.5 if step % 2 == 0 else -3.5)}" for step in range(4)
    )
    outline = (
        f"M{number(x)} {number(bottom)}v{number(-height)}{teeth}h{number(tooth)}"
        f"v{number(height)}z"
    )
    gate, left = width * 0.36, x + width * 0.32
    door = (
        f"M{number(left)} {number(bottom)}v-5a{number(gate / 2)} {number(gate / 2)} 0 0 1"
        f" {number(gate)} 0v5z"
    )
    return path(outline, "#fff", 1.8) + path(door, "#000", 0)


def crown():
    """The wall with its five towers."""
    towers = ((62, 13, 20), (125, 13, 20), (75.5, 16, 25), (108.5, 16, 25), (90, 20, 30))
    parts = [tower(x, 42, width, height) for x, width, height in towers]
    parts.append(path("M59 42H141L138 51H62Z", "#fff", 1.8))
    parts.append(path("M64 46.5H136", width=1))
    return "".join(parts)


SHIELD = "M58 57H142V108C142 134 124 149 100 158C76 149 58 134 58 108Z"


def sun():
    rays = []
    for step in range(-3, 4):
        angle = math.radians(step * 20)
        inner, outer = 17.5, 26 if step % 2 == 0 else 23
        rays.append(
            f"M{number(100 + inner * math.sin(angle))} {number(91 - inner * math.cos(angle))}"
            f"L{number(100 + outer * math.sin(angle))} {number(91 - outer * math.cos(angle))}"
        )
    return path("M86 91a14 14 0 0 1 28 0z", "#fff", 2) + path("".join(rays), width=2)


def hills():
    far = "M59 98C68 84 80 82 90 91C98 84 114 78 126 87C133 91 138 96 141 99V108H59Z"
    mist = "M65 97H81M88 101H112M119 96H135"
    return path(far, "#000", 0) + f'<g stroke="#fff">{path(mist, width=2)}</g>'


def river():
    """White water between black banks, winding down to the point of the shield."""
    land = "M59 108H141C141 133 123 147.5 100 156.5C77 147.5 59 133 59 108Z"
    waves = []
    for y, left, right in ((114, 66, 134), (122, 68, 132), (130, 73, 127), (138, 81, 119),
                           (146, 91, 109)):
        count = round((right - left) / 9)
        step = (right - left) / count
        turns = "".join(
            f"q{number(step / 2)} {-5 if turn % 2 == 0 else 5} {number(step)} 0"
            for turn in range(count)
        )
        waves.append(f"M{left} {y}{turns}")
    return path(land, "#fff", 0) + path("M59 108H141", width=2) + path("".join(waves), width=2.2)


def shield():
    return (
        path(SHIELD, "#fff", 0) + sun() + hills() + river() + path(SHIELD, width=3.4)
    )


def leaf(x, y, angle, length):
    """A pointed leaf that starts at x, y; the angle counts from straight up, clockwise."""
    turn = math.radians(angle)

    def at(along, across):
        return (
            f"{number(x + along * math.sin(turn) + across * math.cos(turn))}"
            f" {number(y - along * math.cos(turn) + across * math.sin(turn))}"
        )

    half = length * 0.34
    return (
        f"M{number(x)} {number(y)}Q{at(length * 0.45, -half)} {at(length, 0)}"
        f"Q{at(length * 0.45, half)} {number(x)} {number(y)}Z"
    )


def branch(side):
    """A branch beside the shield; side is -1 for the left one and 1 for the right one."""

    def place(angle):
        turn = math.radians(angle)
        return 100 + side * 65 * math.sin(turn), 100 - 65 * math.cos(turn)

    first, last = 168, 68
    leaves = []
    for angle in range(138, last, -10):
        x, y = place(angle)
        heading = side * (angle - 90)
        leaves.append(leaf(x, y, heading + side * 48, 15) + leaf(x, y, heading - side * 44, 13))
    leaves.append(leaf(*place(last), side * (last - 90), 16))
    (x1, y1), (x2, y2) = place(first), place(last)
    sweep = 0 if side == 1 else 1
    stem = f"M{number(x1)} {number(y1)}A65 65 0 0 {sweep} {number(x2)} {number(y2)}"
    return path(stem, width=1.8) + path("".join(leaves), "#000", 0.6)


RIBBON_MIDDLE = -90  # the ribbon bends around this point, far above the crest


def on_ribbon(angle, radius):
    """The point of the bent ribbon at an angle from its middle."""
    turn = math.radians(angle)
    return (
        f"{number(100 + radius * math.sin(turn))} {number(RIBBON_MIDDLE + radius * math.cos(turn))}"
    )


def band(left, right, upper, lower):
    """A piece of the ribbon between two angles and two radii."""
    return (
        f"M{on_ribbon(left, upper)}A{upper} {upper} 0 0 0 {on_ribbon(right, upper)}"
        f"L{on_ribbon(right, lower)}A{lower} {lower} 0 0 1 {on_ribbon(left, lower)}Z"
    )


def tail(side):
    """The end of the ribbon that comes out behind it, with its notch."""
    inner, outer = side * 10.8, side * 18.6
    swallow = (
        f"M{on_ribbon(inner, 253)}L{on_ribbon(outer, 253)}L{on_ribbon(side * 17, 264)}"
        f"L{on_ribbon(outer, 274)}L{on_ribbon(inner, 274)}Z"
    )
    fold = f"M{on_ribbon(inner, 253)}L{on_ribbon(side * 13.6, 260)}L{on_ribbon(inner, 262)}Z"
    return path(swallow, "#fff", 1.8) + path(fold, "#000", 1.8)


def name():
    """The name of the town along the ribbon."""
    parts = []
    for place, letter in enumerate(NAME):
        angle = (place - (len(NAME) - 1) / 2) * 2.45
        parts.append(
            f'<g transform="translate({on_ribbon(angle, 270)}) rotate({number(-angle)})'
            f' translate(-3.3 -5.5) scale(1.1)">{path(LETTERS[letter], width=1.9)}</g>'
        )
    return "".join(parts)


def ribbon():
    return tail(-1) + tail(1) + path(band(-13.6, 13.6, 260, 281), "#fff", 2) + name()


def main():
    drawing = branch(-1) + branch(1) + crown() + shield() + ribbon()
    body = drawing.replace("><", ">\n    <")
    text = (
        '<svg xmlns="http://www.w3.org/2000/svg" width="200" height="200"'
        ' viewBox="0 0 200 200">\n'
        '  <g stroke="#000" fill="none" stroke-linejoin="round" stroke-linecap="round">\n'
        f"    {body}\n  </g>\n</svg>\n"
    )
    (Path(__file__).resolve().parent / "crest.svg").write_text(
        text, encoding="utf-8", newline="\n"
    )


if __name__ == "__main__":
    main()
