"""The tables of docs/performance.md, as Markdown."""

import statistics

from goals import all_goals
from results import PEERS, PLAIN, size_of

ROWS = [  # measurement, what it is, number of units in it (None: the last number of its name)
    ("cycle/small", "20 options, 12 arguments", 1),
    ("cycle/arguments/10000", "30 options, 10,000 arguments, each", None),
    ("cycle/arguments/1000000", "30 options, 1,000,000 arguments, each", None),
    ("cycle/options/2000", "2,000 options, 2,000 arguments, each", None),
    ("cycle/options/20000", "20,000 options, 20,000 arguments, each", None),
    ("cycle/abbreviations/2000", "2,000 options, abbreviated, each", None),
    ("cycle/abbreviations/20000", "20,000 options, abbreviated, each", None),
    ("declare/declarations/2000", "declaring 2,000 options, each", None),
    ("declare/declarations/20000", "declaring 20,000 options, each", None),
    ("cycle/typed/7000", "typed values of seven types, each", None),
    ("cycle/texts/10000", "a list of 10,000 texts, each item", None),
    ("cycle/integers/10000", "a list of 10,000 integers, each item", None),
    ("cycle/allowed/1000/10000", "1,000 allowed values, 10,000 arguments, each", None),
    ("help/declarations/2000", "full help of 2,000 options, each", None),
]

GROWTH_ROWS = [  # kind of measurement, contestant, what one unit is
    ("cycle/integers", "kexa", "a list item, integer"),
    ("help/declarations", "kexa", "an option in the help"),
    ("file/lines", "option file", "a line of an option file"),
    ("walk/values", "first walk", "a value read from the result"),
]


def table(header, rows):
    lines = ["| " + " | ".join(header) + " |",
             "|" + "---|" * len(header)]
    lines += ["| " + " | ".join(row) + " |" for row in rows]
    return "\n".join(lines)


def number(value):
    if value is None:
        return ""
    if value >= 100:
        return f"{value:,.0f}"
    return f"{value:.3g}" if value >= 10 or value < 1 else f"{value:.2f}"


def time(nanoseconds):
    if nanoseconds is None:
        return ""
    for unit, size in (("s", 1e9), ("ms", 1e6), ("us", 1e3)):
        if nanoseconds >= size:
            return f"{number(nanoseconds / size)} {unit}"
    return f"{number(nanoseconds)} ns"


def ratio_cell(results, measurement, peer):
    if results.time(measurement, peer) is not None:
        mark = " (once)" if results.was_measured_once(measurement, peer) and \
            len(results.rounds) > 1 else ""
        return number(results.ratio(measurement, "kexa", peer)) + mark
    smaller = results.smaller(measurement, peer)
    if smaller is None:
        return ""
    ratio = results.ratio(measurement, "kexa", peer, smaller) * \
        size_of(smaller) / size_of(measurement)
    return f"{number(ratio)} (at {size_of(smaller):,})"


def plain_cell(results, measurement):
    return ", ".join(f"{number(results.ratio(measurement, 'kexa', name))} ({name})"
                     for name in PLAIN if results.time(measurement, name) is not None)


def ratios(results):
    rows = []
    for measurement, what, units in ROWS:
        kexa = results.time(measurement, "kexa")
        if kexa is None:
            continue
        rows.append([what, time(kexa / (units or size_of(measurement)))] +
                    [ratio_cell(results, measurement, peer) for peer in PEERS] +
                    [plain_cell(results, measurement)])
    return table(["workload", "kexa"] + [f"over {peer}" for peer in PEERS] + ["over plain code"],
                 rows)


def middle_half(ratios):
    """Returns the lower and the upper quarter of the ratios as text, empty for fewer than four."""
    if len(ratios) < 4:
        return ""
    lower, _, upper = statistics.quantiles(ratios, n=4, method="inclusive")
    return f"{number(lower)} to {number(upper)}"


def goals(results):
    rows = []
    for goal in all_goals(results):
        measured = "not measured"
        if goal.value is not None:
            measured = f"{number(goal.value)}{goal.unit}"
        if goal.detail:
            measured += f" ({goal.detail})"
        rows.append([goal.text, f"{number(goal.limit)}{goal.unit}", measured,
                     middle_half(goal.ratios), "yes" if goal.met else "**no**"])
    return table(["goal", "at most", "measured", "middle half of the rounds", "met"], rows)


def growth(results):
    rows = []
    for kind, contestant, what in GROWTH_ROWS:
        cells = [f"{size:,}: {time(results.time(f'{kind}/{size}', contestant) / size)}"
                 for size in results.sizes(kind)
                 if results.time(f"{kind}/{size}", contestant) is not None]
        rows.append([what, ", ".join(cells)])
    for kind, what in (("allowed", "a value, by the number of allowed values"),
                       ("allowed_prefix", "an abbreviated value, by the number of allowed values")):
        cells = []
        for entries in (10, 100, 1000, 10000):
            found = results.time(f"cycle/{kind}/{entries}/10000", "kexa")
            if found is not None:
                cells.append(f"{entries:,}: {time(found / 10000)}")
        rows.append([what, ", ".join(cells)])
    return table(["what", "time for each, by how many there are"], rows)


def instructions(results):
    rows = [[name, number(counts["small"]), number(counts["arguments"]),
             number(counts.get("options")), number(counts.get("declarations"))]
            for name, counts in results.counts["instructions"].items()]
    return table(["", "small command line", "each of 1,000 arguments, 30 options",
                  "each of 500 options with its argument", "declaring each of 500 options"], rows)


def memory(results):
    counts = results.counts["memory"]
    rows = [[name, number(counts["texts"][name]), number(counts["numbers"][name])]
            for name in counts["texts"]]
    return table(["bytes of heap for each stored value", "text (12 characters on average)",
                  "32-bit integer"], rows)


def option_file(results):
    counts = results.counts["option file"]
    times = [time(results.time("file/lines/1000000", name))
             for name in ("option file", "memory", "reading")]
    size, least, peak, after = (
        f"{counts[key] / 1e6:,.1f} MB" for key in
        ("bytes", "least_result_bytes", "peak_bytes", "resident_bytes_after"))
    return table(["an option file of 1,000,000 lines", ""], [
        ["size of the file", size],
        ["parsing it", times[0]],
        ["parsing the same arguments from memory", times[1]],
        ["reading the file alone", times[2]],
        ["least that its result can hold", least],
        ["resident memory that parsing adds, at its peak", peak],
        ["resident memory that parsing adds, afterwards", after]])


def handlers(results):
    name = "handlers/arguments/10000"
    rows = [[what, time(results.time(name, key) / 10000)] for what, key in
            (("no handler", "0"), ("one handler", "1"), ("four handlers", "4"),
             ("what the first handler adds", "added"),
             ("the bare calls of one handler", "bare calls"))
            if results.time(name, key) is not None]
    return table(["10,000 arguments, two events each", "time for each argument"], rows)


def library(results):
    loads = results.counts["load microseconds"]
    return table(["the library", ""], [
        ["size, stripped", f"{results.counts['library bytes']:,} bytes"],
        ["running a C program that does nothing", f"{number(loads['C program'])} us"],
        ["running a C++ program that does nothing", f"{number(loads['C++ program'])} us"],
        ["running the C++ program with kexa loaded", f"{number(loads['with kexa'])} us"]])
