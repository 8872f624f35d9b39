#!/usr/bin/env bash
# Runs the fuzz targets under the address and undefined-behaviour sanitizers, each for some seconds (20
# by default), as many at once as there are processors. Ends with 1 if one of them fails.
#
#   scripts/fuzz.sh [SECONDS [TARGET ...]]
#
# A target starts from the inputs in fuzz/corpus/TARGET and from those that earlier runs found, in
# build/fuzz/found/TARGET. An input that fails is kept as build/fuzz/failed/TARGET-...: copy it to
# fuzz/corpus/TARGET, where every test run replays it, and correct the defect.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-20}
shift || true
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(arguments command help option_file utf8 values word_wrap)

# The longest input for each target, in bytes: longer ones take more time and find nothing new.
declare -A longest=(
    [arguments]=600 [command]=300 [help]=600 [option_file]=1000 [utf8]=64 [values]=400 [word_wrap]=400)

scripts/install-packages.sh cmake ninja-build g++ clang libclang-rt-dev llvm
build=build/fuzz
mkdir -p "$build/failed"
cmake --preset fuzz >"$build/configure.log" 2>&1 || { cat "$build/configure.log"; exit 1; }
cmake --build --preset fuzz -j "$(nproc)" >"$build/build.log" 2>&1 || { tail -n 80 "$build/build.log"; exit 1; }

# Temporary files of the targets stay in memory if the system has a folder for that.
if [ -z "${TMPDIR-}" ] && [ -w /dev/shm ]; then
    export TMPDIR=/dev/shm
fi

run_target()
{
    local target=$1 log="$build/$1.log" failed
    mkdir -p "$build/found/$target"
    # Mask 3 closes both output streams: the library reports refused declarations there.
    if "$build/fuzz/fuzz_$target" -max_total_time="$seconds" -max_len="${longest[$target]}" \
        -timeout=10 -dict=fuzz/kexa.dict -close_fd_mask=3 -print_final_stats=1 \
        -artifact_prefix="$build/failed/$target-" \
        "$build/found/$target" "fuzz/corpus/$target" </dev/null >"$log" 2>&1; then
        printf '%-12s %10s executions in %s s, %s edges\n' "$target" \
            "$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")" "$seconds" \
            "$(sed -n 's/.* cov: \([0-9]*\) .*/\1/p' "$log" | tail -n 1)"
        return
    fi
    printf '%-12s FAILED, see %s\n' "$target" "$log"
    # Run it once more, with the output of the target.
    failed=$(sed -n 's/.*Test unit written to //p' "$log" | tail -n 1)
    if [ -n "$failed" ]; then
        "$build/fuzz/fuzz_$target" "$failed" </dev/null 2>&1 | tail -n 80
    else
        tail -n 40 "$log"
    fi
    return 1
}

status=0
running=0
for target in "${targets[@]}"; do
    if [ "$running" -eq "$(nproc)" ]; then
        wait -n || status=1
        running=$((running - 1))
    fi
    run_target "$target" &
    running=$((running + 1))
done
while [ "$running" -gt 0 ]; do
    wait -n || status=1
    running=$((running - 1))
done
exit $status
