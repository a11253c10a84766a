"""The whole road of a copy: made in one real program, kept, found by typing, pasted with Return into another."""

from desktop import Timeout, wait_until
from roadcase import RoadCase


class TheWholeRoad(RoadCase):
    def test_a_copy_of_a_clipboard_client_goes_into_a_gtk_editor(self):
        self.desktop.start_app()
        self.desktop.copy("a needle in the history")
        self.desktop.wait_for_text("a needle in the history")
        self.desktop.copy("some hay")
        self.desktop.wait_for_text("some hay")
        file, window = self.open_gtk_editor()

        self.paste_from_history("needle")

        wait_until(lambda: self.desktop.focused() == window, "the editor to have the focus again")
        self.save_until(file, "a needle in the history")

    def test_a_copy_of_a_gtk_editor_goes_into_a_qt_editor(self):
        self.desktop.start_app()
        self.open_gtk_editor("gtk says grüß dich")
        self.desktop.press("ctrl+a", "ctrl+c")
        record = self.desktop.wait_for_text("gtk says grüß dich")
        self.assertIn("mousepad", record["sourceAppBundleIdentifier"].lower())
        self.desktop.copy("something newer")
        self.desktop.wait_for_text("something newer")
        file, _ = self.open_qt_editor()
        self.desktop.use_layout("de")

        self.paste_from_history("GRÜSS")

        self.save_until(file, "gtk says grüß dich")

    def test_a_copy_of_a_qt_editor_goes_into_a_terminal(self):
        self.desktop.start_app()
        self.open_qt_editor("qt says مرحبا")
        self.desktop.press("ctrl+a", "ctrl+c")
        record = self.desktop.wait_for_text("qt says مرحبا")
        self.assertIn("featherpad", record["sourceAppBundleIdentifier"].lower())
        file, _ = self.open_terminal()

        self.paste_from_history("qt says")
        self.desktop.press("Return", "ctrl+d")

        wait_until(lambda: file.read_text() == "qt says مرحبا\n", "the text in the terminal")

    def test_a_copy_of_a_terminal_goes_into_a_gtk_editor(self):
        self.desktop.start_app()
        self.desktop.spawn(["xterm", "-xrm", "XTerm*selectToClipboard: true", "-T", "source", "-e",
                            "sh", "-c", "printf terminalword; sleep 600"])
        window = self.desktop.window("^source$")
        self.desktop.focus(window)
        def selected():
            self.desktop.run(["xdotool", "mousemove", "--window", window, "20", "10", "click", "--repeat", "2", "1"])
            return "terminalword" in self.desktop.texts()
        wait_until(selected, "the terminal's selection in the history", step=0.3)
        file, _ = self.open_gtk_editor()

        self.paste_from_history("terminalw")

        self.save_until(file, "terminalword")

    def test_the_terminal_keeps_the_focus_and_the_copy_after_escape(self):
        self.desktop.start_app()
        self.desktop.copy("untouched")
        self.desktop.wait_for_text("untouched")
        file, window = self.open_terminal()

        self.desktop.open_history()
        self.desktop.press("Escape")
        self.desktop.wait_hidden()

        wait_until(lambda: self.desktop.focused() == window, "the terminal to have the focus again")
        self.desktop.type("typed")
        self.desktop.press("Return", "ctrl+d")
        wait_until(lambda: file.read_text() == "typed\n", "what was typed in the terminal")
        self.assertEqual(self.desktop.clipboard(), b"untouched")

    def test_the_arrows_choose_the_row_that_return_pastes(self):
        self.desktop.start_app()
        for text in ("first", "second", "third"):
            self.desktop.copy(text)
            self.desktop.wait_for_text(text)
        file, _ = self.open_gtk_editor()

        self.desktop.open_history()
        self.desktop.press("Down", "Down", "Up", "Return")
        self.desktop.wait_hidden()

        self.save_until(file, "second")

    def test_control_and_a_digit_paste_that_row(self):
        self.desktop.start_app()
        for text in ("first", "second", "third"):
            self.desktop.copy(text)
            self.desktop.wait_for_text(text)
        file, _ = self.open_gtk_editor()

        self.desktop.open_history()
        self.desktop.press("ctrl+3")
        self.desktop.wait_hidden()

        self.save_until(file, "first")

    def test_control_and_backspace_delete_the_chosen_row(self):
        self.desktop.start_app()
        for text in ("first", "second", "third"):
            self.desktop.copy(text)
            self.desktop.wait_for_text(text)

        self.desktop.open_history()
        self.desktop.press("Down", "ctrl+BackSpace")

        wait_until(lambda: self.desktop.texts() == ["third", "first"], "the row to go")

    def test_the_chord_shows_and_hides(self):
        self.desktop.start_app()
        self.desktop.open_history()

        self.desktop.run(["xdotool", "key", "shift+super+v"])

        self.desktop.wait_hidden()

    def test_another_window_in_front_closes_the_history(self):
        self.desktop.start_app()
        _, window = self.open_terminal()
        self.desktop.open_history()

        self.desktop.run(["xdotool", "windowactivate", window])

        self.desktop.wait_hidden()

    def test_the_command_bound_to_keys_of_the_desktop_works_as_the_chord_does(self):
        self.desktop.start_app()
        self.desktop.copy("by the desktop's own keys")
        self.desktop.wait_for_text("by the desktop's own keys")
        settings = self.desktop.home / ".config/openbox/rc.xml"
        settings.parent.mkdir(parents=True)
        settings.write_text(f"""<openbox_config xmlns="http://openbox.org/3.4/rc"><keyboard>
            <keybind key="W-F9"><action name="Execute"><command>{self.desktop.build}/bin/quillmonger toggle</command>
            </action></keybind></keyboard></openbox_config>""")
        self.desktop.run(["openbox", "--reconfigure"])

        def has_focus():
            return self.desktop.history_window() and self.desktop.focused() == self.desktop.history_window()

        def toggled():
            self.desktop.run(["xdotool", "key", "super+F9"])
            try:
                return wait_until(has_focus, "the history with the focus", seconds=1)
            except Timeout:
                return False  # the window manager hasn't read its settings yet
        wait_until(toggled, "the history by the desktop's keys")
        self.desktop.run(["xdotool", "key", "super+F9"])
        self.desktop.wait_hidden()

        file, window = self.open_terminal()
        self.desktop.run(["xdotool", "key", "super+F9"])
        wait_until(has_focus, "the history with the focus")
        self.desktop.press("Return")
        self.desktop.wait_hidden()
        wait_until(lambda: self.desktop.focused() == window, "the terminal to have the focus again")
        self.desktop.press("Return", "ctrl+d")

        wait_until(lambda: file.read_text() == "by the desktop's own keys\n", "the text in the terminal")
