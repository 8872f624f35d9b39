"""Compiles every public header alone, without a warning, in C++17 and C++20, and all of them in a
host without exceptions and RTTI."""

import argparse
import pathlib
import subprocess
import sys

WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Wshadow", "-Werror"]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--compiler", required=True)
    parser.add_argument("--include", required=True, help="the folder that holds kexa/kexa.h")
    arguments = parser.parse_args()
    headers = sorted((pathlib.Path(arguments.include) / "kexa").glob("*.h"))
    rows = [(header.name, [standard]) for header in headers
            for standard in ["-std=c++17", "-std=c++20"]]
    rows += [("kexa.h", [standard, "-fno-exceptions", "-fno-rtti"])
             for standard in ["-std=c++17", "-std=c++20"]]
    failures = 0
    for header, settings in rows:
        command = [arguments.compiler, *settings, *WARNINGS, "-I" + arguments.include,
                   "-fsyntax-only", "-x", "c++", "-"]
        # Twice: a header without a guard defines its classes again.
        source = 2 * f'#include "kexa/{header}"\n'
        result = subprocess.run(command, input=source, capture_output=True, text=True)
        if result.returncode != 0:
            failures += 1
            print(f"{header} ({' '.join(settings)}):\n{result.stderr}")
    print(f"{len(rows)} compilations, {failures} failures")
    return 1 if failures or not headers else 0


if __name__ == "__main__":
    sys.exit(main())
