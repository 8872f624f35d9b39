"""Counts what is not a time: instructions, memory, and the size of the library. Also measures how long
loading the library takes.

    collect.py BUILD_FOLDER RESULTS_FOLDER [goals]

Writes RESULTS_FOLDER/counts.json; with "goals", only what the goals need. Needs valgrind and strip.
"""

import json
import os
import pathlib
import re
import subprocess
import sys
from concurrent import futures

from goals import GROWTHS
from results import PEERS


def run(*command):
    done = subprocess.run([str(part) for part in command], check=True, text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    return done.stdout + done.stderr


def instructions(*command):
    output = run("valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", *command)
    return int(re.search(r"Collected : (\d+)", output).group(1))


def instructions_of_cycle(programs, command, peer, workload, few, many):
    """Returns the instructions of one cycle: the difference between many cycles and few, so that
    starting the program and making the workload do not count."""
    counts = [instructions(programs / "benchmark_cycles", command, peer, workload, count)
              for count in (few, many)]
    return (counts[1] - counts[0]) / (many - few)


def instructions_of_peer(programs, peer):
    def cycle(*arguments):
        return instructions_of_cycle(programs, *arguments)

    counts = {"small": cycle("run", peer, "small", 20, 120),
              "arguments": cycle("run", peer, "arguments/1000", 1, 3) / 1000}
    if "UTF-8" not in peer:
        counts["options"] = cycle("run", peer, "options/500", 1, 3) / 500
        counts["declarations"] = cycle("declare", peer, "declarations/500", 1, 3) / 500
    return counts


def instruction_growth(programs, growth):
    """Returns kexa's instructions per unit at the large size divided by those at the small size."""
    family, _, kind = growth.kind.partition("/")
    command = {"cycle": "run", "declare": "declare"}[family]
    small, large = (
        instructions_of_cycle(programs, command, "kexa", f"{kind}/{size}", 1, 2) / size
        for size in (growth.small, growth.large))
    return large / small


def bytes_for_value(programs, peer, workload):
    return float(run(programs / "benchmark_memory", "value", peer, workload).split()[1])


def option_file_memory(programs, folder):
    path = folder / "option-file.txt"
    output = run(programs / "benchmark_memory", "write", 1000000, path) + \
        run(programs / "benchmark_memory", "file", path)
    counts = {key: int(value) for key, value in (line.split() for line in output.splitlines())}
    counts["bytes"] = path.stat().st_size
    path.unlink()
    return counts


def library_bytes(build, folder):
    stripped = folder / "stripped.so"
    run("strip", "-o", stripped, next(build.glob("src/libkexa.so.*.*.*")))
    size = stripped.stat().st_size
    stripped.unlink()
    return size


def load_microseconds(programs):
    loads = run(programs / "benchmark_load", 500, programs / "benchmark_empty",
                programs / "benchmark_empty_with_runtime",
                programs / "benchmark_empty_with_kexa").split()
    return dict(zip(["C program", "C++ program", "with kexa"], map(float, loads)))


def main(build, folder, extent="all"):
    build, folder = pathlib.Path(build), pathlib.Path(folder)
    programs = build / "benchmarks"
    # Measured first, while this program runs nothing else.
    loads = load_microseconds(programs)
    contestants = ["kexa"] + PEERS
    # None of the following is a time, so all of it may run side by side.
    with futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        growths = {growth.kind: pool.submit(instruction_growth, programs, growth)
                   for growth in GROWTHS}
        option_file = pool.submit(option_file_memory, programs, folder)
        peers, memory = {}, {}
        if extent == "all":
            peers = {peer: pool.submit(instructions_of_peer, programs, peer)
                     for peer in ["kexa", "kexa, from UTF-8"] + PEERS}
            memory = {kind: {peer: pool.submit(bytes_for_value, programs, peer, workload)
                             for peer in contestants}
                      for kind, workload in (("texts", "values/20000"), ("numbers", "numbers/20000"))}

    def results(started):
        return {key: one.result() for key, one in started.items()}

    counts = {
        "growth": results(growths),
        "instructions": results(peers),
        "memory": {kind: results(one) for kind, one in memory.items()},
        "option file": option_file.result(),
        "library bytes": library_bytes(build, folder),
        "load microseconds": loads,
    }
    (folder / "counts.json").write_text(json.dumps(counts, indent=1) + "\n")


if __name__ == "__main__":
    main(*sys.argv[1:])
