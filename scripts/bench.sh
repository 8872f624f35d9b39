#!/usr/bin/env bash
# Measures kexa beside other command-line parsers: installs them (Debian packages), builds at -O2,
# checks that every parser reads the right values, runs rounds, and writes docs/performance.md with
# its plots. Prints the table of ratios. Takes about a quarter of an hour on an idle machine.
#
#   scripts/bench.sh [ROUNDS]     5 unless given; slow combinations run in the first round only
set -euo pipefail
cd "$(dirname "$0")/.."

rounds=${1:-5}
results=build/bench/results

headline() { printf '\n== %s\n' "$*" >&2; }

mapfile -t peers <benchmarks/packages.txt
scripts/install-packages.sh cmake ninja-build g++ python3 valgrind binutils "${peers[@]}"

headline "building"
mkdir -p build
cmake --preset bench >build/bench.configure.log || { cat build/bench.configure.log; exit 1; }
cmake --build --preset bench -j "$(nproc)" >build/bench.build.log || { tail -n 80 build/bench.build.log; exit 1; }

headline "checking that everything runs and reads the right values"
ctest --preset bench
rm -rf "$results"
mkdir -p "$results"
build/bench/benchmarks/benchmark_cycles check \
    small arguments/1000 options/2000 abbreviations/2000 typed/7000 texts/1000 integers/1000 \
    allowed/1000/1000 allowed_prefix/1000/1000 | tee "$results/check.txt" >&2

{
    version() { dpkg-query --show --showformat='${Version}' "$1" 2>/dev/null || echo unknown; }
    echo "- $(sed -n 's/^model name[^:]*: //p' /proc/cpuinfo | head -n 1), $(nproc) processors," \
        "Linux $(uname -r), glibc $(version libc6), $(g++ --version | head -n 1)"
    echo "- CLI11 $(version libcli11-dev), cxxopts $(version libcxxopts-dev)," \
        "Boost.Program_options $(version libboost-program-options1.74-dev)," \
        "TCLAP $(version libtclap-dev), args $(version libargs-dev), popt $(version libpopt-dev)," \
        "getopt_long of glibc"
    echo "- $rounds rounds"
} >"$results/machine.txt"

for ((round = 1; round <= rounds; ++round)); do
    headline "round $round of $rounds"
    slow=(--skip-slow)
    [ "$round" -gt 1 ] || slow=()
    build/bench/benchmarks/kexa_benchmarks "${slow[@]}" --benchmark_min_time=0.05 \
        --benchmark_out="$results/round-$(printf '%02d' "$round").json" \
        --benchmark_out_format=json >"$results/round-$round.txt"
done

headline "counting instructions and memory"
python3 benchmarks/report/collect.py build/bench "$results"
python3 benchmarks/report/report.py "$results" docs/performance.md
