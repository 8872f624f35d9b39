#!/usr/bin/env bash
# Measures kexa beside other command-line parsers: installs them (Debian packages), builds at -O2,
# checks that every parser reads the right values, runs rounds, and writes docs/performance.md with
# its plots. Prints the table of ratios. Takes about half an hour.
#
#   scripts/bench.sh [ROUNDS]     5 unless given; slow combinations run in the first round only;
#                                 short rounds of the closest comparisons follow each
set -euo pipefail
cd "$(dirname "$0")/.."

rounds=${1:-5}
short_rounds=7
results=build/bench/results

# What short rounds compare: where limits are close, how the cost of kexa and of plain code grows, and
# what handlers add. Each is a process of its own, so that none finds the heap as another one left it.
closest=(
    '^cycle/small/(kexa|getopt_long|args)$'
    '^cycle/arguments/(10000|1000000)/(kexa|getopt_long)$'
    '^cycle/typed/(7000|70000)/(kexa|std::from_chars)$'
    '^cycle/texts/(10000|100000)/(kexa|cutting by hand)$'
    '^cycle/integers/(10000|100000)/(kexa|cutting by hand)$'
    '^cycle/allowed/1000/(10000|100000)/(kexa|std::unordered_set)$'
    '^declare/declarations/(2000|20000)/kexa$'
    '^handlers/arguments/10000/')

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
    echo "- $rounds rounds, $short_rounds short ones after each"
} >"$results/machine.txt"

# measure FOLDER NAME OPTION...: runs the measurements, to be found as FOLDER/NAME.json
measure()
{
    local folder=$results/$1 name=$2
    shift 2
    mkdir -p "$folder"
    build/bench/benchmarks/kexa_benchmarks "$@" --benchmark_out="$folder/$name.json" \
        --benchmark_out_format=json >"$folder/$name.txt"
}

for ((round = 1; round <= rounds; ++round)); do
    headline "round $round of $rounds"
    folder=round-$(printf '%02d' "$round")
    slow=(--skip-slow)
    [ "$round" -gt 1 ] || slow=()
    measure "$folder" all "${slow[@]}" --benchmark_min_time=0.05
    for ((short = 1; short <= short_rounds; ++short)); do
        for i in "${!closest[@]}"; do
            # Long enough that the largest sizes too are run several times: the first cycle of a
            # process pays for fresh memory.
            measure "$folder-short-$short" "closest-$i" --benchmark_min_time=0.3 \
                --benchmark_filter="${closest[i]}"
        done
    done
done

headline "counting instructions and memory"
python3 benchmarks/report/collect.py build/bench "$results"
python3 benchmarks/report/report.py "$results" docs/performance.md
