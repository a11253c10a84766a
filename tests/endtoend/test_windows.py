"""Where the windows open, what closes them and what doesn't, under two window managers."""

import time
import unittest

from desktop import wait_until
from roadcase import RoadCase


class Windows:
    def test_the_history_opens_in_the_middle_and_a_little_above(self):
        self.desktop.start_app()

        history = self.desktop.open_history()

        left, top, width, height = self.desktop.geometry(history)
        self.assertEqual((left, width, height), ((1280 - 600) // 2, 600, 445))
        self.assertTrue(0 < top < (800 - 445) // 2, top)

    def test_the_history_opens_on_the_screen_with_the_focused_window(self):
        self.desktop.run(["xrandr", "--setmonitor", "left", "640/160x800/200+0+0", "screen"])
        self.desktop.run(["xrandr", "--setmonitor", "right", "640/160x800/200+640+0", "none"])
        self.desktop.start_app()
        _, window = self.open_gtk_editor()
        self.desktop.run(["xdotool", "windowsize", "--sync", window, "400", "300"])
        self.desktop.run(["xdotool", "mousemove", "100", "700"])
        for screen, place in ((0, "120"), (640, "760")):
            self.desktop.run(["xdotool", "windowmove", window, place, "100"])
            wait_until(lambda: abs(self.desktop.geometry(window)[0] - int(place)) < 30, "the editor in its place")
            self.desktop.focus(window)

            history = self.desktop.open_history()
            self.assertEqual(self.desktop.geometry(history)[0], screen + 20)
            self.desktop.press("Escape")
            self.desktop.wait_hidden()

    def test_a_click_elsewhere_closes_the_history(self):
        self.desktop.start_app()
        _, window = self.open_gtk_editor()
        self.desktop.run(["xdotool", "windowmove", window, "0", "0"])
        self.desktop.open_history()

        self.desktop.click(20, 60)

        self.desktop.wait_hidden()

    def test_a_history_that_is_shown_again_as_soon_as_it_has_gone_stays(self):
        self.desktop.start_app()
        self.open_gtk_editor()
        for _ in range(5):
            history = self.desktop.open_history()
            self.desktop.press("Escape")
            self.desktop.wait_hidden()

            self.desktop.quillmonger("show")

            wait_until(lambda: self.desktop.focused() == history, "the keyboard with the history")
            time.sleep(0.2)
            self.assertEqual(self.desktop.history_window(), history)
            self.desktop.press("Escape")
            self.desktop.wait_hidden()

    def test_a_history_whose_chord_follows_escape_at_once_comes_each_time(self):
        self.desktop.start_app()
        self.open_gtk_editor()
        for _ in range(20):
            self.desktop.open_history()
            self.desktop.type("a")
            self.desktop.press("Escape")
            self.desktop.wait_hidden()

    def test_a_chord_that_is_held_down_takes_the_keyboard_and_closes_nothing(self):
        self.desktop.start_app()
        self.open_gtk_editor()
        self.desktop.open_history()

        self.desktop.run(["xdotool", "keydown", "shift", "keydown", "super", "keydown", "v"])
        time.sleep(0.5)
        self.assertIsNotNone(self.desktop.history_window())
        self.desktop.run(["xdotool", "keyup", "v", "keyup", "super", "keyup", "shift"])

        self.desktop.wait_hidden()

    def test_the_settings_stay_while_another_application_is_in_front_and_go_for_the_history(self):
        self.desktop.start_app()
        _, editor = self.open_gtk_editor()
        self.desktop.quillmonger("settings")
        self.wait_for_front("^General$")

        self.desktop.focus(editor)
        time.sleep(1)  # the toolkit takes a loss of the keyboard for real after 0.4 s
        self.assertTrue(self.is_shown("^General$"))
        self.desktop.open_history()

        self.assertFalse(self.is_shown("^General$"))

    def test_the_about_window_comes_in_the_middle_and_goes_for_escape(self):
        self.desktop.start_app()

        self.desktop.quillmonger("about")
        about = self.wait_for_front("^About Quillmonger$")
        left, _, width, height = self.desktop.geometry(about)
        self.assertEqual((width, height), (540, 280))
        self.assertAlmostEqual(left + width / 2, 640, delta=8)
        self.desktop.press("Escape")

        wait_until(lambda: not self.is_shown("^About Quillmonger$"), "the window to go")


class TheWindows(Windows, RoadCase):
    def test_a_page_that_nothing_opens_is_told_with_an_address_to_copy(self):
        programs = self.desktop.home / "programs"
        programs.mkdir()
        opener = programs / "xdg-open"
        opener.write_text("#!/bin/sh\nexit 3\n")
        opener.chmod(0o700)
        self.desktop.environment["PATH"] = f"{programs}:{self.desktop.environment['PATH']}"
        self.desktop.start_app()
        self.desktop.quillmonger("about")
        self.wait_for_front("^About Quillmonger$")

        self.desktop.press("Tab", "Return")
        self.wait_for_front("^The address could not be opened$")
        self.desktop.press("Return")

        wait_until(lambda: self.desktop.clipboard().startswith(b"https://quillmonger.example/"), "the address")
        self.wait_for_front("^About Quillmonger$")


class TheWindowsUnderXfwm4(Windows, RoadCase):
    window_manager = "xfwm4"


if __name__ == "__main__":
    unittest.main()
