"""Compiles a program on the command layer in every mode that users have, and each header of the
layer alone, with the warnings of a strict user."""

import argparse
import concurrent.futures
import pathlib
import subprocess
import sys

WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Wshadow", "-Werror"]
PLAIN = ["-fno-exceptions", "-fno-rtti"]
HEADER_ONLY = ["-DKEXA_COMMAND_HEADER_ONLY"]
MODES = [["-std=c++17"], ["-std=c++20"], ["-std=c++2b"], ["-std=c++17", *PLAIN],
         ["-std=c++17", "-DKEXA_COMMAND_NO_PATHS"],
         ["-std=c++17", *HEADER_ONLY], ["-std=c++2b", *HEADER_ONLY],
         ["-std=c++17", *HEADER_ONLY, *PLAIN]]

# Uses what depends on the mode.
WITHOUT_PATHS = """
#include "kexa/command.h"
struct Settings { int number = 0; std::vector<std::string> words; };
int main(int argc, char** argv)
{
    kexa::Command<Settings> command("tool");
    command.option(&Settings::number, "number,n", "How many").range(0, 9);
    command.positional(&Settings::words, "word", "Words").required();
    return kexa::run(command, argc, argv, [](const Settings& s) { return s.number; });
}
"""


def rows_of(include, sample):
    for mode in MODES:
        without_paths = "-DKEXA_COMMAND_NO_PATHS" in mode
        yield "sample", mode, WITHOUT_PATHS if without_paths else sample
    for header in sorted((include / "kexa" / "command").rglob("*.h")):
        if header.name != "header_only.h":  # included by kexa/command.h, in the mode of its name
            name = header.relative_to(include).as_posix()
            # Twice: a header without a guard defines its classes again.
            yield name, ["-std=c++17"], 2 * f'#include "{name}"\n'


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--compiler", required=True)
    parser.add_argument("--include", required=True, type=pathlib.Path,
                        help="the folder that holds kexa/command.h")
    parser.add_argument("--bodies", required=True, help="the folder that holds kexa/command/source")
    parser.add_argument("--sample", required=True, type=pathlib.Path, help="the program to compile")
    arguments = parser.parse_args()

    def compile_row(row):
        name, settings, source = row
        command = [arguments.compiler, *settings, *WARNINGS, f"-I{arguments.include}",
                   "-I" + arguments.bodies, "-fsyntax-only", "-x", "c++", "-"]
        result = subprocess.run(command, input=source, capture_output=True, text=True)
        if result.returncode != 0:
            print(f"{name} ({' '.join(settings)}):\n{result.stderr}")
        return result.returncode == 0

    rows = list(rows_of(arguments.include, arguments.sample.read_text(encoding="utf-8")))
    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        outcomes = list(pool.map(compile_row, rows))
    print(f"{len(rows)} compilations, {outcomes.count(False)} failures")
    return 0 if len(rows) > len(MODES) + 10 and all(outcomes) else 1


if __name__ == "__main__":
    sys.exit(main())
