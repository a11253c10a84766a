"""Each setting, changed with the keyboard and the mouse in the real window."""

from desktop import wait_until
from roadcase import RoadCase

# Of a switch that is on and of one that is off, in light colours.
TRACKS = {(0x4A, 0x5D, 0xC4), (0x88, 0x8B, 0x97)}


class PaneCase(RoadCase):
    size = "1280x900x24"

    def setUp(self):
        super().setUp()
        self.desktop.quillmonger("defaults", "write", "selectedColorScheme", "light")

    def open_settings(self, pane="General"):
        """Shows them, with the toolbar in the keyboard's hands."""
        self.desktop.quillmonger("settings")
        self.wait_for_front("^General$")
        self.desktop.press("Tab")
        for title in ["Ignore", "Search", "Appearance"]:
            if pane == "General":
                break
            self.desktop.press("Right")
            window = self.wait_for_front(f"^{title}$")
            self.wait_still(window)
            if title == pane:
                break
        return self.desktop.window(f"^{pane}$")

    def read(self, name):
        if name == "LOGIN":
            return "true" if list((self.desktop.home / ".config/autostart").glob("*.desktop")) else "false"
        return self.desktop.quillmonger("defaults", "read", name).stdout.strip()

    def wait_for_setting(self, name, value):
        wait_until(lambda: self.read(name) == value, f"{name} to be {value}, not {self.read(name)}")

    def pixels(self, window):
        """Width, height and the bytes of the window's picture."""
        picture = self.desktop.run(["import", "-window", window, "-depth", "8", "ppm:-"], text=False).stdout
        _, size, _, data = picture.split(b"\n", 3)
        width, height = map(int, size.split())
        return width, height, data


