#!/usr/bin/env python3
"""Draws the comment-type icons of the comment editor's bar and toolbar as PNG files.

Each icon is a few flat shapes described on a 16-unit grid and rasterised with 4x4 supersampling,
so the same drawing gives the 16x16 icons in data/icons/commenttypes/ and the 32x32 ones in
data/icons/commenttypes/32x32/. Every tag icon also gets a "_ticked" variant with a green tick in
its lower right corner, which the editor shows on pages that have content.

Standard library only:  python3 scripts/make-icons.py [output-folder]
"""

import math
import os
import struct
import sys
import zlib

SAMPLES = 4  # per axis, per pixel

# Colours as (red, green, blue, alpha).
WHITE = (255, 255, 255, 255)
PAPER = (252, 252, 248, 255)
EDGE = (110, 118, 130, 255)
INK = (70, 110, 180, 255)
DARK = (50, 55, 65, 255)
BLUE = (45, 110, 200, 255)
NAVY = (30, 60, 130, 255)
GREEN = (40, 150, 60, 255)
DARKGREEN = (20, 100, 35, 255)
RED = (205, 45, 40, 255)
DARKRED = (140, 25, 20, 255)
YELLOW = (250, 215, 80, 255)
AMBER = (200, 140, 20, 255)
ORANGE = (240, 140, 40, 255)
PURPLE = (130, 70, 190, 255)
TEAL = (20, 130, 140, 255)
GREY = (150, 155, 165, 255)


# Shapes: functions of a point on the 16-unit grid that answer whether it is inside.

def rect(x0, y0, x1, y1, radius=0.0):
    def inside(x, y):
        if x < x0 or x > x1 or y < y0 or y > y1:
            return False
        if radius <= 0:
            return True
        cx = min(max(x, x0 + radius), x1 - radius)
        cy = min(max(y, y0 + radius), y1 - radius)
        return (x - cx) ** 2 + (y - cy) ** 2 <= radius ** 2
    return inside


def circle(cx, cy, r):
    return lambda x, y: (x - cx) ** 2 + (y - cy) ** 2 <= r * r


def ring(cx, cy, r, width):
    return lambda x, y: (r - width) ** 2 <= (x - cx) ** 2 + (y - cy) ** 2 <= r * r


def polygon(*points):
    def inside(x, y):
        hit = False
        j = len(points) - 1
        for i, (xi, yi) in enumerate(points):
            xj, yj = points[j]
            if (yi > y) != (yj > y) and x < (xj - xi) * (y - yi) / (yj - yi) + xi:
                hit = not hit
            j = i
        return hit
    return inside


def line(x0, y0, x1, y1, width):
    """A stroke with round ends."""
    dx, dy = x1 - x0, y1 - y0
    length2 = dx * dx + dy * dy

    def inside(x, y):
        t = 0.0 if length2 == 0 else max(0.0, min(1.0, ((x - x0) * dx + (y - y0) * dy) / length2))
        px, py = x0 + t * dx, y0 + t * dy
        return (x - px) ** 2 + (y - py) ** 2 <= (width / 2) ** 2
    return inside


def polyline(points, width):
    strokes = [line(*a, *b, width) for a, b in zip(points, points[1:])]
    return lambda x, y: any(stroke(x, y) for stroke in strokes)


def star(cx, cy, outer, inner, tips=5):
    points = []
    for k in range(tips * 2):
        r = outer if k % 2 == 0 else inner
        angle = -math.pi / 2 + k * math.pi / tips
        points.append((cx + r * math.cos(angle), cy + r * math.sin(angle)))
    return polygon(*points)


def minus(shape, hole):
    return lambda x, y: shape(x, y) and not hole(x, y)


# Common parts.

def page(x0=2.5, y0=1.5, x1=13.5, y1=14.5):
    """A sheet with a border: the border layer, then the paper."""
    return [(rect(x0, y0, x1, y1, 0.8), EDGE), (rect(x0 + 1, y0 + 1, x1 - 1, y1 - 1, 0.3), PAPER)]


def text_lines(x0, x1, ys, colour=INK, width=1.2):
    return [(line(x0, y, x1 if i % 2 == 0 else x1 - 2, y, width), colour)
            for i, y in enumerate(ys)]


# The icons, each a list of (shape, colour) painted in order.

