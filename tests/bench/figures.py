"""Figures of the bench: pairs of a value and its baseline, what they are to reach, the table."""
import json
import os
import statistics

from classroom import Failure


class Plan:
    """How much is to be measured."""

    def __init__(self, pairs, seconds, long_seconds):
        self.pairs = pairs
        self.seconds = seconds  # of one measure of something that goes on evenly
        self.long_seconds = long_seconds  # of what must not happen once in a minute


class Figure:
    """One line of the table. `mark` is the most that the judged number may be; None for none.
    Judged is the ratio, or the value, or what the value is above its baseline."""

    def __init__(self, what, unit, baseline, mark=None, judged="ratio"):
        self.row = None
        self.what = what
        self.unit = unit
        self.baseline = baseline
        self.mark = mark
        self.judged = judged
        self.pairs = []  # (value, baseline's value)
        self.failure = None

    def add(self, value, baseline_value):
        self.pairs.append((value, baseline_value))

    @property
    def value(self):
        return statistics.median(pair[0] for pair in self.pairs)

    @property
    def baseline_value(self):
        return statistics.median(pair[1] for pair in self.pairs)

    @property
    def ratio(self):
        """The median of the pairs' ratios; None where a baseline is nothing."""
        if any(pair[1] == 0 for pair in self.pairs):
            return None
        return statistics.median(pair[0] / pair[1] for pair in self.pairs)

    @property
    def number(self):
        if self.judged == "value":
            return self.value
        if self.judged == "difference":
            return statistics.median(pair[0] - pair[1] for pair in self.pairs)
        return self.ratio

    @property
    def is_reached(self):
        if self.mark is None:
            return None
        return bool(self.pairs) and self.number is not None and self.number <= self.mark

    def record(self):
        known = bool(self.pairs)
        return {
            "row": self.row,
            "what": self.what,
            "value": self.value if known else None,
            "unit": self.unit,
            "baseline": self.baseline,
            "baseline_value": self.baseline_value if known else None,
            "ratio": self.ratio if known else None,
            "mark": self.mark,
            "judged": self.judged,
            "reached": self.is_reached,
            "pairs": self.pairs,
            "failure": self.failure,
        }

    def line(self):
        if not self.pairs:
            return f"{self.row:>3}  {self.what}: not measured, {self.failure}"
        ratio = "-" if self.ratio is None else f"{self.ratio:.3f}"
        text = (f"{self.row:>3}  {self.what}: {short(self.value)} {self.unit}, "
                f"{self.baseline} {short(self.baseline_value)}, ratio {ratio}")
        if self.mark is not None:
            judged = "" if self.judged == "ratio" else f"{self.judged} "
            text += f"; to reach: {judged}{self.mark} {'(reached)' if self.is_reached else '(NOT reached)'}"
        return text


def short(number):
    return f"{number:.0f}" if abs(number) >= 100 else f"{number:.3g}"


class Report:
    """The figures of all rows, printed as they come and kept as a file."""

    def __init__(self, path):
        self.path = path
        self.figures = []
        self.row = None

    def figure(self, *arguments, **options):
        figure = Figure(*arguments, **options)
        figure.row = self.row
        self.figures.append(figure)
        return figure

    def fail(self, failure):
        """What the row has no pairs of could not be measured."""
        for figure in self.figures:
            if figure.row == self.row and not figure.pairs:
                figure.failure = failure

    def show(self, row):
        for figure in self.figures:
            if figure.row == row:
                print(figure.line(), flush=True)
        self.keep()

    def keep(self):
        os.makedirs(os.path.dirname(self.path), exist_ok=True)
        with open(self.path, "w", encoding="utf-8") as file:
            json.dump([figure.record() for figure in self.figures], file, indent=1)
            file.write("\n")


def rounds(plan, measure):
    """Calls measure() as often as there are to be pairs. One that fails is tried once more: a
    machine that was too busy says nothing; one that fails again and again is a failure."""
    failures = 0
    done = 0
    while done < plan.pairs:
        try:
            measure()
            done += 1
        except Failure:
            failures += 1
            if failures > 2:
                raise
