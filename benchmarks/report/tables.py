"""The tables of docs/performance.md, as Markdown."""

import statistics

from goals import all_goals, closest
from results import PEERS

ROWS = [  # measurement, what it is, units in it (None: the last number of its name)
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
    ("cycle/texts/10000", "a list of 10,000 texts, each piece", None),
    ("cycle/integers/10000", "a list of 10,000 integers, each piece", None),
    ("cycle/allowed/1000/10000", "1,000 allowed values, 10,000 arguments, each", None),
    ("help/declarations/2000", "full help of 2,000 options, each", None),
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


def units_of(measurement, units):
    return units or int(measurement.rsplit("/", 1)[1])


def fallback(results, measurement, peer):
    """Where a peer cannot be measured at this size: the largest size below at which it can."""
    kind, size = measurement.rsplit("/", 1)
    if not size.isdigit():
        return None
    sizes = [other for other in results.sizes(kind)
             if other < int(size) and results.time(f"{kind}/{other}", peer) is not None]
    return f"{kind}/{max(sizes)}" if sizes else None


def plain_contestants(results):
    return [name for row in ROWS for name in results.contestants(row[0])
            if name not in PEERS + ["kexa"]]


def ratio_cell(results, measurement, peer):
    if results.time(measurement, peer) is not None:
        mark = " (once)" if results.was_measured_once(measurement, peer) and \
            len(results.rounds) > 1 else ""
        return number(results.ratio(measurement, "kexa", peer)) + mark
    smaller = fallback(results, measurement, peer)
    if smaller is None:
        return ""
    ratio = results.ratio(measurement, "kexa", peer, smaller) * \
        units_of(smaller, None) / units_of(measurement, None)
    return f"{number(ratio)} (at {int(smaller.rsplit('/', 1)[1]):,})"


def plain_cell(results, measurement):
    cells = [f"{number(results.ratio(measurement, 'kexa', name))} ({name})"
             for name in results.contestants(measurement)
             if name not in PEERS + ["kexa", "kexa, from UTF-8"]
             and "getopt" not in name]
    return ", ".join(cells)


def ratios(results):
    rows = []
    for measurement, what, units in ROWS:
        kexa = results.time(measurement, "kexa")
        if kexa is None:
            continue
        rows.append([what, time(kexa / units_of(measurement, units))] +
                    [ratio_cell(results, measurement, peer) for peer in PEERS] +
                    [plain_cell(results, measurement)])
    return table(["workload", "kexa"] + [f"of {peer}" for peer in PEERS] + ["of plain code"], rows)


def times(results):
    rows = []
    for measurement, what, units in ROWS:
        count = units_of(measurement, units)
        cells = []
        for peer in ["kexa"] + PEERS:
            found = results.time(measurement, peer)
            smaller = None if found is not None else fallback(results, measurement, peer)
            if smaller is not None:
                size = units_of(smaller, None)
                cells.append(f"{time(results.time(smaller, peer) / size)} (at {size:,})")
            else:
                cells.append(time(None if found is None else found / count))
        rows.append([what] + cells)
    return table(["workload", "kexa"] + PEERS, rows)


def goals(results):
    rows = [[goal.text, f"{number(goal.limit)}{goal.unit}",
             f"{number(goal.value)}{goal.unit}" + (f" ({goal.detail})" if goal.detail else ""),
             "yes" if goal.met else "**no**"] for goal in all_goals(results)]
    return table(["goal", "at most", "measured", "met"], rows)


def spread(results):
    rows = []
    for what, ratios in closest(results):
        if len(ratios) > 1:
            quarters = statistics.quantiles(ratios, n=4, method="inclusive")
            rows.append([what, str(len(ratios))] +
                        [number(value) for value in (min(ratios), *quarters, max(ratios))])
    return table(["ratio", "rounds", "least", "lower quarter", "median", "upper quarter", "most"],
                 rows)


def growth(results):
    rows = []
    for kind, what in (("cycle/arguments", "an argument, 30 options"),
                       ("cycle/options", "an option with its argument"),
                       ("cycle/abbreviations", "the same, abbreviated"),
                       ("declare/declarations", "a declaration"),
                       ("cycle/typed", "a typed value"),
                       ("cycle/texts", "a list's piece, text"),
                       ("cycle/integers", "a list's piece, integer"),
                       ("help/declarations", "an option in the help"),
                       ("file/lines", "a line of an option file"),
                       ("walk/values", "a value walked")):
        name = {"file/lines": "option file", "walk/values": "first walk"}.get(kind, "kexa")
        cells = [f"{size:,}: {time(results.time(f'{kind}/{size}', name) / size)}"
                 for size in results.sizes(kind)
                 if results.time(f"{kind}/{size}", name) is not None]
        rows.append([what, ", ".join(cells)])
    for kind in ("allowed", "allowed_prefix"):
        cells = []
        for entries in (10, 100, 1000, 10000):
            found = results.time(f"cycle/{kind}/{entries}/10000", "kexa")
            if found is not None:
                cells.append(f"{entries:,}: {time(found / 10000)}")
        rows.append(["a value among so many allowed" +
                     (", abbreviated" if "prefix" in kind else ""), ", ".join(cells)])
    return table(["what", "time for each, by how many there are"], rows)


def instructions(results):
    counts = results.counts["instructions"]
    rows = [[name, number(one["small"]), number(one["arguments"]), number(one.get("options")),
             number(one.get("declarations"))] for name, one in counts.items()]
    return table(["", "small command line", "each of 1,000 arguments, 30 options",
                  "each of 500 options with its argument", "declaring each of 500 options"], rows)


def phases(results):
    small, arguments = (results.counts["phases"][key] for key in ("small", "arguments"))
    rows = [["all", number(small["total"]), number(arguments["total"])]]
    rows += [[name, number(cost), number(arguments["operations"][name])]
             for name, cost in small["operations"].items()]
    lines = [table(["operation", "small command line", "each of 10,000 arguments"], rows), "",
             "The functions that take the most, without those that they call:", ""]
    merged = [[first[0], number(first[1]), second[0], number(second[1])] for first, second in
              zip(small["functions"].items(), arguments["functions"].items())]
    lines.append(table(["small command line", "instructions", "each of 10,000 arguments",
                        "instructions"], merged))
    return "\n".join(lines)


def memory(results):
    counts = results.counts["memory"]
    rows = [[name, number(counts["texts"][name]), number(counts["numbers"][name])]
            for name in counts["texts"]]
    return table(["bytes of heap for each stored value", "text (12 characters on average)",
                  "32-bit integer"], rows)


def option_file(results):
    counts = results.counts["memory"]["option file"]
    rows = [[f"{size:,}", *(time(results.time(f"file/lines/{size}", name))
                            for name in ("option file", "memory", "reading"))]
            for size in results.sizes("file/lines")]
    megabytes = {key: f"{value / 1e6:,.1f} MB" for key, value in counts.items()}
    return table(["lines", "parsing the file", "parsing the same from memory",
                  "reading the file alone"], rows) + "\n\n" + (
        f"The file of 1,000,000 lines has {megabytes['bytes']}. Its result must hold at least "
        f"{megabytes['least_result_bytes']} (each text once as wide text; for each value a "
        f"pointer to it, a typed value of 12 bytes and a position). Parsing it adds at its peak "
        f"{megabytes['peak_bytes']} of resident memory, of which "
        f"{megabytes['resident_bytes_after']} stay with the result.")


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
    return table(["", ""], [
        ["stripped library", f"{results.counts['library bytes']:,} bytes"],
        ["a C program that does nothing", f"{number(loads['C program'])} us"],
        ["a C++ program that does nothing", f"{number(loads['C++ program'])} us"],
        ["the same, with kexa loaded", f"{number(loads['with kexa'])} us"]])
