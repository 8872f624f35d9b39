#!/usr/bin/env bash
# Installs missing Debian packages, then builds and tests everything, in these steps: format, lint, fuzz
# (each target for some seconds), bench (each benchmark for a moment), tsan (the tests with threads under
# the thread sanitizer), and the whole suite as asan (address and undefined-behaviour sanitizers), release,
# and mingw (Windows under Wine).
#
#   scripts/test.sh [STEP ...]    run only these steps; a step may also be memcheck or another preset
set -euo pipefail
cd "$(dirname "$0")/.."

jobs=$(nproc)
all_steps=(format lint fuzz bench tsan asan release mingw)
steps=("$@")
[ ${#steps[@]} -gt 0 ] || steps=("${all_steps[@]}")

headline() { printf '\n== %s, after %d:%02d minutes\n' "$*" $((SECONDS / 60)) $((SECONDS % 60)); }

# run_preset PRESET [TEST ...]: all tests, or only these; each of them is also a target.
run_preset()
{
    local preset=$1
    shift
    headline "preset $preset: configure, build, test $*"
    cmake --preset "$preset" >"build/$preset.configure.log" 2>&1 || { cat "build/$preset.configure.log"; return 1; }
    cmake --build --preset "$preset" -j "$jobs" ${1:+--target "$@"} >"build/$preset.build.log" 2>&1 ||
        { tail -n 80 "build/$preset.build.log"; return 1; }
    ctest --preset "$preset" -j "$jobs" --no-tests=error ${1:+-R "^($(IFS='|'; echo "$*"))\$"}
}

run_fuzzers()
{
    headline "fuzz targets: build, 20 seconds for each"
    scripts/fuzz.sh 20
}

# The soname synonym makes valgrind keep the allocation functions of tests that replace them.
run_memcheck()
{
    headline "memcheck: the unit and interface tests"
    local programs=(unit_help unit_options unit_parser unit_recognition unit_result unit_support
        interface_tests)
    cmake --preset release >build/release.configure.log
    cmake --build --preset release -j "$jobs" --target "${programs[@]}" >build/release.build.log
    printf '%s\n' "${programs[@]}" | xargs -P "$jobs" -I '{}' valgrind --quiet \
        --leak-check=full --errors-for-leak-kinds=definite,indirect,possible --error-exitcode=1 \
        --suppressions=tests/valgrind.supp --soname-synonyms=somalloc=nouserintercepts \
        'build/release/tests/{}' --gtest_brief=1
}

check_format()
{
    headline "formatting"
    git ls-files '*.h' '*.cpp' | xargs -r clang-format --dry-run --Werror
    echo "all files are formatted by .clang-format"
}

packages=(
    cmake ninja-build g++ clang clang-format libclang-rt-dev llvm git python3 binutils diffutils
    valgrind libgtest-dev libgmock-dev googletest zlib1g-dev unicode-data
    g++-mingw-w64-x86-64-posix libz-mingw-w64-dev wine64 wine64-preloader)
if [[ " ${steps[*]} " == *" bench"* ]]; then
    mapfile -t -O "${#packages[@]}" packages <benchmarks/packages.txt
fi
scripts/install-packages.sh "${packages[@]}"
mkdir -p build

for step in "${steps[@]}"; do
    case $step in
    format) check_format ;;
    lint) headline "static analysis" && scripts/lint.sh ;;
    fuzz) run_fuzzers ;;
    bench) run_preset bench-smoke ;;
    tsan) run_preset tsan faults_threads ;;
    memcheck) run_memcheck ;;
    *) run_preset "$step" ;;
    esac
done
