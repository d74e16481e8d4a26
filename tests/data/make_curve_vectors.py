#!/usr/bin/env python3
"""Prints curve_vectors.txt: transfer curves, their coefficients and their records, computed apart from the panel.

The format is described in the comment that is printed first. Run it as
    python3 make_curve_vectors.py > curve_vectors.txt
"""
import struct

HEADER = """\
# Transfer curves and the records made of them, for checking any implementation. Written by make_curve_vectors.py.
#
# A curve is a block of lines:
#   curve NAME
#   move POINT X Y        zero or more, in order: the point of the identity curve is moved there by the editor's
#                         rule, the limits being -pi to pi (X) and -2 to 2 (Y)
#   points64 X,Y ...      the seven points from the zero point to the end point; after the moves, if there are any
#   points32 X,Y ...      the same in a build whose points are single precision
#   pos_M V, pos_Intercept V, segment_length V V, C V V ... S V V    the coefficients from points64
#   record64 HEX          304 bytes: points64 exported into a record of zeros (needs_update becomes 1)
#   record32 HEX          296 bytes: points32, in the layout whose doubles are aligned to four bytes
#
# Numbers are the shortest decimals that read back to the same double; inf, -inf and nan stand for themselves.
"""
NAMES = ("zero_point positive_mid_c1_point positive_mid_c2_point positive_mid_point "
         "positive_end_c1_point positive_end_c2_point positive_end_point").split()
Z, M1, M2, M, E1, E2, N = range(7)
ARRAYS = "CDEFGHABPQRS"
PI = 3.1415927410125732


def single(value):
    return struct.unpack("<f", struct.pack("<f", value))[0]


THIRD = single(1 / 3)
SIXTH = single(1 / 6)
IDENTITY = [(single(i * SIXTH),) * 2 for i in range(7)]


def move(points, which, x, y, store):
    """Moves a point by the editor's rule; `store` rounds to the precision of a point's coordinate."""
    px, py = ([p[axis] for p in points] for axis in (0, 1))
    py[which] = store(min(max(single(y), -2.0), 2.0))
    px[which] = store(min(max(single(x), -PI), PI))
    if which != Z:
        if which == N and px[N] < px[M] + 0.001:
            px[N] = store(px[M] + 0.001)
        px[M] = store(px[N] * 0.5)
        for start, c1, c2, end in ((Z, M1, M2, M), (M, E1, E2, N)):
            left = single(px[start])
            third = single(single(px[end] - left) * THIRD)
            px[c1] = single(third + left)
            px[c2] = store(2 * third + left)
        a, b = single(px[E1] - px[M]), single(px[M] - px[M2])
        py[M] = store(store(store(a * py[M2]) + store(b * py[E1])) / single(a + b))
    return list(zip(px, py))


def divide(a, b):
    try:
        return a / b
    except ZeroDivisionError:
        return a * float("inf")  # in these vectors a is above zero, and b no negative zero


def coefficients(points):
    k = {name: [0.0, 0.0] for name in ARRAYS}
    for i, first in enumerate((Z, M)):
        (x0, y0), (x1, y1), (_, y2), (_, y3) = points[first:first + 4]
        c, d = 3 * (x1 - x0), x0
        e, f, g, h = -3 * (y2 - y1) + y3 - y0, 3 * (y0 - 2 * y1 + y2), 3 * (y1 - y0), y0
        a, b = divide(1, c), divide(d, c)
        values = (c, d, e, f, g, h, a, b, a * a * a * e, (-3 * e * b + f) * (a * a),
                  (3 * e * (b * b) - 2 * f * b + g) * a, b * b * f - b * b * b * e - g * b + h)
        for name, value in zip(ARRAYS, values):
            k[name][i] = value
    (x2, y2), (x3, y3) = points[E2], points[N]
    slope = (y3 - y2) / (x3 - x2) if x3 - x2 != 0 else 0.0
    return {"pos_M": [slope], "pos_Intercept": [y3 - x3 * slope if x3 - x2 != 0 else y3],
            "segment_length": k["C"], **k}


def record(k, padding):
    doubles = [value for values in k.values() for value in values]
    doubles += [1.0, 1.0, 0.0, 1.0, 0.0, 0.5, 0.55, 1.0]
    return struct.pack("<i%s%ddI%s" % (padding, len(doubles), padding), 1, *doubles, 2).hex()


def text(value):
    return repr(float(value)).removesuffix(".0")


CURVES = {
    "identity": IDENTITY,
    "end_moved_left": [("positive_end_point", 0.6, 0.9)],
    "bent": [("positive_mid_c1_point", 0.2, 0.7), ("positive_end_c2_point", 0, -0.3),
             ("positive_end_point", 1.7, 1.1), ("positive_mid_c2_point", 0, 0.55)],
    "end_pushed_into_the_middle": [("positive_end_point", 0.1, 0.4), ("positive_end_point", 0.1, 0.3)],
    "beyond_the_limits": [("positive_end_point", 9, 7), ("positive_mid_c1_point", -9, -7)],
    "zero_point_off_the_origin": [("zero_point", 0.0123, -0.1), ("positive_end_c1_point", 0, 1.3)],
    "zero_point_alone": [("zero_point", 0.25, 9)],
    "mid_point_refuses": [("positive_mid_c2_point", 0, 0.8), ("positive_mid_point", 0.9, -1)],
    "upright_end": [(0.0, 0.0), (0.25, 0.5), (0.5, 0.75), (0.75, 0.5), (1.0, 1.0), (1.5, 1.5), (1.5, 0.1)],
    "segment_without_width": [(0.0, 0.0), (0.25, 0.5), (0.5, 0.25), (0.75, 0.5), (0.75, 0.25), (1.0, 0.5),
                              (1.25, 0.75)],
}

print(HEADER, end="")
for name, steps in CURVES.items():
    print("\ncurve", name)
    if isinstance(steps[0][0], str):
        wide = narrow = IDENTITY
        for point, x, y in steps:
            print("move", point, text(single(x)), text(single(y)))
            wide = move(wide, NAMES.index(point), x, y, float)
            narrow = move(narrow, NAMES.index(point), x, y, single)
    else:
        wide, narrow = steps, [tuple(map(single, point)) for point in steps]
    for label, points in (("points64", wide), ("points32", narrow)):
        print(label, *(text(x) + "," + text(y) for x, y in points))
    for label, values in coefficients(wide).items():
        print(label, *map(text, values))
    print("record64", record(coefficients(wide), "4x"))
    print("record32", record(coefficients(narrow), ""))