ICONS = {
    # A page of text: the element's description.
    "summary": page() + text_lines(5, 11, [5, 7.5, 10, 12.5]),
    # A speech bubble: remarks.
    "remarks": [
        (rect(1, 2, 15, 11.5, 2.5), AMBER),
        (polygon((4, 10), (4.5, 15), (8.5, 10)), AMBER),
        (rect(2, 3, 14, 10.5, 1.8), YELLOW),
        (polygon((5, 10), (5.3, 13), (7.8, 10)), YELLOW),
    ] + text_lines(4.5, 11.5, [5.2, 8], DARK, 1.1),
    # A return arrow: what a function gives back.
    "returns": [
        (polyline([(13, 2.5), (13, 10), (4.5, 10)], 2.4), DARKGREEN),
        (polygon((1.5, 10), (6.5, 5.5), (6.5, 14.5)), DARKGREEN),
        (polyline([(13, 3), (13, 10), (5, 10)], 1.2), GREEN),
        (polygon((2.8, 10), (5.8, 7.3), (5.8, 12.7)), GREEN),
    ],
    # A diamond with a hollow: one parameter.
    "param": [
        (polygon((8, 1), (15, 8), (8, 15), (1, 8)), PURPLE),
        (polygon((8, 5), (11, 8), (8, 11), (5, 8)), WHITE),
    ],
    # Angle brackets: code.
    "example": [
        (polyline([(6, 3.5), (1.8, 8), (6, 12.5)], 2.2), TEAL),
        (polyline([(10, 3.5), (14.2, 8), (10, 12.5)], 2.2), TEAL),
        (line(9.2, 2.5, 6.8, 13.5, 1.6), GREY),
    ],
    # Two links of a chain: a reference elsewhere.
    "seealso": [
        (ring(5.5, 10.5, 4.2, 1.7), NAVY),
        (ring(10.5, 5.5, 4.2, 1.7), BLUE),
    ],
    # A warning sign: what may be thrown.
    "exception": [
        (polygon((8, 0.8), (15.5, 14.8), (0.5, 14.8)), DARKRED),
        (polygon((8, 3), (13.8, 13.8), (2.2, 13.8)), RED),
        (line(8, 6.2, 8, 9.8, 1.8), WHITE),
        (circle(8, 12.1, 1.0), WHITE),
    ],
    # An equals sign on a disc: a value.
    "value": [
        (circle(8, 8, 7), NAVY),
        (circle(8, 8, 6), BLUE),
        (rect(4.5, 5.3, 11.5, 7.0), WHITE),
        (rect(4.5, 9.0, 11.5, 10.7), WHITE),
    ],
    # Cascading sheets: overloads of one member.
    "overloads": [
        (rect(1, 1, 10, 10, 0.8), AMBER),
        (rect(2, 2, 9, 9, 0.3), ORANGE),
        (rect(4, 4, 13, 13, 0.8), AMBER),
        (rect(5, 5, 12, 12, 0.3), ORANGE),
        (rect(7, 7, 15, 15, 0.8), AMBER),
        (rect(8, 8, 14, 14, 0.3), YELLOW),
    ],
    # No entry: left out of the documentation.
    "exclude": [
        (ring(8, 8, 7, 2.2), RED),
        (line(3.4, 12.6, 12.6, 3.4, 2.2), RED),
    ],
    # A star on a sheet: the constructor made for the class by default.
    "defaultconstructorsummary": page(1.5, 4.5, 11.5, 15.5) + text_lines(4, 9, [8.5, 11, 13.2]) + [
        (star(11.5, 4.5, 4.5, 1.9), AMBER),
        (star(11.5, 4.5, 3.3, 1.3), YELLOW),
    ],
    # A bulleted list: the tags shown as rows of the tag list.
    "other": [
        (circle(3, 3.5, 1.5), BLUE), (line(6.5, 3.5, 14, 3.5, 1.6), DARK),
        (circle(3, 8, 1.5), BLUE), (line(6.5, 8, 14, 8, 1.6), DARK),
        (circle(3, 12.5, 1.5), BLUE), (line(6.5, 12.5, 12, 12.5, 1.6), DARK),
    ],
    # A luggage label: a tag with no icon of its own.
    "generic": [
        (polygon((1, 8), (6, 2.5), (15, 2.5), (15, 13.5), (6, 13.5)), NAVY),
        (polygon((2.4, 8), (6.5, 3.5), (14, 3.5), (14, 12.5), (6.5, 12.5)), GREY),
        (circle(6, 8, 1.4), WHITE),
    ],
}

