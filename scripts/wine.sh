#!/bin/sh
# Runs a Windows program under Wine, in a Wine prefix of its own:
#
#   wine.sh PREFIX PROGRAM [ARGUMENT...]   run the program; its exit code is ours
#   wine.sh PREFIX --start                 make the prefix and start its server
#   wine.sh PREFIX --stop                  end the server and whatever still runs in the prefix
#
# PREFIX is a folder that is made where it is missing. The server outlives a program by five
# minutes, so that the next one starts in a twentieth of the time.
#
# Debian's package wine64-preloader belongs to it: Wine needs the page at 0x7ffe0000. The heap of its
# loader begins at a random place in the gigabyte behind 0x7d000000 and covers that page in about
# one start of 7,500, which then ends with exit code 1 and no word. The preloader keeps it free.
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
# Debian's script wineserver forbids the server to outlive its programs; the program does not.
server=$(find_tool wineserver64 2>/dev/null || find_tool wineserver)

# Nothing but the program's own output, no dialog and no debugger for a crash. Arguments and file
# names are UTF-8 whatever the caller's locale is.
export WINEPREFIX="$prefix"
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe,winedbg.exe="
export LC_ALL=C.UTF-8
unset DISPLAY WAYLAND_DISPLAY || true

start()
{
    # Two programs that start at once must not both make the prefix.
    mkdir -p "$prefix"
    (
        flock 9
        # Fails where the server runs already. Its services start with the first program and hold
        # that one's output open for as long as the server lives, so that a reader of the output
        # (CTest) would wait for all of that time: the first program is one that nobody listens to.
        if "$server" -p300 >/dev/null 2>&1 9>&-; then
            "$wine" wineboot --init >/dev/null 2>&1 9>&-
        fi
    ) 9>"$prefix.lock"
}

case ${1-} in
    --start)
        if [ "${wine%/*}" = /usr/lib/wine ] && [ ! -x "$wine-preloader" ]; then
            echo "wine.sh: no $wine-preloader, so that now and then a program does not start" >&2
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
