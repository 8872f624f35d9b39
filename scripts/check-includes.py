#!/usr/bin/env python3
"""Fails if an include points up the layers.

The library: parser -> {recognition, help, result} -> options -> support -> public headers. A folder
may include its own files and those of the layers below it. The support layer has rooms of its own:
platform and memory may use text; text uses neither. What lies in a room is included by its whole
path, as in "support/text/Utf8.h".

The command layer stands on the public headers, which do not include it in turn: its headers are
kexa/command.h and those in kexa/command/, its sources those in command/."""
import pathlib
import re
import sys

PUBLIC = ["kexa"]
COMMAND = ["kexa/command"] + PUBLIC
SUPPORT = ["support/platform", "support/text", "support/memory"] + PUBLIC
OPTIONS = ["options"] + SUPPORT
RESULT = ["result"] + OPTIONS
MAY_INCLUDE = {
    "kexa": PUBLIC,
    "kexa/command": COMMAND,
    "support/text": ["support/text"] + PUBLIC,
    "support/memory": ["support/memory", "support/text"] + PUBLIC,
    "support/platform": ["support/platform", "support/text"] + PUBLIC,
    "options": OPTIONS,
    "result": RESULT,
    "recognition": ["recognition"] + RESULT,
    "help": ["help"] + OPTIONS,
    "parser": ["parser", "recognition", "help"] + RESULT,
}
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"')


def layer_of(path):
    """The layer of a file that is included by this path."""
    if path == "kexa/command.h" or path.startswith("kexa/command/"):
        return "kexa/command"
    return path.rpartition("/")[0]


def sources(base):
    return sorted(list(base.rglob("*.h")) + list(base.rglob("*.cpp")))


def includes(file):
    for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
        match = INCLUDE.match(line)
        if match:
            yield number, match.group(1)


def layer_problems(root, base):
    files = sources(base)
    if not files:
        yield f"{base.name}: no files found"
    for file in files:
        layer = layer_of(file.relative_to(base).as_posix())
        place = file.relative_to(root).as_posix()
        if layer not in MAY_INCLUDE:
            yield f"{place}: belongs to no layer"
            continue
        for number, path in includes(file):
            if layer_of(path) not in MAY_INCLUDE[layer]:
                yield f"{place}:{number}: {layer} must not include {path}"


def command_problems(root, base):
    """The sources of the command layer include each other and public headers only."""
    for file in sources(base):
        for number, path in includes(file):
            own = any((folder / path).resolve().is_relative_to(base) and (folder / path).exists()
                      for folder in (file.parent, base))
            if not own and layer_of(path) not in COMMAND:
                place = file.relative_to(root).as_posix()
                yield f"{place}:{number}: the command layer must not include {path}"


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".").resolve()
    found = [*layer_problems(root, root / "include"), *layer_problems(root, root / "src"),
             *command_problems(root, root / "command")]
    print("\n".join(found) if found else "includes point one way")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
