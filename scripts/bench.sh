#!/usr/bin/env bash
# Measures kexa and other command-line parsers. Installs those (Debian packages), builds everything at
# -O2 and prints the goals with what was measured.
#
#   scripts/bench.sh quick      measures only what the goals need, in less than three minutes after the
#                               build; changes no document
#   scripts/bench.sh [ROUNDS]   measures everything, in less than 20 minutes, and writes the tables and
#                               plots of docs/performance.md. ROUNDS is 3 unless given. Combinations
#                               whose single cycle takes seconds are measured in the first round only.
#
# Short rounds repeat the comparisons that are close to their limits.
set -euo pipefail
cd "$(dirname "$0")/.."

mode=full
rounds=3
short_rounds=7
if [ "${1:-}" = quick ]; then
    mode=quick
    rounds=1
    short_rounds=5
elif [ $# -gt 0 ]; then
    rounds=$1
fi
results=build/bench/results-$mode

# Each of these is measured in a process of its own, so that the heap is in the same state each time.
short=(
    '^cycle/small/(kexa|getopt_long|args)$'
    '^cycle/arguments/(10000|1000000)/(kexa|getopt_long)$'
    '^cycle/options/(2000|20000)/(kexa|cxxopts)$'
    '^file/lines/1000000/'
    '^handlers/arguments/10000/'
)
# What else the goals need. The report names peers that have a time at 2,000 options but, being slow, none
# at 20,000.
quick=(
    '^cycle/small/(kexa|args|TCLAP|CLI11|Boost.Program_options|cxxopts)$'
    '^cycle/(options|abbreviations)/(2000|20000)/'
    '^help/declarations/2000/'
    '^walk/values/1000000/first walk'
)

headline() { printf '\n== %s\n' "$*" >&2; }

mapfile -t peers <benchmarks/packages.txt
scripts/install-packages.sh cmake ninja-build g++ python3 valgrind binutils "${peers[@]}" >&2

headline "building"
mkdir -p build
cmake --preset bench >build/bench.configure.log || { cat build/bench.configure.log >&2; exit 1; }
cmake --build --preset bench -j "$(nproc)" >build/bench.build.log ||
    { tail -n 80 build/bench.build.log >&2; exit 1; }
SECONDS=0
rm -rf "$results"
mkdir -p "$results"

# measure FOLDER NAME OPTION...: runs measurements and writes FOLDER/NAME.json into the results
measure()
{
    local folder=$results/$1 name=$2
    shift 2
    mkdir -p "$folder"
    build/bench/benchmarks/kexa_benchmarks "$@" --benchmark_out="$folder/$name.json" \
        --benchmark_out_format=json >"$folder/$name.txt" 2>&1 ||
        { cat "$folder/$name.txt" >&2; exit 1; }
}

# measure_short ROUND: the short rounds that follow a round
measure_short()
{
    local number i
    for ((number = 1; number <= short_rounds; ++number)); do
        for i in "${!short[@]}"; do
            # Long enough for several cycles of the largest sizes: the first cycle of a process is
            # slower, because the system has to supply its memory.
            measure "$1-short-$number" "short-$i" --benchmark_min_time=0.3 \
                --benchmark_filter="${short[i]}"
        done
    done
}

if [ "$mode" = quick ]; then
    headline "measuring"
    for i in "${!quick[@]}"; do
        measure round-01 "quick-$i" --skip-slow --benchmark_min_time=0.05 \
            --benchmark_filter="${quick[i]}"
    done
    measure_short round-01
    headline "counting instructions and memory"
    python3 benchmarks/report/collect.py build/bench "$results" goals
    python3 benchmarks/report/report.py "$results"
    cat <<'END'

Left out of the quick run: peers whose single cycle takes seconds (named in the rows concerned), all
rounds but one of what the short rounds do not repeat, and everything that has no goal, such as other
sizes, typed values, lists and memory for each value. docs/performance.md is unchanged.
END
    headline "$SECONDS seconds after the build"
    exit
fi

headline "checking that everything runs and reads the right values"
ctest --preset bench >&2
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

for ((round = 1; round <= rounds; ++round)); do
    headline "round $round of $rounds"
    folder=round-$(printf '%02d' "$round")
    slow=(--skip-slow)
    [ "$round" -gt 1 ] || slow=()
    measure "$folder" all "${slow[@]}" --benchmark_min_time=0.05
    measure_short "$folder"
done

headline "counting instructions and memory"
python3 benchmarks/report/collect.py build/bench "$results"
python3 benchmarks/report/report.py "$results" docs/performance.md
headline "$SECONDS seconds after the build"