# Icons of the bar and toolbar themselves; they have no ticked form of their own.
EXTRAS = {
    # A flag on a pole: the popup of flags.
    "flags": [
        (line(3, 1.5, 3, 15, 1.6), DARK),
        (polygon((3.8, 2), (14, 2), (11, 5.5), (14, 9), (3.8, 9)), RED),
    ],
    # A sheet with a pencil: edit the whole page.
    "fullpageedit": page(1.5, 1.5, 11.5, 14.5) + text_lines(4, 9, [5, 7.5, 10]) + [
        (line(7.5, 13.5, 14, 4, 3.0), DARK),
        (line(7.5, 13.5, 14, 4, 1.8), ORANGE),
        (polygon((6.2, 15.2), (6.6, 12.3), (8.4, 13.6)), DARK),
    ],
    # A page layout: a sheet with a heading band.
    "inplace": page() + [(rect(3.5, 2.5, 12.5, 5.5), BLUE)] + text_lines(5, 11, [8, 10.5, 12.8]),
    # A plain tick: a page with content and no icon of its own.
    "tick": [
        (polyline([(2.5, 8.5), (6.3, 12.5), (13.5, 3.5)], 3.4), DARKGREEN),
        (polyline([(2.5, 8.5), (6.3, 12.5), (13.5, 3.5)], 2.0), GREEN),
    ],
}

# The tick badge of "_ticked" icons: a green tick in a white halo in the lower right corner.
BADGE = [
    (circle(11.8, 11.8, 4.2), WHITE),
    (polyline([(9.2, 12.0), (11.2, 14.0), (14.6, 9.6)], 2.6), DARKGREEN),
    (polyline([(9.2, 12.0), (11.2, 14.0), (14.6, 9.6)], 1.4), GREEN),
]


def rasterise(layers, size):
    """Paints the layers over a transparent square of size pixels; answers rows of RGBA bytes."""
    unit = 16.0 / size
    rows = []
    for py in range(size):
        row = bytearray()
        for px in range(size):
            r = g = b = a = 0.0  # premultiplied
            for shape, (cr, cg, cb, ca) in layers:
                hits = 0
                for sy in range(SAMPLES):
                    y = (py + (sy + 0.5) / SAMPLES) * unit
                    for sx in range(SAMPLES):
                        x = (px + (sx + 0.5) / SAMPLES) * unit
                        if shape(x, y):
                            hits += 1
                if not hits:
                    continue
                alpha = hits / (SAMPLES * SAMPLES) * ca / 255.0
                r = cr * alpha + r * (1 - alpha)
                g = cg * alpha + g * (1 - alpha)
                b = cb * alpha + b * (1 - alpha)
                a = alpha + a * (1 - alpha)
            if a > 0:
                row += bytes((round(r / a), round(g / a), round(b / a), round(a * 255)))
            else:
                row += bytes(4)
        rows.append(bytes(row))
    return rows


def png(rows, size):
    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body) & 0xFFFFFFFF)

    header = struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0)  # 8-bit RGBA
    raw = b"".join(b"\x00" + row for row in rows)  # no filter
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) +
            chunk(b"IDAT", zlib.compress(raw, 9)) + chunk(b"IEND", b""))


def main():
    root = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    out = sys.argv[1] if len(sys.argv) > 1 else os.path.join(root, "data", "icons", "commenttypes")
    drawings = {}
    for name, layers in ICONS.items():
        drawings[name] = layers
        drawings[name + "_ticked"] = layers + BADGE
    drawings.update(EXTRAS)
    drawings["flags_ticked"] = EXTRAS["flags"] + BADGE
    for size, folder in ((16, out), (32, os.path.join(out, "32x32"))):
        os.makedirs(folder, exist_ok=True)
        for name, layers in sorted(drawings.items()):
            with open(os.path.join(folder, name + ".png"), "wb") as f:
                f.write(png(rasterise(layers, size), size))
    print(f"{len(drawings)} icons in {out}")


if __name__ == "__main__":
    main()
