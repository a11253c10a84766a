"""Pasting into every kind of program, whatever the keyboard is like at that moment."""

import os
import signal
import time
import unittest
from pathlib import Path

import targets
from desktop import Desktop, wait_until

BUILD = os.environ["QUILLMONGER_BUILD"]
LAYOUTS = ("us", "de", "fr", "us(dvorak)", "ru", "jp", "gr", "us,ru", "ru,us")
# Keys by their place, the same under each layout.
CHORD = "shift+super+55"
RETURN = "36"
DIGIT_1 = "10"


class Pastes:
    """What holds for every kind of program; each class below is one of them."""

    target_class = None

    def start(self, window_manager="openbox"):
        self.desktop = Desktop(BUILD, window_manager=window_manager)
        self.desktop.__enter__()
        self.addCleanup(self.desktop.__exit__)
        self.desktop.start_app()
        self.target = self.target_class(self.desktop)
        self.expected = ""

    def copy(self, text):
        self.desktop.copy(text)
        self.desktop.wait_for_text(text)
        self.expected += text

    def key(self, *chords):
        self.desktop.run(["xdotool", "key", *chords])

    def open_history(self):
        self.key(CHORD)
        wait_until(lambda: self.desktop.history_window() and self.desktop.focused() == self.desktop.history_window(),
                   "the history with the focus")

    def paste(self):
        self.open_history()
        self.key(RETURN)
        self.desktop.wait_hidden()

    def try_layouts(self, window_manager):
        self.start(window_manager)
        for layout in LAYOUTS:
            self.desktop.use_layout(layout)
            self.copy(f"<{layout}>")
            self.paste()
            time.sleep(0.3)  # in which the program reads the chord under this layout
            self.desktop.use_layout("us")
            self.target.wait_for_text(self.expected)

    def test_under_every_layout_with_openbox(self):
        self.try_layouts("openbox")

    def test_under_every_layout_with_xfwm4(self):
        self.try_layouts("xfwm4")

    def test_with_the_modifiers_of_the_chord_still_held(self):
        self.start()
        self.copy("<chord>")
        self.desktop.run(["xdotool", "keydown", "shift", "keydown", "super", "key", "55"])
        wait_until(self.desktop.history_window, "the history")
        self.key(RETURN)
        self.desktop.wait_hidden()
        self.desktop.run(["xdotool", "keyup", "super", "keyup", "shift"])
        self.target.wait_for_text(self.expected)

        self.copy("<digit>")
        self.open_history()
        self.desktop.run(["xdotool", "keydown", "ctrl", "key", DIGIT_1])
        self.desktop.wait_hidden()
        time.sleep(1.5)  # a slow hand
        self.desktop.run(["xdotool", "keyup", "ctrl"])
        self.target.wait_for_text(self.expected)

    def test_with_caps_lock_on(self):
        self.start()
        self.key("Caps_Lock")
        self.copy("<Caps Lock>")
        self.paste()
        time.sleep(0.3)  # in which the program reads the chord under the lock
        self.key("Caps_Lock")
        self.target.wait_for_text(self.expected)

    def test_after_the_copys_program_is_gone(self):
        self.start()
        self.copy("<gone>")
        display = f"DISPLAY={self.desktop.environment['DISPLAY']}"
        for process in self.desktop.run(["pidof", "xclip"]).stdout.split():
            if display in Path(f"/proc/{process}/environ").read_text().split("\0"):
                os.kill(int(process), signal.SIGKILL)

        self.paste()

        self.target.wait_for_text(self.expected)

    def test_a_hundred_times_in_a_row(self):
        self.start()
        for number in range(100):
            self.copy(f"<{number}>")
            self.paste()
            self.target.wait_for_text(self.expected)


class IntoATerminal(Pastes, unittest.TestCase):
    target_class = targets.Terminal


class IntoAGtkEditor(Pastes, unittest.TestCase):
    target_class = targets.GtkEditor


class IntoAQtEditor(Pastes, unittest.TestCase):
    target_class = targets.QtEditor


class IntoABrowser(Pastes, unittest.TestCase):
    target_class = targets.Browser


class IntoAWordProcessor(Pastes, unittest.TestCase):
    target_class = targets.WordProcessor

    def start_with_a_bold_copy(self):
        """A bold word of the word processor itself, which leaves its document empty and plain."""
        self.start()
        self.key("ctrl+b")
        self.desktop.type("heavy")
        self.key("ctrl+a", "ctrl+c")
        self.desktop.wait_for_text("heavy")
        self.key("Delete", "ctrl+b")
        self.target.wait_for_text("")
        self.assertFalse(self.has_bold())

    def has_bold(self):
        return 'fo:font-weight="bold"' in self.target.document()

    def test_return_keeps_the_format(self):
        self.start_with_a_bold_copy()

        self.paste()

        self.target.wait_for_text("heavy")
        self.assertTrue(self.has_bold())

    def test_return_with_option_drops_the_format(self):
        self.start_with_a_bold_copy()

        self.open_history()
        self.key("alt+" + RETURN)
        self.desktop.wait_hidden()

        self.target.wait_for_text("heavy")
        self.assertFalse(self.has_bold())


class IntoAFileManager(unittest.TestCase):
    def test_the_files_themselves_are_pasted_not_their_names(self):
        desktop = Desktop(BUILD)
        desktop.__enter__()
        self.addCleanup(desktop.__exit__)
        desktop.start_app()
        manager = targets.FileManager(desktop)
        for names in (["poem.txt"], ["letter.odt", "Größe 漢字.png"]):
            manager.offer(names)
            manager.copy(names)
            wait_until(lambda: any(names[-1] in (text or "") for text in desktop.texts()[:1]), "the copy in the history")
            desktop.copy(f"after {names[0]}")
            wait_until(lambda: desktop.texts()[:1] == [f"after {names[0]}"], "a later copy on top")

            desktop.focus(manager.window)
            desktop.open_history()
            desktop.press("Down", "Return")

            manager.wait_for_files(names)
