#!/usr/bin/env bash
# Compares the commands, options and languages in the manual and in the completions with those in the help of the
# program. Checks the syntax of the manual.
# Usage: ManualTest.sh PROGRAM MANUAL COMPLETION_FOLDER CATALOG_FOLDER
# shellcheck source=tests/support/checks.sh
source "$(dirname "$0")/../support/checks.sh"
program=$1 manual=$2 completions=$3
# shellcheck source=/dev/null
source "$completions/qvrnames.bash"

options_in() { grep -oE -- '--[a-z][a-z-]*' | sort -u || true; }
options_of() { "$program" "$@" --help | sed -nE 's/^  (-h,)?(--[a-z-]+).*/\2/p' | sort -u; }
# section HEADING: prints the manual from this heading to the next one.
section() { sed 's/\\-/-/g' "$manual" | awk -v heading="$1" '/^\.S[HS] / { on = ($0 == heading) } on'; }
# completed WORD...: prints what bash suggests for the last word.
completed() {
    COMP_WORDS=("$program" "$@") COMP_CWORD=$# COMPREPLY=()
    _qvrnames
    printf '%s\n' "${COMPREPLY[@]}" | sort -u
}

# in_zsh WORD...: prints what zsh suggests for the last word, with functions instead of those of its completion system.
# shellcheck disable=SC2016  # zsh expands it
in_zsh() {
    zsh -f -c 'completion=$1
        _call_program() { shift; eval "$@"; }
        compadd() { print -l -- ${@:#--}; }
        _describe() { print -l -- ${${(P)2}%%:*}; }
        _files() { print FILE; }
        compset() { [[ $PREFIX == --*=* ]] && IPREFIX=${PREFIX%%=*}= PREFIX=${PREFIX#*=}; }
        words=("${@:2}") CURRENT=$(($# - 1)) PREFIX=$words[-1]
        source $completion' - "$completions/_qvrnames" "$program" "$@" | sort -u
}

common=$(section '.SH OPTIONS OF ALL COMMANDS')
commands=$("$program" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z]*\) .*/\1/p' | sort)
same "commands in the manual" "$commands" "$(sed -n 's/^\.SS //p' "$manual" | sort)"
same "commands in the completion" "$commands" "$(completed '' | grep -v '^-')"
same "options of all commands in the manual" "$(options_of)" "$(options_in <<<"$common")"
for command in "" $commands; do
    options=$(options_of ${command:+"$command"})
    same "options of \"$command\" in the completion" "$options" "$(completed ${command:+"$command"} --)"
    [ -z "$command" ] || same "options of $command in the manual" "$options" \
        "$({ echo "$common"; section ".SS $command"; } | options_in | grep -vx -e --version)"
done
rules=$("$program" explain | sed 's/ .*//' | sort)
same "rules in the completion" "$rules" "$(completed explain '')"
languages=$({ echo en; printf '%s\n' "$4"/*_*.msg | sed -E 's/.*_(.*)\.msg/\1/'; } | sort)
same "languages in the completion" "$languages" "$(completed audit --language '')"
same "languages in the completion after an equals sign" "$languages" "$(completed audit --language = '')"
for text in "$common" "$("$program" --help)"; do
    paragraph=$(sed -n '/--language/,/^\.TP\|^ *--/p' <<<"$text")
    same "languages in: $paragraph" "$languages" "$(grep -oE '\b[a-z]{2}\b' <<<"$paragraph" | sort -u | comm -12 - <(echo "$languages"))"
done
if command -v zsh >/dev/null; then
    same "commands in zsh" "$commands" "$(in_zsh '')"
    for command in "" $commands; do
        same "options of \"$command\" in zsh" "$(options_of ${command:+"$command"})" "$(in_zsh ${command:+"$command"} -)"
    done
    same "languages in zsh" "$languages" "$(in_zsh audit --language '')"
    same "colours in zsh" $'always\nauto\nnever' "$(in_zsh audit --color=a)"
    same "rules in zsh" "$rules" "$(in_zsh explain --json '')"
    same "files in zsh" FILE "$(in_zsh audit --deck --baseline '')"
fi
if command -v groff >/dev/null; then
    same "errors in the manual" "" "$(groff -man -ww -z "$manual" 2>&1)"
fi
finish
