"""The whole road of a copy: made in one real program, kept, found by typing, pasted with Return into another."""

import json
import os
import signal
import subprocess
import time
import unittest

from desktop import Desktop, wait_until

BUILD = os.environ["QUILLMONGER_BUILD"]


class RoadCase(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop(BUILD)
        self.desktop.__enter__()
        self.addCleanup(self.desktop.__exit__)

    # ---- real programs

    def open_gtk_editor(self, text=""):
        return self._open_editor(["mousepad"], "gtk.txt", text)

    def open_qt_editor(self, text=""):
        return self._open_editor(["featherpad", "-s"], "qt.txt", text)

    def _open_editor(self, command, name, text):
        file = self.desktop.home / name
        file.write_text(text)
        self.desktop.spawn([*command, file])
        window = self.desktop.window(name)
        self.desktop.focus(window)
        return file, window

    def open_terminal(self):
        """A terminal whose input goes to a file."""
        file = self.desktop.home / "terminal.txt"
        self.desktop.spawn(["stterm", "-t", "terminal", "-e", "sh", "-c", f"cat > {file}"])
        window = self.desktop.window("^terminal$")
        self.desktop.focus(window)
        wait_until(file.exists, "the terminal's shell")
        return file, window

    def save_until(self, file, expected):
        """Saves in the editor in front until the file holds `expected`: the paste arrives when the editor is ready."""
        def saved():
            self.desktop.press("ctrl+s")
            return file.read_text().rstrip("\n") == expected
        wait_until(saved, f"the text in {file.name}", step=0.1)

    def paste_from_history(self, term):
        self.desktop.open_history()
        self.desktop.search(term)
        self.desktop.press("Return")
        self.desktop.wait_hidden()


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


class WhatIsKept(RoadCase):
    def test_every_type_of_a_rich_copy_with_its_source(self):
        self.desktop.start_app()
        self.open_qt_editor("plain")
        self.desktop.press("ctrl+a", "ctrl+c")

        record = self.desktop.wait_for_text("plain")

        self.assertIn("public.utf8-plain-text", record["types"])

    def test_the_same_copy_twice_is_one_row_on_top(self):
        self.desktop.start_app()
        for text in ("twice", "between", "twice"):
            self.desktop.copy(text)
            wait_until(lambda text=text: self.desktop.texts()[:1] == [text], "the copy on top")

        self.assertEqual(self.desktop.texts(), ["twice", "between"])

    def test_a_password_is_never_kept(self):
        self.desktop.start_app()
        self.desktop.copy("secret", target="x-kde-passwordManagerHint")
        self.desktop.copy("open")

        self.desktop.wait_for_text("open")

        self.assertEqual(self.desktop.texts(), ["open"])

    def test_nothing_while_incognito_is_on(self):
        self.desktop.start_app()
        self.desktop.quillmonger("defaults", "write", "isIncognitoMode", "true")
        self.desktop.copy("unseen")
        wait_until(lambda: self.desktop.clipboard() == b"unseen", "the copy on the clipboard")
        self.desktop.quillmonger("defaults", "write", "isIncognitoMode", "false")
        self.desktop.copy("seen")

        self.desktop.wait_for_text("seen")

        self.assertEqual(self.desktop.texts(), ["seen"])

    def test_everything_after_a_restart(self):
        self.desktop.start_app()
        self.desktop.copy("before the restart")
        self.desktop.wait_for_text("before the restart")

        self.desktop.stop_app()
        self.assertEqual(self.desktop.app.returncode, 0)
        self.desktop.start_app()

        self.assertEqual(self.desktop.texts(), ["before the restart"])

    def test_everything_a_second_old_after_a_kill(self):
        self.desktop.start_app()
        for number in range(20):
            self.desktop.copy(f"copy {number}")
            self.desktop.wait_for_text(f"copy {number}")
        wait_until(lambda: b"copy 19" in b"".join(file.read_bytes() for file in self.desktop.data.iterdir()),
                   "the last copy in the store's files", 1.5)

        self.desktop.stop_app(signal.SIGKILL)
        self.desktop.start_app()

        self.assertEqual(self.desktop.texts(), [f"copy {number}" for number in reversed(range(20))])

    def test_nothing_of_the_last_run_without_persistent_history(self):
        self.desktop.start_app()
        self.desktop.copy("of the last run")
        self.desktop.wait_for_text("of the last run")
        self.desktop.quillmonger("defaults", "write", "persistHistory", "false")
        self.desktop.stop_app()

        with open(self.desktop.log, "ab") as log:
            self.desktop.app = self.desktop.spawn([self.desktop.build / "bin/quillmonger-app"], stdout=log, stderr=log)
        wait_until(self.desktop.answers, "the application's start")

        self.assertEqual(self.desktop.texts(), [])

    def test_a_large_copy_whole(self):
        self.desktop.start_app()
        text = "0123456789abcde\n" * (20 * 1024 * 1024 // 16)
        self.desktop.copy(text)
        record = wait_until(lambda: next(iter(self.desktop.records()), None), "the large copy", 20)
        self.assertEqual(record["size"], len(text))
        self.desktop.copy("small")
        self.desktop.wait_for_text("small")

        self.desktop.open_history()
        self.desktop.press("Down", "Return")
        self.desktop.wait_hidden()

        wait_until(lambda: len(self.desktop.clipboard()) == len(text), "the large copy on the clipboard", 20)
        self.assertEqual(self.desktop.clipboard(), text.encode())

    def test_the_next_copy_while_an_owner_hangs_and_the_program_never_with_it(self):
        self.desktop.start_app()
        self.desktop.open_history()
        self.desktop.press("Escape")
        self.desktop.wait_hidden()
        hanging = ("import ctypes, time; x = ctypes.CDLL('libX11.so.6'); x.XOpenDisplay.restype = ctypes.c_void_p; "
                   "d = ctypes.c_void_p(x.XOpenDisplay(None)); "
                   "w = x.XCreateSimpleWindow(d, x.XDefaultRootWindow(d), 0, 0, 1, 1, 0, 0, 0); "
                   "x.XSetSelectionOwner(d, x.XInternAtom(d, b'CLIPBOARD', 0), w, 0); x.XSync(d, 0); "
                   "print('owned', flush=True); time.sleep(600)")
        owner = self.desktop.spawn(["python3", "-c", hanging], stdout=subprocess.PIPE, text=True)
        self.assertEqual(owner.stdout.readline(), "owned\n")

        begin = time.monotonic()
        self.desktop.quillmonger("list")
        self.assertLess(time.monotonic() - begin, 1)
        self.desktop.copy("after the hanging one")
        self.desktop.wait_for_text("after the hanging one", 1)

    def test_a_paste_into_the_search_field_searches_for_it(self):
        self.desktop.start_app()
        for text in ("apple tree", "plum", "tree"):
            self.desktop.copy(text)
            self.desktop.wait_for_text(text)
        file, _ = self.open_gtk_editor()

        self.desktop.open_history()
        self.desktop.press("ctrl+v")
        time.sleep(0.5)
        self.desktop.press("Down", "Return")
        self.desktop.wait_hidden()

        self.save_until(file, "apple tree")

    def test_the_clipboard_after_its_owner_has_quit(self):
        self.desktop.start_app()
        owner = self.desktop.spawn(["xclip", "-selection", "clipboard", "-in", "-quiet", self._file("left behind")])
        self.desktop.wait_for_text("left behind")

        owner.kill()
        owner.wait()

        wait_until(lambda: self.desktop.clipboard() == b"left behind", "the content offered on")
        self.assertEqual(self.desktop.texts(), ["left behind"])

    def _file(self, text):
        file = self.desktop.home / "source.txt"
        file.write_text(text)
        return file


class TheSettings(RoadCase):
    def open_settings(self):
        self.desktop.quillmonger("settings")
        return self.wait_for_front("^Ignore$")

    def wait_for_front(self, name):
        window = self.desktop.window(name)
        wait_until(lambda: self.desktop.focused() == window, f"{name} with the focus")
        return window

    def is_shown(self, name):
        return bool(self.desktop.run(["xdotool", "search", "--onlyvisible", "--name", name], check=False).stdout.split())

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
        settings = self.wait_for_front("^Ignore$")
        self.desktop.wait_hidden()

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

        self.open_settings()

        self.desktop.quillmonger("quit")


class TheStart(RoadCase):
    def test_a_first_start_shows_the_guide_and_captures_nothing_until_it_ends(self):
        self.desktop.start_app(first_launch=True)
        guide = self.desktop.window("Welcome to Quillmonger")
        self.desktop.copy("during the guide")
        wait_until(lambda: self.desktop.clipboard() == b"during the guide", "the copy on the clipboard")
        self.assertEqual(self.desktop.texts(), [])

        self.desktop.focus(guide)
        # Return belongs to the history, whichever window is in front.
        self.desktop.press("space")

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


if __name__ == "__main__":
    unittest.main()
