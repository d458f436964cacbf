"""The parts that the icons of the program are put together from.

Every part is a function that returns a piece of SVG. Lengths are pixels of the icon at its
nominal size; outlines lie on half pixels and flat areas on whole ones, so that an icon drawn
at its nominal size, or at a whole multiple of it, has no blurred edges. Only plain paths,
rectangles and circles are used, which every SVG renderer draws alike.
"""

import math

INK = "#31527B"  # all outlines
PAPER = "#FFFFFF"  # sheets, signs on badges
MIST = "#D3DEEA"  # folds, metal, plain surfaces
BLUE = "#4C8BCB"  # written lines, clothes, devices
GOLD = "#F6C350"  # money, folders, warnings
GREEN = "#4FA650"  # what is added or comes in
RED = "#D94F3D"  # what is taken away


def number(value):
    """A coordinate in the shortest form, with at most two decimals."""
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def points(*pairs):
    """The closed path through the points."""
    return "M" + "L".join(f"{number(x)} {number(y)}" for x, y in pairs) + "Z"


def shape(path, fill):
    """An area with the outline of the family."""
    return f'<path d="{path}" fill="{fill}"/>'


def flat(path, fill):
    """An area without an outline."""
    return f'<path d="{path}" fill="{fill}" stroke="none"/>'


def stroke(path, colour=INK, width=1, cap="butt"):
    """A line. A butt cap keeps the ends of level and upright lines on whole pixels."""
    return (
        f'<path d="{path}" fill="none" stroke="{colour}" stroke-width="{number(width)}"'
        f' stroke-linecap="{cap}"/>'
    )


def shade(path):
    """A darkened part of an area below it."""
    return f'<path d="{path}" fill="{INK}" fill-opacity="0.18" stroke="none"/>'


def light(path):
    """A lightened part of an area below it."""
    return f'<path d="{path}" fill="{PAPER}" fill-opacity="0.45" stroke="none"/>'


def box(x, y, width, height):
    """The path of an upright rectangle."""
    return f"M{number(x)} {number(y)}h{number(width)}v{number(height)}h{number(-width)}z"


def rounded(x, y, width, height, radius):
    """The path of an upright rectangle with round corners."""
    across, down, r = number(width - 2 * radius), number(height - 2 * radius), number(radius)
    return (
        f"M{number(x + radius)} {number(y)}h{across}a{r} {r} 0 0 1 {r} {r}v{down}"
        f"a{r} {r} 0 0 1 -{r} {r}h-{across}a{r} {r} 0 0 1 -{r} -{r}v-{down}"
        f"a{r} {r} 0 0 1 {r} -{r}z"
    )


def disc(x, y, radius):
    """The path of a circle."""
    r, across = number(radius), number(2 * radius)
    return (
        f"M{number(x - radius)} {number(y)}a{r} {r} 0 1 1 {across} 0"
        f"a{r} {r} 0 1 1 -{across} 0z"
    )


def sheet(x, y, width, height, fold=4):
    """A sheet of paper with its upper right corner folded."""
    right, bottom = x + width, y + height
    outline = points((x, y), (right - fold, y), (right, y + fold), (right, bottom), (x, bottom))
    corner = points((right - fold, y), (right, y + fold), (right - fold, y + fold))
    return shape(outline, PAPER) + shape(corner, MIST)


def written(left, right, rows, colour=BLUE):
    """Written lines between two columns; `rows` are the middles of the lines."""
    path = "".join(f"M{number(left)} {number(y)}H{number(right)}" for y in rows)
    return stroke(path, colour)


def requisition():
    """The sheet that stands behind a badge or a tool."""
    return sheet(3.5, 1.5, 13, 19) + written(6, 10, [5.5]) + written(6, 14, [8.5, 11.5, 14.5, 17.5])


def badge(fill):
    """The round badge in the lower right corner; its middle is 17, 17."""
    return shape(disc(17, 17, 5.5), fill)


def plus_badge():
    return badge(GREEN) + flat(box(14, 16, 6, 2) + box(16, 14, 2, 6), PAPER)


