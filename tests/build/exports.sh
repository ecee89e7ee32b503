#!/usr/bin/env bash
# exports.sh LIBRARY LIST [--accept]
#
# What a library exports is what its checked-in list says: a symbol that is gone breaks programs that were linked with
# it, and one that came unasked is a promise. --accept writes the list.
#
# Of weak symbols only the tables of classes count. The others are instantiations that a compiler makes where it does
# not insert the code: they differ from build to build, and each program brings its own.
set -euo pipefail

exported() {
    nm -D --defined-only -C "$1" | LC_ALL=C sed -nE \
        -e '/ for std::/d' \
        -e 's/^[0-9a-f]+ [A-TX-Z] //p' \
        -e 's/^[0-9a-f]+ [VW] ((vtable|typeinfo|typeinfo name) for )/\1/p' |
        LC_ALL=C sort -u # a constructor is there twice
}

if [ "${3:-}" = --accept ]; then
    exported "$1" >"$2"
elif ! difference=$(diff -U0 --label promised --label built "$2" <(exported "$1")); then
    printf '%s\n%s\n' "$difference" \
        "$1 exports other symbols than $2 promises; if that is meant, run: ./dev abi --accept"
    exit 1
fi
