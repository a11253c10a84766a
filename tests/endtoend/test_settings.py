"""The settings, changed with the keyboard while the program runs."""

import json
import time

from desktop import wait_until
from roadcase import RoadCase


class TheSettings(RoadCase):
    def open_settings(self):
        self.desktop.quillmonger("settings")
        self.wait_for_front("^General$")
        return self.go_to_ignored_applications()

    def go_to_ignored_applications(self):
        """From the toolbar, which the keyboard reaches first."""
        self.desktop.press("Tab", "Right")
        settings = self.wait_for_front("^Ignore$")
        self.wait_still(settings)
        return settings

    def copy_all_from_the_editor(self):
        self.desktop.press("ctrl+a", "ctrl+c")

    def test_copies_of_an_ignored_application_are_not_kept(self):
        self.desktop.start_app()
        entry = "file:///usr/share/applications/org.xfce.mousepad.desktop"
        self.desktop.quillmonger("defaults", "write", "ignoredApps", json.dumps([entry]))
        self.open_gtk_editor("of the ignored one")
        self.copy_all_from_the_editor()
        wait_until(lambda: self.desktop.clipboard() == b"of the ignored one", "the copy on the clipboard")
        self.open_qt_editor("of another one")
        self.copy_all_from_the_editor()

        self.desktop.wait_for_text("of another one")

        self.assertEqual(self.desktop.texts(), ["of another one"])

    def test_an_application_is_chosen_with_the_keyboard_and_ignored_from_then_on(self):
        self.desktop.start_app()
        self.desktop.open_history()
        self.desktop.press("ctrl+comma")
        self.wait_for_front("^General$")
        self.desktop.wait_hidden()
        settings = self.go_to_ignored_applications()

        self.desktop.press("Tab", "Tab", "Tab", "Tab", "Return")
        self.wait_for_front("^Choose an Application$")
        self.desktop.type("mousep")
        self.desktop.press("Return")

        wait_until(lambda: "mousepad" in self.desktop.quillmonger("defaults", "read", "ignoredApps").stdout,
                   "the application in the list")
        wait_until(lambda: self.desktop.focused() == settings, "the settings in front again")
        self.open_gtk_editor("of the ignored one")
        self.copy_all_from_the_editor()
        wait_until(lambda: self.desktop.clipboard() == b"of the ignored one", "the copy on the clipboard")
        self.assertTrue(self.is_shown("^Ignore$"), "they stay when another application is in front")
        self.open_qt_editor("of another one")
        self.copy_all_from_the_editor()
        self.desktop.wait_for_text("of another one")
        self.assertEqual(self.desktop.texts(), ["of another one"])

    def test_escape_in_the_picker_leaves_the_settings_and_in_the_settings_hides_everything(self):
        self.desktop.start_app()
        settings = self.open_settings()
        self.desktop.press("Tab", "Tab", "Tab", "Tab", "Return")
        self.wait_for_front("^Choose an Application$")

        self.desktop.press("Escape")
        wait_until(lambda: self.desktop.focused() == settings, "the settings in front again")
        self.desktop.press("Escape")

        wait_until(lambda: not self.is_shown("^Ignore$"), "the settings to go")

    def test_the_chord_closes_the_settings_and_the_picker_and_shows_the_history(self):
        self.desktop.start_app()
        self.open_settings()
        self.desktop.press("Tab", "Tab", "Tab", "Tab", "Return")
        self.wait_for_front("^Choose an Application$")

        self.desktop.open_history()

        self.assertFalse(self.is_shown("^Ignore$"))
        self.assertFalse(self.is_shown("^Choose an Application$"))
        time.sleep(0.5)
        self.assertIsNotNone(self.desktop.history_window(), "it stays")

    def test_the_command_starts_the_program_to_show_them(self):
        self.desktop.quillmonger("defaults", "write", "firstLaunch", "false")

        self.desktop.quillmonger("settings")
        self.wait_for_front("^General$")

        self.desktop.quillmonger("quit")
