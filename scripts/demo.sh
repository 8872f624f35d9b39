#!/usr/bin/env bash
# Builds filesum, the larger of the examples, and shows it at work on the files of this repository:
#
#   scripts/demo.sh [ARGUMENT ...]
#
# Arguments are handed to filesum at the end, which then runs in the current folder:
#
#   scripts/demo.sh -sum -exclude=.git,build -total ~/projects
set -euo pipefail

start=$PWD
cd "$(dirname "$0")/.."
build=build/demo
filesum=$PWD/$build/examples/filesum/filesum

scripts/install-packages.sh cmake ninja-build g++ zlib1g-dev

for tool in cmake ninja c++; do
    command -v "$tool" >/dev/null || { echo "demo.sh: there is no $tool" >&2; exit 1; }
done

mkdir -p "$build"
echo "Building filesum in $build"
# Warnings of a compiler that we have not met must not stop anybody here.
if ! { cmake --preset release -B "$build" -DKEXA_BUILD_TESTS=OFF -DKEXA_WARNINGS_AS_ERRORS=OFF &&
       cmake --build "$build" --target filesum; } >"$build/build.log" 2>&1; then
    cat "$build/build.log" >&2
    echo "demo.sh: the build failed" >&2
    exit 1
fi

headline() { printf '\n== %s\n' "$*"; }

# Prints a command line as one would type it, runs it, and tells its exit code unless that is 0.
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

headline "Actions that do not go together"
show -list -sum include

options=$build/sources.options
cat >"$options" <<'END'
; Sums of the sources: one argument in each line.
-include=*.h,*.cpp
-algorithm=adler32
END
headline "An option file, $options:"
cat "$options"
show -sum -total -option-file="$options" -output="$build/sources.sums" include src
tail -n 3 "$build/sources.sums"

headline "Verifying what was summed up"
show -verify -quiet -total "$build/sources.sums"

headline "Verifying after a change"
"$filesum" -sum -output="$build/changed.sums" "$options" LICENSE
echo '-exclude=tests' >>"$options"
show -verify "$build/changed.sums"

headline "Help on a topic"
show -help sum

headline "A trace of every step, asked for by the first argument"
show kexaoption=kexalogenable=1 -sum -alg=ad LICENSE

if [ $# -gt 0 ]; then
    headline "Your own: filesum $*"
    cd "$start"
    exec "$filesum" "$@"
fi
