#!/usr/bin/env bash
# bare-package.sh FOLDER DEB README, as root
#
# Installs the package and its dependencies in a bare Debian 12, runs the command-line host there, and builds the
# README's program against the package, once with CMake and once with pkg-config. The program's output must equal the
# block in the README. The bare system and the downloaded packages remain in FOLDER for the next run.
set -Eeuo pipefail

mkdir -p "$1"
folder=$(realpath "$1")
deb=$2
readme=$3
bare=$folder/bare
root=$folder/root
trap 'echo "error: line $LINENO: $BASH_COMMAND" >&2' ERR

step() { printf -- '---- %s\n' "$*"; }

# Prints the Debian mirrors of this machine as lines of sources.list.
# shellcheck disable=SC2016  # apt-get replaces the fields
sources() {
    apt-get indextargets --format 'deb $(SITE) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian' | sort -u
}

inside() { chroot "$root" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }

apt_inside() {
    mkdir -p "$folder/archives/partial"
    cp -rn "$folder/archives/." "$root/var/cache/apt/archives/"
    inside apt-get -q -y -o Acquire::Retries=3 -o APT::Keep-Downloaded-Packages=true "$@"
    cp -rn "$root/var/cache/apt/archives/." "$folder/archives/"
}

# Prints the README's first code block in a language.
readme_block() {
    awk -v open="\`\`\`$1" '$0 == open { inside = 1; next } inside && /^```/ { exit } inside' "$readme"
}

# expect FILE COMMAND...: fails if the output of the command in the bare system differs from the file.
expect() {
    local expected=$1
    shift
    diff -u "$expected" <(inside "$@")
}

# An image with preinstalled packages may have no package lists.
[ -n "$(sources)" ] || apt-get -q update

if [ ! -e "$bare.done" ]; then
    step "create a bare Debian 12"
    rm -rf "$bare"
    mirror=$(sources | awk '$3 == "bookworm" { print $2; exit }')
    debootstrap --variant=minbase bookworm "$bare" "$mirror"
    touch "$bare.done"
fi
rm -rf "$root"
cp -a "$bare" "$root"
# The bare system uses the mirrors, the name servers and the apt settings of this machine.
cp /etc/resolv.conf /etc/hosts "$root/etc/"
sources >"$root/etc/apt/sources.list"
apt-config dump Acquire >"$root/etc/apt/apt.conf.d/50machine"

step "install the package and its dependencies"
apt_inside update
cp "$deb" "$root/tmp/package.deb"
apt_inside install --no-install-recommends /tmp/package.deb
readme_block text >"$folder/expected.txt"

inside grep "No license" /usr/share/doc/qvrnameutility/copyright

step "run the command-line host"
inside qvrnames --version
inside qvrnames check Step-1
outcome=0
inside qvrnames check 1-Step || outcome=$?
[ "$outcome" = 1 ]
outcome=0
inside qvrnames audit /usr/share/QVRGeneralUtilities/examples/pump-flange-bracket.json >"$folder/audit.txt" || outcome=$?
tail -n 1 "$folder/audit.txt"
[ "$outcome" = 1 ]
# The text shows that the library found its message catalog.
grep -q 'LeadingDigitERR_01 *The name begins with a digit' "$folder/audit.txt"

step "build a program with the package"
apt_inside install --no-install-recommends g++ cmake make pkgconf
mkdir -p "$root/tmp/consumer"
readme_block cpp >"$root/tmp/consumer/main.cpp"
{
    printf '%s\n' 'cmake_minimum_required(VERSION 3.25)' 'project(program LANGUAGES CXX)' 'add_executable(program main.cpp)'
    readme_block cmake
} >"$root/tmp/consumer/CMakeLists.txt"
inside cmake -S /tmp/consumer -B /tmp/consumer/build
inside cmake --build /tmp/consumer/build
expect "$folder/expected.txt" /tmp/consumer/build/program
# shellcheck disable=SC2016  # the inner shell expands it
inside sh -ec 'g++ -std=c++17 /tmp/consumer/main.cpp -o /tmp/by-pkg-config $(pkg-config --cflags --libs QVRNameUtility ZFXMemoryModel)'
expect "$folder/expected.txt" /tmp/by-pkg-config

rm -rf "$root"
echo "in a bare Debian 12: installed, $(tail -n 1 "$folder/audit.txt"); README's program built with CMake and with pkg-config, and run"
