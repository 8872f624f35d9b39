#!/usr/bin/env bash
# Builds the example tool filesum and runs it on the files of this repository:
#
#   scripts/demo.sh [ARGUMENT ...]
#
# If arguments are given, filesum runs with them at the end, in the current folder:
#
#   scripts/demo.sh -sum -exclude=.git,build -total ~/projects
set -euo pipefail

start=$PWD
cd "$(dirname "$0")/.."
build=build/demo
filesum=$PWD/$build/examples/filesum/filesum

scripts/install-packages.sh cmake ninja-build g++ zlib1g-dev

for tool in cmake ninja c++; do
    command -v "$tool" >/dev/null || { echo "demo.sh: $tool is not installed" >&2; exit 1; }
done

mkdir -p "$build"
echo "Building filesum in $build"
# A warning of a compiler that is not tested must not stop the demonstration.
if ! { cmake --preset release -B "$build" -DKEXA_BUILD_TESTS=OFF -DKEXA_WARNINGS_AS_ERRORS=OFF &&
       cmake --build "$build" --target filesum; } >"$build/build.log" 2>&1; then
    cat "$build/build.log" >&2
    echo "demo.sh: the build failed" >&2
    exit 1
fi

headline() { printf '\n== %s\n' "$*"; }

# Prints a command line as a user would type it, runs it, and prints its exit code unless that is 0.
show()
{
    local line='$ filesum' argument code=0
    for argument in "$@"; do
        case $argument in
            *[!A-Za-z0-9=,./_-]*) line+=" '$argument'" ;;
            *) line+=" $argument" ;;
        esac
    done
    printf '%s\n' "$line"
    "$filesum" "$@" 2>&1 || code=$?
    [ "$code" -eq 0 ] || echo "(exit code $code)"
}

headline "Abbreviations: -list, -total and -include, of the public headers"
show -li -tot -inc='*.h' include

headline "An abbreviation that is ambiguous"
show -ver include

headline "A deprecated value still works, with a warning; both kinds of checksum"
show -sum -algorithm=crc,adler32 LICENSE README.md

headline "Two actions that are not compatible"
show -list -sum include

options=$build/sources.options
cat >"$options" <<'END'
; Checksums of the sources: one argument in each line.
-include=*.h,*.cpp
-algorithm=adler32
END
headline "An option file, $options:"
cat "$options"
show -sum -total -option-file="$options" -output="$build/sources.sums" include src
tail -n 3 "$build/sources.sums"

headline "Verifying the checksums"
show -verify -quiet -total "$build/sources.sums"

headline "Verifying after a change"
"$filesum" -sum -output="$build/changed.sums" "$options" LICENSE
echo '-exclude=tests' >>"$options"
show -verify "$build/changed.sums"

headline "Help"
show --help

if [ $# -gt 0 ]; then
    headline "Your command line: filesum $*"
    cd "$start"
    exec "$filesum" "$@"
fi
