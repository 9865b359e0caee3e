"""Photos: how well the picture is scaled, how soon a photo is there, how large it is."""
import os
import time

from classroom import Classroom, Failure, lines_of, now, run_tool
from figures import rounds

frame = 1000 / 30  # ms


def quality(report, _):
    """Arithmetic: each pair would be the same."""
    for what, ours, bare in lines_of("bench_quality"):
        report.figure(f"error against averages of areas, {what}", "dB", "the bare pipeline", 0,
                      "difference").add(float(ours), float(bare))


def encoding(report, plan):
    encode = report.figure("photo 1920x1080, its encoding alone", "ms",
                           "the toolkit's quickest small PNG", 0.35)
    for _, ours, theirs in lines_of("bench_still", "encode", plan.pairs):
        encode.add(float(ours), float(theirs))
    for what, ours, default in lines_of("bench_still", "size"):
        report.figure(f"size of a photo, {what}", "MB", "libpng's level 6",
                      1.1 if "text" in what else 1.3).add(float(ours), float(default))


class Written:
    """When a complete file comes to a folder: the moment it gets its name. Seen by inotifywait's
    older way, a look each millisecond: a name is there or not."""

    def __init__(self, folder):
        self.folder = folder
        self.known = set(os.listdir(folder)) if os.path.isdir(folder) else set()

    def wait(self):
        limit = time.monotonic() + 20
        while time.monotonic() < limit:
            names = os.listdir(self.folder) if os.path.isdir(self.folder) else []
            for name in names:
                if name.startswith("photo") and name.endswith(".png") and name not in self.known:
                    return os.path.join(self.folder, name), now()
            time.sleep(0.001)  # nothing to wait for: looked for again, up to a limit
        raise Failure("no photo came")


def photo(report, plan):
    encoding(report, plan)
    size = "1920x1080"
    file = report.figure("photo 1920x1080: release to complete file", "ms",
                         "the toolkit's quickest small PNG of it", 0.35)
    screen = report.figure("photo: release to the photo on the screen", "ms", "frame period", 3)
    away = report.figure("photo: longest time that the window is away", "ms", "frame period", 1)
    with Classroom() as room:
        scene = os.path.join(room.folder, "desk.png")
        run_tool("bench_still", "scene", scene)
        room.plug("bench", size, "UYVY", 30, "--scene", scene)
        with room.user("bench", size) as user:
            user.start()
            user.do("live")
            rounds(plan, lambda: one_photo(room, user, file, screen, away))


def one_photo(room, user, file, screen, away):
    user.do("buttons", "live", "Photo")
    with room.eyes(photo=user.do("place", "photo")) as eyes, \
            room.pulse(user.do("window")) as pulse:
        written = Written(user.do("folder"))
        released = user.do("press", "live", "Photo")
        path, complete = written.wait()
        seen = eyes.wait(lambda _, at, number: at > released and number >= 0)[1]
        user.do("buttons", "preview", "Apply")
        longest = pulse.longest(released, now())
    user.do("press", "preview", "Apply")
    user.do("press", "photo", "Live")
    user.do("live")
    toolkit = float(lines_of("bench_still", "toolkit", path)[0][0])
    file.add((complete - released) / 1e6, toolkit)
    screen.add((seen - released) / 1e6, frame)
    away.add(longest, frame)
