#!/usr/bin/env bash
# Compares each translation of the message catalog with the English texts.
# Usage: TranslationsTest.sh CATALOG_FOLDER
# shellcheck source=tests/support/checks.sh
source "$(dirname "$0")/../support/checks.sh"
cd "$1"

# rows CATALOG: prints the key of each text with the number of times that each parameter occurs in it.
rows() { awk -F ' = ' '/^[^#]/ { row = $1; for (i = 1; i <= 9; ++i) row = row " " gsub("/P" i, "&"); print row }' "$1" | sort; }
# none TITLE GREP_ARGUMENT...: reports a fault with the lines that grep finds.
none() { ! grep -n "${@:2}" >&2 || fault "$1"; }

translations=(QVRNameUtility_*.msg)
check "there are three translations" [ ${#translations[@]} -ge 3 ]
for catalog in QVRNameUtility.msg "${translations[@]}"; do
    none "$catalog: not a row of a catalog" -vE '^(#.*)?$|^[A-Za-z0-9_]+\.(Request|Diagnostic|Example|Advice) = .*[^ ]$' "$catalog"
    none "$catalog: a text ends in a parameter, so the next text follows without a space" '^[^#].*/P[1-9]$' "$catalog"
    same "keys and parameters of $catalog" "$(rows QVRNameUtility.msg)" "$(rows "$catalog")"
done
none "a text is still English" -xFf <(grep '^[^#]' QVRNameUtility.msg) "${translations[@]}"
finish
