#!/bin/sh
# Runs a Windows program under Wine, in a Wine prefix of its own:
#
#   wine.sh PREFIX PROGRAM [ARGUMENT...]   run the program and end with its exit code
#   wine.sh PREFIX --start                 create the prefix and start its server
#   wine.sh PREFIX --stop                  end the server and every program in the prefix
#
# PREFIX is a folder, which is created if it does not exist. The server keeps running for five minutes
# after a program has ended; the next program then starts in a twentieth of the time.
#
# Install Debian's package wine64-preloader too. Wine needs the page at 0x7ffe0000, but the heap of its
# loader begins at a random place in the gigabyte behind 0x7d000000. In about one start of 7,500 it covers
# that page, and the program ends with exit code 1 without a message. The preloader keeps the page free.
set -eu

prefix=$1
shift

find_tool()
{
    for candidate in "/usr/lib/wine/$1" "$(command -v "$1" || true)"; do
        if [ -n "$candidate" ] && [ -x "$candidate" ]; then
            echo "$candidate"
            return
        fi
    done
    echo "wine.sh: no $1 found; Debian has it in the package wine64" >&2
    exit 1
}

if ! wine=$(find_tool wine64); then
    exit 1
fi
# Debian's script wineserver ends the server with the last program; wineserver64 does not.
server=$(find_tool wineserver64 2>/dev/null || find_tool wineserver)

# Only the program's own output; no dialog and no debugger after a crash. Arguments and file names are
# UTF-8 in every locale of the caller.
export WINEPREFIX="$prefix"
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe,winedbg.exe="
export LC_ALL=C.UTF-8
unset DISPLAY WAYLAND_DISPLAY || true

start()
{
    # The lock keeps two programs that start at once from both creating the prefix.
    mkdir -p "$prefix"
    (
        flock 9
        # Fails if the server is running already. Wine's services start with the first program and keep
        # its output open until the server ends, so CTest would wait that long for the end of the
        # output. Therefore the first program is this one, whose output is discarded.
        if "$server" -p300 >/dev/null 2>&1 9>&-; then
            "$wine" wineboot --init >/dev/null 2>&1 9>&-
        fi
    ) 9>"$prefix.lock"
}

case ${1-} in
    --start)
        if [ "${wine%/*}" = /usr/lib/wine ] && [ ! -x "$wine-preloader" ]; then
            echo "wine.sh: no $wine-preloader, so about one start of a program in 7,500 will fail" >&2
        fi
        start
        ;;
    --stop)
        "$server" -k >/dev/null 2>&1 || true
        "$server" -w >/dev/null 2>&1 || true
        ;;
    *)
        start
        exec "$wine" "$@"
        ;;
esac
