#!/usr/bin/env bash
# Installs the build and moves the copy. Builds two programs against the copy alone, with CMake, with pkg-config and
# with the command in docs/packaging.md: that of the README, whose output it compares with the page, and alias-only,
# whose alias must be guarded although it uses no symbol of the module.
# Usage: InstallConsumerTest.sh README BUILD VERSION GENERATOR COMPILER CMAKE_OPTION [EMULATOR]
# An emulator runs programs for another system, for which there is no pkg-config.
# shellcheck source=tests/support/checks.sh disable=SC2016  # the variable is CMake's
source "$(dirname "$0")/../support/checks.sh"
tests=$(realpath "$(dirname "$0")")
readme=$(realpath "$1") build=$2 version=$3 generator=$4 compiler=$5 option=$6 emulator=${7:-}
enter_work_folder
copy="$work/a moved & renamed cöpy"

# run PROGRAM ARGUMENT...: runs a program in the folder of the installed programs, where Windows looks for libraries.
run() { $emulator "$copy/bin/$1${emulator:+.exe}" "${@:2}" | tr -d '\r'; }

# CMake's list of installed files goes into the work folder, because the folder of the build may be read-only.
sed 's|"[^"]*/\(${CMAKE_INSTALL_MANIFEST}\)"|"\1"|' "$build/cmake_install.cmake" >install.cmake
cmake -DCMAKE_INSTALL_PREFIX="$work/installed" -P install.cmake
mv installed "$copy"
check "the package contains its copyright file" grep -q "No license" "$copy/share/doc/qvrnameutility/copyright"
same "folders of the message catalogs" share/QVRGeneralUtilities/msgcatalog \
    "$(cd "$copy" && find . -name '*.msg' -printf '%h\n' | sort -u | cut -c 3-)"
while IFS=: read -r page link; do
    check "$page links to a file that is not installed: $link" [ -e "$(dirname "$page")/$link" ]
done < <(grep -roP --include='*.md' '\]\(\K[A-Za-z0-9_./-]+(?=[)#])' "$copy")
if compgen -G "$build/bin/qvrnames*" >/dev/null; then
    same "version of the command-line host" "qvrnames $version" "$(run qvrnames --version)"
    run qvrnames deck "$copy/share/QVRGeneralUtilities/examples/rename-a-step.json"
fi

promised=$(code_block text "$readme")
code_block cpp "$readme" >program.cpp
cp "$tests/AliasOnly.cpp" alias-only.cpp
# check_programs WAY: runs the programs that were built in this way.
check_programs() {
    same "output of the program built with $1" "$promised" "$(run program)"
    check "the alias is guarded in a program built with $1" run alias-only
    rm "$copy"/bin/{program,alias-only}*
}

cmake_block=$(code_block cmake "$readme")
printf '%s\n' 'cmake_minimum_required(VERSION 3.25)' 'project(program LANGUAGES CXX)' 'add_executable(program program.cpp)' \
    'add_executable(alias-only alias-only.cpp)' "$cmake_block" "${cmake_block//program/alias-only}" >CMakeLists.txt
[ -n "$emulator" ] || export LDFLAGS=-Wl,--as-needed # the default of some compilers only
cmake -B build -G "$generator" -DCMAKE_CXX_COMPILER="$compiler" "$option" -DCMAKE_PREFIX_PATH="$copy" \
    -DCMAKE_RUNTIME_OUTPUT_DIRECTORY="$copy/bin"
cmake --build build
check_programs CMake
if [ -z "$emulator" ]; then
    g++() { command "$compiler" "$LDFLAGS" -Wall -Wextra -Wpedantic -Werror "$@"; }
    PKG_CONFIG_PATH=$(dirname "$(find "$copy" -name QVRNameUtility.pc)")
    export PKG_CONFIG_PATH
    same "version for pkg-config" "$version" "$(pkg-config --modversion QVRNameUtility)"
    libraries=$(pkg-config --variable=libdir QVRNameUtility)
    headers=$(find "$copy/include/QVRGeneralUtilities" -name '*.h' -printf '#include "%P"\n')
    same "installed headers whose functions no library exports" "" "$(grep -E '/(HostProbe|MemoryObject|Utf8)\.h' <<<"$headers")"
    # pkg-config quotes special characters in paths.
    eval "set -- $(pkg-config --cflags --libs QVRNameUtility ZFXMemoryModel)"
    check "the installed headers compile" g++ -std=c++17 -fsyntax-only "$@" -x c++ - <<<"$headers"
    for program in program alias-only; do
        g++ -std=c++17 $program.cpp -o "$copy/bin/$program" "$@" -Wl,-rpath,"${libraries//\\/}"
    done
    check_programs pkg-config

    export folder=$copy # the variable in the command
    command=$(sed -n '/^g++ .*\$folder/,/[^\\]$/p' "$(dirname "$readme")/docs/packaging.md")
    eval "$command"
    eval "${command//program/alias-only}"
    mv program alias-only "$copy/bin"
    check_programs "the command in docs/packaging.md"
fi
finish
