#!/usr/bin/env bash
# The manual and the completion tell the commands, options and languages that the program's own help tells, and no
# others; the manual is sound roff.
# Usage: ManualTest.sh PROGRAM MANUAL COMPLETION CATALOG_FOLDER
set -euo pipefail
program=$1 manual=$2 completion=$3 catalogs=$4
faults=0

# same WHAT EXPECTED FOUND: two lists, one word a line.
same() {
    [ "$2" = "$3" ] && return
    printf '%s: the program has\n%s\nbut here there are\n%s\n' "$1" "$2" "$3" >&2
    faults=$((faults + 1))
}

options_in() { grep -oE -- '--[a-z][a-z-]*' | sort -u; }
helped() { "$program" "$@" --help | sed -nE 's/^  (-h,)?(--[a-z-]+).*/\2/p' | sort -u; }

# The manual from this heading to the next one.
section() { sed 's/\\-/-/g' "$manual" | awk -v heading="$1" '/^\.S[HS] / { on = ($0 == heading) } on'; }

# shellcheck source=/dev/null
source "$completion"
completed() {
    COMP_WORDS=(qvrnames "$@") COMP_CWORD=$# COMPREPLY=()
    _qvrnames
    printf '%s\n' "${COMPREPLY[@]}" | sort -u
}

common=$(section '.SH OPTIONS OF ALL COMMANDS' | options_in)
same "manual, common options" "$(helped)" "$common"
same "completion, common options" "$(helped)" "$(completed --)"

commands=$("$program" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z]*\) .*/\1/p' | sort)
[ "$(wc -w <<<"$commands")" -ge 5 ] || same "help" "at least five commands" "$commands"
same "manual, commands" "$commands" "$(sed -n 's/^\.SS //p' "$manual" | sort)"
same "completion, commands" "$commands" "$(completed '' | grep -v -e '^-')"
for command in $commands; do
    told=$({ echo "$common"; section ".SS $command" | options_in || true; } | grep -vx -e '--version' | sort -u)
    same "manual, options of $command" "$(helped "$command")" "$told"
    same "completion, options of $command" "$(helped "$command")" "$(completed "$command" --)"
done

languages=$({ echo en; for file in "$catalogs"/*_*.msg; do basename "${file##*_}" .msg; done; } | sort)
same "completion, languages" "$languages" "$(completed audit --language '')"
same "completion behind a sign" "$languages" "$(completed audit --language = '')"
for place in manual help; do
    said=$(if [ $place = help ]; then "$program" --help; else section '.SH OPTIONS OF ALL COMMANDS'; fi)
    codes=$(sed -n '/--language/,/^\.TP\|^ *--/p' <<<"$said" | grep -oE '\b(en|[a-z]{2})\b' | sort -u)
    same "$place, languages" "$languages" "$(comm -12 <(echo "$codes") <(echo "$languages"))"
done

if command -v groff >/dev/null; then
    same "manual, roff" "" "$(groff -man -ww -z "$manual" 2>&1)"
fi
[ "$faults" = 0 ]
