"""The live picture: what it costs, and how old it is."""
import os
import time

from classroom import Classroom, Failure, now, thread_seconds
from figures import rounds

settle = 1.5  # s that a pipeline just started takes to run evenly

bare = "the bare pipeline"


def caps_of(size, form, rate):
    width, height = size.split("x")
    kind = "image/jpeg" if form == "MJPG" else f"video/x-raw,format={form}"
    return f"{kind},width={width},height={height},framerate={rate}/1"


def bare_pipeline(size, form, rate, shown):
    """GStreamer's own shortest way from the camera to a picture of the same size on the screen."""
    width, height = shown.split("x")
    decoder = "jpegdec ! " if form == "MJPG" else ""
    return (f"pipewiresrc target-object=bench do-timestamp=true ! {caps_of(size, form, rate)} ! "
            f"{decoder}videoconvertscale ! video/x-raw,format=BGRx,width={width},height={height} ! "
            "ximagesink sync=false")


class Cost:
    """What a program and the X server use while frames come to a place of the screen."""

    def __init__(self, room, pid, eyes, place, seconds):
        time.sleep(settle)  # nothing to wait for: until it runs evenly
        begin, before = now(), thread_seconds(pid) + thread_seconds(room.server)
        time.sleep(seconds)  # nothing to wait for: what is measured
        end, after = now(), thread_seconds(pid) + thread_seconds(room.server)
        frames = eyes.frames(place, begin, end)
        if len(set(frames)) < 2:
            raise Failure("no picture moves on the screen")
        # A machine that is too busy to show all frames would seem a quick one.
        self.per_frame = 1000 * (after - before) / len(set(frames))  # ms
        self.dropped = frames[-1] - frames[0] + 1 - len(set(frames))
        self.rate = len(set(frames)) / ((end - begin) / 1e9)


def program_cost(room, size, seconds):
    with room.user("bench", size) as user:
        user.start()
        user.do("live")
        with room.eyes(picture=user.do("place", "video")) as eyes:
            return Cost(room, user.pid, eyes, "picture", seconds)


def shown_size(room, size):
    """How large the program shows its camera on this screen."""
    with room.user("bench", size) as user:
        return user.do("place", "video").split(",")[2]


def bare_cost(room, size, form, rate, shown, seconds):
    with room.eyes(picture=shown) as eyes, \
            room.pipeline(bare_pipeline(size, form, rate, shown)) as pipeline:
        eyes.wait(lambda _, __, number: number >= 0)
        return Cost(room, pipeline.pid, eyes, "picture", seconds)


def compare(report, plan, screen, size, form, rate, mark, drops=False):
    """One line of the cost and, where dropped frames matter, one of these."""
    with Classroom(screen, [("bench", size, form, rate)]) as room:
        shown = shown_size(room, size)
        what = f"{size} at {rate}, {form}, shown at {shown} on {screen}"
        cost = report.figure(f"live, {what}: processor, X server included", "ms per frame", bare, mark)
        seconds = plan.seconds
        if drops:
            seconds = max(seconds, plan.long_seconds / plan.pairs)
            dropped = report.figure(f"live, {what}: frames dropped in {plan.pairs} x {seconds:.0f} s",
                                    "frames each", bare, 0, "value")

        def pair():
            ours = program_cost(room, size, seconds)
            theirs = bare_cost(room, size, form, rate, shown, plan.seconds)
            cost.add(ours.per_frame, theirs.per_frame)
            if drops:
                dropped.add(ours.dropped, theirs.dropped)

        rounds(plan, pair)


class Ages:
    """How old the frames are that come to the screen: from the camera's shutter until the X server
    has the picture."""

    def __init__(self, times, eyes, seconds):
        time.sleep(settle)  # nothing to wait for: until it runs evenly
        begin = now()
        time.sleep(seconds)  # nothing to wait for: what is measured
        end = now()
        with open(times, encoding="ascii") as file:
            shutter = dict(map(int, line.split()) for line in file if line.endswith("\n"))
        ages = sorted((at - shutter[number]) / 1e6 for _, at, number in eyes.look()
                      if begin <= at < end and number in shutter)
        if len(ages) < 10:
            raise Failure("no picture moves on the screen")
        self.median = ages[len(ages) // 2]
        self.oldest = ages[-1]


def from_glass_to_glass(report, plan):
    size = "1920x1080"
    age = report.figure("age of a frame that comes to the screen", "ms", bare, 1.0)
    oldest = report.figure("the oldest that comes to the screen", "ms", "frame period", 1.0)
    with Classroom() as room:
        times = os.path.join(room.folder, "times")
        room.plug("bench", size, "UYVY", 30, "--times", times)
        shown = shown_size(room, size)

        def pair():
            with room.user("bench", size) as user:
                user.start()
                user.do("live")
                with room.eyes(picture=user.do("place", "video")) as eyes:
                    ours = Ages(times, eyes, plan.seconds)
            with room.eyes(picture=shown) as eyes, \
                    room.pipeline(bare_pipeline(size, "UYVY", 30, shown)):
                eyes.wait(lambda _, __, number: number >= 0)
                theirs = Ages(times, eyes, plan.seconds)
            age.add(ours.median, theirs.median)
            oldest.add(ours.oldest, 1000 / 30)

        rounds(plan, pair)


def on_a_small_screen(report, plan):
    compare(report, plan, "1024x768", "1920x1080", "UYVY", 30, 0.7, drops=True)
    compare(report, plan, "1024x768", "1920x1080", "NV12", 30, 0.5, drops=True)
    compare(report, plan, "1024x768", "1920x1080", "MJPG", 30, 0.8, drops=True)


def on_large_screens(report, plan):
    compare(report, plan, "1920x1080", "1920x1080", "UYVY", 30, 0.6)
    compare(report, plan, "3840x2160", "1920x1080", "UYVY", 30, 0.5)


def of_large_and_quick_cameras(report, plan):
    compare(report, plan, "1024x768", "3840x2160", "NV12", 30, 0.75)
    compare(report, plan, "1024x768", "1280x720", "UYVY", 60, 0.75)
