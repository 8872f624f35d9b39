"""Compiles every installed header alone as Visual C++ would see it: with Clang's Microsoft mode and
the stand-ins for the standard headers, in C++17 and C++20."""

import argparse
import pathlib
import subprocess
import sys

STANDARD = pathlib.Path(__file__).parent / "standard"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--compiler", required=True)
    parser.add_argument("--include", required=True, help="the folder that holds kexa/kexa.h")
    arguments = parser.parse_args()
    # The command layer, which uses far more of the standard library than the stand-ins have, is not
    # part of the binary interface.
    headers = sorted(header for header in (pathlib.Path(arguments.include) / "kexa").glob("*.h")
                     if header.name != "command.h")
    failures = 0
    for standard in ["c++17", "c++20"]:
        for header in headers:
            include = f'#include "kexa/{header.name}"\n'
            command = [arguments.compiler, "-target", "x86_64-pc-windows-msvc", "-std=" + standard]
            command += ["-Wall", "-Wextra", "-Wpedantic", "-Werror", "-nostdinc++"]
            command += ["-I" + arguments.include, "-isystem", str(STANDARD), "-fsyntax-only"]
            # Twice: a header without a guard defines its classes again.
            result = subprocess.run(command + ["-x", "c++", "-"], input=2 * include,
                                    capture_output=True, text=True)
            if result.returncode != 0:
                failures += 1
                print(f"{header.name} ({standard}):\n{result.stderr}")
    print(f"{len(headers)} headers, {failures} failures")
    return 1 if failures or not headers else 0


if __name__ == "__main__":
    sys.exit(main())
