#!/usr/bin/env bash
# Installs those of the given Debian packages that are missing:
#
#   scripts/install-packages.sh PACKAGE ...
#
# Needs root or sudo for that; without them, or where an installation fails, it says what is missing
# and ends with 1. On other systems than Debian and its kin it names the packages and goes on: what
# they hold may be there under other names.
set -euo pipefail

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "This system has no Debian packages. Needed is what these hold: $*" >&2
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

# Another installation may hold the lock for a while.
apt=(env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 -qq)

echo "Installing ${missing[*]}"
# Old lists do for packages that they know.
"${as_root[@]}" "${apt[@]}" update ||
    echo "The package lists could not be renewed; trying with those that are there." >&2
"${as_root[@]}" "${apt[@]}" install --no-install-recommends --yes "${missing[@]}" >/dev/null ||
    { find_missing "$@"; give_up "apt-get could not install them; its messages are above."; }
