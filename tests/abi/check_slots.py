"""Compares the classes that hosts are compiled against with the tables of slots.py.

The headers go through a compiler that dumps how it lays the classes out:

    microsoft   Clang for x86_64-pc-windows-msvc, with the standard library of MinGW
    itanium     Clang for x86_64-pc-linux-gnu: the ABI of GCC, with member offsets
    gcc         GCC itself, native or MinGW

With --swapped, the headers are copied once for each pair of slots.SWAPS and the two declarations
exchanged in the copy: each exchange has to be reported.
"""

import argparse
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import slots
import visual_cpp

HERE = pathlib.Path(__file__).parent


def compile_and_dump(arguments, include, source, standard, work):
    common = [arguments.compiler, "-std=" + standard, "-I" + str(include)]
    common += ["-I" + folder for folder in arguments.private_include]
    warnings = ["-Wall", "-Wextra", "-Wpedantic", "-Werror"]
    if arguments.dump == "gcc":
        dump = work / "classes.txt"
        checks = work / "offsets.cpp"
        checks.write_text(f'#include "{source}"\n' + offset_assertions())
        options = ["-c", "-o", str(work / "contract.o"), "-fdump-lang-class=" + str(dump)]
        command = common + options + [str(checks)]
    else:
        if arguments.dump == "microsoft":
            options = visual_cpp.compiler_options(arguments.mingw)
        else:
            options = ["-target", "x86_64-pc-linux-gnu"]
        options += ["-Xclang", "-fdump-vtable-layouts", "-Xclang", "-fdump-record-layouts"]
        command = common + warnings + options + ["-S", "-o", str(work / "contract.s"), str(source)]
    result = subprocess.run(command, capture_output=True, text=True)
    wrong_offsets = re.findall(r"static assertion failed: (.*)", result.stderr)
    if result.returncode != 0 and not wrong_offsets:
        sys.exit("the headers do not compile:\n" + " ".join(command) + "\n" + result.stderr)
    return dump.read_text() if arguments.dump == "gcc" else result.stdout, wrong_offsets


def offset_assertions():
    """Assertions on the offsets of public members, since GCC dumps no more than sizes."""
    lines = []
    for record, (_, members) in slots.RECORDS.items():
        for member, offset in members.items():
            if not member.startswith("m_"):
                lines.append(f"static_assert(offsetof({record}, {member}) == {offset}, "
                             f'"{member} of {record}");\n')
    return "".join(lines)


def operation_name(entry):
    """`bool kexa_3_3::IParser::hasOption(const wchar_t *, bool) [pure]` -> `hasOption`."""
    name = re.sub(r"\(anonymous namespace\)|\{anonymous\}", "anonymous", entry)
    name = name.split("(")[0].split("::")[-1].strip()
    return "destructor" if name.startswith("~") else name


def clang_tables(dump):
    """Class name -> operations in slot order."""
    tables = {}
    pattern = r"^(?:VFTable|Vtable) for (.*) \(\d+ entr\w+\)\.\n((?:.+\n)+)"
    for match in re.finditer(pattern, dump, re.M):
        most_derived = re.findall(r"'([^']*)'", match.group(1))[-1]
        entries = re.findall(r"^ *\d+ \| (.*)$", match.group(2), re.M)
        operations = [entry for entry in entries
                      if not entry.startswith("offset_to_top") and not entry.endswith(" RTTI")]
        name = most_derived.replace("(anonymous namespace)", "anonymous")
        tables[name] = [operation_name(operation) for operation in operations]
    return tables


def gcc_tables(dump):
    tables = {}
    for match in re.finditer(r"^Vtable for (.*)\n.*entries\n((?:\d.*\n)+)", dump, re.M):
        entries = re.findall(r"^\d+ +(.*)$", match.group(2), re.M)[2:]
        operations = [entry.replace("(int (*)(...))", "") for entry in entries]
        name = match.group(1).replace("{anonymous}", "anonymous")
        tables[name] = [operation_name(operation) for operation in operations]
    return tables


def clang_records(dump):
    """Record name -> (size, {member: offset}), without members of members."""
    records = {}
    pattern = r"Dumping AST Record Layout\n *0 \| \w+ (.*)\n((?: +\d+ \| .*\n)*) +\| \[sizeof=(\d+)"
    for match in re.finditer(pattern, dump):
        members = re.findall(r"^ *(\d+) \|   (?! )(.*[ *&])([\w]+)$", match.group(2), re.M)
        offsets = {name: int(offset) for offset, _, name in members}
        records[match.group(1)] = (int(match.group(3)), offsets)
    return records


