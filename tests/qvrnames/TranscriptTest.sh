#!/usr/bin/env bash
# Runs the command lines of a transcript and compares what they print and their exit codes with the transcript. To write
# it anew, run this with QVR_WRITE_EXPECTED=1 and look at the difference.
# Usage: TranscriptTest.sh TRANSCRIPT EXAMPLES_FOLDER PROGRAM
# shellcheck source=tests/support/checks.sh disable=SC2317  # the transcripts call the functions
source "$(dirname "$0")/../support/checks.sh"
transcript=$(realpath "$1") examples=$(realpath "$2") program=$3
enter_work_folder
ln -s "$examples" "{examples}"
export TERM=xterm SHELL=$BASH
unset NO_COLOR

qvrnames() { "$program" "$@"; }
# terminal COLUMNS ARGUMENT...: prints the result of the program on a terminal of this width, with ^[ for an escape.
terminal() {
    local words=("$program" "${@:2}")
    script -qec "stty cols $1; ${words[*]@Q} 2>/dev/null" /dev/null | tr -d '\r' | sed 's/\x1b/^[/g'
}
# closed_pipe COMMAND...: runs the command with standard output connected to a pipe whose reader has exited.
closed_pipe() {
    exec 3> >(:)
    wait $!
    "$@" >&3
}
commands() { qvrnames --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z]*\) .*/\1/p'; }

if [[ $transcript == */pseudo-terminals.txt ]] && ! script -qc true /dev/null </dev/null >/dev/null 2>&1; then
    echo "skipped: no pseudo-terminals"
    exit 77
fi
while IFS= read -r line; do
    [[ $line == '$ '* ]] || continue
    code=0
    printf '%s\n' "$line"
    (eval "${line#??}") </dev/null 2>messages || code=$?
    [ ! -s messages ] || printf 'standard error: %s\n' "$(<messages)"
    printf 'exit code %s\n\n' "$code"
done <"$transcript" >found
[ -z "${QVR_WRITE_EXPECTED:-}" ] || cp found "$transcript"
check "$transcript is printed again" diff -u "$transcript" found
finish
