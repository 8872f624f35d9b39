#!/usr/bin/env python3
"""Fails if a page names a test, as `Suite.Test`, that does not exist."""
import pathlib
import re
import sys

DEFINED = re.compile(r"^TEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\s*\)", re.MULTILINE)
NAMED = re.compile(r"`([A-Z]\w+\.[A-Z]\w+)`")


def main():
    root, page = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    defined = {f"{suite}.{test}" for file in (root / "tests").rglob("*.cpp")
               for suite, test in DEFINED.findall(file.read_text(encoding="utf-8"))}
    named = set(NAMED.findall((root / page).read_text(encoding="utf-8")))
    missing = sorted(named - defined)
    if not named:
        missing = ["no test is named"]
    print("\n".join(missing) if missing else f"all {len(named)} tests named in {page} exist")
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main())
