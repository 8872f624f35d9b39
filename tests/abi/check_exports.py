"""Lists the symbols that the built library exports and compares them with the entry points."""

import argparse
import re
import subprocess
import sys

ENTRY_POINTS = {
    "kexa_3_3::createParser(kexa_3_3::IParser**, int)",
    "kexa_3_3::getLastValue(kexa_3_3::IParseResult*, wchar_t const*, int, int)",
    "wchar_t const* kexa_3_3::Value::as<wchar_t const*>() const",
    # Constructor and destructor are exported twice each: for complete and for base objects.
    "kexa_3_3::WordWrappedText::WordWrappedText(wchar_t const*, wchar_t const*, size_t, size_t)",
    "kexa_3_3::WordWrappedText::~WordWrappedText()",
    "kexa_3_3::WordWrappedText::getText() const",
}


def run(*command, text=None):
    result = subprocess.run(command, input=text, capture_output=True, text=True)
    if result.returncode != 0:
        sys.exit(" ".join(command) + "\n" + result.stderr)
    return result.stdout


def elf_symbols(tool, library):
    """Returns the mangled names of all dynamic symbols that the library defines."""
    return [line.split()[-1] for line in run(tool, "-D", "--defined-only", library).splitlines()]


def dll_symbols(tool, library):
    """Returns the mangled names in the export table, with an entry for each unnamed export."""
    dump = run(tool, "-p", library)
    names = re.search(r"\[Ordinal/Name Pointer\] Table\n((?:.*\[.*\n)*)", dump)
    addresses = re.search(r"Export Address Table -- Ordinal Base \d+\n((?:.*\[.*\n)*)", dump)
    if names is None or addresses is None:
        sys.exit(f"{library} has no export table")
    symbols = re.findall(r"(\S+)$", names.group(1), re.M)
    unnamed = len(addresses.group(1).splitlines()) - len(symbols)
    return symbols + [f"(a symbol without a name, {i})" for i in range(unnamed)]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--nm", help="for a shared object")
    parser.add_argument("--objdump", help="for a DLL")
    parser.add_argument("--cxxfilt", required=True)
    parser.add_argument("library")
    arguments = parser.parse_args()
    if arguments.objdump:
        mangled = dll_symbols(arguments.objdump, arguments.library)
    else:
        mangled = elf_symbols(arguments.nm, arguments.library)
    symbols = set(run(arguments.cxxfilt, text="\n".join(mangled)).splitlines())
    # size_t is unsigned long on Linux and unsigned long long on Windows.
    symbols = {re.sub(r"unsigned long(?: long)?", "size_t", symbol) for symbol in symbols}
    print("\n".join(sorted(symbols)))
    for symbol in sorted(ENTRY_POINTS - symbols):
        print("MISSING: " + symbol)
    for symbol in sorted(symbols - ENTRY_POINTS):
        print("NOT AN ENTRY POINT: " + symbol)
    return 0 if symbols == ENTRY_POINTS else 1


if __name__ == "__main__":
    sys.exit(main())
