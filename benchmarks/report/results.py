"""What scripts/bench.sh measured, read back: times by round, and counts."""

import json
import pathlib
import statistics

CPP_PEERS = ["args", "TCLAP", "CLI11", "Boost.Program_options", "cxxopts"]
PEERS = ["getopt_long", "popt"] + CPP_PEERS
# Code that is no parser and does a part of the work.
PLAIN = ["copying the arguments", "std::from_chars", "splitting by hand", "std::unordered_set"]


def median(values):
    """Returns None when there are no values."""
    return statistics.median(values) if values else None


def size_of(measurement):
    """Returns the last number of a measurement's name, None where the name does not end in one."""
    size = measurement.rsplit("/", 1)[-1]
    return int(size) if size.isdigit() else None


class Results:
    def __init__(self, folder):
        folder = pathlib.Path(folder)
        self.rounds = [self._read_round(path) for path in sorted(folder.glob("round-*"))]
        if not self.rounds:
            raise SystemExit(f"no rounds in {folder}")
        self.counts = json.loads((folder / "counts.json").read_text())

    @staticmethod
    def _read_round(folder):
        """Returns {measurement: {contestant: nanoseconds}}; a measurement is "cycle/small"."""
        times = {}
        entries = [entry for path in sorted(folder.glob("*.json"))
                   for entry in json.loads(path.read_text())["benchmarks"]]
        for entry in entries:
            if entry.get("error_occurred"):
                raise SystemExit(f"{entry['name']}: {entry['error_message']}")
            parts = entry["name"].split("/")
            manual = parts[-1] == "manual_time"
            parts = [part for part in parts
                     if part != "manual_time" and not part.startswith("iterations:")]
            time = entry["real_time"] if manual else entry["cpu_time"]
            assert entry["time_unit"] == "ns"
            # A measurement that runs its contestants in turns reports each as a counter of median
            # nanoseconds.
            in_turns = {key.removeprefix("ns "): value for key, value in entry.items()
                        if key.startswith("ns ")}
            times.setdefault("/".join(parts[:-1]), {}).update(in_turns or {parts[-1]: time})
        return times

    def sizes(self, kind):
        """Returns the sizes at which a kind such as "cycle/arguments" was measured, ascending."""
        prefix = kind + "/"
        names = {name for times in self.rounds for name in times if name.startswith(prefix)}
        return sorted(int(name[len(prefix):]) for name in names if name[len(prefix):].isdigit())

    def smaller(self, measurement, contestant):
        """Returns the measurement of the same kind with the largest size below this one's at which
        the contestant was measured, or None."""
        if size_of(measurement) is None:
            return None
        kind = measurement.rsplit("/", 1)[0]
        sizes = [size for size in self.sizes(kind) if size < size_of(measurement)
                 and self.time(f"{kind}/{size}", contestant) is not None]
        return f"{kind}/{max(sizes)}" if sizes else None

    def time(self, measurement, contestant):
        """Returns the median in nanoseconds, or None."""
        return median([times[measurement][contestant] for times in self.rounds
                       if contestant in times.get(measurement, {})])

    def was_measured_once(self, measurement, contestant):
        return sum(contestant in times.get(measurement, {}) for times in self.rounds) == 1

    def ratios(self, measurement, contestant, other, other_measurement=None):
        """Returns one time divided by another for each round that has both."""
        found = []
        for one in self.rounds:
            times = one.get(measurement, {})
            others = one.get(other_measurement or measurement, {})
            if contestant in times and other in others:
                found.append(times[contestant] / others[other])
        return found

    def ratio(self, measurement, contestant, other, other_measurement=None):
        """Returns the median of the rounds' ratios, or None."""
        return median(self.ratios(measurement, contestant, other, other_measurement))
