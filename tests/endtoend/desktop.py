"""A private desktop: a virtual X display with a window manager, a home folder and a session bus of its own.

The end-to-end tests, the show of script/run and the measuring scripts drive the built program in it, with real programs
as copy sources and paste targets. Nothing of it touches the desktop of whoever runs it.
"""

import json
import os
import shutil
import signal
import subprocess
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


class Timeout(AssertionError):
    pass


def wait_until(condition, what, seconds=10.0, step=0.01):
    """Returns the first true value of `condition()`; fails with `what` when none comes within `seconds`."""
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise Timeout(f"waited {seconds:g} s in vain: {what}")
        time.sleep(step)


class Desktop:
    """Use it as a context manager; everything that was started in it ends with it."""

    def __init__(self, build, size="1280x800x24", window_manager="openbox", scale=None, dark=False):
        self.build = Path(build).resolve()
        self.size = size
        self.window_manager = window_manager
        self.scale = scale
        self.processes = []
        self.app = None

    # ---- the desktop itself

    def __enter__(self):
        self.home = Path(tempfile.mkdtemp(prefix="quillmonger-desktop-"))
        runtime = self.home / "runtime"
        runtime.mkdir(mode=0o700)
        keep = ("PATH", "LANG", "TZ")
        self.environment = {name: os.environ[name] for name in keep if name in os.environ}
        self.environment.update(
            HOME=str(self.home),
            XDG_RUNTIME_DIR=str(runtime),
            LC_ALL="C.UTF-8",
            NO_AT_BRIDGE="1",
            GTK_THEME="Adwaita",
            QUILLMONGER_TEST_HOME=str(self.home),
            # Silent: a client without an address starts a sound server of its own.
            PULSE_SERVER=f"unix:{runtime}/no-sound",
        )
        if self.scale:
            self.environment["QT_SCALE_FACTOR"] = str(self.scale)
        try:
            self._start_bus()
            self._start_display()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for process in reversed(self.processes):
            if process.poll() is None:
                process.terminate()
        for process in reversed(self.processes):
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
            for stream in (process.stdin, process.stdout, process.stderr):
                if stream:
                    stream.close()
        shutil.rmtree(self.home, ignore_errors=True)

    def _start_bus(self):
        bus = subprocess.Popen(
            ["dbus-daemon", "--session", "--nofork", "--print-address"],
            env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.processes.append(bus)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()

    def _start_display(self):
        reading, writing = os.pipe()
        server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", self.size, "-nolisten", "tcp", "-noreset"],
            pass_fds=[writing], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(writing)
        self.processes.append(server)
        self.server = server
        with os.fdopen(reading) as numbers:
            number = numbers.readline().strip()
        if not number:
            raise RuntimeError("Xvfb did not start")
        self.environment["DISPLAY"] = f":{number}"
        if self.window_manager:
            self.spawn(self.window_manager.split())
            wait_until(self._has_window_manager, "the window manager", seconds=30.0)

    def replace_display(self):
        """The display's server dies, and another one takes its place."""
        self.server.kill()
        self.server.wait()
        self._start_display()

    def _has_window_manager(self):
        answer = self.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], check=False)
        return "window id" in answer.stdout

    # ---- programs in it

    def spawn(self, command, **options):
        """Starts a program that goes on beside the test."""
        options.setdefault("stdout", subprocess.DEVNULL)
        options.setdefault("stderr", subprocess.DEVNULL)
        process = subprocess.Popen([str(word) for word in command], env=self.environment, cwd=self.home, **options)
        self.processes.append(process)
        return process

    def run(self, command, check=True, input=None, seconds=20, text=True):
        """Runs a program to its end."""
        return subprocess.run([str(word) for word in command], env=self.environment, cwd=self.home, check=check,
                              input=input, timeout=seconds, text=text, stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def window(self, pattern, kind="--name", seconds=20.0):
        """The number of the first visible window whose name (or --class) matches."""
        def find():
            answer = self.run(["xdotool", "search", "--onlyvisible", kind, pattern], check=False)
            return answer.stdout.split()
        return wait_until(find, f"a window {pattern}", seconds)[0]

    def focus(self, window):
        self.run(["xdotool", "windowactivate", "--sync", window])
        wait_until(lambda: self.focused() == window, "the focus")

    def focused(self):
        """The window that gets the keys: the window manager's word for the active one can be ahead of it."""
        return self.run(["xdotool", "getwindowfocus"], check=False).stdout.strip()

    def geometry(self, window):
        """Left, top, width and height, without what the window manager adds."""
        answer = self.run(["xdotool", "getwindowgeometry", "--shell", window]).stdout
        words = dict(line.split("=", 1) for line in answer.split())
        return tuple(int(words[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    def click(self, x, y, button=1):
        self.run(["xdotool", "mousemove", str(x), str(y), "click", str(button)])

    def press(self, *chords):
        self.run(["xdotool", "key", "--clearmodifiers", *chords])

    def use_layout(self, name):
        """Gives the keyboard a layout that has the letters to be typed.

        For others `type` changes the layout behind the programs' backs and back again, and a program that is slow to
        hear of it loses the letter.
        """
        self.run(["setxkbmap", name])

    def type(self, text):
        self.run(["xdotool", "type", "--delay", "5", text])

    def screenshot(self, path, window="root"):
        self.run(["import", "-window", window, str(path)])

    # ---- the clipboard, through a real client

    def copy(self, text, target=None):
        command = ["xclip", "-selection", "clipboard", "-in"]
        if target:
            command += ["-target", target]
        data = text if isinstance(text, bytes) else text.encode()
        # xclip goes on in the background as the owner.
        subprocess.run(command, env=self.environment, input=data, check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=60)

    def clipboard(self, target="UTF8_STRING"):
        answer = self.run(["xclip", "-selection", "clipboard", "-out", "-target", target], check=False, text=False)
        return answer.stdout

    # ---- Quillmonger in it

    @property
    def log(self):
        return self.home / "quillmonger.log"

    @property
    def data(self):
        return self.home / ".local/share/quillmonger"

    def start_app(self, first_launch=False, words=(), environment=()):
        """Starts the application as a login would, and waits until it answers."""
        if not first_launch:
            self.quillmonger("defaults", "write", "firstLaunch", "false")
            self.quillmonger("defaults", "write", "persistHistory", "true")
            self.quillmonger("defaults", "write", "historySize", "1000")
        with open(self.log, "ab") as log:
            self.app = self.spawn([self.build / "bin/quillmonger-app", *words], stdout=log, stderr=subprocess.STDOUT)
        wait_until(self.answers, "the application's start")
        return self.app

    def answers(self):
        if self.app is not None and self.app.poll() is not None:
            raise AssertionError(f"the application ended with {self.app.returncode}:\n{self.log.read_text()}")
        return self.quillmonger("list", "--json", check=False).returncode == 0

    def stop_app(self, how=signal.SIGTERM):
        self.app.send_signal(how)
        self.app.wait(10)

    def quillmonger(self, *words, check=True):
        return self.run([self.build / "bin/quillmonger", *words], check=check)

    def records(self):
        """The history as the command line tells it, newest first."""
        return json.loads(self.quillmonger("list", "--json").stdout)

    def texts(self):
        return [record["text"] for record in self.records()]

    def wait_for_text(self, text, seconds=10.0):
        return wait_until(lambda: next((r for r in self.records() if r["text"] == text), None),
                          "the copy in the history", seconds)

    def history_window(self):
        """The number of the history window if it is on screen."""
        answer = self.run(["xdotool", "search", "--onlyvisible", "--name", "^Quillmonger$"], check=False)
        return answer.stdout.split()[0] if answer.stdout.split() else None

    def open_history(self):
        """Presses the global chord and waits for the window with the keyboard."""
        self.run(["xdotool", "key", "shift+super+v"])
        return wait_until(lambda: self.history_window() if self.focused() == self.history_window() else None,
                          "the history window with the focus")

    def guide_window(self):
        """The number of the guide's window once it has the keyboard."""
        guide = self.window("^Welcome to Quillmonger$")
        self.focus(guide)
        return guide

    def finish_guide(self):
        """Walks through the guide's eight screens and leaves it by its last button."""
        self.guide_window()
        self.press(*["Right"] * 7, "Return")

    def search(self, term):
        """Types a term into the open history and gives the field's pause and the search the time they take."""
        self.type(term)
        time.sleep(0.5)

    def wait_hidden(self):
        wait_until(lambda: self.history_window() is None, "the history window to go")
