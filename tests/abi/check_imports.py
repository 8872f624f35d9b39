"""Lists the DLLs that a DLL needs, directly and through other DLLs.

Each has to be part of every Windows, or to be named with --beside and to lie in the DLL's folder.
"""

import argparse
import pathlib
import re
import subprocess
import sys

# In every 64-bit Windows since Windows 7.
WINDOWS = {"kernel32.dll", "msvcrt.dll", "advapi32.dll", "user32.dll", "ntdll.dll"}


def imports(tool, file):
    result = subprocess.run([tool, "-p", str(file)], capture_output=True, text=True, check=True)
    return re.findall(r"^\s*DLL Name: (\S+)", result.stdout, re.M)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--objdump", required=True)
    parser.add_argument("--beside", action="append", default=[], help="a DLL that must be needed")
    parser.add_argument("dll")
    arguments = parser.parse_args()
    folder = pathlib.Path(arguments.dll).parent
    waiting = [pathlib.Path(arguments.dll).name]
    needed = {}
    while waiting:
        name = waiting.pop()
        if name in needed:
            continue
        needed[name] = imports(arguments.objdump, folder / name)
        print(name + " needs " + ", ".join(needed[name]))
        waiting += [dll for dll in needed[name]
                    if dll.lower() not in WINDOWS and (folder / dll).exists()]
    found = {dll for dlls in needed.values() for dll in dlls}
    foreign = {dll for dll in found if dll.lower() not in WINDOWS}
    for dll in sorted(foreign - set(arguments.beside)):
        print("NOT EXPECTED: " + dll)
    for dll in sorted(set(arguments.beside) - foreign):
        print("NOT NEEDED: " + dll)
    for dll in sorted(foreign - set(needed)):
        print("NOT BESIDE THE DLL: " + dll)
    return 0 if foreign == set(arguments.beside) and foreign <= set(needed) else 1


if __name__ == "__main__":
    sys.exit(main())
