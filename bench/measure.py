"""Measures the running program in a private desktop and prints a table. Compare figures of one run only.

    measure.py BUILD [--quick]
"""

import os
import random
import statistics
import subprocess
import sys
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "tests/endtoend"))
import targets  # noqa: E402
from desktop import Desktop, wait_until  # noqa: E402

BUILD = Path(sys.argv[1]).resolve()
ROUNDS = 5 if "--quick" in sys.argv else 15
PASTES = 20 if "--quick" in sys.argv else 100
REST_SECONDS = 10 if "--quick" in sys.argv else 30


def median(values):
    return statistics.median(values)


def percentile95(values):
    return sorted(values)[min(len(values) - 1, round(0.95 * len(values)))]


def tell(what, *values):
    print(f"{what:<66} " + "  ".join(values), flush=True)


def spread(values, unit="ms"):
    return f"median {median(values):8.1f} {unit}", f"95 % {percentile95(values):8.1f} {unit}"


class Measured(Desktop):
    """A desktop in which Quillmonger starts with a store of so many records."""

    def __init__(self, records=0, smallest=200, largest=200):
        super().__init__(BUILD)
        self.contents = (records, smallest, largest)

    def __enter__(self):
        super().__enter__()
        self.run(["xsetroot", "-solid", "#204060"])
        for key, value in (("firstLaunch", "false"), ("persistHistory", "true"), ("historySize", "1000000")):
            self.quillmonger("defaults", "write", key, value)
        if self.contents[0]:
            self.run([BUILD / "bin/fill_store", self.data, *map(str, self.contents)], seconds=600)
        return self

    # Starts the application and returns the milliseconds until its line that tells that it is ready.
    def start_to_ready(self):
        begin = time.perf_counter()
        self.app = self.spawn([BUILD / "bin/quillmonger-app"], stdout=subprocess.PIPE)
        while not (line := self.app.stdout.readline()).startswith(b"Quillmonger is ready"):
            if not line:
                raise RuntimeError("the application ended")
        ready = (time.perf_counter() - begin) * 1000
        # Its later lines are read away so that the pipe never fills.
        subprocess.Popen(["cat"], stdin=self.app.stdout, stdout=subprocess.DEVNULL)
        return ready

    def start_to_painted(self):
        answer = self.run([BUILD / "bin/paint_probe", BUILD / "bin/quillmonger", "show"])
        return float(answer.stdout.split()[1])

    def dismiss(self):
        wait_until(lambda: self.focused() == self.history_window(), "the focus")
        self.press("Escape")
        self.wait_hidden()

    def quit(self):
        self.quillmonger("quit")
        wait_until(lambda: not self.run(["pgrep", "-f", f"^{BUILD}/bin/quillmonger-app"], check=False).stdout, "the end")
        if self.app:
            self.app.wait(10)
            self.app = None

    def process(self):
        answer = self.run(["pgrep", "-f", f"^{BUILD}/bin/quillmonger-app"])
        return int(answer.stdout.split()[0])

    def memory(self, field="Pss"):
        lines = Path(f"/proc/{self.process()}/smaps_rollup").read_text().splitlines()
        return next(int(line.split()[1]) for line in lines if line.startswith(field + ":")) / 1024

    def peak(self):
        lines = Path(f"/proc/{self.process()}/status").read_text().splitlines()
        return next(int(line.split()[1]) for line in lines if line.startswith("VmHWM:")) / 1024

    def resident(self):
        lines = Path(f"/proc/{self.process()}/status").read_text().splitlines()
        return next(int(line.split()[1]) for line in lines if line.startswith("VmRSS:")) / 1024

    def forget_peak(self):
        Path(f"/proc/{self.process()}/clear_refs").write_text("5")

    def wakeups(self):
        total = 0
        for task in Path(f"/proc/{self.process()}/task").iterdir():
            for line in (task / "status").read_text().splitlines():
                if line.startswith("voluntary_ctxt_switches"):
                    total += int(line.split()[1])
        return total

    def cpu_seconds(self):
        tasks = Path(f"/proc/{self.process()}/task").iterdir()
        return sum(int((task / "schedstat").read_text().split()[0]) for task in tasks) / 1e9


def settle(desktop, seconds=3.0):
    time.sleep(seconds)


