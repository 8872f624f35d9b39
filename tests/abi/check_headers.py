"""Compiles the installed headers for 64-bit Windows with the ABI of Visual C++: each alone in C++17,
all together in C++20."""

import argparse
import pathlib
import subprocess
import sys

import visual_cpp


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--compiler", required=True)
    parser.add_argument("--mingw", required=True, help="g++ of MinGW")
    parser.add_argument("--include", required=True, help="the folder that holds kexa/kexa.h")
    arguments = parser.parse_args()
    root = pathlib.Path(arguments.include) / "kexa"
    # What the header-only mode includes is no header by itself.
    headers = sorted(header for header in root.rglob("*.h")
                     if root / "command" / "source" not in header.parents)
    names = [header.relative_to(arguments.include).as_posix() for header in headers]
    options = visual_cpp.compiler_options(arguments.mingw)
    failures = 0
    for standard, included in [("c++17", [name]) for name in names] + [("c++20", names)]:
        lines = "".join(f'#include "{name}"\n' for name in included)
        command = [arguments.compiler, "-std=" + standard] + options
        command += ["-Wall", "-Wextra", "-Wpedantic", "-Werror"]
        command += ["-I" + arguments.include, "-fsyntax-only", "-x", "c++", "-"]
        # Twice: a header without a guard defines its classes again.
        result = subprocess.run(command, input=2 * lines, capture_output=True, text=True)
        if result.returncode != 0:
            failures += 1
            print(f"{' '.join(included)} ({standard}):\n{result.stderr}")
    print(f"{len(headers)} headers, {failures} failures")
    return 1 if failures or not headers else 0


if __name__ == "__main__":
    sys.exit(main())
