"""The program as a whole: its start and end, its memory, and what it costs when nothing moves."""
import glob
import os
import shutil
import subprocess
import tempfile
import time

from classroom import (Classroom, Failure, lines_of, now, own_memory, run_tool, thread_seconds,
                       wake_ups)
from figures import rounds
from rows_live import bare_pipeline, shown_size

size = "1920x1080"


def start(report, plan):
    baseline = "gst-launch-1.0 to its first frame"
    window = report.figure("start to the window with its buttons", "ms", baseline, 1.2)
    picture = report.figure("start to the first live frame", "ms", baseline, 1.7)
    with Classroom(cameras=[("bench", size, "UYVY", 30)]) as room:
        shown = shown_size(room, size)
        start_of_pipeline(room, shown)  # the very first time is no measure

        def pair():
            window.add(start_of_window(room), start_of_pipeline(room, shown))
            picture.add(start_of_picture(room), start_of_pipeline(room, shown))

        rounds(plan, pair)


def start_of_pipeline(room, shown):
    with room.eyes(picture=shown) as eyes, \
            room.pipeline(bare_pipeline(size, "UYVY", 30, shown)) as pipeline:
        return (eyes.wait(lambda _, __, number: number >= 0)[1] - pipeline.begun) / 1e6


def start_and_end(user):
    """As on every day but the first, which tries the encoders."""
    user.start()
    user.do("live")
    time.sleep(2)  # nothing to wait for: the encoders are tried
    user.do("press", "live", "Close")
    user.do("ended")


def start_of_window(room):
    """The X server tells when the row is painted: looking for it all the time would hold both up."""
    with room.user("bench", size) as user:
        start_and_end(user)
        with room.eyes(row=user.do("place", "row")) as eyes:
            begun = user.start()
            painted = eyes.wait(lambda _, at, __: at > begun)[1]
            user.do("shows", "live", "Live", "Photo", "Movie", "List", "Close")
            return (painted - begun) / 1e6


def start_of_picture(room):
    with room.user("bench", size) as user:
        start_and_end(user)
        with room.eyes(picture=user.do("place", "video")) as eyes:
            begun = user.start()
            return (eyes.wait(lambda _, at, number: at > begun and number >= 0)[1] - begun) / 1e6


def memory(report, plan):
    """An hour's growth shows in minutes, if with each frame something is left behind. As on every
    day but the first, whose start tries the encoders and keeps their libraries: told beside it."""
    minute = plan.long_seconds
    live = report.figure("memory of its own, live, after a minute", "MB", "the bare pipeline's", 110,
                         "value")
    first_day = report.figure("the same at the very first start, which tries the encoders", "MB",
                              "the bare pipeline's", 110, "value")
    growth = report.figure(f"memory after {minute:.0f} s more", "MB", "live after a minute", 5,
                           "difference")
    strip = report.figure("memory with 50 photos in the strip", "MB", "live after a minute", 30,
                          "difference")
    with Classroom(cameras=[("bench", size, "UYVY", 30)]) as room:
        shown = shown_size(room, size)
        with room.user("bench", size) as user, \
                room.eyes(picture=shown) as eyes:
            user.start(PhotoPreview=0)
            user.do("live")
            time.sleep(minute)  # nothing to wait for: what is measured is time's
            very_first = own_memory(user.pid)
            user.do("press", "live", "Close")
            user.do("ended")
            user.start(PhotoPreview=0)
            user.do("live")
            time.sleep(minute)  # nothing to wait for: what is measured is time's
            first = own_memory(user.pid)
            time.sleep(minute)  # nothing to wait for: what is measured is time's
            growth.add(own_memory(user.pid), first)
            user.do("photos", 50)
            user.do("press", "live", "List")
            user.do("buttons", "list", "SwitchMovie")
            time.sleep(5)  # nothing to wait for: thumbnails come one by one
            strip.add(own_memory(user.pid), first)
        with room.eyes(picture=shown) as eyes, \
                room.pipeline(bare_pipeline(size, "UYVY", 30, shown)) as pipeline:
            eyes.wait(lambda _, __, number: number >= 0)
            time.sleep(5)  # nothing to wait for: until it runs evenly
            bare = own_memory(pipeline.pid)
            live.add(first, bare)
            first_day.add(very_first, bare)


class Rest:
    """What a program uses while it shows one thing."""

    def __init__(self, user, seconds):
        time.sleep(2)  # nothing to wait for: until it has come to rest
        begun, used, woken = now(), thread_seconds(user.pid), wake_ups(user.pid)
        time.sleep(seconds)  # nothing to wait for: what is measured
        passed = (now() - begun) / 1e9
        self.share = 100 * (thread_seconds(user.pid) - used) / passed
        self.wake_ups = (wake_ups(user.pid) - woken) / passed


def idle(report, plan):
    states = ("a photo", "the strip", "nine tiles", "a paused movie")
    cost = {state: report.figure(f"processor while {state} is shown", "% of one", "showing live", 0.02)
            for state in states}
    woken = {state: report.figure(f"wake-ups while {state} is shown", "a second", "showing live")
             for state in states}
    seconds = max(1, plan.seconds / 3)
    with Classroom(cameras=[("bench", size, "UYVY", 30)]) as room, \
            room.user("bench", size) as user:
        user.start(PhotoPreview=0)
        user.do("live")
        user.do("photos", 9)

        def measure(state, live):
            rest = Rest(user, seconds)
            cost[state].add(rest.share, live.share)
            woken[state].add(rest.wake_ups, live.wake_ups)

        def pair():
            live = Rest(user, seconds)
            user.do("press", "live", "Photo")
            user.do("buttons", "photo", "Live")
            measure("a photo", live)
            show_tiles(user, measure, live)
            user.do("press", "photo", "Live")
            show_movie(user, measure, live)
            user.do("press", "movie", "Live")
            user.do("live")

        rounds(plan, pair)


