#!/usr/bin/env python3
"""Writes generated/CellRanges.inc from the Unicode character database (Debian package unicode-data).

Usage: generate.py [DATABASE_FOLDER] > generated/CellRanges.inc

Two sorted tables of ranges: the characters that take two cells of a terminal (East Asian Width W and F), and those
that take none (marks that do not advance, format characters, vowels and finals of conjoining Hangul). The rest takes
one, characters of ambiguous width among them, as terminals do outside East Asian settings.
"""
import sys
from pathlib import Path


def rows(path):
    for line in path.read_text(encoding="utf-8").splitlines():
        fields = [field.strip() for field in line.split("#")[0].split(";")]
        if len(fields) >= 2:
            yield fields


def east_asian(path):
    wide = set()
    for codes, width in (fields[:2] for fields in rows(path)):
        if width in ("W", "F"):
            first, _, last = codes.partition("..")
            wide.update(range(int(first, 16), int(last or first, 16) + 1))
    return wide


def without_advance(path):
    none = set(range(0x1160, 0x1200)) | set(range(0xD7B0, 0xD800))
    for fields in rows(path):
        if fields[2] in ("Mn", "Me", "Cf"):
            none.add(int(fields[0], 16))
    return none - {0x00AD} - set(range(0x0600, 0x0606))  # these are visible


def write(name, codes):
    ranges = []
    for code in sorted(codes):
        if ranges and ranges[-1][1] == code - 1:
            ranges[-1][1] = code
        else:
            ranges.append([code, code])
    print(f"constexpr CellRange k{name}[{len(ranges)}] = {{")
    for start in range(0, len(ranges), 5):
        print("    " + " ".join(f"{{0x{first:X}, 0x{last:X}}}," for first, last in ranges[start:start + 5]))
    print("};")


def main():
    database = Path(sys.argv[1] if len(sys.argv) > 1 else "/usr/share/unicode")
    version = database.joinpath("EastAsianWidth.txt").read_text(encoding="utf-8").splitlines()[0].lstrip("# ")
    print(f"// Made by generate.py from {version.removesuffix('.txt')} and its UnicodeData; do not edit.\n")
    none = without_advance(database / "UnicodeData.txt")
    write("WideRanges", east_asian(database / "EastAsianWidth.txt") - none)
    print()
    write("NoCellRanges", none)


if __name__ == "__main__":
    main()
