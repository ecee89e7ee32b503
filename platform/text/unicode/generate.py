#!/usr/bin/env python3
"""Writes generated/CaseTables.inc from the Unicode character database (Debian package unicode-data).

Usage: generate.py [DATABASE_FOLDER] > generated/CaseTables.inc

Three simple (one character to one character) mappings are taken: case folding, upper case, lower case.
Each is stored for the Basic Multilingual Plane as 256 page numbers and the pages that change anything,
as offsets modulo 65536; and for the characters above it as ranges with one offset each.
"""
import sys
from pathlib import Path

PAGE = 256


def read_folding(path):
    mapping = {}
    for line in path.read_text(encoding="utf-8").splitlines():
        fields = [field.strip() for field in line.split("#")[0].split(";")]
        if len(fields) >= 3 and fields[1] in ("C", "S"):
            mapping[int(fields[0], 16)] = int(fields[2], 16)
    return mapping


def read_case(path, column):
    mapping = {}
    for line in path.read_text(encoding="utf-8").splitlines():
        fields = line.split(";")
        if fields[column]:
            mapping[int(fields[0], 16)] = int(fields[column], 16)
    return mapping


def units(code):
    return 1 if code < 0x10000 else 2


def write(name, mapping):
    for source, target in mapping.items():
        # A string keeps its length under each mapping: comparing and converting rely on it.
        assert units(source) == units(target), hex(source)
    pages, index = [[0] * PAGE], []
    for page in range(0x10000 // PAGE):
        row = [(mapping.get(c, c) - c) % 0x10000 for c in range(page * PAGE, (page + 1) * PAGE)]
        if row not in pages:
            pages.append(row)
        index.append(pages.index(row))
    print(f"constexpr std::uint8_t k{name}PageOf[256] = {{")
    for start in range(0, 256, 32):
        print("    " + ", ".join(map(str, index[start:start + 32])) + ",")
    print(f"}};\nconstexpr std::uint16_t k{name}Pages[{len(pages)}][256] = {{")
    for row in pages:
        print("    {" + ", ".join(map(str, row)) + "},")
    print("};")
    ranges = []
    for source in sorted(c for c in mapping if c >= 0x10000):
        offset = mapping[source] - source
        if ranges and ranges[-1][1] == source - 1 and ranges[-1][2] == offset:
            ranges[-1][1] = source
        else:
            ranges.append([source, source, offset])
    print(f"constexpr CaseRange k{name}Ranges[{len(ranges)}] = {{")
    for first, last, offset in ranges:
        print(f"    {{0x{first:X}, 0x{last:X}, {offset}}},")
    print("};\n")


def main():
    database = Path(sys.argv[1] if len(sys.argv) > 1 else "/usr/share/unicode")
    version = database.joinpath("CaseFolding.txt").read_text(encoding="utf-8").splitlines()[0].lstrip("# ")
    print(f"// Made by generate.py from {version.removesuffix('.txt')} and its UnicodeData; do not edit.\n")
    write("Fold", read_folding(database / "CaseFolding.txt"))
    write("Upper", read_case(database / "UnicodeData.txt", 12))
    write("Lower", read_case(database / "UnicodeData.txt", 13))


if __name__ == "__main__":
    main()
