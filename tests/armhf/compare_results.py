#!/usr/bin/env python3
"""compare_results.py FILE FILE: compares the results of conversions that print-conversion-results printed on two
processors. All bits must be equal, except for the sign of a NaN computed from an infinity."""

import sys
from itertools import zip_longest

SIGN = 1 << 63
INFINITY = 0x7FF << 52


def is_infinite(bits):
    return bits & ~SIGN == INFINITY


def is_nan(bits):
    return bits & ~SIGN > INFINITY


def main():
    numbers = []
    headline = None
    index = results = signs = 0
    with open(sys.argv[1], encoding="ascii") as first, open(sys.argv[2], encoding="ascii") as second:
        for left, right in zip_longest(first, second, fillvalue=""):
            if left.startswith("#") or not left or not right:
                if left != right:
                    sys.exit(f"different lists: {left!r} and {right!r}")
                headline, index = left[2:-1], 0
                continue
            if headline == "numbers":
                numbers.append(int(left, 16))
            else:
                results += 1
            if left != right:
                number, one, other = numbers[index], int(left, 16), int(right, 16)
                if not (is_infinite(number) and is_nan(one) and one ^ other == SIGN):
                    sys.exit(f"{headline}, {number:016x}: {left[:-1]} and {right[:-1]}")
                signs += 1
            index += 1
    if results == 0:
        sys.exit("no results")
    print(f"{results:,} results are equal, {signs:,} of them except for the sign of a NaN computed from an infinity")


main()
