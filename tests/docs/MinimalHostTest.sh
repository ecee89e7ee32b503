#!/usr/bin/env bash
# Compares docs/bind-a-host.md with its program: the output, and each piece of code on the page. Checks that the page has
# the sections that the binding check names.
# Usage: MinimalHostTest.sh PAGE SOURCE PROGRAM [ARGUMENT...]
# shellcheck source=tests/support/checks.sh
source "$(dirname "$0")/../support/checks.sh"
page=$1 source=$2
same "output" "$(code_block text "$page")" "$("${@:3}" | tr -d '\r')"
mapfile -td $'\f' pieces < <(awk '/^```/ { if (on) printf "\f"; on = /^```cpp$/; next } on' "$page")
check "the page has at least 5 pieces of code" [ ${#pieces[@]} -ge 5 ]
for piece in "${pieces[@]}"; do
    [[ $(<"$source")$'\n' == *"$piece"* ]] || fault "$source does not contain:
$piece"
done
check "the program has fewer lines than the 150 that the page states" [ "$(wc -l <"$source")" -lt 150 ]
while read -r section; do
    check "the page has the section $section" grep -qE "^#+ ([0-9]+\. )?$section\$" "$page"
done < <(sed -nE 's/^inline constexpr .* = "(.*)";$/\1/p' "$(dirname "$0")/../../platform/binding-check/HostProbe.h")
finish
