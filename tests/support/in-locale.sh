#!/usr/bin/env bash
# Runs a command under the UTF-8 locale of a language, which is made in a temporary folder.
# Usage: in-locale.sh LANGUAGE COMMAND...
# shellcheck source=tests/support/checks.sh
source "$(dirname "$0")/checks.sh"
enter_work_folder
localedef -i "$1" -f UTF-8 "./$1.UTF-8"
LOCPATH=$work LC_ALL=$1.UTF-8 QVR_TEST_LOCALE=$1.UTF-8 "${@:2}"
