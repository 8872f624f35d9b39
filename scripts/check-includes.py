#!/usr/bin/env python3
"""Fails if an include points up the layers: parser -> {recognition, help, result} -> options ->
support -> public headers. A folder may include its own files and those of the layers below it."""
import pathlib
import re
import sys

BELOW = {
    "kexa": [],
    "command": ["kexa"],
    "detail": ["kexa"],
    "support": ["kexa"],
    "options": ["support", "kexa"],
    "result": ["options", "support", "kexa"],
    "recognition": ["result", "options", "support", "kexa"],
    "help": ["options", "support", "kexa"],
    "parser": ["recognition", "result", "help", "options", "support", "kexa"],
}
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"')


def problems(root):
    files = list((root / "include").rglob("*.h")) + list((root / "src").rglob("*.h")) + list(
        (root / "src").rglob("*.cpp"))
    if not files:
        yield "no files found"
    for file in sorted(files):
        folder = file.parent.name
        for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            if not match:
                continue
            target = match.group(1).split("/")[0]
            if target != folder and target not in BELOW.get(folder, []):
                yield f"{file.relative_to(root)}:{number}: {folder} must not include {match.group(1)}"


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".").resolve()
    found = list(problems(root))
    print("\n".join(found) if found else "includes point one way")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