def gcc_records(dump):
    found = re.findall(r"^Class (.*)\n +size=(\d+)", dump, re.M)
    return {name: (int(size), None) for name, size in found}


def compare(arguments, dump):
    """Returns the differences as lines of text."""
    is_gcc = arguments.dump == "gcc"
    tables = gcc_tables(dump) if is_gcc else clang_tables(dump)
    records = gcc_records(dump) if is_gcc else clang_records(dump)
    expected_tables = dict(slots.TABLES)
    if arguments.private_include:
        expected_tables.update(slots.PRIVATE_TABLES)
    problems = []
    for name, operations in expected_tables.items():
        expected = []
        for operation in operations:
            two_slots = operation == "destructor" and arguments.dump != "microsoft"
            expected += [operation] * (2 if two_slots else 1)
        actual = tables.get(name)
        if actual is None:
            problems.append(f"{name}: no virtual table was dumped")
            continue
        for slot in range(max(len(expected), len(actual))):
            wanted = expected[slot] if slot < len(expected) else "nothing"
            found = actual[slot] if slot < len(actual) else "nothing"
            if wanted != found:
                problems.append(f"{name}: slot {slot} is {found}, the contract has {wanted}")
    for name, (size, members) in slots.RECORDS.items():
        if name not in records:
            problems.append(f"{name}: no layout was dumped")
            continue
        actual_size, actual_members = records[name]
        if actual_size != size:
            problems.append(f"{name}: size is {actual_size}, the contract has {size}")
        if actual_members is not None and actual_members != members:
            problems.append(f"{name}: members are {actual_members}, the contract has {members}")
    return problems


def check(arguments, include, work):
    source = HERE / ("private_contract.cpp" if arguments.private_include else "contract.cpp")
    standard = "c++20" if arguments.private_include else "c++17"
    dump, wrong_offsets = compile_and_dump(arguments, include, source, standard, work)
    return [f"wrong offset: {text}" for text in wrong_offsets] + compare(arguments, dump)


def swap(folder, file, first, second):
    path = folder / "kexa" / file
    text = path.read_text()
    one = find_declaration(path, text, first)
    other = find_declaration(path, text, second)
    text = text.replace(one, "\0").replace(other, one).replace("\0", other)
    path.write_text(text)


def find_declaration(path, text, name):
    """The declaration of an operation or a data member, from its first line to its ";" or "}"."""
    pattern = (rf"^    (?:virtual )?[^\n;{{}}]*(?<![\w~]){name}(?:\([^)]*\))?(?: = [^;]*)?"
               r"(?:;|\n    \{.*?\n    \})")
    found = re.findall(pattern, text, re.M | re.S)
    if len(found) != 1:
        sys.exit(f"{path}: {len(found)} declarations of {name}")
    return found[0]


def check_swaps(arguments, work):
    unnoticed = 0
    for file, first, second in slots.SWAPS:
        folder = work / "swapped"
        shutil.rmtree(folder, ignore_errors=True)
        shutil.copytree(pathlib.Path(arguments.include) / "kexa", folder / "kexa")
        swap(folder, file, first, second)
        problems = check(arguments, folder, work)
        print(f"{file}: {first} and {second} swapped: " + ("; ".join(problems) or "NOT NOTICED"))
        unnoticed += not problems
    return unnoticed


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--dump", choices=["microsoft", "itanium", "gcc"], required=True)
    parser.add_argument("--compiler", required=True)
    parser.add_argument("--mingw", help="g++ of MinGW; needed for microsoft")
    parser.add_argument("--include", required=True, help="the folder that holds kexa/kexa.h")
    parser.add_argument("--private-include", action="append", default=[],
                        help="the library's sources: checks its parser class as well")
    parser.add_argument("--swapped", action="store_true")
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        work = pathlib.Path(folder)
        if arguments.swapped:
            return 1 if check_swaps(arguments, work) else 0
        problems = check(arguments, pathlib.Path(arguments.include), work)
    print("\n".join(problems) or "every slot and every member is where the contract has it")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
