"""The preview beside the history, as the desktop's window manager lets it."""

import time

from desktop import wait_until
from roadcase import RoadCase

PANE = 332


class Preview:
    def preview(self):
        answer = self.desktop.run(["xdotool", "search", "--onlyvisible", "--name", "^Quillmonger Preview$"],
                                  check=False)
        return answer.stdout.split()[0] if answer.stdout.split() else None

    def stacking(self):
        """The windows' numbers, the lowest first."""
        answer = self.desktop.run(["xprop", "-root", "_NET_CLIENT_LIST_STACKING"]).stdout
        return [str(int(word.strip(" ,"), 16)) for word in answer.split("#")[1].split(",")]

    def wait_gone(self):
        wait_until(lambda: self.preview() is None, "the preview to go")

    def open_with_preview(self):
        """Opens history and preview, and waits until the preview stands still."""
        history = self.desktop.open_history()
        self.desktop.press("ctrl+p")
        preview = wait_until(self.preview, "the preview")
        wait_until(lambda: self.desktop.geometry(preview)[0] == self.desktop.geometry(history)[0] + 606,
                   "the end of the slide")
        time.sleep(0.3)
        return history, preview

    def start_with_copy(self):
        self.desktop.start_app()
        _, self.editor = self.open_gtk_editor()
        self.desktop.run(["xdotool", "windowmove", self.editor, "0", "0"])
        self.desktop.copy("something to look at")
        self.desktop.wait_for_text("something to look at")

    def test_it_ends_beside_the_history_and_leaves_it_the_keyboard(self):
        self.start_with_copy()

        history, preview = self.open_with_preview()

        left, top, width, height = self.desktop.geometry(history)
        self.assertEqual(self.desktop.geometry(preview), (left + width + 6, top, PANE, height))
        self.assertEqual(self.desktop.focused(), history)
        self.desktop.press("ctrl+p")
        self.wait_gone()
        self.assertEqual(self.desktop.focused(), history)

    def test_a_click_elsewhere_closes_both(self):
        self.start_with_copy()
        self.open_with_preview()

        self.desktop.click(20, 60)

        self.desktop.wait_hidden()
        self.wait_gone()

    def test_a_click_into_it_closes_nothing_and_leaves_the_history_the_keyboard(self):
        self.start_with_copy()
        history, preview = self.open_with_preview()
        left, top, _, _ = self.desktop.geometry(preview)

        self.desktop.click(left + 60, top + 200)
        time.sleep(0.5)
        self.assertEqual(self.desktop.history_window(), history)
        self.assertIsNotNone(self.preview())
        self.assertEqual(self.desktop.focused(), history)
        wait_until(lambda: self.stacking().index(history) > self.stacking().index(preview), "the history above it")
        self.desktop.press("ctrl+p")

        self.wait_gone()
        time.sleep(0.3)
        self.assertEqual(self.desktop.focused(), history)
        self.assertEqual(self.desktop.history_window(), history)

    def test_what_is_typed_after_a_click_into_it_is_searched_for(self):
        self.start_with_copy()
        self.desktop.copy("another thing")
        self.desktop.wait_for_text("another thing")
        _, preview = self.open_with_preview()
        left, top, _, _ = self.desktop.geometry(preview)

        self.desktop.click(left + 60, top + 200)
        self.desktop.search("look")
        self.desktop.press("Return")

        self.desktop.wait_hidden()
        wait_until(lambda: self.desktop.clipboard() == b"something to look at", "the row that was searched for")

    def test_what_is_selected_in_it_is_copied(self):
        self.start_with_copy()
        _, preview = self.open_with_preview()
        left, top, _, _ = self.desktop.geometry(preview)

        self.desktop.run(["xdotool", "mousemove", str(left + 40), str(top + 24), "click", "--repeat", "2", "1"])
        self.desktop.press("ctrl+c")

        wait_until(lambda: self.desktop.clipboard() == b"something", "the word that was double clicked")

    def test_escape_in_it_closes_both(self):
        self.start_with_copy()
        _, preview = self.open_with_preview()
        left, top, _, _ = self.desktop.geometry(preview)
        self.desktop.click(left + 60, top + 200)

        self.desktop.press("Escape")

        self.desktop.wait_hidden()
        self.wait_gone()


class ThePreview(Preview, RoadCase):
    def test_alt_and_a_digit_copy_what_was_recognised_and_close_nothing(self):
        self.desktop.start_app()
        self.desktop.copy("#ff8000")
        self.desktop.wait_for_text("#ff8000")
        history, _ = self.open_with_preview()

        self.desktop.press("alt+2")

        wait_until(lambda: self.desktop.clipboard() == b"rgb(255, 128, 0)", "the colour's second form")
        self.desktop.wait_for_text("rgb(255, 128, 0)")
        self.assertEqual(self.desktop.focused(), history)
        self.assertIsNotNone(self.preview())
        # Had the digit been typed, this would look for "2#ff".
        self.desktop.search("#ff")
        self.desktop.press("Return")
        wait_until(lambda: self.desktop.clipboard() == b"#ff8000", "the row that was searched for")


class ThePreviewUnderXfwm4(Preview, RoadCase):
    window_manager = "xfwm4"


class UnderATilingWindowManager(RoadCase):
    window_manager = "i3 -c /dev/null"
    preview = Preview.preview

    def test_history_and_preview_float_in_their_size(self):
        self.desktop.start_app()
        self.open_gtk_editor()

        history = self.desktop.open_history()
        self.desktop.press("ctrl+p")
        preview = wait_until(self.preview, "the preview")

        wait_until(lambda: self.desktop.geometry(preview)[2:] == (PANE, 445), "the preview's size")
        self.assertEqual(self.desktop.geometry(history)[2:], (600, 445))
        self.assertEqual(self.desktop.focused(), history)


class ThePreviewOnANarrowScreen(Preview, RoadCase):
    size = "1024x768x24"

    def test_the_history_gives_way_so_that_both_are_on_the_screen(self):
        self.start_with_copy()

        history, preview = self.open_with_preview()

        self.assertEqual(self.desktop.geometry(preview)[0] + PANE, 1024)
        self.assertEqual(self.desktop.geometry(history)[0], 1024 - PANE - 606)
