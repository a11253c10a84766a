"""A stranger's first minutes: the guide, the first copy, the first paste."""

from pathlib import Path

from desktop import wait_until
from roadcase import RoadCase


class TheFirstRun(RoadCase):
    def decoders(self):
        """The programs that read a video for the guide."""
        children = Path(f"/proc/{self.desktop.app.pid}/task/{self.desktop.app.pid}/children").read_text().split()
        return [child for child in children if self.name(child) == "quillmonger-vid"]

    def name(self, process):
        try:
            return Path(f"/proc/{process}/comm").read_text().strip()
        except FileNotFoundError:
            return None

    def first_launch(self):
        return self.desktop.quillmonger("defaults", "read", "firstLaunch").stdout.strip()

    def test_from_the_guide_to_the_first_paste_and_no_guide_after_a_restart(self):
        self.desktop.start_app(first_launch=True)
        self.desktop.finish_guide()
        history = wait_until(self.desktop.history_window, "the history after the guide")
        wait_until(lambda: self.desktop.focused() == history, "the history with the keyboard")
        self.desktop.press("Escape")
        self.desktop.wait_hidden()

        file, _ = self.open_gtk_editor("my first copy")
        self.desktop.press("ctrl+a", "ctrl+c")
        self.desktop.wait_for_text("my first copy")
        self.desktop.press("ctrl+End")
        self.desktop.open_history()
        self.desktop.press("Return")
        self.desktop.wait_hidden()
        self.save_until(file, "my first copy" * 2)

        self.desktop.stop_app()
        self.desktop.start_app(first_launch=True)
        self.desktop.open_history()
        self.assertEqual(self.first_launch(), "false")
        self.assertEqual(self.desktop.run(["xdotool", "search", "--onlyvisible", "--name", "^Welcome"],
                                          check=False).stdout, "")

    def test_the_guide_comes_again_when_its_setting_is_on(self):
        self.desktop.start_app()
        self.desktop.quillmonger("defaults", "write", "firstLaunch", "true")
        self.desktop.stop_app()
        self.desktop.start_app(first_launch=True)

        self.desktop.finish_guide()

        wait_until(self.desktop.history_window, "the history after the guide")
        self.assertEqual(self.first_launch(), "false")

    def test_quitting_on_the_first_screen_leaves_the_guide_for_the_next_start(self):
        self.desktop.start_app(first_launch=True)
        self.desktop.guide_window()

        self.desktop.press("Right", "Escape", "Escape")

        self.assertEqual(self.desktop.app.wait(10), 0)
        self.desktop.start_app(first_launch=True)
        self.desktop.guide_window()

    def test_closing_the_window_quits(self):
        self.desktop.start_app(first_launch=True)
        guide = self.desktop.guide_window()

        self.desktop.run(["wmctrl", "-i", "-c", hex(int(guide))])

        self.assertEqual(self.desktop.app.wait(10), 0)

    def test_the_keys_of_the_history_do_nothing_in_the_guide(self):
        self.desktop.start_app()
        self.desktop.copy("kept from before")
        self.desktop.wait_for_text("kept from before")
        self.desktop.quillmonger("defaults", "write", "firstLaunch", "true")
        self.desktop.stop_app()
        self.desktop.start_app(first_launch=True)
        guide = self.desktop.guide_window()

        self.desktop.press("Down", "Up", "ctrl+BackSpace", "ctrl+1")

        self.assertEqual(self.desktop.focused(), guide)
        self.assertEqual(self.desktop.texts(), ["kept from before"])

    def drag(self, start, way):
        """Holds the pointer's button at a place of the guide, and goes on step by step until the window follows.

        Returns how far its left, top, right and bottom edges went.
        """
        guide = self.desktop.guide_window()
        left, top, width, height = self.desktop.geometry(guide)
        self.desktop.run(["xdotool", "mousemove", str(left + start[0]), str(top + start[1]), "mousedown", "1"])

        def follows():
            self.desktop.run(["xdotool", "mousemove_relative", "--", *map(str, way)])
            return self.desktop.geometry(guide) != (left, top, width, height)
        wait_until(follows, "the window to follow the pointer", step=0.1)
        self.desktop.run(["xdotool", "mouseup", "1"])
        self.wait_still(guide)
        new_left, new_top, new_width, new_height = self.desktop.geometry(guide)
        return (new_left - left, new_top - top,
                new_left + new_width - left - width, new_top + new_height - top - height)

    def test_its_edges_resize_it_and_its_background_moves_it(self):
        self.desktop.start_app(first_launch=True)
        _, _, width, height = self.desktop.geometry(self.desktop.guide_window())

        left, top, right, bottom = self.drag((width - 3, height - 3), (12, 8))
        self.assertEqual((left, top), (0, 0))
        self.assertTrue(right > 0 and bottom > 0, "the corner went nowhere")

        left, top, right, bottom = self.drag((2, 300), (-12, 8))
        self.assertEqual((top, right, bottom), (0, 0, 0))
        self.assertLess(left, 0)

        left, top, right, bottom = self.drag((60, 60), (-12, 8))
        self.assertEqual((left, top), (right, bottom))
        self.assertTrue(left < 0 < top, "the window went nowhere")

    def test_a_video_is_read_by_one_program_at_a_time_and_by_none_after_the_guide(self):
        self.desktop.start_app(first_launch=True)
        self.desktop.guide_window()
        self.assertEqual(self.decoders(), [])

        self.desktop.press("Right")
        first = wait_until(self.decoders, "the video's program")
        self.desktop.press("Right")
        wait_until(lambda: self.decoders() and self.decoders() != first, "the next video's program")
        self.assertEqual(len(self.decoders()), 1)
        self.desktop.press("Left", "Left")
        self.desktop.finish_guide()

        wait_until(self.desktop.history_window, "the history after the guide")
        wait_until(lambda: not self.decoders(), "the video's program to end")
