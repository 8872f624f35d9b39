#!/usr/bin/env bash
# Installs what is missing (Debian packages), then builds and tests everything:
# natively with GCC and Clang, under the address and undefined-behaviour sanitizers, and on Windows
# under Wine; checks the formatting and looks for mistakes first.
#
#   scripts/test.sh [STEP ...]    run only these steps: format, lint, or the name of a preset
set -euo pipefail
cd "$(dirname "$0")/.."

jobs=$(nproc)
all_steps=(format lint asan release mingw)
steps=("$@")
[ ${#steps[@]} -gt 0 ] || steps=("${all_steps[@]}")

headline() { printf '\n== %s\n' "$*"; }

run_preset()
{
    headline "preset $1: configure, build, test"
    cmake --preset "$1" >"build/$1.configure.log" 2>&1 || { cat "build/$1.configure.log"; return 1; }
    cmake --build --preset "$1" -j "$jobs" >"build/$1.build.log" 2>&1 || { tail -n 80 "build/$1.build.log"; return 1; }
    ctest --preset "$1" -j "$jobs"
}

check_format()
{
    headline "formatting"
    git ls-files '*.h' '*.cpp' | xargs -r clang-format --dry-run --Werror
    echo "formatted as .clang-format asks"
}

scripts/install-packages.sh \
    cmake ninja-build g++ clang clang-format git python3 binutils diffutils valgrind \
    libgtest-dev libgmock-dev googletest zlib1g-dev \
    g++-mingw-w64-x86-64-posix libz-mingw-w64-dev wine64
mkdir -p build

for step in "${steps[@]}"; do
    case $step in
    format) check_format ;;
    lint) headline "static analysis" && scripts/lint.sh ;;
    *) run_preset "$step" ;;
    esac
done