def cross_badge():
    return badge(RED) + stroke("M14.7 14.7L19.3 19.3M19.3 14.7L14.7 19.3", PAPER, 2)


def down_badge():
    arrow = points((16, 13.5), (18, 13.5), (18, 17), (20.5, 17), (17, 20.5), (13.5, 17), (16, 17))
    return badge(GREEN) + flat(arrow, PAPER)


def coin(x, y):
    """A coin 10 wide; its middle lies on half pixels, so that its sign is pixel sharp."""
    left, upper = number(x - 1), number(y - 2)
    sign = (
        f"M{number(x + 2)} {upper}H{left}a1 1 0 0 0 0 2h2a1 1 0 0 1 0 2h-3"
        f"M{number(x)} {number(y - 3.5)}v7"
    )
    return shape(disc(x, y, 5), GOLD) + stroke(sign)


def large_coin(x, y):
    """A coin 15 wide for the larger icons; its middle lies on whole pixels."""
    left, upper = number(x - 1.5), number(y - 3)
    sign = (
        f"M{number(x + 3)} {upper}H{left}a1.5 1.5 0 0 0 0 3h3a1.5 1.5 0 0 1 0 3h-4.5"
        f"M{number(x)} {number(y - 6)}v3m0 6v3"
    )
    return shape(disc(x, y, 7.5), GOLD) + stroke(sign, INK, 2)


def pencil(x, y, length):
    """A pencil whose point is at x, y and whose end lies to the upper right."""
    near, far = (x + 1, y - 4), (x + 4, y - 1)
    body = points(
        (x, y), near, (near[0] + length, near[1] - length), (far[0] + length, far[1] - length), far
    )
    wood = points((x, y), near, far)
    inner = length - 2.5
    end = points(
        (near[0] + inner, near[1] - inner),
        (near[0] + length, near[1] - length),
        (far[0] + length, far[1] - length),
        (far[0] + inner, far[1] - inner),
    )
    return shape(body, GOLD) + shape(wood, PAPER) + shape(end, RED)


def magnifier():
    """A magnifying glass in the lower right corner."""
    return (
        stroke("M17.5 17.5L21 21", INK, 4.5, "round")
        + stroke("M17.5 17.5L21 21", GOLD, 2.5, "round")
        + shape(disc(14, 14, 5.5), BLUE)
        + flat(disc(14, 14, 3.75), PAPER)
        + flat("M11.25 14a2.75 2.75 0 0 1 2.75 -2.75v1.2a1.55 1.55 0 0 0 -1.55 1.55z", BLUE)
    )


def folder(x, y, width, height, fill=GOLD):
    """A closed folder."""
    right, bottom = x + width, y + height
    outline = points(
        (x, y), (x + width * 0.36, y), (x + width * 0.36 + 2, y + 2), (right, y + 2),
        (right, bottom), (x, bottom),
    )
    edge = f"M{number(x)} {number(y + 4)}H{number(right)}"
    return shape(outline, fill) + stroke(edge) + light(box(x + 0.5, y + 4.5, width - 1, 1))


def open_folder(x, y, width, height, lean):
    """A folder whose front leans towards the reader; what lies in it is drawn between the
    two pieces that are returned."""
    right, bottom, top = x + width, y + height, y + height - round(height * 0.6)
    back = points(
        (x, y), (x + 7, y), (x + 9, y + 2), (right - lean, y + 2), (right - lean, bottom),
        (x, bottom),
    )
    front = points((x + lean, top), (right, top), (right - lean, bottom), (x, bottom))
    gleam = points(
        (x + lean + 0.3, top + 0.5), (right - 0.7, top + 0.5),
        (right - 1, top + 1.5), (x + lean - 0.1, top + 1.5),
    )
    return shape(back, GOLD) + shade(back), shape(front, GOLD) + light(gleam)


def archive_box(x, y, width, height, lid):
    """A closed archive box with its lid; the label is left of the middle, clear of a lock."""
    label = round(width * 0.26)
    return (
        shape(box(x + 1, y + lid, width - 2, height - lid), BLUE)
        + shade(box(x + 1.5, y + lid + 0.5, width - 3, 1))
        + shape(box(x, y, width, lid), BLUE)
        + light(box(x + 0.5, y + 0.5, width - 1, 1))
        + shape(box(x + label - 1, y + lid + 3, label, 2), PAPER)
    )


