#!/usr/bin/env bash
# Prints the share of lines and branches of src/ and include/ that the tests run, file by file, and
# lists the lines that no test runs. Installs missing packages and builds with the preset coverage.
#
#   scripts/coverage.sh [PERCENT]    fails if the tests run a smaller share of the lines (97)
#
# Two kinds of lines are not counted: the sources for Windows, which the tests under Wine run, and
# lines between GCOVR_EXCL marks, for the reason given beside each mark.
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

# The counts of earlier runs would be added to those of this one.
find "$folder" -name '*.gcda' -delete

# Left out: the cases that examine files and do not run the library, and the one under valgrind, whose
# code other cases run too.
ctest --preset coverage -j "$jobs" --quiet --output-on-failure \
    --exclude-regex '^(abi_(exports|slots|headers).*|install|consumer|include_direction|test_names|growth_is_linear_in_instructions)$'

# The compiler counts a branch for each call that may throw; these branches are not in the source.
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
