#!/usr/bin/env bash
# What the program does with real terminals, pipes and full disks.
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

# holds TITLE COMMAND...: the command succeeds.
holds() {
    local title=$1
    shift
    "$@" && return
    printf 'does not hold: %s\n' "$title" >&2
    faults=$((faults + 1))
}
escape=$'\x1b\\['
lacks() { ! grep -q "$@"; }

# on_terminal COLUMNS ARGUMENT...: what the program prints there.
on_terminal() {
    local columns=$1 words
    shift
    printf -v words ' %q' "$program" "$@"
    script -qc "stty cols $columns;$words" /dev/null </dev/null | tr -d '\r'
}
plain() { sed 's/\x1b\[[0-9]*m//g'; }

check_terminals() {
    # No line is wider than the terminal, and a row of a wide one is one line.
    for columns in 40 80 140; do
        for words in "audit $pump" "audit $pump --language ja" "deck $pump" "check 1x 衝撃 é --language de"; do
            read -ra arguments <<<"$words"
            on_terminal "$columns" "${arguments[@]}" | plain >lines.txt
            holds "$columns columns: $words" [ "$(wc -L <lines.txt)" -le "$columns" ]
            holds "$words prints something" [ "$(wc -l <lines.txt)" -gt 2 ]
        done
    done
    on_terminal 500 audit "$pump" | plain >wide.txt
    holds "one line a row" [ "$(wc -l <wide.txt)" = "$("$program" audit "$pump" | wc -l)" ]
    # Nothing is cut: the cells below each other are the same text as in one line.
    for arguments in "--language=en" "--language=ja"; do
        on_terminal 40 check "$arguments" '1. "Schritt" mit einem Namen, der breiter als ein schmales Terminal ist' | plain >narrow.txt
        "$program" check "$arguments" '1. "Schritt" mit einem Namen, der breiter als ein schmales Terminal ist' >line.txt || true
        holds "narrow text is wrapped" [ "$(wc -l <narrow.txt)" -gt 3 ]
        holds "narrow text is whole" cmp -s <(tr -d ' \n' <narrow.txt) <(tr -d ' \n' <line.txt)
    done

    # Colour: on terminals that take it, unless somebody says otherwise.
    holds "colour on a terminal" grep -q "${escape}31m" <(on_terminal 80 check 1x)
    holds "NO_COLOR" lacks "$escape" <(NO_COLOR=1 on_terminal 80 check 1x)
    holds "an empty NO_COLOR" grep -q "$escape" <(NO_COLOR='' on_terminal 80 check 1x)
    holds "a dumb terminal" lacks "$escape" <(TERM=dumb on_terminal 80 check 1x)
    holds "--color never" lacks "$escape" <(on_terminal 80 check 1x --color never)
    holds "JSON is not wrapped" cmp -s <(on_terminal 40 audit "$pump" --json) <("$program" audit "$pump" --json)
}

# A bare system may have no pseudo-terminals: then all but what needs them is checked, and the test counts as skipped.
if script -qc true /dev/null </dev/null >/dev/null 2>&1; then
    terminals=there
    check_terminals
fi

# Columns stay aligned behind wide characters and marks.
{ "$program" check 衝撃 $'e\u0301' abcd || true; } | cut -d ' ' -f -6 | sed 's/ *[A-Z].*//' >found.txt
holds "aligned" cmp -s found.txt <(printf '衝撃  refused\ne\u0301     refused\nabcd  legal\n')

# Colour without a terminal: only when somebody asks for it.
holds "no colour in a file" lacks "$escape" <("$program" check 1x)
holds "--color always" grep -q "${escape}32m" <("$program" --color=always propose "$pump" --job)
holds "no colour in JSON" lacks "$escape" <("$program" check 1x --color always --json)

# A reader who goes away ends it quietly, even when the caller ignores the signal; a full disk is told.
for trap in '' 'trap "" PIPE;'; do
    { bash -c "$trap sleep 0.2; exec \"\$0\" audit \"\$1\"" "$program" "$pump" 2>errors.txt || echo $? >code.txt; } | :
    holds "ended by the signal: $trap" [ "$(cat code.txt)" = 141 ]
    holds "quietly: $trap" [ ! -s errors.txt ]
done
for words in "audit $pump" "deck $pump --json" "--help" "rename $step step x --output -"; do
    read -ra arguments <<<"$words"
    code=0
    "$program" "${arguments[@]}" >/dev/full 2>errors.txt || code=$?
    holds "full disk, code: $words" [ "$code" = 2 ]
    holds "full disk, told: $words" grep -q '^qvrnames: .* cannot be written' errors.txt
done

# Standard input is a document, and a rename of it is a filter.
holds "audit of -" cmp -s <("$program" audit - <"$pump") <("$program" audit "$pump")
"$program" rename "$step" Perturbation Last --output renamed.json >told.txt
holds "rename of -" cmp -s <("$program" rename - Perturbation Last <"$step" 2>errors.txt) renamed.json
holds "what is told goes to standard error" cmp -s errors.txt told.txt
holds "a name that it has" cmp -s <("$program" rename - Perturbation Perturbation <"$step" 2>/dev/null) "$step"
umask 027
holds "rename of - into a file" "$program" rename - Perturbation Last --output piped.json <"$step" >/dev/null
holds "as any new file" [ "$(stat -c %a piped.json)" = 640 ]
holds "the same document" cmp -s piped.json renamed.json
code=0
"$program" rename - Perturbation Step <"$step" >refused.json 2>errors.txt || code=$?
holds "a refusal writes nothing" [ "$code" = 1 ] && holds "nothing" [ ! -s refused.json ]
holds "and is told" grep -q '^NAME ERROR: ' errors.txt
code=0
"$program" audit - <&- 2>errors.txt || code=$?
holds "no standard input" grep -q '^qvrnames: standard input: cannot be read' errors.txt

[ "$faults" = 0 ]
[ -n "$terminals" ] || { echo "no pseudo-terminals here: the rest holds"; exit 77; }
