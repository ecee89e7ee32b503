#!/usr/bin/env bash
# Tests the program on real terminals, pipes and full disks.
# Usage: TerminalTest.sh PROGRAM EXAMPLES_FOLDER WORK_FOLDER
set -euo pipefail
program=$(realpath "$1") examples=$(realpath "$2") work=$3
pump=$examples/pump-flange-bracket.json
step=$examples/rename-a-step.json
faults=0 terminals=
unset NO_COLOR
export TERM=xterm LC_ALL=C.UTF-8
rm -rf "$work"
mkdir -p "$work"
cd "$work"

# check TITLE COMMAND...: reports an error unless the command succeeds.
check() {
    local title=$1
    shift
    "$@" && return
    printf 'failed: %s\n' "$title" >&2
    faults=$((faults + 1))
}
escape=$'\x1b\\['
lacks() { ! grep -q "$@"; }

# on_terminal COLUMNS ARGUMENT...: prints the output of the program on a terminal of this width.
on_terminal() {
    local columns=$1 words
    shift
    printf -v words ' %q' "$program" "$@"
    script -qc "stty cols $columns;$words" /dev/null </dev/null | tr -d '\r'
}
plain() { sed 's/\x1b\[[0-9]*m//g'; }

check_terminals() {
    # No line is wider than the terminal. On a wide terminal each row is one line.
    for columns in 40 80 140; do
        for words in "audit $pump" "audit $pump --language ja" "deck $pump" "check 1x 衝撃 é --language de"; do
            read -ra arguments <<<"$words"
            on_terminal "$columns" "${arguments[@]}" | plain >lines.txt
            check "$columns columns: $words" [ "$(wc -L <lines.txt)" -le "$columns" ]
            check "$words prints something" [ "$(wc -l <lines.txt)" -gt 2 ]
        done
    done
    on_terminal 500 audit "$pump" | plain >wide.txt
    check "one line a row" [ "$(wc -l <wide.txt)" = "$("$program" audit "$pump" | wc -l)" ]
    # No text is shortened: the cells below each other contain the text that one line contains.
    for arguments in "--language=en" "--language=ja"; do
        on_terminal 40 check "$arguments" '1. "Schritt" mit einem Namen, der breiter als ein schmales Terminal ist' | plain >narrow.txt
        "$program" check "$arguments" '1. "Schritt" mit einem Namen, der breiter als ein schmales Terminal ist' >line.txt || true
        check "narrow text is wrapped" [ "$(wc -l <narrow.txt)" -gt 3 ]
        check "narrow text is whole" cmp -s <(tr -d ' \n' <narrow.txt) <(tr -d ' \n' <line.txt)
    done

    # Colour is used on terminals that support it, unless it is switched off.
    check "colour on a terminal" grep -q "${escape}31m" <(on_terminal 80 check 1x)
    check "NO_COLOR" lacks "$escape" <(NO_COLOR=1 on_terminal 80 check 1x)
    check "an empty NO_COLOR" grep -q "$escape" <(NO_COLOR='' on_terminal 80 check 1x)
    check "a dumb terminal" lacks "$escape" <(TERM=dumb on_terminal 80 check 1x)
    check "--color never" lacks "$escape" <(on_terminal 80 check 1x --color never)
    check "JSON is not wrapped" cmp -s <(on_terminal 40 audit "$pump" --json) <("$program" audit "$pump" --json)
}

# Without pseudo-terminals, as in a minimal container, only the checks below run, and the test counts as skipped.
if script -qc true /dev/null </dev/null >/dev/null 2>&1; then
    terminals=there
    check_terminals
fi

# Columns are aligned after wide characters and combining marks.
{ "$program" check 衝撃 $'e\u0301' abcd || true; } | cut -d ' ' -f -6 | sed 's/ *[A-Z].*//' >found.txt
check "aligned" cmp -s found.txt <(printf '衝撃  refused\ne\u0301     refused\nabcd  legal\n')

# Without a terminal, colour is used only if requested.
check "no colour in a file" lacks "$escape" <("$program" check 1x)
check "--color always" grep -q "${escape}32m" <("$program" --color=always propose "$pump" --job)
check "no colour in JSON" lacks "$escape" <("$program" check 1x --color always --json)

# A closed pipe ends the program silently, even if the parent process ignores the signal. A full disk is an error.
for trap in '' 'trap "" PIPE;'; do
    { bash -c "$trap sleep 0.2; exec \"\$0\" audit \"\$1\"" "$program" "$pump" 2>errors.txt || echo $? >code.txt; } | :
    check "ended by the signal: $trap" [ "$(cat code.txt)" = 141 ]
    check "silently: $trap" [ ! -s errors.txt ]
done
mapfile -t helps < <("$program" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z]*\) .*/\1 --help/p')
check "the help lists the commands" [ "${#helps[@]}" -ge 5 ]
for words in "audit $pump" "deck $pump --json" "--help" "rename $step step x --output -" "${helps[@]}"; do
    read -ra arguments <<<"$words"
    code=0
    "$program" "${arguments[@]}" >/dev/full 2>errors.txt || code=$?
    check "full disk, code: $words" [ "$code" = 2 ]
    check "full disk, message: $words" grep -q '^qvrnames: .* cannot be written' errors.txt
done

# With a document on standard input, rename is a filter.
check "audit of -" cmp -s <("$program" audit - <"$pump") <("$program" audit "$pump")
"$program" rename "$step" Perturbation Last --output renamed.json >messages.txt
check "rename of -" cmp -s <("$program" rename - Perturbation Last <"$step" 2>errors.txt) renamed.json
check "messages on standard error" cmp -s errors.txt messages.txt
check "the current name" cmp -s <("$program" rename - Perturbation Perturbation <"$step" 2>/dev/null) "$step"
umask 027
check "rename of - into a file" "$program" rename - Perturbation Last --output piped.json <"$step" >/dev/null
check "default permissions" [ "$(stat -c %a piped.json)" = 640 ]
check "identical documents" cmp -s piped.json renamed.json
code=0
"$program" rename - Perturbation Step <"$step" >refused.json 2>errors.txt || code=$?
check "exit code of a refusal" [ "$code" = 1 ]
check "a refusal writes nothing" [ ! -s refused.json ]
check "a refusal is reported" grep -q '^NAME ERROR: ' errors.txt
code=0
"$program" audit - <&- 2>errors.txt || code=$?
check "no standard input" grep -q '^qvrnames: standard input: cannot be read' errors.txt

[ "$faults" = 0 ]
[ -n "$terminals" ] || { echo "skipped: no pseudo-terminals; all other checks passed"; exit 77; }