def padlock(x, y, width, height):
    """A shut padlock; x, y is the upper left corner of its body."""
    middle, radius = x + width / 2, width / 2 - 2
    bow = (
        f"M{number(middle - radius)} {number(y + 0.5)}v-2"
        f"a{number(radius)} {number(radius)} 0 0 1 {number(2 * radius)} 0v2"
    )
    return (
        stroke(bow, INK, 3)
        + stroke(bow, PAPER, 1)
        + shape(rounded(x, y, width, height, 1), GOLD)
        + shade(box(x + 0.5, y + height - 2.5, width - 1, 2))
        + flat(box(middle - 1.5, y + 2.5, 3, 2) + box(middle - 0.5, y + 4.5, 1, 2), INK)
    )


def person():
    """Head and shoulders, leaving the lower right corner free for what the person stands for."""
    body = "M1.5 20.5V17c0 -3.5 3 -4.5 8 -4.5s8 1 8 4.5v3.5z"
    hair = "M5 6.5a4.5 4.5 0 0 1 9 0c-2 0 -3.4 -0.7 -4.4 -2c-0.8 1.3 -2.6 2 -4.6 2z"
    return (
        shape(body, BLUE)
        + shape("M6.5 12.5h6l-3 5z", PAPER)
        + shape(disc(9.5, 6.5, 5), PAPER)
        + flat(hair, GOLD)
        + shade(hair)
        + shade(hair)
    )


def seal():
    """A seal with two tails, in the lower right corner."""
    edge = []
    for step in range(24):
        radius = 5.2 if step % 2 == 0 else 4.3
        angle = math.tau * step / 24
        edge.append((17.5 + radius * math.sin(angle), 14.5 - radius * math.cos(angle)))
    return (
        shape(points((14.5, 17), (20.5, 17), (20.5, 22.5), (17.5, 20.5), (14.5, 22.5)), BLUE)
        + shape(points(*edge), RED)
        + flat(disc(17.5, 14.5, 2.5), PAPER)
    )


def gear(x, y, outer, root):
    """A wheel of eight teeth that are 3 wide at their ends; one points straight up."""
    outline = []
    for tooth in range(8):
        turn = math.tau * tooth / 8
        for along, across in ((root, -2.2), (outer, -1.5), (outer, 1.5), (root, 2.2)):
            outline.append((
                x + along * math.sin(turn) + across * math.cos(turn),
                y - along * math.cos(turn) + across * math.sin(turn),
            ))
    return shape(points(*outline), MIST)


def spanner(x, y):
    """An open spanner; x, y is the middle of its jaw, its handle goes down to the left."""
    jaw, gap, half, length = 6.2, 2.2, 2.3, 13.2

    def at(along, across):
        turn = math.sqrt(0.5)
        return f"{number(x + (along + across) * turn)} {number(y + (across - along) * turn)}"

    mouth, neck = math.sqrt(jaw**2 - gap**2), math.sqrt(jaw**2 - half**2)
    path = (
        f"M{at(mouth, -gap)}L{at(0.6, -gap)}L{at(-0.9, 0)}L{at(0.6, gap)}L{at(mouth, gap)}"
        f"A{jaw} {jaw} 0 0 1 {at(-neck, half)}L{at(-length, half)}"
        f"A{half} {half} 0 0 1 {at(-length, -half)}L{at(-neck, -half)}"
        f"A{jaw} {jaw} 0 0 1 {at(mouth, -gap)}Z"
    )
    groove = stroke(f"M{at(-neck - 0.5, 0)}L{at(-length + 0.5, 0)}", BLUE, 1.5, "round")
    return shape(path, MIST) + groove


def coin_stack(x, bottom, count):
    """Coins lying on each other, 10 wide."""
    parts = []
    for step in range(count):
        top = bottom - 3 * (step + 1)
        parts.append(shape(rounded(x, top, 10, 3, 1), GOLD) + light(box(x + 1, top + 0.5, 8, 1)))
    return "".join(parts)
