#!/usr/bin/env bash
# reads-nothing.sh LIBRARY
#
# The library calls no function that opens a file, reads the environment or the process locale, or runs something: none
# is among what it takes from other libraries.
set -euo pipefail

taken=$(nm -D --undefined-only -C "$1" | sed -E 's/^ *[Uwv] //; s/@.*//')
[ -n "$taken" ] || { echo "$1: what it takes cannot be read"; exit 1; }
if found=$(grep -E '^(f|fd|re)?open(at)?(64)?$|^(secure_)?getenv$|^environ$|setlocale|localeconv|std::locale|filesystem|basic_i?o?fstream|filebuf|^(exec|popen|system|fork|posix_spawn|socket|connect|dlopen)' <<<"$taken"); then
    printf '%s takes from other libraries:\n%s\n' "$1" "$found"
    exit 1
fi
