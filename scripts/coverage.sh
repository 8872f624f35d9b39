#!/usr/bin/env bash
# Tells which share of the lines and branches of src/ and include/ the tests run, file by file, and
# lists the lines that none of them runs. Installs what is missing, builds with the preset coverage.
#
#   scripts/coverage.sh [PERCENT]    ends with an error below this share of lines (97)
#
# Not counted are the sources for Windows, which the tests under Wine run, and lines between
# GCOVR_EXCL marks, each with its reason beside it.
set -euo pipefail
cd "$(dirname "$0")/.."

least=${1:-97}
jobs=$(nproc)
folder=build/coverage

scripts/install-packages.sh cmake ninja-build g++ gcovr python3 libgtest-dev libgmock-dev

mkdir -p build
cmake --preset coverage >"$folder.configure.log" 2>&1 || { cat "$folder.configure.log"; exit 1; }
cmake --build --preset coverage -j "$jobs" >"$folder.build.log" 2>&1 ||
    { tail -n 80 "$folder.build.log"; exit 1; }

# What earlier runs counted does not tell what the tests of today run.
find "$folder" -name '*.gcda' -delete

# Without the cases that look at files instead of running the library, and without the one under
# valgrind, which runs what others run.
ctest --preset coverage -j "$jobs" --quiet --output-on-failure \
    --exclude-regex '^(abi_(exports|slots|headers).*|install|consumer|include_direction|test_names|growth_is_linear_in_instructions)$'

# A call that may throw is a branch to the compiler; those branches are not the author's.
gcovr --root . --object-directory "$folder" --filter src/ --filter include/ -j "$jobs" \
    --exclude-directories '.*/CompilerId.*' --exclude-throw-branches --exclude-unreachable-branches \
    --json "$folder.json" "$folder"

report() { gcovr --root . --add-tracefile "$folder.json" --exclude-throw-branches "$@"; }
report --branches
status=0
report --print-summary --fail-under-line "$least" || status=$?

echo
echo "Lines that no test runs:"
python3 - "$folder.json" <<'PYTHON'
import json
import sys

for file in json.load(open(sys.argv[1], encoding="utf-8"))["files"]:
    text = open(file["file"], encoding="utf-8").read().splitlines()
    for line in file["lines"]:
        if line["count"] == 0 and not line.get("gcovr/noncode"):
            print(f"{file['file']}:{line['line_number']}: {text[line['line_number'] - 1].strip()}")
PYTHON
exit $status
