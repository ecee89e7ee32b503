# shellcheck shell=bash
# What the test scripts share. A script that includes this file ends with `finish`.
set -euo pipefail
export LC_ALL=C.UTF-8
faults=0

# fault TEXT: reports a fault. The script goes on; `finish` fails.
fault() {
    printf '%s\n' "$1" >&2
    faults=$((faults + 1))
}
# check TITLE COMMAND...: reports a fault if the command fails.
check() { "${@:2}" || fault "failed: $1"; }
# same TITLE EXPECTED FOUND: reports a fault with the difference if two texts differ.
same() { diff -U1 --label expected --label found <(echo "$2") <(echo "$3") >&2 || fault "differs: $1"; }
finish() { exit $((faults > 0)); }

# code_block LANGUAGE PAGE: prints the first code block of a page in this language.
code_block() { awk -v open="\`\`\`$1" '/^```/ { if (on) exit; on = $0 == open; next } on' "$2"; }
# enter_work_folder: changes to an empty folder, which is removed when the script ends.
enter_work_folder() {
    work=$(mktemp -d)
    trap 'rm -rf "$work"' EXIT
    cd "$work"
}
