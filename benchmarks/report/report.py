"""Prints the goals with what was measured. Given a document, also prints the table of ratios and writes
all tables into the document and the plots into the folder "performance" beside it.

    report.py RESULTS_FOLDER [docs/performance.md]

Text between "<!-- generated: NAME -->" and "<!-- end -->" is replaced; all other text is kept.
"""

import pathlib
import re
import sys

import plots
import tables
from results import PEERS, PLAIN, Results


def series(results, kind, scale, contestants):
    """Returns {contestant: [(size, nanoseconds for each unit / scale)]}."""
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
    drawings = {
        "options": ("An option with its argument", "options, each given once",
                    series(results, "cycle/options", 1000, everyone)),
        "abbreviations": ("An abbreviated option with its argument", "options, each given once",
                          series(results, "cycle/abbreviations", 1000, everyone)),
        "arguments": ("An argument, with 30 options", "arguments",
                      series(results, "cycle/arguments", 1000, everyone + PLAIN)),
        "declarations": ("Declaring an option", "options",
                         series(results, "declare/declarations", 1000, everyone)),
        "typed": ("A typed value", "values",
                  series(results, "cycle/typed", 1000, everyone + PLAIN)),
        "lists": ("An item of a list of texts", "items",
                  series(results, "cycle/texts", 1000, everyone + PLAIN)),
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


def write_document(results, folder, document):
    write_plots(results, document.parent / "performance")
    contents = {
        "machine": (folder / "machine.txt").read_text().strip(),
        "goals": tables.goals(results),
        "ratios": tables.ratios(results),
        "growth": tables.growth(results),
        "instructions": tables.instructions(results),
        "memory": tables.memory(results),
        "option file": tables.option_file(results),
        "handlers": tables.handlers(results),
        "library": tables.library(results),
    }
    text = document.read_text()
    for name, content in contents.items():
        text = fill(text, name, content)
    document.write_text(text)


def main(folder, document=None):
    folder = pathlib.Path(folder)
    results = Results(folder)
    if document is not None:
        write_document(results, folder, pathlib.Path(document))
        print(tables.ratios(results), "\n")
    print(tables.goals(results))


if __name__ == "__main__":
    main(*sys.argv[1:])
