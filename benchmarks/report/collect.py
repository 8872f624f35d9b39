"""Counts what is not a time: instructions, memory, the size of the library, what loading it costs.

    collect.py BUILD_FOLDER RESULTS_FOLDER

writes counts.json. Needs valgrind and strip.
"""

import json
import pathlib
import re
import subprocess
import sys
import tempfile

from goals import GROWTHS
from results import PEERS


def run(*command):
    done = subprocess.run([str(part) for part in command], check=True, text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    return done.stdout + done.stderr


def instructions(*command):
    output = run("valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", *command)
    return int(re.search(r"Collected : (\d+)", output).group(1))


def difference(program, command, peer, workload, few, many):
    """Instructions of one cycle: what many cycles take more than few."""
    counts = [instructions(program, command, peer, workload, count) for count in (few, many)]
    return (counts[1] - counts[0]) / (many - few)


def count_instructions(programs):
    cycles = programs / "benchmark_cycles"
    untraced = programs / "benchmark_cycles_untraced"
    counts = {}
    for peer in ["kexa", "kexa, from UTF-8"] + PEERS:
        counts[peer] = {
            "small": difference(cycles, "run", peer, "small", 20, 120),
            "arguments": difference(cycles, "run", peer, "arguments/1000", 1, 3) / 1000}
        if "UTF-8" not in peer:
            counts[peer]["options"] = difference(cycles, "run", peer, "options/500", 1, 3) / 500
            counts[peer]["declarations"] = \
                difference(cycles, "declare", peer, "declarations/500", 1, 3) / 500
    counts["kexa without trace"] = {
        "small": difference(untraced, "run", "kexa", "small", 20, 120),
        "arguments": difference(untraced, "run", "kexa", "arguments/1000", 1, 3) / 1000}
    return counts


def growths(programs):
    """For each of GROWTHS, kexa's instructions for a unit at the large size divided by those for one at
    the small size."""
    found = {}
    for one in GROWTHS:
        family, _, kind = one.kind.partition("/")
        command = {"cycle": "run", "declare": "declare"}[family]
        small, large = (difference(programs / "benchmark_cycles", command, "kexa",
                                   f"{kind}/{size}", 1, 2) / size
                        for size in (one.small, one.large))
        found[one.kind] = large / small
    return found


def phases(programs, workload, count, units):
    """Instructions of kexa's operations in one cycle, and of the functions that take the most."""
    with tempfile.TemporaryDirectory() as folder:
        out = pathlib.Path(folder) / "out"
        run("valgrind", "--tool=callgrind", "--collect-atstart=no",
            "--toggle-collect=*makePeer<benchmarks::KexaHost>*lambda*#2*",
            f"--callgrind-out-file={out}", programs / "benchmark_cycles", "run", "kexa", workload,
            count)
        inclusive = run("callgrind_annotate", "--auto=no", "--inclusive=yes", "--threshold=100", out)
        flat = run("callgrind_annotate", "--auto=no", "--threshold=100", out)
    names = {"declaring": "BasicParser::addOption", "parsing": "BasicParser::parse(",
             "first values": "ParseResult::getFirstValue", "next values": "ParseResult::getNextValue",
             "releasing the parser": "BasicParser::release", "releasing the result":
             "ParseResult::release"}

    def cost_of(text, needle):
        costs = [int(match.group(1).replace(",", "")) for match in
                 re.finditer(r"^ *([\d,]+) \([^)]*\)  (.*)$", text, re.M)
                 if needle in match.group(2)]
        return max(costs, default=0)

    total = cost_of(flat, "PROGRAM TOTALS")
    result = {"total": total / count / units,
              "operations": {key: cost_of(inclusive, needle) / count / units
                             for key, needle in names.items()}}
    functions = {}
    for match in re.finditer(r"^ *([\d,]+) \([^)]*\)  (.*)$", flat, re.M):
        name = function_name(match.group(2))
        if name:
            functions[name] = functions.get(name, 0) + int(match.group(1).replace(",", ""))
    ordered = sorted(functions.items(), key=lambda item: -item[1])[:14]
    result["functions"] = {name: cost / count / units for name, cost in ordered}
    return result


def function_name(line):
    """The bare name of a function, code inlined into it included; None for the totals."""
    if "PROGRAM TOTALS" in line:
        return None
    line = re.sub(r" \[[^\]]*\]$", "", line)
    name = line.split(":", 1)[1] if ":" in line else line
    name = re.sub(r"<[^<>]*>", "", re.sub(r"<[^<>]*>", "", re.sub(r"<[^<>]*>", "", name)))
    name = name.replace("(anonymous namespace)::", "").replace("'2", "")
    name = name.split("(")[0].strip()
    name = name.split(" ")[-1] if "operator " not in name else name
    name = name.replace("kexa_3_3::", "").replace("vexkit2::detail::", "")
    if re.match(r"_*(int_)?(malloc|free|malloc_consolidate|unlink_chunk)|operator (new|delete)"
                r"|_mid_memalign|sysmalloc|systrim|cfree|.*aligned_alloc", name):
        return "the heap (malloc, free)"
    if "memcpy" in name or "memmove" in name or "memset" in name:
        return "copying and clearing memory"
    if name.startswith("0x"):
        return "libstdc++, not named"
    return re.sub(r"^_+(\w+?)_(avx|sse|evex)\w*$", r"\1", name)


def count_memory(programs, folder):
    program = programs / "benchmark_memory"
    counts = {"texts": {}, "numbers": {}}
    for peer in ["kexa"] + PEERS:
        for kind, workload in (("texts", "values/20000"), ("numbers", "numbers/20000")):
            counts[kind][peer] = float(run(program, "value", peer, workload).split()[1])
    path = folder / "option-file.txt"
    output = run(program, "write", 1000000, path) + run(program, "file", path)
    counts["option file"] = {key: int(value) for key, value in
                             (line.split() for line in output.splitlines())}
    counts["option file"]["bytes"] = path.stat().st_size
    path.unlink()
    return counts


def main(build, folder):
    build, folder = pathlib.Path(build), pathlib.Path(folder)
    programs = build / "benchmarks"
    library = next(build.glob("src/libkexa.so.*.*.*"))
    stripped = folder / "stripped.so"
    run("strip", "-o", stripped, library)
    loads = run(programs / "benchmark_load", 500, programs / "benchmark_empty",
                programs / "benchmark_empty_with_runtime",
                programs / "benchmark_empty_with_kexa").split()
    counts = {
        "instructions": count_instructions(programs),
        "phases": {"small": phases(programs, "small", 500, 1),
                   "arguments": phases(programs, "arguments/10000", 1, 10000)},
        "growth": growths(programs),
        "memory": count_memory(programs, folder),
        "library bytes": stripped.stat().st_size,
        "load microseconds": dict(zip(["C program", "C++ program", "with kexa"],
                                      map(float, loads))),
    }
    stripped.unlink()
    (folder / "counts.json").write_text(json.dumps(counts, indent=1) + "\n")


if __name__ == "__main__":
    main(*sys.argv[1:])
