#!/usr/bin/env bash
# Static analysis of src/ and include/: clang-tidy with the checks in .clang-tidy, then cppcheck without
# the findings in .cppcheck-suppressions. Installs missing packages.
#
#   scripts/lint.sh [FILE ...]    clang-tidy for these sources only; a header is checked with a source
#                                 that includes it
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-packages.sh cmake ninja-build clang clang-tidy cppcheck g++-mingw-w64-x86-64-posix

jobs=$(nproc)
sources=("$@")
# Large files first, so that no processor is left with a large file at the end.
[ ${#sources[@]} -gt 0 ] || mapfile -t sources < <(ls -S src/*/*.cpp src/*/*/*.cpp)

mkdir -p build
cmake --preset clang -B build/lint -DKEXA_BUILD_TESTS=OFF -DKEXA_BUILD_EXAMPLES=OFF \
    >build/lint.configure.log 2>&1 || { cat build/lint.configure.log; exit 1; }

# The sources for Windows are compiled for Windows, with the standard library of the cross compiler.
windows_library=$(x86_64-w64-mingw32-g++-posix -print-file-name=include/c++)
export windows_library

# Prints findings only: clang-tidy also prints the number of suppressed warnings, all in system headers.
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
run_cppcheck --platform=unix64 -D__linux__ -i src/support/platform/FileLoading_windows.cpp \
    -i src/support/platform/ConsoleStreams_windows.cpp
run_cppcheck --platform=win64 -D_WIN32 -i src/support/platform/FileLoading_posix.cpp \
    -i src/support/platform/ConsoleStreams_posix.cpp
echo "cppcheck finds nothing, for Linux and for Windows"
