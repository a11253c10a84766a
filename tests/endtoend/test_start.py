"""How the program starts, and how it ends."""

from desktop import wait_until
from roadcase import RoadCase


class TheStart(RoadCase):
    def test_a_first_start_shows_the_guide_and_captures_nothing_until_it_ends(self):
        self.desktop.start_app(first_launch=True)
        self.desktop.guide_window()
        self.desktop.copy("during the guide")
        wait_until(lambda: self.desktop.clipboard() == b"during the guide", "the copy on the clipboard")
        self.assertEqual(self.desktop.texts(), [])

        self.desktop.finish_guide()

        wait_until(self.desktop.history_window, "the history after the guide")
        self.desktop.wait_for_text("during the guide")
        self.assertEqual(self.desktop.quillmonger("defaults", "read", "firstLaunch").stdout.strip(), "false")

    def test_a_second_start_shows_the_history_of_the_first_and_ends(self):
        self.desktop.start_app()

        second = self.desktop.spawn([self.desktop.build / "bin/quillmonger-app"])

        wait_until(self.desktop.history_window, "the history window")
        self.assertEqual(second.wait(10), 0)
        self.assertIsNone(self.desktop.app.poll())

    def test_the_command_starts_what_is_not_running(self):
        self.desktop.quillmonger("defaults", "write", "firstLaunch", "false")

        self.desktop.quillmonger("show")

        wait_until(self.desktop.history_window, "the history window")
        self.desktop.quillmonger("quit")

    def test_toggle_shows_and_hides(self):
        self.desktop.start_app()

        self.desktop.quillmonger("toggle")
        wait_until(self.desktop.history_window, "the history window")
        self.desktop.quillmonger("toggle")

        self.desktop.wait_hidden()

    def test_quit_saves_and_ends(self):
        self.desktop.start_app()
        self.desktop.copy("saved at the end")
        self.desktop.wait_for_text("saved at the end")

        self.desktop.quillmonger("quit")
        self.desktop.app.wait(10)

        self.assertEqual(self.desktop.app.returncode, 0)
        self.desktop.start_app()
        self.assertEqual(self.desktop.texts(), ["saved at the end"])

    def test_losing_the_display_saves_and_ends(self):
        self.desktop.start_app()
        self.desktop.copy("the last words")
        self.desktop.wait_for_text("the last words")

        self.desktop.replace_display()
        self.desktop.app.wait(10)

        self.assertEqual(self.desktop.app.returncode, 1)
        self.assertIn("The history is saved.", self.desktop.log.read_text())
        self.desktop.start_app()
        self.assertEqual(self.desktop.texts(), ["the last words"])

    def test_a_store_that_is_no_store_gives_the_alert_then_the_stop_and_is_left_alone(self):
        self.desktop.quillmonger("defaults", "write", "firstLaunch", "false")
        self.desktop.data.mkdir(parents=True)
        store = self.desktop.data / "history.sqlite"
        store.write_bytes(b"not a database at all" * 100)

        with open(self.desktop.log, "ab") as log:
            app = self.desktop.spawn([self.desktop.build / "bin/quillmonger-app"], stdout=log, stderr=log)
        alert = self.desktop.window("quillmonger", "--class")
        self.assertIsNone(app.poll())
        self.desktop.focus(alert)
        self.desktop.press("Escape")

        wait_until(lambda: app.poll() is not None, "the stop")
        self.assertNotEqual(app.returncode, 0)
        self.assertIn("Error initializing model context: ", self.desktop.log.read_text())
        self.assertEqual(store.read_bytes(), b"not a database at all" * 100)

    def test_a_url_is_told_and_dropped(self):
        self.desktop.start_app(words=["quillmonger://open/sesame", "https://elsewhere"])

        lines = self.desktop.log.read_text()

        self.assertIn("application start url = quillmonger://open/sesame\nunknown url action: ", lines)
        self.assertIn("application start url = https://elsewhere\nunknown url scheme: ", lines)
