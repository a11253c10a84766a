"""What the settings do in the history and in its preview, while the program runs."""

import time

from desktop import wait_until
from test_panes import PaneCase


class EffectCase(PaneCase):
    size = "1280x800x24"

    def fill(self, *texts):
        for text in texts:
            self.desktop.copy(text)
            wait_until(lambda text=text: self.desktop.texts()[:1] == [text], "the copy on top")

    def copy_picture(self):
        file = self.desktop.home / "picture.png"
        self.desktop.run(["convert", "-size", "40x30", "xc:#336699", file])
        self.desktop.copy(file.read_bytes(), target="image/png")

    def rows(self):
        return sorted(node["name"] for node in self.nodes_of("list item"))

    def hide_history(self):
        self.desktop.press("Escape")
        self.desktop.wait_hidden()


class TheRows(EffectCase):
    def picture(self, history):
        """Of the rows alone: the caret in the search field blinks."""
        left, top, width, height = self.desktop.geometry(history)
        place = f"{width}x{height - 70}+{left}+{top + 65}"
        return self.desktop.run(["import", "-window", "root", "-crop", place, "-depth", "8", "rgb:-"], text=False).stdout

    def wait_still_picture(self, history, condition, what):
        """The picture that meets the condition and is the same in two looks."""
        def look():
            picture = self.picture(history)
            return picture if condition(picture) and self.picture(history) == picture else None
        return wait_until(look, what, step=0.05)

    def are_all_marks_shown(self):
        names = [node["name"] for node in self.nodes()]
        return "Colour #FF8800" in names and names.count("Recognised content") == 2

    def test_show_what_the_settings_of_their_look_say_at_once(self):
        self.desktop.start_app()
        self.open_gtk_editor("from an application with an icon")
        self.desktop.press("ctrl+a", "ctrl+c")
        self.desktop.wait_for_text("from an application with an icon")
        self.fill(*(f"row {number}" for number in range(4)), "1700000000", "#ff8800", "a line of many words " * 20)
        self.fill(*(f"row {number}" for number in range(4, 8)))
        history = self.desktop.open_history()
        wait_until(self.are_all_marks_shown, "the marks of what was recognised")
        picture = self.wait_still_picture(history, bool, "the rows")

        for name, value, usual in (
                ("showSourceAppIcon", "false", "true"), ("showKeyboardShortcuts", "false", "true"),
                ("showScrollbar", "false", "true"), ("showColorIndicator", "false", "true"),
                ("showContentTypeIndicators", "false", "true"), ("truncationMode", "head", "middle"),
                ("truncationMode", "tail", "middle"), ("selectedColorScheme", "dark", "light")):
            self.write(name, value)
            self.wait_still_picture(history, lambda now: now != picture, f"other rows with {name} {value}")
            self.write(name, usual)
            self.wait_still_picture(history, lambda now: now == picture, f"the former rows with {name} {usual}")


class TheHits(EffectCase):
    def test_are_those_that_the_settings_of_the_search_let_through(self):
        self.desktop.start_app()
        self.fill("Note one", "a note", "n.te")
        self.open_gtk_editor("from the editor")
        self.desktop.press("ctrl+a", "ctrl+c")
        self.desktop.wait_for_text("from the editor")

        for name, value, term, hits in (
                ("searchCaseSensitive", "false", "Note", ["Note one", "a note"]),
                ("searchCaseSensitive", "true", "Note", ["Note one"]),
                ("searchCaseSensitive", "false", "n.te", ["n.te"]),
                ("searchRegex", "true", "n.te", ["Note one", "a note", "n.te"]),
                ("searchRegex", "false", "mousepad", ["from the editor"]),
                ("searchAppName", "false", "mousepad", [])):
            with self.subTest(name=name, value=value, term=term):
                self.write(name, value)
                self.desktop.open_history()
                self.desktop.type(term)
                wait_until(lambda: self.rows() == hits, f"{hits}, not {self.rows()}")
                self.hide_history()


class ThePreviewAsItIsSet(EffectCase):
    def preview(self):
        return self.is_shown("^Quillmonger Preview$")

    def hide_both(self):
        self.hide_history()
        wait_until(lambda: not self.preview(), "the preview to go")

    def scroll_bars(self):
        return len(self.nodes_of("scroll bar"))

    def is_shown_whole(self):
        return any(node["name"].endswith("end") for node in self.nodes_of("label"))

    def test_opens_by_itself_for_what_the_settings_say(self):
        self.desktop.start_app()
        self.fill("1700000000")
        self.assert_opens_by_itself_only_with("autoOpenOculet")
        self.copy_picture()
        self.assert_opens_by_itself_only_with("autoOpenImagePreview")

    def assert_opens_by_itself_only_with(self, name):
        self.desktop.open_history()
        wait_until(self.preview, f"the preview with {name}")
        self.hide_both()
        self.write(name, "false")
        self.desktop.open_history()
        time.sleep(0.5)
        self.assertFalse(self.preview(), f"the preview without {name}")
        self.hide_both()

    def test_has_its_scroll_bar_and_the_rest_of_a_long_text_as_the_settings_say_at_once(self):
        self.desktop.start_app()
        self.desktop.copy("many words in one line " * 1200 + "end")
        wait_until(self.desktop.records, "the copy")
        self.desktop.open_history()
        self.desktop.press("ctrl+p")
        wait_until(self.preview, "the preview")
        wait_until(lambda: self.scroll_bars() == 1, "the scroll bar")
        self.assertFalse(self.is_shown_whole())

        self.write("showPreviewPaneScrollbar", "false")
        wait_until(lambda: self.scroll_bars() == 0, "no scroll bar")
        self.write("showPreviewPaneScrollbar", "true")
        wait_until(lambda: self.scroll_bars() == 1, "the scroll bar again")
        self.write("hideLongTextPreview", "false")
        wait_until(self.is_shown_whole, "the rest of the text")
