#!/usr/bin/env bash
# Installs the given Debian packages, except those that are installed already:
#
#   scripts/install-packages.sh PACKAGE ...
#
# This needs root or sudo. Without them, or if an installation fails, it prints the missing packages and
# ends with 1. On a system without Debian packages it prints their names and ends with 0: the tools may
# be installed under other names.
set -euo pipefail

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "This system has no Debian packages. Needed are the contents of: $*" >&2
    exit 0
fi

is_installed()
{
    dpkg-query --show --showformat='${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

missing=()
find_missing()
{
    missing=()
    local package
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
}

give_up()
{
    echo "Missing packages: ${missing[*]}" >&2
    echo "$1" >&2
    exit 1
}

find_missing "$@"
if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null ||
        give_up "You are not root and there is no sudo; ask an administrator to install them."
    as_root=(sudo)
fi

# Wait up to five minutes for another installation that holds the lock.
apt=(env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 -qq)

echo "Installing ${missing[*]}"
# An outdated list is sufficient for the packages in it.
"${as_root[@]}" "${apt[@]}" update ||
    echo "The package lists could not be updated; trying with the existing ones." >&2
"${as_root[@]}" "${apt[@]}" install --no-install-recommends --yes "${missing[@]}" >/dev/null ||
    { find_missing "$@"; give_up "apt-get could not install them; its messages are above."; }
