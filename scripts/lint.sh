#!/usr/bin/env bash
# Looks for mistakes in src/ and include/ without running anything: clang-tidy with the checks of
# .clang-tidy, then cppcheck without what .cppcheck-suppressions lists. Installs what is missing.
#
#   scripts/lint.sh [FILE ...]    clang-tidy over these sources only (headers: through who includes them)
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-packages.sh cmake ninja-build clang clang-tidy cppcheck g++-mingw-w64-x86-64-posix

jobs=$(nproc)
sources=("$@")
# The large files first: the last one to end decides how long it takes.
[ ${#sources[@]} -gt 0 ] || mapfile -t sources < <(ls -S src/*/*.cpp)

mkdir -p build
cmake --preset clang -B build/lint -DKEXA_BUILD_TESTS=OFF -DKEXA_BUILD_EXAMPLES=OFF \
    >build/lint.configure.log 2>&1 || { cat build/lint.configure.log; exit 1; }

# The sources for Windows are compiled for it, with the library of its cross compiler.
windows_library=$(x86_64-w64-mingw32-g++-posix -print-file-name=include/c++)
export windows_library

# Says nothing but what it found: the counts of suppressed warnings are about system headers.
check_source()
{
    local database=(-p build/lint) command=()
    if [[ $1 == *_windows.cpp ]]; then
        database=()
        command=(-- --target=x86_64-w64-mingw32 -std=c++20 -Iinclude -Isrc -DKEXA_BUILDING
            -isystem "$windows_library" -isystem "$windows_library/x86_64-w64-mingw32")
    fi
    local findings
    if ! findings=$(clang-tidy --quiet "${database[@]}" "$1" "${command[@]}" 2>&1); then
        printf '%s\n' "$findings"
        return 1
    fi
}
export -f check_source

printf '%s\0' "${sources[@]}" | xargs -0 -P "$jobs" -I '{}' bash -c 'check_source "$1"' bash '{}'
echo "clang-tidy finds nothing in ${#sources[@]} sources and the headers that they include"

run_cppcheck()
{
    cppcheck --enable=warning,style,performance,portability --std=c++20 --language=c++ \
        --suppressions-list=.cppcheck-suppressions --inline-suppr --error-exitcode=1 --quiet \
        -j "$jobs" -Iinclude -Isrc -DKEXA_BUILDING "$@" src include
}
run_cppcheck --platform=unix64 -D__linux__ -i src/support/FileLoading_windows.cpp \
    -i src/support/ConsoleStreams_windows.cpp
run_cppcheck --platform=win64 -D_WIN32 -i src/support/FileLoading_posix.cpp \
    -i src/support/ConsoleStreams_posix.cpp
echo "cppcheck finds nothing, for Linux and for Windows"
