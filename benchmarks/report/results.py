"""What scripts/bench.sh measured, read back: times by round, counts, sizes."""

import json
import pathlib
import statistics

PEERS = ["getopt_long", "popt", "args", "TCLAP", "CLI11", "Boost.Program_options", "cxxopts"]
CPP_PEERS = ["args", "TCLAP", "CLI11", "Boost.Program_options", "cxxopts"]


def median(values):
    """None of no values."""
    return statistics.median(values) if values else None


class Results:
    def __init__(self, folder):
        folder = pathlib.Path(folder)
        self.rounds = [self._read_round(path) for path in sorted(folder.glob("round-*"))]
        if not self.rounds:
            raise SystemExit(f"no rounds in {folder}")
        self.counts = json.loads((folder / "counts.json").read_text())

    @staticmethod
    def _read_round(folder):
        """{measurement: {contestant: nanoseconds}}, where a measurement is "cycle/small"."""
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
            # What was measured by turns comes as counters of median nanoseconds.
            by_turns = {key.removeprefix("ns "): value for key, value in entry.items()
                        if key.startswith("ns ")}
            times.setdefault("/".join(parts[:-1]), {}).update(by_turns or {parts[-1]: time})
        return times

    def measurements(self):
        return list(self.rounds[0])

    def contestants(self, measurement):
        return list(self.rounds[0].get(measurement, {}))

    def sizes(self, kind):
        """The sizes at which "cycle/arguments" was measured."""
        prefix = kind + "/"
        found = [int(name[len(prefix):]) for name in self.measurements()
                 if name.startswith(prefix) and name[len(prefix):].isdigit()]
        return sorted(found)

    def time(self, measurement, contestant):
        """Median nanoseconds, or None."""
        times = [one[measurement][contestant] for one in self.rounds
                 if contestant in one.get(measurement, {})]
        return median(times)

    def was_measured_once(self, measurement, contestant):
        return sum(contestant in one.get(measurement, {}) for one in self.rounds) == 1

    def ratios(self, measurement, contestant, other, other_measurement=None):
        """Of each round that has both, one time divided by another."""
        found = []
        for one in self.rounds:
            times = one.get(measurement, {})
            others = one.get(other_measurement or measurement, {})
            if contestant in times and other in others:
                found.append(times[contestant] / others[other])
        return found

    def ratio(self, measurement, contestant, other, other_measurement=None):
        """The median of those ratios, or None."""
        return median(self.ratios(measurement, contestant, other, other_measurement))
