"""A desktop of its own for each case, with the real programs that a user copies from and pastes into."""

import os
import unittest

from desktop import Desktop, wait_until

BUILD = os.environ["QUILLMONGER_BUILD"]


class RoadCase(unittest.TestCase):
    size = "1280x800x24"
    window_manager = "openbox"

    def setUp(self):
        self.desktop = Desktop(BUILD, size=self.size, window_manager=self.window_manager)
        self.desktop.__enter__()
        self.addCleanup(self.desktop.__exit__)

    # ---- the program's windows

    def is_shown(self, name):
        return bool(self.desktop.run(["xdotool", "search", "--onlyvisible", "--name", name], check=False).stdout.split())

    def wait_for_front(self, name):
        window = self.desktop.window(name)
        wait_until(lambda: self.desktop.focused() == window, f"{name} with the focus")
        return window

    def wait_still(self, window):
        """The window, which takes no keys meanwhile, has its pane's size: three looks in a row see the same."""
        seen = []

        def is_still():
            seen.append(self.desktop.geometry(window))
            return len(seen) > 2 and len(set(seen[-3:])) == 1
        wait_until(is_still, "the window's size", step=0.1)

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
