"""The lab's classroom for a benchmark: a screen, cameras, the real program with a person at it, eyes
that watch the screen, and what all that costs the processor."""
import contextlib
import json
import os
import queue
import re
import shlex
import signal
import subprocess
import sys
import threading
import time

root = os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(__file__))))
build = os.path.join(root, "build", "bench")
tools = os.path.join(build, "tests", "lab")
program = os.path.join(build, "bin", "orvanta")
patience = 400  # s, that no answer takes

ticks_per_second = os.sysconf("SC_CLK_TCK")


class Failure(Exception):
    """Something that a row measures did not happen; the row says so instead of a figure."""


def tool(name):
    return os.path.join(build, "tests", "bench", name)


def now():
    """ns of the clock that all programs of the bench share."""
    return time.clock_gettime_ns(time.CLOCK_MONOTONIC)


def processor_seconds(pid):
    """What a process has used so far, with its threads that have ended."""
    with open(f"/proc/{pid}/stat", encoding="ascii", errors="replace") as file:
        fields = file.read().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / ticks_per_second


def thread_seconds(pid):
    """The same of the threads that live, and exactly: the above counts in hundredths of a second."""
    nanoseconds = 0
    for thread in os.listdir(f"/proc/{pid}/task"):
        with contextlib.suppress(OSError):
            with open(f"/proc/{pid}/task/{thread}/schedstat", encoding="ascii") as file:
                nanoseconds += int(file.read().split()[0])
    return nanoseconds / 1e9


def own_memory(pid):
    """MB that are the process's own: shared memory, such as a camera's frames, is not."""
    with open(f"/proc/{pid}/status", encoding="ascii", errors="replace") as file:
        sizes = dict(re.findall(r"^(Rss\w+):\s+(\d+) kB", file.read(), re.MULTILINE))
    return (int(sizes["RssAnon"]) + int(sizes["RssFile"])) / 1024


def wake_ups(pid):
    """How often the threads of a process have gone to sleep so far: as often they were woken."""
    count = 0
    for thread in os.listdir(f"/proc/{pid}/task"):
        with contextlib.suppress(OSError):
            with open(f"/proc/{pid}/task/{thread}/status", encoding="ascii", errors="replace") as file:
                count += int(re.search(r"^voluntary_ctxt_switches:\s+(\d+)", file.read(),
                                       re.MULTILINE).group(1))
    return count


def run_tool(name, *arguments):
    """What one of the bench's own programs prints."""
    run = subprocess.run([tool(name), *map(str, arguments)], stdin=subprocess.DEVNULL,
                         stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)
    if run.returncode:
        raise Failure(f"{name}: {run.stderr.strip()[-200:]}")
    return run.stdout


def lines_of(name, *arguments):
    return [line.split("\t") for line in run_tool(name, *arguments).splitlines()]


