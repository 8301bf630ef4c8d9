#!/usr/bin/env python3
"""drawPatient.py FILE: draws a patient in bed beside a drip, as a bitmap of 24 bits."""
import math
import struct
import sys

WIDTH, HEIGHT = 138, 136
SAMPLES = 4  # a pixel's, in either direction


class Ellipse:
    def __init__(self, colour, x, y, rx, ry):
        self.colour = colour
        self.x, self.y, self.rx, self.ry = x, y, rx, ry
        self.box = x - rx, y - ry, x + rx, y + ry

    def covers(self, x, y):
        return ((x - self.x) / self.rx) ** 2 + ((y - self.y) / self.ry) ** 2 <= 1


class Rounded:
    """A rectangle with round corners."""

    def __init__(self, colour, left, top, right, bottom, radius):
        self.colour = colour
        self.box = left, top, right, bottom
        self.radius = radius

    def covers(self, x, y):
        left, top, right, bottom = self.box
        r = self.radius
        dx = max(left + r - x, x - (right - r), 0)
        dy = max(top + r - y, y - (bottom - r), 0)
        return dx * dx + dy * dy <= r * r


class Stroke:
    """A line through points, with round ends."""

    def __init__(self, colour, width, points):
        self.colour = colour
        self.r = width / 2
        self.points = points
        xs, ys = zip(*points)
        self.box = min(xs) - self.r, min(ys) - self.r, max(xs) + self.r, max(ys) + self.r

    def covers(self, x, y):
        return any(self.is_near(x, y, a, b) for a, b in zip(self.points, self.points[1:]))

    def is_near(self, x, y, a, b):
        dx, dy = b[0] - a[0], b[1] - a[1]
        t = ((x - a[0]) * dx + (y - a[1]) * dy) / (dx * dx + dy * dy)
        t = min(max(t, 0), 1)
        return math.hypot(x - a[0] - t * dx, y - a[1] - t * dy) <= self.r


def curve(start, control1, control2, end, steps=24):
    """The points of a cubic curve."""
    points = []
    for i in range(steps + 1):
        t = i / steps
        u = 1 - t
        weights = u * u * u, 3 * u * u * t, 3 * u * t * t, t * t * t
        points.append(tuple(sum(w * p[axis] for w, p in
                                zip(weights, (start, control1, control2, end))) for axis in (0, 1)))
    return points


SKIN, SKIN_SHADE, HAIR = (240, 205, 180), (222, 178, 150), (104, 74, 56)
GOWN, GOWN_SHADE = (166, 208, 206), (140, 188, 187)
BLANKET, BLANKET_SHADE, SHEET = (88, 134, 178), (74, 117, 160), (248, 250, 252)
STEEL, STEEL_LIGHT, LINE = (134, 146, 158), (186, 196, 205), (92, 62, 52)
WOOD, WOOD_SHADE = (206, 186, 160), (186, 164, 136)

