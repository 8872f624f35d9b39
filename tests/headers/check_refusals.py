"""Compiles statements that the public headers refuse, and looks for the sentence that says why.

Each row compiles a host of one statement. A row without an expected text has to compile: it shows
that a refusal is about the statement and not about the rest of the host.
"""

import argparse
import subprocess
import sys

HOST = """#include <kexa/kexa.h>
using kexa_3_3::Value;
using namespace vexkit2;
void use(const Value& value, const variant_t& variant);
void use(const Value& value, const variant_t& variant)
{
    static_cast<void>(value);
    static_cast<void>(variant);
    %s;
}
"""

AS = ("Value::as<T> returns bool, s32_t, u32_t, s64_t, u64_t, double or const wchar_t*: "
      "this T is none of them")
GET = ("variant_t::get<T> and can_get<T> take bool, s32_t, u32_t, s64_t, u64_t, double or "
       "const wchar_t*: this T is none of them")

ROWS = [
    ("""static_cast<void>(value.as<bool>()); static_cast<void>(value.as<double>());
    static_cast<void>(value.as<s32_t>()); static_cast<void>(value.as<u32_t>());
    static_cast<void>(value.as<s64_t>()); static_cast<void>(value.as<u64_t>());
    static_cast<void>(value.as<const wchar_t*>());
    static_cast<void>(variant.get<const wchar_t*>());
    static_cast<void>(variant_t(L"x")); static_cast<void>(variant_t(5LL))""", None),
    ("static_cast<void>(value.as<float>())", AS),
    ("static_cast<void>(value.as<std::wstring>())", AS),
    ("static_cast<void>(variant.get<float>())", GET),
    ("static_cast<void>(variant.can_get<char>())", GET),
    ("static_cast<void>(variant_t(u8\"x\"))", "deleted"),
    ("static_cast<void>(variant_t(nullptr))", "deleted"),
]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--compiler", required=True)
    parser.add_argument("--include", required=True, help="the folder that holds kexa/kexa.h")
    arguments = parser.parse_args()
    failures = 0
    for statement, expected in ROWS:
        command = [arguments.compiler, "-std=c++20", "-I" + arguments.include, "-fsyntax-only",
                   "-x", "c++", "-"]
        result = subprocess.run(command, input=HOST % statement, capture_output=True, text=True)
        if expected is None:
            passed = result.returncode == 0
        else:
            passed = result.returncode != 0 and expected in result.stderr
        if not passed:
            failures += 1
            print(f"{statement}\n  expected: {expected or 'no error'}\n{result.stderr}")
    print(f"{len(ROWS)} statements, {failures} failures")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
