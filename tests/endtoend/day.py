"""A day of use: copies and pastes at random among real programs in a private desktop, and counts what went wrong.

    day.py BUILD [MINUTES [SEED]]
"""

import random
import re
import subprocess
import sys
import time
from collections import Counter
from contextlib import contextmanager
from pathlib import Path

import targets
from desktop import Desktop, Timeout, wait_until

PROGRAMS = (targets.Terminal, targets.GtkEditor, targets.QtEditor, targets.Browser, targets.WordProcessor)
TEXTS = (
    "The quick brown fox jumps over the lazy dog", "Größe, Straße, naïve café", "Съешь ещё этих мягких булок",
    "Ξεσκεπάζω την ψυχοφθόρα", "مرحبا بالعالم", "שלום עולם", "漢字とひらがな", "👩‍👩‍👧 family and 🏳️‍🌈 flag", "#e07a5f",
    "rgb(17, 204, 3)", "2026-05-16T15:30:00Z", '{"garden": {"beds": 4}}', "https://www.example.org/a?b=c#d",
    "for (const auto& row : rows) total += row;", "x" * 3000)
STALL = 2.0  # seconds
STEAL = 7  # its place among the times of the processors
FAULTS = ("lost copies", "doubled copies", "kept secrets", "wrong pastes", "stray windows", "failures")


def processor_times():
    """Of all of them: user, nice, system, idle, waiting, interrupts, soft interrupts, steal."""
    return [int(word) for word in Path("/proc/stat").read_text().splitlines()[0].split()[1:9]]