def start():
    print("\nStart")
    for records in (0, 1000, 10000, 100000):
        with Measured(records) as desktop:
            ready, painted = [], []
            for _ in range(ROUNDS):
                ready.append(desktop.start_to_ready())
                desktop.quit()
            for _ in range(ROUNDS):
                painted.append(desktop.start_to_painted())
                desktop.quit()
            tell(f"start to ready, {records} records", *spread(ready))
            tell(f"start to painted window, {records} records", *spread(painted))


def memory():
    print("\nMemory (PSS)")
    for records, smallest, largest in ((0, 0, 0), (1000, 200, 200), (1000, 10_000, 100_000), (1000, 65_536, 65_536),
                                       (1000, 1_000_000, 1_000_000), (10_000, 200, 200), (100_000, 200, 200)):
        with Measured(records, smallest, largest) as desktop:
            desktop.start_to_ready()
            settle(desktop)
            before = desktop.memory()
            desktop.quillmonger("show")
            wait_until(desktop.history_window, "the window")
            settle(desktop)
            shown = desktop.memory()
            desktop.press("ctrl+p")
            settle(desktop)
            previewed = desktop.memory()
            desktop.quillmonger("settings")
            settle(desktop)
            desktop.quillmonger("about")
            settle(desktop)
            tell(f"{records} records of {smallest} to {largest} bytes", f"never shown {before:6.1f} MB",
                 f"shown {shown:6.1f} MB", f"with the preview {previewed:6.1f} MB",
                 f"with every window {desktop.memory():6.1f} MB")


def rest():
    print("\nAt rest")
    with Measured(1000) as desktop:
        desktop.start_to_ready()
        settle(desktop, 5)
        wakeups, cpu = desktop.wakeups(), desktop.cpu_seconds()
        time.sleep(REST_SECONDS)
        tell("wake-ups a second", f"{(desktop.wakeups() - wakeups) / REST_SECONDS:.2f}")
        tell("part of a core", f"{(desktop.cpu_seconds() - cpu) / REST_SECONDS * 100:.3f} %")


def window():
    print("\nWindow")
    for records in (10, 1000, 10_000, 100_000):
        with Measured(records) as desktop:
            desktop.start_to_ready()
            settle(desktop)
            by_chord, by_command = [], []
            for _ in range(ROUNDS * 2):
                by_chord.append(float(desktop.run([BUILD / "bin/paint_probe", "--chord"]).stdout.split()[1]))
                desktop.dismiss()
                by_command.append(desktop.start_to_painted())
                desktop.dismiss()
            tell(f"chord released to painted list, {records} records", *spread(by_chord))
            tell(f"command to painted list, {records} records", *spread(by_command))


def typing():
    print("\nTyping, without the pause after a key")
    for records in (10, 1000, 10_000, 100_000):
        with Measured(records) as desktop:
            desktop.quillmonger("defaults", "write", "searchDebounceInterval", "0")
            desktop.start_to_ready()
            settle(desktop)
            delays = []
            for number in range(ROUNDS * 2):
                desktop.start_to_painted()
                wait_until(lambda: desktop.focused() == desktop.history_window(), "the focus")
                answer = desktop.run([BUILD / "bin/paint_probe", "--key", str(number % 10)])
                delays.append(float(answer.stdout.split()[1]))
                desktop.dismiss()
            tell(f"key to painted hits, {records} records", *spread(delays))


def scrolling():
    print("\nScrolling, 60 steps a second: from one picture to the next")
    seconds = "2" if "--quick" in sys.argv else "5"
    for records, size in ((1000, 200), (100_000, 200), (500, 65_536), (150, 10_000_000)):
        with Measured(records, size, size) as desktop:
            desktop.start_to_ready()
            settle(desktop)
            for how in ("wheel", "keys"):
                desktop.start_to_painted()
                wait_until(lambda: desktop.focused() == desktop.history_window(), "the focus")
                cpu = desktop.cpu_seconds()
                frames = [float(line) for line in desktop.run([BUILD / "bin/frame_probe", how, seconds]).stdout.split()]
                cpu = (desktop.cpu_seconds() - cpu) / len(frames) * 1000
                late = sum(frame > 25 for frame in frames) / len(frames)
                tell(f"by {how}, {records} rows of {size} bytes", *spread(frames), f"longest {max(frames):6.1f} ms",
                     f"missed {late:.1%}", f"CPU {cpu:.1f} ms a picture")
                desktop.dismiss()


