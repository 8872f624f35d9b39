#!/usr/bin/env python3
"""Fails where a page shows code that is not compiled, or output that is not printed.

    check-snippets.py PAGE SOURCE COMMAND...

Every block of PAGE that is marked as cpp must be part of SOURCE, apart from its indentation; every
block without a mark must be part of what COMMAND, the program built from SOURCE, prints."""
import pathlib
import re
import subprocess
import sys
import textwrap

BLOCK = re.compile(r"^```(\w*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)


def dedented_parts(source, lines):
    """All runs of that many lines of the source, without their common indentation."""
    every = source.splitlines()
    for first in range(len(every) - lines + 1):
        yield textwrap.dedent("\n".join(every[first:first + lines])) + "\n"


def problems(page, source, output):
    blocks = BLOCK.findall(page)
    for language, needed in ("cpp", "code"), ("", "output"):
        if not any(found == language for found, _ in blocks):
            yield f"the page shows no {needed}"
    for language, text in blocks:
        if language == "cpp" and text not in dedented_parts(source, len(text.splitlines())):
            yield f"not in the source:\n{text}"
        if language == "" and text not in output:
            yield f"not printed:\n{text}"


def main():
    page, source = (pathlib.Path(name).read_text(encoding="utf-8") for name in sys.argv[1:3])
    output = subprocess.run(sys.argv[3:], check=True, stdout=subprocess.PIPE).stdout.decode("utf-8")
    found = list(problems(page, source, output.replace("\r\n", "\n")))
    print("\n".join(found) if found else f"{sys.argv[1]} shows what is compiled and printed")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
