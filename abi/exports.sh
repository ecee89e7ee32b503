#!/usr/bin/env bash
# Compares the symbols that a library exports with a list. With --accept, writes the list.
# Usage: exports.sh LIBRARY LIST [--accept]
#
# A removed symbol breaks programs that were linked with the library. An added symbol must stay in later releases.
#
# Of weak symbols, the list contains only the tables of classes. The others are instances of inline functions and
# templates. They differ between builds, and each program contains its own.
set -euo pipefail

symbols() {
    case $1 in
        *.dll) objdump -p "$1" | sed -nE 's/^\t\[ *[0-9]+\] ([^+ ]+)$/0 T \1/p' | c++filt ;;
        *) nm -D --defined-only -C "$1" ;;
    esac
}

exported() {
    symbols "$1" | LC_ALL=C sed -nE \
        -e '/ for std::/d' \
        -e 's/^[0-9a-f]+ [A-TX-Z] //p' \
        -e 's/^[0-9a-f]+ [VW] ((vtable|typeinfo|typeinfo name) for )/\1/p' |
        LC_ALL=C sort -u # a constructor occurs twice
}

# Prints the list without the names of types, which Windows does not export.
expected() {
    case $1 in
        *.dll) sed '/^typeinfo name for /d' "$2" ;;
        *) cat "$2" ;;
    esac
}

if [ "${3:-}" = --accept ]; then
    exported "$1" >"$2"
elif ! difference=$(diff -U0 --label expected --label exported <(expected "$@") <(exported "$1")); then
    printf '%s\n%s\n' "$difference" "$1 exports other symbols than $2 lists; to change the list, run: ./dev abi --accept"
    exit 1
fi
