"""Movies: what recording and playing one costs, and how soon one can be played."""
import glob
import os
import shutil
import time

from classroom import Classroom, Failure, lines_of, now, processor_seconds
from figures import rounds
from rows_live import Cost, caps_of, settle, shown_size

frame = 1000 / 30  # ms
size = "1920x1080"


def conversions(form, shown):
    """What the pipeline below converts, one after the other and each for a frame or two."""
    width, height = shown.split("x")
    raw = "I420" if form == "MJPG" else form
    frames = (f"videotestsrc num-buffers=2 ! video/x-raw,format={raw},width=1920,height=1080 ! ")
    return (frames + f"videoconvertscale ! video/x-raw,format=BGRx,width={width},height={height} ! "
            "fakesink",
            frames + "videoconvert ! video/x-raw,format=I420 ! fakesink",
            "audiotestsrc num-buffers=2 ! audio/x-raw,format=S16LE,rate=48000,channels=2 ! "
            "audioconvert ! avenc_aac ! fakesink")


def recording_pipeline(form, shown, path):
    """The same encoders with the same settings, and the same live picture beside it. Its frames are
    copied: else they are the camera's own, of which all may wait in its queues for the sound, and
    then camera and pipeline wait for each other."""
    width, height = shown.split("x")
    decoder = "jpegdec ! " if form == "MJPG" else ""
    return ("pipewiresrc target-object=bench do-timestamp=true always-copy=true ! "
            f"{caps_of(size, form, 30)} ! {decoder}tee name=frames "
            "frames. ! queue max-size-buffers=1 leaky=downstream ! videoconvertscale ! "
            f"video/x-raw,format=BGRx,width={width},height={height} ! ximagesink sync=false "
            "frames. ! queue ! videoconvert ! video/x-raw,format=I420 ! "
            f"x264enc tune=zerolatency speed-preset=ultrafast bframes=0 threads={os.cpu_count()} "
            "key-int-max=30 bitrate=6842 ! h264parse ! queue ! qtmux name=muxer ! "
            f"filesink location={path} "
            "pulsesrc provide-clock=false ! audioconvert ! audio/x-raw,rate=48000,channels=2 ! "
            "avenc_aac bitrate=128000 aac-ms=false ! queue ! muxer.")


def movies_in(folder):
    return sorted(glob.glob(os.path.join(glob.escape(folder), "movie*.mov")))


def per_frame(share, path):
    """ms of a processor for each frame in the movie, and how many are missing in it. A machine that
    is too busy to record all of them would seem a quick one."""
    _, count, missing = lines_of("bench_movie", path)[0]
    share_of_frames = int(count) / (int(count) + int(missing))
    return frame * share / share_of_frames, int(missing)


class Recorded:
    """A movie that the program made: what that cost, what is missing in it."""

    def __init__(self, user, seconds):
        self.user = user
        before = movies_in(user.do("folder"))
        user.do("press", "live", "Movie")
        user.do("buttons", "recording", "MovieStop")
        time.sleep(settle)  # nothing to wait for: until it runs evenly
        begun, used = now(), processor_seconds(user.pid)
        time.sleep(seconds)  # nothing to wait for: the movie's length
        share = (processor_seconds(user.pid) - used) / ((now() - begun) / 1e9)
        self.stopped = user.do("press", "recording", "MovieStop")
        self.playable = user.do("buttons", "movie", "MoviePlay")
        new = [path for path in movies_in(user.do("folder")) if path not in before]
        if len(new) != 1:
            raise Failure("there is no movie")
        self.path = new[0]
        self.per_frame, self.missing = per_frame(share, self.path)


def bare_recording(room, form, shown, seconds):
    path = os.path.join(room.folder, "bare.mov")
    with room.eyes(picture=shown) as eyes, \
            room.prepared_pipeline(recording_pipeline(form, shown, path),
                                   *conversions(form, shown)) as pipeline:
        eyes.wait(lambda _, __, number: number >= 0)
        time.sleep(settle)  # nothing to wait for: until it runs evenly
        begun, used = now(), processor_seconds(pipeline.pid)
        time.sleep(seconds)  # nothing to wait for: what is measured
        share = (processor_seconds(pipeline.pid) - used) / ((now() - begun) / 1e9)
    cost = per_frame(share, path)
    os.remove(path)
    return cost


def recording(report, plan):
    for form in ("UYVY", "MJPG"):
        record_from(report, plan, form)