class Day:
    def __init__(self, desktop, chance):
        self.desktop = desktop
        self.chance = chance
        self.counts = Counter()
        self.texts = {}  # those that can be pasted, by the word that finds them
        self.number = 0
        self.pictures = 0  # pasted into the browser
        self.slowest = 0.0
        self.memory = []

    def open_programs(self):
        self.programs = [program(self.desktop) for program in PROGRAMS]
        self.files = targets.FileManager(self.desktop)
        picture = ["convert", "-size", "300x200", "gradient:red-blue", "png:-"]
        self.picture = subprocess.run(picture, check=True, capture_output=True).stdout

    def live(self, seconds):
        acts = [self.copy_text] * 4 + [self.paste] * 5 + [
            self.copy_in_editor, self.copy_in_word_processor, self.copy_picture, self.copy_files, self.copy_formatted,
            self.copy_secret, self.paste_picture, self.paste_files]
        self.copy_text()
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            act = self.chance.choice(acts)
            try:
                act()
            except (Timeout, AssertionError, subprocess.SubprocessError) as failure:
                self.blame("failures", f"{act.__name__}: {failure}")
            self.look_around()

    def blame(self, fault, details):
        self.counts[fault] += 1
        print(f"{fault}: {details}", flush=True)

    # ---- copies

    def new_word(self):
        self.number += 1
        return f"word{self.number}q"

    def copy_text(self):
        word = self.new_word()
        self.texts[word] = f"{word} {self.chance.choice(TEXTS)}"
        self.expect_record(lambda: self.desktop.copy(self.texts[word]), word)

    def program(self, kind):
        return next(program for program in self.programs if isinstance(program, kind))

    def copy_in_editor(self):
        self.bring_up(self.program(targets.GtkEditor))
        word = self.new_word()
        self.texts[word] = f"{word} typed by hand"
        self.desktop.type(self.texts[word])
        self.expect_record(lambda: self.desktop.press("ctrl+a", "ctrl+c"), word)

    def copy_in_word_processor(self):
        """A word of a letter, which is offered in a dozen types."""
        self.desktop.focus(self.program(targets.WordProcessor).window)
        word = self.new_word()
        self.texts[word] = word
        self.desktop.press("ctrl+End")
        self.desktop.type(f" {word}")
        self.expect_record(lambda: self.desktop.press("ctrl+shift+Left", "ctrl+c"), word)
        self.desktop.press("ctrl+End")

    def copy_picture(self):
        # Bytes after its end make another picture of it.
        self.expect_record(lambda: self.desktop.copy(self.picture + self.new_word().encode(), "image/png"))

    def copy_files(self):
        word = self.new_word()
        names = [f"{word}.{ending}" for ending in self.chance.choice((["txt"], ["odt", "png"]))]
        self.files.offer(names)
        self.expect_record(lambda: self.files.copy(names), word)
        return word, names

    def copy_formatted(self):
        self.expect_record(lambda: self.desktop.copy(f"<b>{self.new_word()}</b>", "text/html"))

    def copy_secret(self):
        before = self.record_names()
        self.desktop.copy("secret", "x-kde-passwordManagerHint")
        time.sleep(0.5)  # three polls
        self.counts["secrets"] += 1
        if self.record_names()[:1] != before[:1]:
            self.blame("kept secrets", self.number)

    def expect_record(self, copy, word=None):
        before = self.record_names()
        copy()
        self.counts["copies"] += 1
        def is_there():
            return self.record_names()[:1] != before[:1] and (word is None or self.is_newest(word))
        try:
            wait_until(is_there, "the copy")
        except Timeout:
            # A program that is busy can miss a key.
            was_made = word is None or word.encode() in self.desktop.clipboard()
            self.blame("lost copies" if was_made else "copies not made", f"{copy.__qualname__} {word}")
        time.sleep(0.4)
        new = [record for record in self.desktop.records() if record["id"] not in before]
        if len(new) > 1:
            self.blame("doubled copies", [(record["text"], record["types"]) for record in new])

    def is_newest(self, word):
        return word in (self.desktop.records()[0]["text"] or "")

    def record_names(self):
        with self.timed("the command"):
            records = self.desktop.records()
        return [record["id"] for record in records]

    # ---- pastes

    def bring_up(self, program):
        """Puts a program in front, empty if that is easily had. Returns what stands in it."""
        self.desktop.focus(program.window)
        if isinstance(program, (targets.Terminal, targets.WordProcessor)):
            program.text()  # what was changed before may be saved too late for it
            return program.text()
        self.desktop.press("ctrl+a", "Delete")
        return ""

    def paste(self):
        program = self.chance.choice(self.programs)
        word = self.chance.choice(self.words_in_history())
        if isinstance(program, targets.WordProcessor):
            # It asks for the types of the copy before the last one, without Quillmonger too.
            self.copy_text()
            time.sleep(2)
        before = self.bring_up(program)
        self.choose(word)
        try:
            program.wait_for_text(before + self.texts[word])
        except AssertionError as difference:
            self.blame("wrong pastes", f"{type(program).__name__} {word}: {str(difference)[:200]}")

    def words_in_history(self):
        """The history has let go of the oldest items when it is full."""
        first_words = {(text or "").partition(" ")[0] for text in self.desktop.texts()}
        return [word for word in self.texts if word in first_words]

    def paste_picture(self):
        self.copy_picture()
        browser = self.program(targets.Browser)
        self.desktop.focus(browser.window)
        self.choose("")
        self.pictures += 1
        try:
            browser.wait_for_picture(self.pictures)
        except Timeout as difference:
            self.blame("wrong pastes", str(difference))

    def paste_files(self):
        word, names = self.copy_files()
        self.desktop.focus(self.files.window)
        self.choose(word)
        try:
            self.files.wait_for_files(names)
        except Timeout as difference:
            self.blame("wrong pastes", str(difference))

    def choose(self, word):
        """Pastes the newest item with the word, or the newest of all."""
        before = self.record_names()
        with self.timed("the history"):
            self.desktop.open_history()
        if word:
            self.desktop.search(word)
        self.desktop.press("Return")
        self.desktop.wait_hidden()
        self.counts["pastes"] += 1
        # What was pasted is on the clipboard, and so in the history once more.
        wait_until(lambda: self.record_names()[0] != before[0], "the paste in the history")

    # ---- what should not be

    @contextmanager
    def timed(self, what):
        begin, before = time.monotonic(), processor_times()
        yield
        seconds = time.monotonic() - begin
        self.slowest = max(self.slowest, seconds)
        if seconds > STALL:
            self.counts["stalls"] += 1
            spent = [after - earlier for after, earlier in zip(processor_times(), before)]
            # On a virtual machine nothing goes on while its host has the processors.
            print(f"stall: {what} took {seconds:.1f} s; the host had {spent[STEAL] / max(1, sum(spent)):.0%} of the "
                  "processors", flush=True)

    def look_around(self):
        found = self.desktop.run(["xdotool", "search", "--onlyvisible", "--class", "quillmonger"], check=False)
        if found.stdout.strip():
            self.blame("stray windows", found.stdout.split())
            self.desktop.press("Escape")
        status = Path(f"/proc/{self.desktop.app.pid}/smaps_rollup").read_text()
        self.memory.append(int(re.search(r"^Pss:\s+(\d+)", status, re.MULTILINE).group(1)) / 1000)

    def tell(self):
        for what in ("copies", "copies not made", "secrets", "pastes", *FAULTS, "stalls"):
            print(f"{what:<16} {self.counts[what]}")
        tenth = max(1, len(self.memory) // 10)
        print(f"slowest answer   {self.slowest:.2f} s")
        print(f"memory           {max(self.memory[:tenth]):.1f} MB in the first tenth, "
              f"{max(self.memory[-tenth:]):.1f} MB in the last, {max(self.memory):.1f} MB at most")
        return sum(self.counts[fault] for fault in FAULTS)


def main(build, minutes="5", seed=None):
    seed = seed or str(random.randrange(10**6))
    print(f"seed {seed}", flush=True)
    with Desktop(build) as desktop:
        desktop.start_app()
        day = Day(desktop, random.Random(seed))
        day.open_programs()
        day.live(float(minutes) * 60)
        faults = day.tell()
    sys.exit(faults > 0)


if __name__ == "__main__":
    main(*sys.argv[1:])
