"""Runs the program whose guard fails: standard error holds the guard's text and place, and the program
ends by std::abort.

    check_failed_guard.py PROGRAM [ARGUMENT ...]
"""

import re
import subprocess
import sys

EXPECTED = re.compile(
    r'^\S*variant_access\.h:[1-9][0-9]*: get: failed guard "can_get<bool>\(\)"$', re.MULTILINE)


def main():
    result = subprocess.run(sys.argv[1:], capture_output=True, text=True)
    print(f"exit code {result.returncode}, standard error:\n{result.stderr}")
    # A signal on POSIX systems, 3 from the C library of Windows.
    aborted = result.returncode < 0 or result.returncode == 3
    returned = "the failed guard returned" in result.stderr
    return 0 if aborted and EXPECTED.search(result.stderr) and not returned else 1


if __name__ == "__main__":
    sys.exit(main())