def show_tiles(user, measure, live):
    user.do("press", "photo", "List")
    user.do("buttons", "list", "SwitchMovie")
    measure("the strip", live)
    x, y, wide = user.do("place", "thumbnail", 0).split(",")
    user.do("click", int(x) + int(wide.split("x")[0]) // 2, int(y) + 10)
    for _ in range(8):
        user.do("key", "Right")
        user.do("key", "space")
    user.do("press", "list", "Show")
    user.do("buttons", "photo", "Live")
    measure("nine tiles", live)


def show_movie(user, measure, live):
    user.do("live")
    user.do("press", "live", "Movie")
    user.do("buttons", "recording", "MovieStop")
    time.sleep(2)  # nothing to wait for: the movie's length
    user.do("press", "recording", "MovieStop")
    user.do("press", "movie", "MoviePlay")
    user.do("press", "playing", "MoviePause")
    user.do("buttons", "movie", "MoviePlay")
    measure("a paused movie", live)


class Captures:
    """200 photos and 5 movies of a lesson, as they lie in the temporary area; `share` gives them to
    a folder, on the same file system as other names of the same files."""

    def __init__(self, room):
        self.folder = os.path.join(room.folder, "lesson")
        os.mkdir(self.folder)
        photo = os.path.join(self.folder, "photo20090304090507000.png")
        run_tool("bench_still", "scene", photo)
        for i in range(1, 200):
            shutil.copy(photo, f"{photo[:-7]}{i:03}.png")
        for i in range(5):
            stem = os.path.join(self.folder, f"movie2009030409050{i}")
            shutil.copy(photo, stem + "tmp.png")
            with open(stem + ".mov", "wb") as movie:
                movie.write(os.urandom(2**20) * 20)
        self.count = len(os.listdir(self.folder))
        subprocess.run(["sync"], check=True)

    def give(self, folder, same):
        os.makedirs(folder, mode=0o700, exist_ok=True)
        for name in os.listdir(self.folder):
            path = os.path.join(self.folder, name)
            (os.link if same else shutil.copy)(path, os.path.join(folder, name))


def save_at_exit(room, captures, same, temporary, saved):
    """ms from the release of "Yes" until the last capture has left the temporary area, and until the
    program has ended: then the disk has all of them."""
    user = room.user_in(temporary, "bench", size)
    with user:
        area = user.do("folder")
        captures.give(area, same)
        user.start(SaveDirectory=saved)
        user.do("live")
        user.do("press", "live", "Close")
        answered = user.do("answer", "Yes")
        limit = time.monotonic() + 200
        while left_in(area):
            if time.monotonic() > limit:
                raise Failure("the captures are not saved")
            time.sleep(0.002)  # nothing to wait for: looked for again, up to a limit
        end = now()
        ended = user.do("ended")
    kept = glob.glob(os.path.join(glob.escape(saved), "TavelinCamera", "*", "*"))
    if len(kept) != captures.count:
        raise Failure(f"{len(kept)} of {captures.count} captures were saved")
    shutil.rmtree(os.path.join(saved, "TavelinCamera"))
    return (end - answered) / 1e6, (ended - answered) / 1e6


def left_in(area):
    return any(name.startswith(("photo", "movie")) for name in os.listdir(area))


def move_by_hand(captures, same, temporary, saved):
    """ms that the moving takes by itself, and with the disk having it."""
    source = os.path.join(temporary, "by-hand")
    target = os.path.join(saved, "by-hand")
    captures.give(source, same)
    os.mkdir(target)
    begun = now()
    sync = 'sync "$2"/* "$2"'
    steps = ['mv "$1"/* "$2"', sync] if same else ['cp "$1"/* "$2" && rm "$1"/* && ' + sync]
    passed = []
    for script in steps:
        subprocess.run(["sh", "-c", script, "sh", source, target], check=True)
        passed.append((now() - begun) / 1e6)
    shutil.rmtree(source)
    shutil.rmtree(target)
    return passed[0], passed[-1]


def leaving(report, plan):
    same = report.figure("exit with save of 200 photos and 5 movies, same file system", "ms", "mv", 1.5)
    safe = report.figure("the same until the program has ended and the disk has all", "ms",
                         "mv and sync", 1.5)
    other = report.figure("exit with save of the same to another file system", "ms",
                          "cp, rm and sync", 1.1)
    with Classroom(cameras=[("bench", size, "UYVY", 30)]) as room, \
            tempfile.TemporaryDirectory(dir="/dev/shm") as elsewhere:
        captures = Captures(room)
        saved = os.path.join(room.folder, "saved")
        os.mkdir(saved)

        def pair():
            moved, ended = save_at_exit(room, captures, True, room.folder, saved)
            moved_by_hand, synced = move_by_hand(captures, True, room.folder, saved)
            same.add(moved, moved_by_hand)
            safe.add(ended, synced)
            other.add(save_at_exit(room, captures, False, elsewhere, saved)[0],
                      move_by_hand(captures, False, elsewhere, saved)[0])

        rounds(plan, pair)
