#!/usr/bin/env python3
"""Fails where a page shows code that is not compiled, or output that is not printed.

    check-snippets.py [--named] [--write] [--in FOLDER] PAGE SOURCE COMMAND...

Every block of PAGE that is marked as cpp must be part of SOURCE, apart from its indentation; every
block without a mark must be part of what COMMAND, the program built from SOURCE, prints. In a block
marked as console each line "$ NAME ARGUMENTS" runs COMMAND in FOLDER and is followed by all that it
prints; with --named, NAME is its first argument. "$ cat FILE" shows a file of that folder, and
variables of the environment may stand before NAME. --write puts what is printed into these
blocks."""
import argparse
import os
import pathlib
import re
import shlex
import subprocess
import sys
import textwrap

BLOCK = re.compile(r"^```(\w*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
CONSOLE = re.compile(r"^```console\n(.*?)^```$", re.MULTILINE | re.DOTALL)
ASSIGNMENT = re.compile(r"([A-Z_]+)=(.*)")


def dedented_parts(source, lines):
    """All runs of that many lines of the source, without their common indentation."""
    every = source.splitlines()
    for first in range(len(every) - lines + 1):
        yield textwrap.dedent("\n".join(every[first:first + lines])) + "\n"


def printed(command, folder, variables=None):
    output = subprocess.run(command, cwd=folder, env={**os.environ, **(variables or {})},
                            check=False, stdout=subprocess.PIPE, stderr=subprocess.STDOUT).stdout
    return output.decode("utf-8").replace("\r\n", "\n")


def output_of(line, options):
    words = shlex.split(line)
    variables = {}
    while found := ASSIGNMENT.fullmatch(words[0]):
        variables[found[1]] = found[2]
        del words[0]
    if words[0] == "cat":
        return (pathlib.Path(options.folder) / words[1]).read_text(encoding="utf-8")
    return printed(options.command + words[0 if options.named else 1:], options.folder, variables)


def transcript(text, options):
    """The command lines of a console block with what they print."""
    lines = [line for line in text.splitlines() if line.startswith("$ ")]
    return "".join(f"{line}\n{output_of(line[2:], options)}" for line in lines)


def problems(page, source, output, options):
    blocks = BLOCK.findall(page)
    for languages, needed in (("cpp",), "code"), (("", "console"), "output"):
        if not any(found in languages for found, _ in blocks):
            yield f"the page shows no {needed}"
    for language, text in blocks:
        if language == "cpp" and text not in dedented_parts(source, len(text.splitlines())):
            yield f"not in the source:\n{text}"
        if language == "" and text not in output:
            yield f"not printed:\n{text}"
        if language == "console" and (found := transcript(text, options)) != text:
            yield f"shown:\n{text}printed:\n{found}"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--named", action="store_true")
    parser.add_argument("--write", action="store_true")
    parser.add_argument("--in", dest="folder", default=".")
    parser.add_argument("page")
    parser.add_argument("source")
    parser.add_argument("command", nargs=argparse.REMAINDER)
    options = parser.parse_args()
    page, source = (pathlib.Path(name).read_text(encoding="utf-8")
                    for name in (options.page, options.source))
    if options.write:
        page = CONSOLE.sub(lambda block: f"```console\n{transcript(block[1], options)}```", page)
        pathlib.Path(options.page).write_text(page, encoding="utf-8")
    output = printed(options.command, options.folder) if "\n```\n" in page else ""
    found = list(problems(page, source, output, options))
    print("\n".join(found) if found else f"{options.page} shows what is compiled and printed")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
