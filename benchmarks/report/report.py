"""Writes what was measured into docs/performance.md and its plots, and prints the main table.

    report.py RESULTS_FOLDER docs/performance.md

Text between "<!-- generated: NAME -->" and "<!-- end -->" is replaced; all other text is kept.
"""

import pathlib
import re
import sys

import plots
import tables
from results import PEERS, Results


def series(results, kind, scale, contestants):
    """{contestant: [(size, time for each unit)]}"""
    lines = {}
    for contestant in contestants:
        line = [(size, results.time(f"{kind}/{size}", contestant) / size / scale)
                for size in results.sizes(kind)
                if results.time(f"{kind}/{size}", contestant) is not None]
        if line:
            lines[contestant] = line
    return lines


def write_plots(results, folder):
    folder.mkdir(parents=True, exist_ok=True)
    everyone = ["kexa"] + PEERS
    plain = ["copying the arguments", "std::from_chars", "cutting by hand"]
    drawings = {
        "options": ("An option with its argument", "options, each given once",
                    series(results, "cycle/options", 1000, everyone)),
        "abbreviations": ("The same with unique abbreviations", "options, each given once",
                          series(results, "cycle/abbreviations", 1000, everyone)),
        "arguments": ("An argument, with 30 options", "arguments",
                      series(results, "cycle/arguments", 1000, everyone + plain)),
        "declarations": ("Declaring an option", "options",
                         series(results, "declare/declarations", 1000, everyone)),
        "typed": ("A typed value", "values",
                  series(results, "cycle/typed", 1000, everyone + plain)),
        "lists": ("A piece of a list of texts", "pieces",
                  series(results, "cycle/texts", 1000, everyone + plain)),
    }
    for name, (title, x_label, lines) in drawings.items():
        (folder / f"{name}.svg").write_text(
            plots.log_log(title, x_label, "microseconds for each", lines))


def fill(text, name, content):
    pattern = re.compile(rf"(<!-- generated: {re.escape(name)} -->\n).*?(<!-- end -->)", re.S)
    filled, count = pattern.subn(lambda match: match.group(1) + content + "\n" + match.group(2),
                                 text)
    if count != 1:
        raise SystemExit(f"the document has {count} places for '{name}'")
    return filled


def main(folder, document):
    results = Results(folder)
    document = pathlib.Path(document)
    write_plots(results, document.parent / "performance")
    text = document.read_text()
    contents = {
        "machine": (pathlib.Path(folder) / "machine.txt").read_text().strip(),
        "goals": tables.goals(results),
        "spread": tables.spread(results),
        "ratios": tables.ratios(results),
        "times": tables.times(results),
        "growth": tables.growth(results),
        "instructions": tables.instructions(results),
        "phases": tables.phases(results),
        "memory": tables.memory(results),
        "option file": tables.option_file(results),
        "handlers": tables.handlers(results),
        "library": tables.library(results),
    }
    for name, content in contents.items():
        text = fill(text, name, content)
    document.write_text(text)
    print(contents["ratios"], "\n", contents["goals"], sep="\n")


if __name__ == "__main__":
    main(*sys.argv[1:])
