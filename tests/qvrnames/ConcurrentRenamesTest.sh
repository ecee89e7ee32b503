#!/usr/bin/env bash
# Two processes at a time rename two features of one document. No change is lost. SECOND is the path of the document for
# the second process: document.json, or link.json, a symbolic link.
# Usage: ConcurrentRenamesTest.sh COUNT SECOND [EMULATOR] PROGRAM
# shellcheck source=tests/support/checks.sh
source "$(dirname "$0")/../support/checks.sh"
enter_work_folder
count=$1
second=$2
program=("${@:3}")

# rename_often DOCUMENT LETTER: renames the case LETTER0 to LETTER1, LETTER2 and so on.
rename_often() {
    for ((i = 0; i < count; ++i)); do
        "${program[@]}" rename "$1" "$2$i" "$2$((i + 1))" --force >>"output-$2" 2>&1 || return
    done
}
echo '{"cases": [{"name": "A0"}, {"name": "B0"}]}' >document.json
ln -s document.json link.json
rename_often document.json A & # another process for each change of one feature
rename_often "$second" B || true
wait $! || true
same "document" "{\"cases\": [{\"name\": \"A$count\"}, {\"name\": \"B$count\"}]}" "$(<document.json)"
same "files" "document.json link.json output-A output-B" "$(echo *)"
[ "$faults" = 0 ] || cat output-A output-B >&2
finish