class TheSwitches(PaneCase):
    def switches(self, window):
        """The places in the window of the enabled switches of the shown pane, from top to bottom."""
        width, height, data = self.pixels(window)
        runs = []
        for y in range(height):
            row = [tuple(data[(y * width + x) * 3:(y * width + x) * 3 + 3]) in TRACKS for x in range(width)]
            lengths = [x for x in range(width - 14) if all(row[x:x + 14])]
            if lengths:
                runs.append((y, lengths[0]))
        places = []
        for y, x in runs:
            if not places or y - places[-1][-1][0] > 1:
                places.append([])
            places[-1].append((y, x))
        return [(place[0][1] + 12, (place[0][0] + place[-1][0]) // 2)
                for place in places if 18 <= len(place) <= 23]

    def flip_all_with_the_mouse(self, pane, names):
        self.desktop.start_app()
        window = self.open_settings(pane)
        before = {name: self.read(name) for name in names}
        places = self.switches(window)
        self.assertEqual(len(places), len(names), places)
        for name, place in zip(names, places):
            self.desktop.run(["xdotool", "mousemove", "--window", window, *map(str, place), "click", "1"])
            self.wait_for_setting(name, "false" if before[name] == "true" else "true")

    def test_the_mouse_flips_the_switches_of_the_general_pane(self):
        self.flip_all_with_the_mouse("General", [
            "soundEffectsEnabled", "LOGIN", "firstLaunch", "alwaysPasteWithoutFormatting", "persistHistory"])

    def test_the_mouse_flips_the_switches_of_the_search_pane(self):
        self.flip_all_with_the_mouse("Search", ["searchCaseSensitive", "searchRegex", "searchAppName"])

    def test_the_mouse_flips_the_switches_of_the_appearance_pane(self):
        self.flip_all_with_the_mouse("Appearance", [
            "animateMenuBar", "showSourceAppIcon", "showKeyboardShortcuts", "showScrollbar", "showColorIndicator",
            "showContentTypeIndicators", "hideLongTextPreview", "showPreviewPaneScrollbar", "autoOpenImagePreview",
            "autoOpenOculet"])


class ThePanes(PaneCase):
    def test_the_keyboard_reaches_every_control_of_the_general_pane(self):
        self.desktop.start_app()
        self.open_settings()

        self.desktop.press("Tab", "space")  # sounds
        self.desktop.press("Tab", "End")  # volume
        self.desktop.press("Tab", "space")  # start at login
        self.desktop.press("Tab", "space")  # the guide
        self.desktop.press("Tab", "space")  # formatting
        self.desktop.press("Tab", "space", "Home", "Down", "Return")  # the history's size
        self.desktop.press("Tab", "space")  # keeping it
        self.desktop.press("Tab", "Tab", "Down")  # past clearing it, to what pasting does

        self.wait_for_setting("pasteToApp", "false")
        changed = {name: self.read(name) for name in (
            "soundEffectsEnabled", "soundVolume", "firstLaunch", "alwaysPasteWithoutFormatting", "historySize",
            "persistHistory")}
        self.assertEqual(changed, {"soundEffectsEnabled": "false", "soundVolume": "1", "firstLaunch": "true",
                                   "alwaysPasteWithoutFormatting": "true", "historySize": "50",
                                   "persistHistory": "false"})
        self.assertTrue(list((self.desktop.home / ".config/autostart").glob("*.desktop")), "it starts at login")

    def test_the_keyboard_reaches_every_control_of_the_search_pane(self):
        self.desktop.start_app()
        self.open_settings("Search")

        self.desktop.press("Tab", "space", "Tab", "space", "Tab", "space", "Tab", "End")

        wait_until(lambda: abs(float(self.read("searchDebounceInterval")) - 0.3) < 1e-9, "the longest delay")
        self.assertEqual([self.read(name) for name in ("searchCaseSensitive", "searchRegex", "searchAppName")],
                         ["true", "true", "false"])

    def test_the_keyboard_reaches_every_control_of_the_appearance_pane(self):
        self.desktop.start_app()
        self.open_settings("Appearance")

        self.desktop.press("Tab")  # past the theme
        for _ in range(6):
            self.desktop.press("Tab", "space")
        self.desktop.press("Tab", "space", "Home", "Return")  # where long lines are cut
        for _ in range(4):
            self.desktop.press("Tab", "space")

        self.wait_for_setting("autoOpenOculet", "false")
        self.assertEqual({self.read(name) for name in (
            "animateMenuBar", "showSourceAppIcon", "showKeyboardShortcuts", "showScrollbar", "showColorIndicator",
            "showContentTypeIndicators", "hideLongTextPreview", "showPreviewPaneScrollbar", "autoOpenImagePreview")},
                         {"false"})
        self.assertEqual(self.read("truncationMode"), "head")



class TheEffectsOfSettings(PaneCase):
    def test_a_dark_theme_darkens_the_window_at_once_and_a_change_elsewhere_is_seen(self):
        self.desktop.start_app()
        window = self.open_settings("Appearance")

        def darkness():
            return self.pixels(window)[2][3 * 200]

        self.assertGreater(darkness(), 200)
        self.desktop.press("Tab", "space", "End", "Return")
        self.wait_for_setting("selectedColorScheme", "dark")
        wait_until(lambda: darkness() < 100, "dark colours")
        self.desktop.quillmonger("defaults", "write", "selectedColorScheme", "light")
        wait_until(lambda: darkness() > 200, "light colours")

    def test_the_history_is_cleared_when_that_is_confirmed_and_only_then(self):
        self.desktop.start_app()
        self.desktop.copy("to be cleared")
        self.desktop.wait_for_text("to be cleared")
        self.open_settings()
        self.desktop.press(*["Tab"] * 8, "space")
        question = "^Clear the whole history\\?$"
        self.wait_for_front(question)

        self.desktop.press("Escape")
        self.wait_for_front("^General$")
        self.assertEqual(self.desktop.texts(), ["to be cleared"])
        self.desktop.press("space")
        self.wait_for_front(question)
        self.desktop.press("Tab", "space")

        wait_until(lambda: self.desktop.texts() == [], "the history to be empty")

    def test_the_window_comes_in_the_middle_of_the_screen_the_first_time(self):
        self.desktop.start_app()
        self.desktop.quillmonger("settings")
        window = self.wait_for_front("^General$")
        left, top, width, height = self.desktop.geometry(window)

        self.assertAlmostEqual(left + width / 2, 640, delta=8)
        self.assertAlmostEqual(top, (900 - height) * 0.4, delta=45)

    def test_the_window_keeps_its_title_bar_and_comes_back_where_it_was(self):
        self.desktop.start_app()
        window = self.open_settings()
        self.desktop.run(["xdotool", "windowmove", "--sync", window, "90", "70"])
        place = self.desktop.geometry(window)[:2]

        self.desktop.press("Right")
        self.wait_for_front("^Ignore$")
        self.wait_still(window)
        self.assertEqual(self.desktop.geometry(window)[:2], place)
        self.desktop.press("Escape")
        wait_until(lambda: not self.is_shown("^Ignore$"), "the settings to go")
        self.desktop.quillmonger("settings")
        again = self.wait_for_front("^Ignore$")

        self.assertEqual(self.desktop.geometry(again)[:2], place)

    def test_an_item_is_only_copied_when_the_settings_say_so(self):
        self.desktop.start_app()
        self.desktop.copy("only copied")
        self.desktop.wait_for_text("only copied")
        self.desktop.copy("another")
        self.desktop.wait_for_text("another")
        self.desktop.quillmonger("settings")
        self.wait_for_front("^General$")
        self.desktop.press(*["Tab"] * 10, "Down")
        self.wait_for_setting("pasteToApp", "false")
        file, editor = self.open_gtk_editor("")
        self.desktop.focus(editor)

        self.paste_from_history("only")

        wait_until(lambda: self.desktop.clipboard() == b"only copied", "the item on the clipboard")
        self.desktop.focus(editor)
        self.desktop.press("ctrl+s")
        self.assertEqual(file.read_text(), "")
