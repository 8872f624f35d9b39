"""Compiles the public headers for a 32-bit system: one error says that they need a 64-bit one. Skipped
where the compiler has no 32-bit headers (Debian: g++-multilib)."""

import argparse
import pathlib
import re
import subprocess
import sys

SENTENCE = "kexa needs a 64-bit system"


def errors_of(arguments, source):
    command = [arguments.compiler, "-m32", "-std=c++17", "-I" + arguments.include, "-fsyntax-only",
               "-x", "c++", "-"]
    result = subprocess.run(command, input=source, capture_output=True, text=True)
    return [line for line in result.stderr.splitlines() if re.search(r"\berror\b.*:", line)]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--compiler", required=True)
    parser.add_argument("--include", required=True, help="the folder that holds kexa/kexa.h")
    arguments = parser.parse_args()
    if errors_of(arguments, "#include <atomic>\n#include <cstdio>\n#include <string>\n"):
        print("skipped: the compiler has no 32-bit headers")
        return 0
    failures = 0
    for header in ["kexa.h", "variant.h", "value.h", "option.h", "parser.h"]:
        # Used, so that an error behind the first one would show.
        source = f'#include "kexa/{header}"\nauto size = sizeof(vexkit2::variant_t(5LL));\n'
        errors = errors_of(arguments, source)
        if len(errors) != 1 or SENTENCE not in errors[0]:
            failures += 1
            print(f"{header}:\n" + "\n".join(errors))
    print(f"{failures} failures")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
