"""The goals, each with what was measured. All times are medians; ratios of times are medians of those
within a round, ratios of instructions are of counts that do not vary."""

import typing

from results import CPP_PEERS, PEERS, median


class Growth(typing.NamedTuple):
    """How the cost of something grows with how much of it there is."""
    kind: str  # of the measurement
    small: int
    large: int  # ten times that
    what: str
    limit: float  # of kexa's instructions for each at the large size, divided by those at the small one
    plain: str | None = None  # code that is no parser and does a part of the same


# Linear is 1; a twentieth is left for tables, whose sizes are powers of two. Declaring may grow as
# n log n, which is 1.303 here.
GROWTHS = [
    Growth("declare/declarations", 2000, 20000,
           "declaring one of 20,000 options, of one of 2,000", 1.3),
    Growth("cycle/typed", 7000, 70000,
           "a typed value of 70,000, of one of 7,000", 1.05, "std::from_chars"),
    Growth("cycle/texts", 10000, 100000,
           "a list's piece of 100,000, of one of 10,000 (texts)", 1.05, "cutting by hand"),
    Growth("cycle/integers", 10000, 100000,
           "a list's piece of 100,000, of one of 10,000 (integers)", 1.05, "cutting by hand"),
    Growth("cycle/allowed/1000", 10000, 100000,
           "one of 100,000 values checked against 1,000, of one of 10,000", 1.05,
           "std::unordered_set"),
]


class Goal:
    def __init__(self, text, limit, value, unit="", detail=""):
        self.text, self.limit, self.value, self.unit, self.detail = text, limit, value, unit, detail

    @property
    def met(self):
        return self.value is not None and self.value <= self.limit


def worst_ratio(results, measurement, peers):
    """The highest ratio of kexa to a peer at this size, and that peer."""
    ratios = {peer: results.ratio(measurement, "kexa", peer) for peer in peers}
    ratios = {peer: ratio for peer, ratio in ratios.items() if ratio is not None}
    if not ratios:
        return None, ""
    peer = max(ratios, key=ratios.get)
    return ratios[peer], peer


def growths(results, kind, small, large, peer="kexa"):
    """Of each round, the time for a unit at the large size divided by that at the small one."""
    return [ratio * small / large for ratio in
            results.ratios(f"{kind}/{large}", peer, peer, f"{kind}/{small}")]


def handler_costs(results):
    """Of each round, what one handler adds to a parse, divided by the same calls made directly."""
    return results.ratios("handlers/arguments/10000", "added", "bare calls")


def closest(results):
    """What short rounds repeat: (what, ratios of the rounds)."""
    yield "small command line, of `getopt_long`", results.ratios("cycle/small", "kexa",
                                                                 "getopt_long")
    for size in (10000, 1000000):
        yield (f"30 options, {size:,} arguments, of `getopt_long`",
               results.ratios(f"cycle/arguments/{size}", "kexa", "getopt_long"))
    yield ("an argument of 1,000,000, of one of 10,000",
           growths(results, "cycle/arguments", 10000, 1000000))
    for one in GROWTHS:
        yield one.what, growths(results, one.kind, one.small, one.large)
        if one.plain is not None:
            yield (f"the same by plain code ({one.plain})",
                   growths(results, one.kind, one.small, one.large, one.plain))
    yield "what a handler adds, of its calls made directly", handler_costs(results)


def option_file_ratio(results, size):
    ratios = []
    for one in results.rounds:
        times = one.get(f"file/lines/{size}", {})
        if len(times) == 3:
            ratios.append(times["option file"] / (times["memory"] + times["reading"]))
    return sorted(ratios)[len(ratios) // 2] if ratios else None


def all_goals(results):
    goals = []

    def add(text, limit, value, unit="", detail=""):
        goals.append(Goal(text, limit, value, unit, detail))

    ratio, peer = worst_ratio(results, "cycle/small", CPP_PEERS)
    add("small command line, of the fastest C++ peer", 0.5, ratio, detail=peer)
    add("small command line, of `getopt_long`", 1.5,
        results.ratio("cycle/small", "kexa", "getopt_long"))
    for size in (10000, 1000000):
        add(f"30 options, {size:,} arguments, of `getopt_long`", 1.0,
            results.ratio(f"cycle/arguments/{size}", "kexa", "getopt_long"))
    add("an argument of 1,000,000, of one of 10,000", 1.2,
        median(growths(results, "cycle/arguments", 10000, 1000000)))
    for kind, what in (("options", "full names"), ("abbreviations", "abbreviations")):
        for size in (2000, 20000):
            ratio, peer = worst_ratio(results, f"cycle/{kind}/{size}", PEERS)
            add(f"{size:,} options, {what}, of `getopt_long` and every C++ peer", 0.2, ratio,
                detail=peer)
    for one in GROWTHS:
        add(f"{one.what} (instructions)", one.limit, results.counts["growth"][one.kind])
    add("option file of 1,000,000 lines, of memory plus reading", 2.0,
        option_file_ratio(results, 1000000))
    memory = results.counts["memory"]["option file"]
    add("its peak of memory, of the least that the result holds", 3.0,
        memory["peak_bytes"] / memory["least_result_bytes"])
    walk = results.time("walk/values/1000000", "first walk")
    add("walking 1,000,000 values, each", 100, None if walk is None else walk / 1e6, " ns")
    ratio, peer = worst_ratio(results, "help/declarations/2000", PEERS)
    add("full help of 2,000 options, of the fastest peer", 0.5, ratio, detail=peer)
    counts = results.counts["instructions"]
    for kind, what in (("small", "small command line"), ("arguments", "each of many arguments")):
        cost = 100 * (counts["kexa"][kind] / counts["kexa without trace"][kind] - 1)
        add(f"a trace that is off, {what} (instructions)", 3.0, cost, " %")
    add("what a handler adds, of its calls made directly", 3.0,
        median(handler_costs(results)))
    add("the stripped library", 250, results.counts["library bytes"] / 1000, " KB")
    loads = results.counts["load microseconds"]
    add("loading it, in a C++ program", 1.0, (loads["with kexa"] - loads["C++ program"]) / 1000,
        " ms")
    return goals