class Talker:
    """A program that answers lines with lines, or tells by itself; ends with its input."""

    def __init__(self, command, environment):
        self.process = subprocess.Popen(command, env=environment, text=True, bufsize=1,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.lines = queue.Queue()
        self.reader = threading.Thread(target=self.read, daemon=True)
        self.reader.start()

    def read(self):
        for line in self.process.stdout:
            self.lines.put(line.rstrip("\n"))
        self.lines.put(None)

    def next(self, seconds=patience):
        """The next line; None when there is none in time."""
        try:
            return self.lines.get(timeout=seconds)
        except queue.Empty:
            return None

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.stdin.close()
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        self.reader.join()
        self.process.stdout.close()


class Eyes(Talker):
    """Watches pictures of lab cameras come to the screen; see bench_eyes."""

    def __init__(self, environment, **places):
        super().__init__([tool("bench_eyes")] + [f"{name}={place}" for name, place in places.items()],
                         environment)
        if self.next() != "watching":
            raise Failure("the screen cannot be watched")
        self.seen = []

    def look(self):
        """All that was seen so far: (name, ns, number)."""
        while not self.lines.empty():
            self.note(self.lines.get())
        return self.seen

    def note(self, line):
        if line is not None:
            name, at, number = line.split()
            self.seen.append((name, int(at), int(number)))

    def wait(self, wanted, seconds=40):
        """The first sight (name, ns, number) that is wanted."""
        limit = now() + seconds * 10**9
        known = 0
        while True:
            self.look()
            for sight in self.seen[known:]:
                if wanted(*sight):
                    return sight
            known = len(self.seen)
            left = (limit - now()) / 1e9
            if left <= 0:
                raise Failure("what was waited for did not come to the screen")
            self.note(self.next(left))

    def frames(self, name, begin, end):
        """The numbers of the frames seen there in that time, in order."""
        return [number for place, at, number in self.look()
                if place == name and begin <= at < end and number >= 0]


class Pulse(Talker):
    """How long a window took to answer; see bench_pulse."""

    def __init__(self, environment, window):
        super().__init__([tool("bench_pulse"), str(window)], environment)
        if self.next() != "asking":
            raise Failure("the window cannot be asked")

    def longest(self, begin, end):
        """ms of the longest answer to what was asked in that time; 1 when all were quicker."""
        longest = 1.0
        while not self.lines.empty():
            asked, took = self.lines.get().split()
            if begin <= int(asked) < end:
                longest = max(longest, float(took))
        return longest


class User(Talker):
    """A person at the real program; see bench_user for the orders."""

    def __init__(self, environment, camera, size):
        super().__init__([tool("bench_user"), program, camera, size], environment)
        self.pid = None

    def do(self, order, *words):
        """What the answer says behind its "ok": a time in ns, or a text."""
        self.process.stdin.write(" ".join([order, *map(str, words)]) + "\n")
        answer = self.next()
        if answer is None or not answer.startswith("ok"):
            raise Failure(f"{order} {' '.join(map(str, words))}: {answer or 'no answer'}")
        rest = answer[3:]
        return int(rest) if rest.isdigit() else rest

    def start(self, **settings):
        """Starts the program and returns when it was, in ns."""
        if settings:
            self.do("settings", ";".join(f"{name}={value}" for name, value in settings.items()))
        begun, pid = self.do("start").split()
        self.pid = int(pid)
        return int(begun)


class Pipeline:
    """A pipeline of GStreamer's own program, from the first of its elements to the last."""

    def __init__(self, environment, description):
        self.begun = now()
        self.process = subprocess.Popen(["gst-launch-1.0", "-e", "-q", *shlex.split(description)],
                                        env=environment, stdin=subprocess.DEVNULL,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
        self.pid = self.process.pid

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.send_signal(signal.SIGINT)
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        self.process.stderr.close()


class PreparedPipeline:
    """The same, by bench_bare: its conversions are used once before, in pipelines of their own."""

    def __init__(self, environment, description, *first):
        self.process = subprocess.Popen([tool("bench_bare"), description, *first], env=environment,
                                        stdin=subprocess.PIPE)
        self.pid = self.process.pid

    def __enter__(self):
        return self

    def __exit__(self, kind, *_):
        self.process.stdin.close()
        try:
            status = self.process.wait(15)
        except subprocess.TimeoutExpired:
            self.process.kill()
            status = self.process.wait()
        if status != 0 and kind is None:
            raise Failure("the bare pipeline does not end well")


class Classroom:
    """A lab as long as the block lasts, with a microphone, or the program says that it misses one.
    Cameras are (name, size, format, rate), with more of
    labcam's options behind."""

    def __init__(self, screen="1024x768", cameras=()):
        self.screen = screen
        self.cameras = cameras

    def __enter__(self):
        told, tell = os.pipe()
        stay, self.end = os.pipe()
        self.process = subprocess.Popen(
            [os.path.join(root, "tests", "lab", "lab"), "--screen", self.screen, "--tools", tools,
             "--", sys.executable, os.path.realpath(__file__), str(tell), str(stay)],
            pass_fds=(tell, stay), stdin=subprocess.DEVNULL)
        os.close(tell)
        os.close(stay)
        with os.fdopen(told, encoding="utf-8") as file:
            line = file.readline()
        if not line:
            raise Failure("the lab does not come up")
        self.environment = json.loads(line)
        self.folder = self.environment["TMPDIR"]
        self.server = int(open(self.environment["ORVANTA_LAB"] + "/run/servers/Xvfb.pid",
                               encoding="ascii").read())
        try:
            for camera in self.cameras:
                self.plug(*camera)
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        os.close(self.end)
        self.process.wait()

    def control(self, *words):
        if subprocess.run([os.path.join(root, "tests", "lab", "labctl"), *words],
                          env=self.environment, stdin=subprocess.DEVNULL, check=False).returncode:
            raise Failure("the lab: " + " ".join(words))

    def plug(self, name, size, form="UYVY", rate=30, *options):
        self.control("plug", name, size, "--format", form, "--rate", str(rate), *options)

    def eyes(self, **places):
        return Eyes(self.environment, **places)

    def pulse(self, window):
        return Pulse(self.environment, window)

    def user(self, camera, size):
        return User(self.environment, camera, size)

    def user_in(self, temporary, camera, size):
        """One whose program has its temporary area and its home below this folder."""
        return User({**self.environment, "TMPDIR": temporary}, camera, size)

    def pipeline(self, description):
        return Pipeline(self.environment, description)

    def prepared_pipeline(self, description, *first):
        return PreparedPipeline(self.environment, description, *first)


def stay_inside(tell, stay):
    """Runs as the lab's command: tells what a program inside must know, and stays until it is let go."""
    with os.fdopen(tell, "w", encoding="utf-8") as file:
        file.write(json.dumps(dict(os.environ)) + "\n")
    os.read(stay, 1)


if __name__ == "__main__":
    stay_inside(int(sys.argv[1]), int(sys.argv[2]))
