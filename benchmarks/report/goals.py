"""The goals, each with its limit and what was measured.

Times are medians. Ratios of times are medians of the ratios within a round. Ratios of instructions
come from counts that do not vary.
"""

import typing

from results import CPP_PEERS, PEERS, median


class Growth(typing.NamedTuple):
    """How kexa's cost of one unit grows with the number of units."""
    kind: str  # of the measurement
    small: int
    large: int  # ten times small
    what: str
    limit: float  # of the instructions per unit at the large size, divided by those at the small


# Linear cost is 1. The twentieth above it is for tables, whose sizes are powers of two. Declaring may
# grow as n log n, which is 1.303 here.
GROWTHS = [
    Growth("declare/declarations", 2000, 20000,
           "declaring one of 20,000 options, over one of 2,000", 1.3),
    Growth("cycle/typed", 7000, 70000,
           "a typed value of 70,000, over one of 7,000", 1.05),
    Growth("cycle/texts", 10000, 100000,
           "a list item of 100,000, over one of 10,000 (texts)", 1.05),
    Growth("cycle/integers", 10000, 100000,
           "a list item of 100,000, over one of 10,000 (integers)", 1.05),
    Growth("cycle/allowed/1000", 10000, 100000,
           "one of 100,000 values checked against 1,000, over one of 10,000", 1.05),
]


class Goal(typing.NamedTuple):
    text: str
    limit: float
    value: float | None  # None: not measured
    unit: str = ""
    detail: str = ""
    ratios: typing.Sequence[float] = ()  # of the rounds, where the value is their median

    @property
    def met(self):
        return self.value is not None and self.value <= self.limit


def worst_ratio(results, measurement, peers):
    """Returns the highest ratio of kexa to a peer, and text that names the peer and those that were
    left out: peers that were measured at a smaller size of the same kind but not at this one."""
    ratios = {peer: results.ratio(measurement, "kexa", peer) for peer in peers
              if results.time(measurement, peer) is not None}
    if not ratios:
        return None, ""
    worst = max(ratios, key=ratios.get)
    missing = [peer for peer in peers
               if peer not in ratios and results.smaller(measurement, peer) is not None]
    return ratios[worst], worst + ("; without " + ", ".join(missing) if missing else "")


def time_growths(results, kind, small, large):
    """Returns, for each round, kexa's time per unit at the large size divided by that at the small
    size."""
    return [ratio * small / large for ratio in
            results.ratios(f"{kind}/{large}", "kexa", "kexa", f"{kind}/{small}")]


def option_file_ratios(results, size):
    """Returns, for each round, the time to parse an option file divided by the time to parse the same
    arguments from memory plus the time to read the file."""
    rounds = (times.get(f"file/lines/{size}", {}) for times in results.rounds)
    return [times["option file"] / (times["memory"] + times["reading"])
            for times in rounds if len(times) == 3]


def all_goals(results):
    goals = []

    def add(text, limit, value, unit="", detail=""):
        goals.append(Goal(text, limit, value, unit, detail))

    def add_ratios(text, limit, ratios):
        goals.append(Goal(text, limit, median(ratios), ratios=ratios))

    value, detail = worst_ratio(results, "cycle/small", CPP_PEERS)
    add("small command line, over the fastest C++ peer", 0.25, value, detail=detail)
    add_ratios("small command line, over `getopt_long`", 2.0,
               results.ratios("cycle/small", "kexa", "getopt_long"))
    for size in (10000, 1000000):
        add_ratios(f"30 options, {size:,} arguments, over `getopt_long`", 0.75,
                   results.ratios(f"cycle/arguments/{size}", "kexa", "getopt_long"))
    add_ratios("an argument of 1,000,000, over one of 10,000", 1.5,
               time_growths(results, "cycle/arguments", 10000, 1000000))
    for kind, what, size, limit in (("options", "full names", 2000, 0.1),
                                    ("options", "full names", 20000, 0.15),
                                    ("abbreviations", "abbreviations", 2000, 0.1),
                                    ("abbreviations", "abbreviations", 20000, 0.1)):
        value, detail = worst_ratio(results, f"cycle/{kind}/{size}", PEERS)
        add(f"{size:,} options, {what}, over `getopt_long` and every C++ peer", limit, value,
            detail=detail)
    for growth in GROWTHS:
        add(f"{growth.what} (instructions)", growth.limit, results.counts["growth"][growth.kind])
    add_ratios("option file of 1,000,000 lines, over memory plus reading", 2.0,
               option_file_ratios(results, 1000000))
    memory = results.counts["option file"]
    add("option file of 1,000,000 lines, peak of memory over the least that its result holds",
        3.0, memory["peak_bytes"] / memory["least_result_bytes"])
    walk = results.time("walk/values/1000000", "first walk")
    add("walking 1,000,000 values, each", 100, None if walk is None else walk / 1e6, " ns")
    value, detail = worst_ratio(results, "help/declarations/2000", PEERS)
    add("full help of 2,000 options, over the fastest peer", 0.5, value, detail=detail)
    add_ratios("what a handler adds, over its calls made directly", 3.0,
               results.ratios("handlers/arguments/10000", "added", "bare calls"))
    add("the stripped library", 230, results.counts["library bytes"] / 1000, " KB")
    loads = results.counts["load microseconds"]
    add("loading the library, in a C++ program", 1.0, (loads["with kexa"] - loads["C++ program"]) / 1000,
        " ms")
    return goals