def record_from(report, plan, form):
    bare = "the bare pipeline"
    seconds = max(plan.seconds, plan.long_seconds / plan.pairs)
    cost = report.figure(f"recording {size} at 30, {form}: processor", "ms per frame", bare, 1.0)
    dropped = report.figure(f"recording {size}, {form}: frames missing in {plan.pairs} x {seconds:.0f} s",
                            "frames each", bare, 0, "value")
    with Classroom(cameras=[("bench", size, form, 30)]) as room:
        shown = shown_size(room, size)

        def pair():
            with room.user("bench", size) as user:
                user.start()
                user.do("live")
                movie = Recorded(user, seconds)
            theirs, theirs_missing = bare_recording(room, form, shown, plan.seconds)
            cost.add(movie.per_frame, theirs)
            dropped.add(movie.missing, theirs_missing)

        rounds(plan, pair)


def playing_soon(report, plan):
    """The first movie is the long one; what follows shows whether the length matters."""
    stop = report.figure("Stop to a movie that can be played, after a minute and shorter", "ms",
                         "frame period", 3)
    play = report.figure("Play to a moving picture", "ms", "frame period", 5)
    lengths = [plan.long_seconds] + [plan.seconds] * (plan.pairs - 1)
    with Classroom(cameras=[("bench", size, "UYVY", 30)]) as room, \
            room.user("bench", size) as user:
        user.start()
        user.do("live")
        place = user.do("place", "video")
        for seconds in lengths:
            movie = Recorded(user, seconds)
            stop.add((movie.playable - movie.stopped) / 1e6, frame)
            play.add(first_move(room, user, place) / 1e6, frame)
            user.do("press", "playing", "Live")
            user.do("live")


def first_move(room, user, place):
    """ns from the release of "Play" to the first picture that is not the still one."""
    with room.eyes(picture=place) as eyes:
        still = eyes.wait(lambda _, __, number: number >= 0)[2]
        released = user.do("press", "movie", "MoviePlay")
        return eyes.wait(lambda _, at, number: at > released and number > still)[1] - released


class Cinema:
    """The program with one movie from an earlier lesson, shown by "Play" from its beginning."""

    def __init__(self, user, movie):
        self.user = user
        folder = user.do("folder")
        os.makedirs(folder, mode=0o700, exist_ok=True)
        for end in (".mov", "tmp.png"):
            shutil.copy(movie[:-len(".mov")] + end, os.path.join(folder, "movie20090304090507" + end))
        user.start()
        user.do("live")
        user.do("press", "live", "List")
        user.do("press", "list", "SwitchMovie")
        x, y, wide = user.do("place", "thumbnail", 0).split(",")
        width, height = wide.split("x")
        user.do("buttons", "movielist", "Live")
        user.do("click", int(x) + int(width) // 2, int(y) + int(height) // 2)
        user.do("press", "movielist", "Show")

    def play(self):
        self.user.do("press", "movie", "MoviePlay")


def film(plan, folder):
    """A movie of a lab camera that the program records."""
    with Classroom(cameras=[("bench", size, "UYVY", 30)]) as room, room.user("bench", size) as user:
        user.start()
        user.do("live")
        movie = Recorded(user, plan.seconds + 5)
        for end in (".mov", "tmp.png"):
            shutil.copy(movie.path[:-len(".mov")] + end, os.path.join(folder, "movie" + end))
        return os.path.join(folder, "movie.mov"), movie.missing


def playbin(movie, shown):
    width, height = shown.split("x")
    return (f"playbin uri=file://{movie} audio-sink=pulsesink video-sink=\"videoconvertscale ! "
            f"video/x-raw,format=BGRx,width={width},height={height} ! ximagesink\"")


def playing(report, plan):
    with Classroom() as shelf:
        movie, missing = film(plan, shelf.folder)
        for screen in ("1024x768", "1920x1080", "3840x2160"):
            play_on(report, plan, screen, movie, missing)


def play_on(report, plan, screen, movie, missing):
    bare = "playbin"
    cost = report.figure(f"playing {size} at 30 on {screen}: processor, X server included",
                         "ms per frame", bare, 1.0)
    left_out = report.figure(f"playing on {screen}: frames left out in {plan.seconds:.0f} s", "frames",
                             bare, 0, "value")
    with Classroom(screen, [("bench", size, "UYVY", 30)]) as room:
        shown = shown_size(room, size)

        def pair():
            with room.user("bench", size) as user:
                cinema = Cinema(user, movie)
                with room.eyes(picture=user.do("place", "video")) as eyes:
                    cinema.play()
                    ours = Cost(room, user.pid, eyes, "picture", plan.seconds)
            with room.eyes(picture=shown) as eyes, room.pipeline(playbin(movie, shown)) as pipeline:
                eyes.wait(lambda _, __, number: number >= 0)
                theirs = Cost(room, pipeline.pid, eyes, "picture", plan.seconds)
            cost.add(ours.per_frame, theirs.per_frame)
            left_out.add(max(0, ours.dropped - missing), max(0, theirs.dropped - missing))

        rounds(plan, pair)
