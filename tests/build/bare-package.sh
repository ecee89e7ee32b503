#!/usr/bin/env bash
# bare-package.sh FOLDER DEB README, as root
#
# Installs the package with what it depends on in a bare Debian 12, uses the command-line host there, and builds the
# README's program against the package, found once by CMake and once by pkg-config: it must print what the README says.
# The bare system and the packages that were fetched stay in FOLDER for the next run.
set -Eeuo pipefail

mkdir -p "$1"
folder=$(realpath "$1")
deb=$2
readme=$3
here=$(realpath "$(dirname "${BASH_SOURCE[0]}")")
bare=$folder/bare
root=$folder/root
trap 'echo "error: line $LINENO: $BASH_COMMAND" >&2' ERR

step() { printf -- '---- %s\n' "$*"; }

# Where this machine gets its Debian packages: lines as in sources.list.
# shellcheck disable=SC2016  # apt-get fills them in
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

# The README's first block of code in a language.
readme_block() {
    awk -v open="\`\`\`$1" '$0 == open { inside = 1; next } inside && /^```/ { exit } inside' "$readme"
}

# expect FILE COMMAND...: a command prints there what the file holds.
expect() {
    local promised=$1
    shift
    diff -u "$promised" <(inside "$@")
}

if [ ! -e "$bare.done" ]; then
    step "a bare Debian 12 from the mirror of this machine"
    rm -rf "$bare"
    mirror=$(sources | awk '$3 == "bookworm" { print $2; exit }')
    debootstrap --variant=minbase bookworm "$bare" "$mirror"
    touch "$bare.done"
fi
rm -rf "$root"
cp -a "$bare" "$root"
# The mirrors of this machine, and the way to them.
cp /etc/resolv.conf /etc/hosts "$root/etc/"
sources >"$root/etc/apt/sources.list"
apt-config dump Acquire >"$root/etc/apt/apt.conf.d/50machine"

step "install the package with what it depends on"
apt_inside update
cp "$deb" "$root/tmp/package.deb"
apt_inside install --no-install-recommends /tmp/package.deb
readme_block text >"$folder/promised.txt"

step "use the command-line host"
inside qvrnames --version
inside qvrnames check Step-1
outcome=0
inside qvrnames check 1-Step || outcome=$?
[ "$outcome" = 1 ]
outcome=0
inside qvrnames audit /usr/share/QVRGeneralUtilities/examples/pump-flange-bracket.json >"$folder/audit.txt" || outcome=$?
tail -n 1 "$folder/audit.txt"
[ "$outcome" = 1 ]
# Texts come from the catalog: it was found.
grep -q 'LeadingDigitERR_01 *The name begins with a digit' "$folder/audit.txt"

step "build against the package"
apt_inside install --no-install-recommends g++ cmake make pkgconf
mkdir -p "$root/tmp/consumer"
readme_block cpp >"$root/tmp/consumer/main.cpp"
cp "$here/consumer/CMakeLists.txt" "$root/tmp/consumer/"
inside cmake -S /tmp/consumer -B /tmp/consumer/build
inside cmake --build /tmp/consumer/build
expect "$folder/promised.txt" /tmp/consumer/build/consumer
# shellcheck disable=SC2016  # for the inner shell
inside sh -ec 'g++ -std=c++17 /tmp/consumer/main.cpp -o /tmp/by-pkg-config $(pkg-config --cflags --libs QVRNameUtility ZFXMemoryModel)'
expect "$folder/promised.txt" /tmp/by-pkg-config

rm -rf "$root"
echo "in a bare Debian 12: installed, $(tail -n 1 "$folder/audit.txt"); README's program built and run with CMake and with pkg-config"
