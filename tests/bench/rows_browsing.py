"""Looking at what was captured: the strip, the tiles, the listing of a full folder."""
import functools

from classroom import lines_of


@functools.lru_cache(maxsize=None)
def browsed(kind, rounds):
    """Measured once for the rows of both strip and tiles."""
    return lines_of("bench_browse", kind, rounds)


def fill(figures, lines):
    """Adds each line to the figure of its name."""
    for name, ours, plain in lines:
        if name in figures:
            figures[name].add(float(ours), float(plain))


def strip(report, plan):
    plain = "load and scale one after the other"
    figures = {
        "strip taken": report.figure("strip of 50 photos taken in this run", "ms", plain, 0.03),
        "strip found": report.figure("strip of 50 photos found at start", "ms", plain, 0.51),
        "strip again found": report.figure("the same strip again", "ms", plain, 0.005),
    }
    for kind in ("taken", "found"):
        fill(figures, browsed(kind, plan.pairs))


def tiles(report, plan):
    nine = "load and scale nine"
    one = "load and scale one"
    figures = {
        "tiles taken": report.figure("nine tiles of photos just taken", "ms", nine, 0.1),
        "tiles found": report.figure("nine tiles of photos found", "ms", nine, 0.55),
        "zoom taken": report.figure("zoom of a photo just taken", "ms", one, 0.3),
        "zoom found": report.figure("zoom of a photo found", "ms", one, 0.3),
        "back found": report.figure("back to nine tiles", "ms", nine, 0.1),
    }
    for kind in ("taken", "found"):
        fill(figures, browsed(kind, plan.pairs))


def listing(report, plan):
    figures = {f"listing {count}": report.figure(f"listing of {count} captures", "ms",
                                                 "directory listing with stat", 1.2)
               for count in (500, 5000, 50000)}
    fill(figures, lines_of("bench_browse", "listing", 2 * plan.pairs))
    growth = report.figure("listing: 50,000 captures for each of 5,000", "times", "linear, 10 times",
                           1.2)
    growth.add(figures["listing 50000"].value / figures["listing 5000"].value, 10)
