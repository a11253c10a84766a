"""The kinds of program that people paste into, each with what was pasted into it since its start."""

import html
import re
import time
import urllib.parse

from desktop import Timeout, wait_until


class Target:
    """A program in a desktop with its window in front."""

    # How text is pasted into it by hand.
    paste_chord = "ctrl+v"

    def __init__(self, desktop):
        self.desktop = desktop

    def _show(self, name, seconds=20.0):
        self.window = self.desktop.window(name, seconds=seconds)
        self.desktop.focus(self.window)

    def text(self):
        raise NotImplementedError

    def wait_for_text(self, expected):
        try:
            wait_until(lambda: self.text() == expected, "what was pasted", step=0.1)
        except AssertionError:
            raise AssertionError(f"{self.text()!r} instead of {expected!r}") from None


class Terminal(Target):
    paste_chord = "ctrl+shift+v"

    def __init__(self, desktop):
        super().__init__(desktop)
        self.file = desktop.home / "terminal.txt"
        desktop.spawn(["stterm", "-t", "terminal", "-e", "sh", "-c", f"stty -icanon -echo; cat > {self.file}"])
        self._show("^terminal$")
        wait_until(self.file.exists, "the terminal's shell")

    def text(self):
        return self.file.read_text()


class Editor(Target):
    """A text editor, which has its text in a file when it is told to save."""

    def __init__(self, desktop, command, file):
        super().__init__(desktop)
        self.file = desktop.home / file
        self.file.write_text("")
        desktop.spawn([*command, self.file])
        self._show(file)

    def text(self):
        self.desktop.press("ctrl+s")
        return self.file.read_text().replace("\n", "")


class GtkEditor(Editor):
    def __init__(self, desktop):
        super().__init__(desktop, ["mousepad"], "gtk.txt")


class QtEditor(Editor):
    def __init__(self, desktop):
        super().__init__(desktop, ["featherpad", "--standalone"], "qt.txt")


class Browser(Target):
    """A text field of a page, which tells its text in the title, and after a picture how many it was given."""

    page = """<!doctype html><title>ready</title><textarea id="field" autofocus></textarea>
              <script>
                let pictures = 0
                field.oninput = () => { document.title = "[" + field.value + "]" }
                field.onpaste = event => {
                  if (![...event.clipboardData.files].some(file => file.type.startsWith("image/"))) return
                  document.title = "pictures: " + ++pictures
                  event.preventDefault()
                }
              </script>"""

    def __init__(self, desktop):
        super().__init__(desktop)
        page = desktop.home / "page.html"
        page.write_text(self.page)
        # Without its sandbox, which a container or the root user can't have.
        desktop.spawn(["chromium", "--no-sandbox", "--no-first-run", "--disable-gpu", "--password-store=basic",
                       f"--user-data-dir={desktop.home}/browser", f"--app=file://{page}"])
        self._show("^ready$", seconds=60)

    def title(self):
        """Without the marks that the browser sets around what is read from right to left."""
        title = self.desktop.run(["xdotool", "getwindowname", self.window]).stdout.removesuffix("\n")
        return re.sub("[\u200e\u200f\u202a-\u202e]", "", title)

    def text(self):
        found = re.fullmatch(r"\[(.*)\]", self.title())
        return found.group(1) if found else ""

    def wait_for_picture(self, number):
        wait_until(lambda: self.title() == f"pictures: {number}", f"picture {number} in the page, not {self.title()}")


class WordProcessor(Target):
    empty = """<?xml version="1.0" encoding="UTF-8"?>
        <office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
            xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0" office:version="1.3"
            office:mimetype="application/vnd.oasis.opendocument.text">
          <office:body><office:text><text:p/></office:text></office:body></office:document>"""

    def __init__(self, desktop):
        super().__init__(desktop)
        self.file = desktop.home / "letter.fodt"
        self.file.write_text(self.empty)
        desktop.spawn(["soffice", "--norestore", "--nologo", "--nofirststartwizard", "--writer", self.file])
        self._show("^letter.fodt", seconds=90)
        wait_until(self._takes_keys, "the word processor to take keys", seconds=60)

    def _takes_keys(self):
        return self.document() != self.empty

    def document(self):
        """The whole document as saved by now, with its styles. What has no changes isn't saved again."""
        before = self.file.stat().st_mtime_ns
        self.desktop.press("ctrl+s")
        try:
            wait_until(lambda: self.file.stat().st_mtime_ns != before, "the document on disk", seconds=1)
            wait_until(lambda: self.file.read_text().rstrip().endswith("</office:document>"), "all of the document")
        except Timeout:
            pass
        time.sleep(0.2)  # until then it drops what is typed
        return self.file.read_text()

    def text(self):
        body = re.search(r"<text:p.*</office:text>", self.document(), re.DOTALL)
        # Spaces at the ends and doubled ones have elements of their own.
        words = re.sub(r"<[^>]*>|\n\s*", "", body.group(0).replace("<text:s/>", " ")) if body else ""
        return html.unescape(words)


class FileManager:
    """A file manager with two folders: one to copy files from and one to paste them into."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.outgoing, self.source_window = self._open("outgoing")
        self.incoming, self.window = self._open("incoming")

    def _open(self, name):
        folder = self.desktop.home / name
        folder.mkdir()
        self.desktop.spawn(["thunar", folder])
        return folder, self.desktop.window(f"^{name}", seconds=30)

    def offer(self, names):
        """Puts the first folder in front, with these empty files in it alone."""
        clear(self.outgoing)
        for name in names:
            (self.outgoing / name).touch()
        self.desktop.focus(self.source_window)
        time.sleep(1)  # that a person needs to see them

    def copy(self, names):
        """Copies what is in front, again until the window shows all of it."""
        def copied():
            self.desktop.press("ctrl+a", "ctrl+c")
            content = self.desktop.clipboard("text/uri-list").decode()
            return all(urllib.parse.quote(name) in content for name in names)
        wait_until(copied, f"{names} on the clipboard", step=0.5)

    def wait_for_files(self, names):
        def found():
            return sorted(file.name for file in self.incoming.iterdir())
        wait_until(lambda: found() == sorted(names), f"{names} instead of {found()}")
        clear(self.incoming)


def clear(folder):
    for file in folder.iterdir():
        file.unlink()
