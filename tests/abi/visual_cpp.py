"""Clang's options to compile C++ under the ABI of Visual C++ without an installation of it.

The headers of the C and C++ libraries are those of MinGW: real ones for 64-bit Windows, where a
wide character has 16 bits and a long 32. What they expect from GCC is given as macros.
"""

import pathlib
import re
import subprocess

ATOMIC_TYPES = ["BOOL", "CHAR", "CHAR8_T", "CHAR16_T", "CHAR32_T", "WCHAR_T", "SHORT", "INT",
                "LONG", "LLONG", "POINTER"]


def compiler_options(mingw):
    """mingw: path of g++ of MinGW, which is asked where its headers are."""
    listing = subprocess.run([mingw, "-E", "-x", "c++", "-v", "-"], input="", check=True,
                             capture_output=True, text=True).stderr
    search = re.search(r"#include <...> search starts here:\n(.*?)End of search list", listing, re.S)
    options = ["-target", "x86_64-pc-windows-msvc", "-nostdinc++"]
    # Without the quirks of Visual C++'s language, which MinGW's headers are not written for.
    options += ["-fno-ms-compatibility", "-fdeclspec"]
    options += ["-D__MINGW32__", "-D__MINGW64__", "-D_UCRT"]
    options += [f"-D__GCC_ATOMIC_{name}_LOCK_FREE=2" for name in ATOMIC_TYPES]
    options += ["-D__GCC_ATOMIC_TEST_AND_SET_TRUEVAL=1"]
    for line in search.group(1).splitlines():
        folder = pathlib.Path(line.strip()).resolve()
        # stddef.h and other headers of the compiler itself are Clang's own.
        if folder.name not in ("include", "include-fixed") or "gcc" not in folder.parts:
            options += ["-isystem", str(folder)]
    return options
