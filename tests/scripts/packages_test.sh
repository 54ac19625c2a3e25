#!/usr/bin/env bash
# packages_test.sh PACKAGES_SH: install_packages on machines that differ in their commands. Nothing is installed: the
# commands found are written here, and say how they were called.
set -euo pipefail
scripts=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
bash=$(command -v bash)
status=0

command_named() { # NAME LINE: a command of the machine
    printf '#!%s\n%s\n' "$bash" "$2" >"$work/$1"
    chmod +x "$work/$1"
}
machine() { # COMMAND...: has these alone; of the packages only cmake is there
    rm -f "$work"/*
    ln -s "$(command -v grep)" "$(command -v env)" "$work"
    local name
    for name in "$@"; do
        case "$name" in
            root) command_named id 'echo 0' ;;
            user) command_named id 'echo 1000' ;;
            dpkg-query) command_named dpkg-query '[ "${!#}" = cmake ] && echo "install ok installed"' ;;
            apt-get) command_named apt-get 'echo "apt-get $*" >&2' ;;
            apt-get-that-fails) command_named apt-get 'exit 100' ;;
            sudo) command_named sudo 'echo "sudo $1" >&2; exec "$@"' ;;
            *) command_named "$name" 'exit 0' ;;
        esac
    done
}
expect() { # STATUS TEXT PACKAGE...: install_packages ends so, and says exactly this
    local wanted=$1 text=$2 said got=0
    shift 2
    said=$(PATH=$work "$bash" -c '. "$1"; shift; install_packages "$@"' - "$scripts" "$@" 2>&1) || got=$?
    if [ "$got" -ne "$wanted" ] || [ "$said" != "$text" ]; then
        printf 'install_packages %s\nwanted %s: %s\ngot %s: %s\n' "$*" "$wanted" "$text" "$got" "$said" >&2
        status=1
    fi
}
update='apt-get update -qq'
install='apt-get install -y -qq --no-install-recommends g++ xvfb'

machine root dpkg-query apt-get
expect 0 '' cmake
expect 0 "Installing: g++ xvfb"$'\n'"$update"$'\n'"$install" cmake g++ xvfb
machine root dpkg-query apt-get-that-fails
expect 1 $'Installing: g++ xvfb\nCould not install: g++ xvfb' g++ xvfb
machine user dpkg-query apt-get sudo
expect 0 "Installing with sudo: g++ xvfb"$'\nsudo apt-get\n'"$update"$'\nsudo env\n'"$install" g++ xvfb
machine user dpkg-query apt-get
expect 1 'Missing; as root, run: apt-get install --no-install-recommends g++ xvfb' g++ xvfb cmake
# Not Debian: commands and pkg-config modules are looked for, and other packages are taken to be there.
machine root c++ cmake pkg-config
expect 0 '' g++ cmake qt6-base-dev fonts-dejavu-core
command_named pkg-config 'exit 1'
expect 1 'Missing (names of Debian packages): xvfb qt6-base-dev' xvfb g++ qt6-base-dev

exit $status