# From the back to the front.
SCENE = [
    Rounded((224, 234, 240), -9, 100, 150, 150, 0),  # floor line of the wall
    Rounded(WOOD_SHADE, 8, 30, 98, 120, 9),  # bed's head
    Rounded(WOOD, 11, 33, 95, 120, 7),
    Rounded((216, 224, 232), 17, 43, 89, 92, 13),  # pillow
    Rounded(SHEET, 17, 41, 89, 89, 13),
    Rounded(GOWN_SHADE, 17, 88, 89, 140, 20),
    Rounded(GOWN, 19, 90, 87, 140, 19),
    Ellipse(HAIR, 53, 62, 19, 20.5),
    Rounded(HAIR, 34, 60, 72, 94, 10),
    Ellipse(SKIN_SHADE, 53, 90, 8.5, 6.5),  # neck
    Rounded(SKIN_SHADE, 47, 70, 59, 91, 4),
    Ellipse(SKIN, 53, 90.5, 7, 4.5),
    Ellipse(SKIN, 53, 63.5, 14, 18),  # face
    Ellipse(HAIR, 46, 48.5, 10, 6),
    Ellipse(HAIR, 61.5, 48, 8, 5),
    Stroke(LINE, 1.3, curve((43.5, 62), (45, 63.8), (48, 63.8), (49.5, 62), 8)),  # closed eyes
    Stroke(LINE, 1.3, curve((56.5, 62), (58, 63.8), (61, 63.8), (62.5, 62), 8)),
    Stroke(HAIR, 1.4, curve((43, 57.5), (45, 56.2), (47.5, 56.2), (49.5, 57.2), 8)),
    Stroke(HAIR, 1.4, curve((56.5, 57.2), (58.5, 56.2), (61, 56.2), (63, 57.5), 8)),
    Stroke(SKIN_SHADE, 1.5, curve((53, 63), (52, 66), (51.4, 68.4), (53.6, 68.6), 8)),
    Stroke((186, 100, 92), 1.6, curve((48.5, 73.5), (51, 75.4), (55, 75.4), (57.5, 73.5), 8)),
    Ellipse((243, 190, 170), 44.5, 68, 3, 2),  # cheeks
    Ellipse((243, 190, 170), 61.5, 68, 3, 2),
    Rounded(BLANKET_SHADE, 5, 108, 101, 150, 10),
    Rounded(BLANKET, 5, 110, 101, 150, 10),
    Rounded(SHEET, 4, 106, 102, 116, 5),  # the sheet, turned down
    Rounded((222, 230, 238), 4, 114, 102, 116, 1),
    Stroke(BLANKET_SHADE, 1.5, curve((24, 122), (30, 128), (28, 132), (33, 140))),
    Stroke(BLANKET_SHADE, 1.5, curve((80, 121), (74, 127), (77, 132), (71, 140))),
    Stroke(GOWN, 13, curve((81, 98), (93, 104), (92, 114), (85, 119))),  # arm
    Stroke(SKIN, 9.5, curve((86, 118), (82, 121), (76, 123), (70, 123))),
    Ellipse(SKIN, 67, 123, 6, 5),
    Rounded((252, 252, 252), 72, 117.5, 80, 128, 2),  # dressing of the cannula
    Stroke(STEEL, 3, [(118, 12), (118, 150)]),  # drip stand
    Stroke(STEEL_LIGHT, 1, [(117.6, 13), (117.6, 150)]),
    Stroke(STEEL, 2.4, curve((106, 17), (106, 10), (130, 10), (130, 17))),
    Rounded((150, 172, 190), 107, 19, 129, 56, 5),  # bag
    Rounded((240, 247, 251), 108, 20, 128, 55, 4.2),
    Rounded((190, 219, 238), 108, 28, 128, 55, 4.2),
    Rounded((252, 253, 254), 111, 33, 125, 45, 1.5),
    Stroke((96, 120, 142), 1.2, [(113.5, 36.5), (122.5, 36.5)]),
    Stroke((150, 168, 184), 1.2, [(113.5, 39.5), (122.5, 39.5)]),
    Stroke((150, 168, 184), 1.2, [(113.5, 42.2), (119, 42.2)]),
    Stroke((150, 172, 190), 2.2, [(118, 56), (118, 60)]),
    Rounded((150, 172, 190), 114.8, 59, 121.2, 72, 2.5),  # drip chamber
    Rounded((232, 243, 250), 115.8, 60, 120.2, 71, 2),
    Rounded((170, 206, 232), 115.8, 66.5, 120.2, 71, 2),
    Ellipse((120, 172, 212), 118, 63.6, 1.1, 1.6),
    Stroke((126, 164, 194), 1.8, curve((118, 72), (118, 104), (104, 88), (104, 108)) +
           curve((104, 108), (104, 122), (90, 118), (77, 122))[1:]),
]


def wall(y):
    t = y / HEIGHT
    return tuple(a + (b - a) * t for a, b in zip((243, 247, 250), (212, 225, 234)))


def colour_at(x, y, shapes):
    for shape in shapes:
        if shape.covers(x, y):
            return shape.colour
    return wall(y)


def pixel(column, row):
    """The mean of the pixel's samples, as blue, green and red."""
    nearby = [shape for shape in reversed(SCENE)
              if shape.box[0] <= column + 1 and shape.box[2] >= column
              and shape.box[1] <= row + 1 and shape.box[3] >= row]
    steps = [(i + 0.5) / SAMPLES for i in range(SAMPLES)]
    samples = [colour_at(column + dx, row + dy, nearby) for dy in steps for dx in steps]
    return bytes(round(sum(sample[i] for sample in samples) / len(samples)) for i in (2, 1, 0))


def bitmap():
    rows = []
    for row in reversed(range(HEIGHT)):  # the lowest comes first
        line = b"".join(pixel(column, row) for column in range(WIDTH))
        rows.append(line + bytes(-len(line) % 4))
    pixels = b"".join(rows)
    information = struct.pack("<IiiHHIIiiII", 40, WIDTH, HEIGHT, 1, 24, 0, len(pixels), 3780, 3780,
                              0, 0)
    file_header = struct.pack("<2sIHHI", b"BM", 14 + 40 + len(pixels), 0, 0, 14 + 40)
    return file_header + information + pixels


with open(sys.argv[1], "wb") as file:
    file.write(bitmap())
