#!/usr/bin/env python3
"""exactPowers.py FILE: writes the powers of all products of a prefix and a kind factor as rows

    {prefix, kind, exponent, bits of the nearest double}

for exponents -8 to 8, and for every seventh beyond up to where the power is 0 or infinity. The power
is taken in exact fractions and rounded once."""
import struct
import sys
from fractions import Fraction

PREFIX_FACTORS = {-3: 1e-9, -2: 1e-6, -1: 1e-3, 0: 1.0, 1: 1e3, 2: 1e6, 3: 1e9}
KIND_FACTORS = {0: 1.0, 3: 60.0, 4: 3600.0, 6: 1609.34721869, 7: 0.0254, 8: 0.01}
# The one that grows slowest, 1609.34721869 / 1000, leaves the range beyond an exponent of 1566.
FURTHER = 1600
EXPONENTS = [range(-8, 9), range(-9, -FURTHER, -7), range(9, FURTHER, 7)]


def nearest_double(base, exponent):
    exact = Fraction(base)
    top, bottom = exact.numerator ** abs(exponent), exact.denominator ** abs(exponent)
    if exponent < 0:
        top, bottom = bottom, top
    try:
        return top / bottom  # Python rounds the quotient of two integers correctly
    except OverflowError:
        return float("inf")


with open(sys.argv[1], "w") as out:
    for prefix, prefix_factor in PREFIX_FACTORS.items():
        for kind, kind_factor in KIND_FACTORS.items():
            for exponents in EXPONENTS:
                for exponent in exponents:
                    power = nearest_double(prefix_factor * kind_factor, exponent)
                    bits = struct.unpack("<Q", struct.pack("<d", power))[0]
                    out.write(f"{{{prefix}, {kind}, {exponent}, {bits:#018x}}},\n")
                    if power in (0, float("inf")):
                        break