class MeasuredTerminal(targets.Terminal):
    """A terminal whose program counts what it reads in the title."""

    program = r"""
import os, sys, tty
tty.setraw(0)
count = 0
while os.read(0, 65536):
    count += 1
    os.write(1, b"\033]0;read %d\007" % count)
"""

    def __init__(self, desktop):
        targets.Target.__init__(self, desktop)
        desktop.spawn(["stterm", "-t", "terminal", "-e", sys.executable, "-c", self.program])
        self._show("^terminal$")


def paste():
    print("\nPaste")
    for what, kind in (("terminal", MeasuredTerminal), ("browser's text field", targets.Browser)):
        with Measured(1000) as desktop:
            desktop.start_to_ready()
            target = kind(desktop)
            settle(desktop)

            def probe(keys):
                return float(desktop.run([BUILD / "bin/paste_probe", target.window, keys]).stdout)
            by_return, by_hand = [], []
            for number in range(PASTES):
                desktop.copy(f"paste {number} ")
                desktop.wait_for_text(f"paste {number} ")
                desktop.open_history()
                by_return.append(probe("Return"))
                desktop.wait_hidden()
                time.sleep(0.1)
                by_hand.append(probe(target.paste_chord))
                time.sleep(0.1)
            tell(f"Return to the text in a {what}", *spread(by_return))
            tell(f"the same by {target.paste_chord} without Quillmonger's window", *spread(by_hand))


def copies():
    print("\nCopies")
    with Measured(1000) as desktop:
        desktop.start_to_ready()
        settle(desktop)
        delays = []
        for number in range(ROUNDS * 2):
            text = f"copy number {number} {random.random()}"
            desktop.copy(text)
            begin = time.perf_counter()
            wait_until(lambda: desktop.texts()[0] == text, "the record", step=0.001)
            delays.append((time.perf_counter() - begin) * 1000)
        tell("copy to its record", *spread(delays))

    for what, target, size in (("50 MB of text", None, 50_000_000), ("a picture of 34 MB", "image/png", 34_000_000)):
        with Measured(0) as desktop:
            desktop.start_to_ready()
            settle(desktop)
            data = os.urandom(size) if target else (b"0123456789abcde\n" * (size // 16 + 1))[:size]
            rest_memory = desktop.resident()
            desktop.forget_peak()
            # xclip returns when it owns the clipboard.
            desktop.copy(data, target)
            begin = time.perf_counter()

            def on_disk():
                return sum(file.stat().st_size for file in desktop.data.iterdir()) >= size
            wait_until(lambda: desktop.records() and desktop.records()[0]["size"] == size, "the record", 60, 0.005)
            listed = time.perf_counter() - begin
            wait_until(on_disk, "the bytes on the disk", 60, 0.005)
            kept = time.perf_counter() - begin
            settle(desktop)
            tell(what, f"listed after {listed:.2f} s", f"on the disk after {kept:.2f} s",
                 f"peak {(desktop.peak() - rest_memory) / (size / 1e6):.2f} times its size above rest",
                 f"afterwards {desktop.resident() - rest_memory:+.0f} MB")


def command():
    print("\nCommand line, 10,000 records of 200 bytes")
    with Measured(10_000) as desktop:
        desktop.start_to_ready()
        settle(desktop)
        for words in (["--version"], ["incognito", "status"], ["list", "--limit", "10"], ["list"], ["list", "--json"],
                      ["search", "--limit", "10", "record 12"], ["search", "--json", "LOREM"],
                      ["search", "--regex", "^record 1[0-9]+5:"], ["paste", "--print", "5000"], ["delete", "1"]):
            times = []
            for _ in range(ROUNDS * 2):
                begin = time.perf_counter()
                desktop.quillmonger(*words)
                times.append((time.perf_counter() - begin) * 1000)
            tell("quillmonger " + " ".join(words), *spread(times))


if __name__ == "__main__":
    chosen = [word for word in sys.argv[2:] if not word.startswith("--")]
    for part in (start, window, typing, scrolling, paste, memory, rest, copies, command):
        if not chosen or part.__name__ in chosen:
            part()
