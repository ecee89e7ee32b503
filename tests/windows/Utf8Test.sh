#!/usr/bin/env bash
# qvrnames takes UTF-8 names of files and features, and prints the same bytes as on every other system.
# Usage: Utf8Test.sh [EMULATOR] PROGRAM
# shellcheck source=tests/support/checks.sh
source "$(dirname "$0")/../support/checks.sh"
enter_work_folder

# prints EXPECTED ARGUMENT...: runs the program. It must print this, with its exit code at the end.
program=("$@")
prints() { same "output of ${*:2}" "$1" "$("${program[@]}" "${@:2}" 2>&1 && echo 'exit code 0' || echo "exit code $?")"; }

document="Träger 温/Flansch-ß.json"
mkdir "Träger 温"
echo '{"cases": [{"name": "Fläche 衝"}]}' >"$document"
prints $'Fläche 衝: "Fläche 衝" -> "Öse ß"\nexit code 0' rename "$document" "Fläche 衝" "Öse ß"
same "document" '{"cases": [{"name": "Öse ß"}]}' "$(<"$document")"
prints $'qvrnames: Öse.json: cannot be read: No such file or directory\nexit code 2' audit "Öse.json"
same "files" "Flansch-ß.json" "$(ls -A "Träger 温")"
finish
