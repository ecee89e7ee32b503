#!/usr/bin/env bash
# Compares the commands, options and languages in the manual and in the completion with those in the help of the
# program. Checks the syntax of the manual.
# Usage: ManualTest.sh PROGRAM MANUAL COMPLETION CATALOG_FOLDER
set -euo pipefail
program=$1 manual=$2 completion=$3 catalogs=$4
faults=0

# same WHAT EXPECTED FOUND: reports a difference between two lists with one word per line.
same() {
    [ "$2" = "$3" ] && return
    printf '%s: expected, from the program:\n%s\nfound:\n%s\n' "$1" "$2" "$3" >&2
    faults=$((faults + 1))
}

options_in() { grep -oE -- '--[a-z][a-z-]*' | sort -u; }
options_of() { "$program" "$@" --help | sed -nE 's/^  (-h,)?(--[a-z-]+).*/\2/p' | sort -u; }

# section HEADING: prints the manual from this heading to the next one.
section() { sed 's/\\-/-/g' "$manual" | awk -v heading="$1" '/^\.S[HS] / { on = ($0 == heading) } on'; }

# shellcheck source=/dev/null
source "$completion"
completed() {
    COMP_WORDS=(qvrnames "$@") COMP_CWORD=$# COMPREPLY=()
    _qvrnames
    printf '%s\n' "${COMPREPLY[@]}" | sort -u
}

common=$(section '.SH OPTIONS OF ALL COMMANDS' | options_in)
same "manual, common options" "$(options_of)" "$common"
same "completion, common options" "$(options_of)" "$(completed --)"

commands=$("$program" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z]*\) .*/\1/p' | sort)
[ "$(wc -w <<<"$commands")" -ge 5 ] || same "help" "at least five commands" "$commands"
same "manual, commands" "$commands" "$(sed -n 's/^\.SS //p' "$manual" | sort)"
same "completion, commands" "$commands" "$(completed '' | grep -v -e '^-')"
for command in $commands; do
    found=$({ echo "$common"; section ".SS $command" | options_in || true; } | grep -vx -e '--version' | sort -u)
    same "manual, options of $command" "$(options_of "$command")" "$found"
    same "completion, options of $command" "$(options_of "$command")" "$(completed "$command" --)"
done

languages=$({ echo en; for file in "$catalogs"/*_*.msg; do basename "${file##*_}" .msg; done; } | sort)
same "completion, languages" "$languages" "$(completed audit --language '')"
same "completion after an equals sign" "$languages" "$(completed audit --language = '')"
for place in manual help; do
    text=$(if [ $place = help ]; then "$program" --help; else section '.SH OPTIONS OF ALL COMMANDS'; fi)
    codes=$(sed -n '/--language/,/^\.TP\|^ *--/p' <<<"$text" | grep -oE '\b(en|[a-z]{2})\b' | sort -u)
    same "$place, languages" "$languages" "$(comm -12 <(echo "$codes") <(echo "$languages"))"
done

if command -v groff >/dev/null; then
    same "manual, roff" "" "$(groff -man -ww -z "$manual" 2>&1)"
fi
[ "$faults" = 0 ]
