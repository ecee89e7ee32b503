#!/usr/bin/env bash
# Installs the build and moves the copy. Builds the README's program against the copy alone, with CMake and with
# pkg-config, and compares its output with the README.
# Usage: InstallConsumerTest.sh README BUILD VERSION GENERATOR COMPILER CMAKE_OPTION [EMULATOR]
# An emulator runs programs for another system, for which there is no pkg-config.
# shellcheck source=tests/support/checks.sh disable=SC2016  # the variable is CMake's
source "$(dirname "$0")/../support/checks.sh"
readme=$(realpath "$1") build=$2 version=$3 generator=$4 compiler=$5 option=$6 emulator=${7:-}
enter_work_folder
copy="$work/a moved & renamed cöpy"

# run PROGRAM ARGUMENT...: runs a program in the folder of the installed programs, where Windows looks for libraries.
run() { $emulator "$copy/bin/$1${emulator:+.exe}" "${@:2}" | tr -d '\r'; }

# CMake's list of installed files goes into the work folder, because the folder of the build may be read-only.
sed 's|"[^"]*/\(${CMAKE_INSTALL_MANIFEST}\)"|"\1"|' "$build/cmake_install.cmake" >install.cmake
cmake -DCMAKE_INSTALL_PREFIX="$work/installed" -P install.cmake
mv installed "$copy"
while IFS=: read -r page link; do
    check "$page links to a file that is not installed: $link" [ -e "$(dirname "$page")/$link" ]
done < <(grep -roP --include='*.md' '\]\(\K[A-Za-z0-9_./-]+(?=[)#])' "$copy")
if compgen -G "$build/bin/qvrnames*" >/dev/null; then
    same "version of the command-line host" "qvrnames $version" "$(run qvrnames --version)"
    run qvrnames deck "$copy/share/QVRGeneralUtilities/examples/rename-a-step.json"
fi

promised=$(code_block text "$readme")
code_block cpp "$readme" >main.cpp
printf '%s\n' 'cmake_minimum_required(VERSION 3.25)' 'project(program LANGUAGES CXX)' 'add_executable(program main.cpp)' \
    "$(code_block cmake "$readme")" >CMakeLists.txt
cmake -B build -G "$generator" -DCMAKE_CXX_COMPILER="$compiler" "$option" -DCMAKE_PREFIX_PATH="$copy" \
    -DCMAKE_RUNTIME_OUTPUT_DIRECTORY="$copy/bin"
cmake --build build
same "output of the program built with CMake" "$promised" "$(run program)"
if [ -z "$emulator" ]; then
    PKG_CONFIG_PATH=$(dirname "$(find "$copy" -name QVRNameUtility.pc)")
    export PKG_CONFIG_PATH
    same "version for pkg-config" "$version" "$(pkg-config --modversion QVRNameUtility)"
    libraries=$(pkg-config --variable=libdir QVRNameUtility)
    # pkg-config quotes special characters in paths.
    eval "set -- $(pkg-config --cflags --libs QVRNameUtility ZFXMemoryModel)"
    "$compiler" -std=c++17 -Wall -Wextra -Wpedantic -Werror main.cpp -o "$copy/bin/program" "$@" -Wl,-rpath,"${libraries//\\/}"
    same "output of the program built with pkg-config" "$promised" "$(run program)"
fi
finish
