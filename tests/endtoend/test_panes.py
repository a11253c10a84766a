"""Each setting, changed with the keyboard and the mouse in the real window, and seen there when it changes elsewhere."""

from accessiblecase import AccessibleCase
from desktop import wait_until

# The settings of the enabled switches of each pane, from top to bottom.
SWITCHES = {
    "General": ["soundEffectsEnabled", "LOGIN", "firstLaunch", "alwaysPasteWithoutFormatting", "persistHistory"],
    "Ignore": ["ignoreSensitiveData", "ignoreImages"],
    "Search": ["searchCaseSensitive", "searchRegex", "searchAppName"],
    "Appearance": [
        "animateMenuBar", "showSourceAppIcon", "showKeyboardShortcuts", "showScrollbar", "showColorIndicator",
        "showContentTypeIndicators", "hideLongTextPreview", "showPreviewPaneScrollbar", "autoOpenImagePreview",
        "autoOpenOculet"],
    "Key Bindings": ["quickPaste"],
}
UPDATE_SWITCHES = ("Look for updates by itself", "Download them by itself")


class PaneCase(AccessibleCase):
    size = "1280x900x24"

    def setUp(self):
        super().setUp()
        self.desktop.quillmonger("defaults", "write", "selectedColorScheme", "light")

    def open_settings(self, pane="General"):
        """Shows them, with the toolbar in the keyboard's hands."""
        self.desktop.quillmonger("settings")
        self.wait_for_front("^General$")
        self.desktop.press("Tab")
        for title in list(SWITCHES)[1:list(SWITCHES).index(pane) + 1]:
            self.desktop.press("Right")
            window = self.wait_for_front(f"^{title}$")
            self.wait_still(window)
        return self.desktop.window(f"^{pane}$")

    def click_pane(self, title):
        self.click_on(self.node("page tab", title))
        self.wait_still(self.wait_for_front(f"^{title}$"))

    @property
    def autostart(self):
        return self.desktop.home / ".config/autostart"

    def read(self, name):
        if name == "LOGIN":
            return "true" if list(self.autostart.glob("*.desktop")) else "false"
        return self.desktop.quillmonger("defaults", "read", name).stdout.strip()

    def write(self, name, value):
        self.desktop.quillmonger("defaults", "write", name, value)

    def wait_for_setting(self, name, value):
        wait_until(lambda: self.read(name) == value, f"{name} to be {value}, not {self.read(name)}")

    def choose(self, picker, option):
        """With the mouse."""
        self.click_on(self.node("combo box", picker))
        self.click_on(self.node("menu item", option))

    def wait_described(self, role, name, description):
        wait_until(lambda: any(node["name"] == name and node["description"] == description
                               for node in self.nodes_of(role)), f"{name} to be {description}")

    def pixels(self, window):
        """Width, height and the bytes of the window's picture."""
        picture = self.desktop.run(["import", "-window", window, "-depth", "8", "ppm:-"], text=False).stdout
        _, size, _, data = picture.split(b"\n", 3)
        width, height = map(int, size.split())
        return width, height, data


class TheMouse(PaneCase):
    def switches(self):
        return [node for node in self.nodes_of("check box") if node["name"] not in UPDATE_SWITCHES]

    def are_shown(self, states):
        return ["true" if node["checked"] else "false" for node in self.switches()] == states

    def test_flips_every_switch_and_each_shows_what_its_setting_is_made_elsewhere(self):
        self.desktop.start_app()
        self.desktop.quillmonger("settings")
        self.wait_for_front("^General$")
        for pane, names in SWITCHES.items():
            self.click_pane(pane)
            before = [self.read(name) for name in names]
            wait_until(lambda: self.are_shown(before), f"{pane}: the switches as the settings are")
            flipped = ["false" if value == "true" else "true" for value in before]

            for switch in self.switches():
                self.click_on(switch)
            wait_until(lambda: [self.read(name) for name in names] == flipped, f"{pane}: the settings to be flipped")
            wait_until(lambda: self.are_shown(flipped), f"{pane}: the flipped switches")

            elsewhere = [before[index] if name != "LOGIN" else flipped[index] for index, name in enumerate(names)]
            for name, value in zip(names, elsewhere):
                if name != "LOGIN":
                    self.write(name, value)
            wait_until(lambda: self.are_shown(elsewhere), f"{pane}: the switches as the command wrote")
        self.assertNotIn("QPainter", self.desktop.log.read_text(), "painted before there was anything to paint on")

    def test_moves_the_sliders_and_chooses_options(self):
        self.desktop.start_app()
        self.desktop.quillmonger("settings")
        self.wait_for_front("^General$")
        self.click_on(self.node("slider", "Volume"), share=1)
        self.wait_for_setting("soundVolume", "1")
        self.choose("History", "50 items")
        self.wait_for_setting("historySize", "50")
        self.click_on(self.node("radio button", "Copy to the clipboard only"), share=0.05)
        self.wait_for_setting("pasteToApp", "false")

        self.click_pane("Search")
        self.click_on(self.node("slider", "Delay"), share=0)
        self.wait_for_setting("searchDebounceInterval", "0.05")
        self.click_on(self.node("slider", "Delay"), share=1)
        wait_until(lambda: abs(float(self.read("searchDebounceInterval")) - 0.3) < 1e-9, "the longest delay")

        self.click_pane("Appearance")
        self.choose("Long lines", "Cut at the end")
        self.wait_for_setting("truncationMode", "tail")
        self.choose("Theme", "Dark")
        self.wait_for_setting("selectedColorScheme", "dark")

    def test_leaves_a_menu_of_options_with_nothing_chosen(self):
        self.desktop.start_app()
        self.desktop.quillmonger("settings")
        self.wait_for_front("^General$")
        self.click_on(self.node("combo box", "History"))
        self.node("menu item", "50 items")

        self.click_on(self.node("slider", "Volume"), share=1)

        wait_until(lambda: not self.nodes_of("menu item"), "the menu to go")
        self.assertEqual((self.read("historySize"), self.read("soundVolume")), ("1000", "0.45"))


class TheStartAtLogin(PaneCase):
    def is_shown_on(self):
        return next(node["checked"] for node in self.nodes() if node["name"] == "Start when you log in")

    def test_is_an_autostart_file_that_comes_and_goes_and_is_looked_for_again_when_the_window_is_in_front_again(self):
        self.desktop.start_app()
        self.desktop.quillmonger("settings")
        settings = self.wait_for_front("^General$")
        switch = self.node("check box", "Start when you log in", checked=False)

        self.click_on(switch)
        file = wait_until(lambda: next(self.autostart.glob("*.desktop"), None), "the autostart file")
        self.assertIn("quillmonger-app", file.read_text())
        self.node("check box", "Start when you log in", checked=True)
        self.click_on(switch)
        wait_until(lambda: not file.exists(), "the autostart file to go")
        self.click_on(switch)
        wait_until(file.exists, "the autostart file again")

        _, editor = self.open_gtk_editor()
        # The toolkit takes a loss of the keyboard for real only when it has lasted a while.
        wait_until(lambda: not any(node["active"] for node in self.nodes()), "the program to be no longer in front")
        file.unlink()
        self.desktop.focus(settings)

        wait_until(lambda: not self.is_shown_on(), "the switch to be off")
        self.desktop.focus(editor)


class ThePanes(PaneCase):
    def test_show_at_once_what_is_changed_elsewhere(self):
        self.desktop.start_app()
        self.open_settings()
        self.write("soundVolume", "0.2")
        self.wait_described("slider", "Volume", "20 %")
        self.write("historySize", "200")
        self.wait_described("combo box", "History", "200 items")
        self.write("pasteToApp", "false")
        self.node("radio button", "Copy to the clipboard only", checked=True)

        self.click_pane("Search")
        self.write("searchDebounceInterval", "0.25")
        self.wait_described("slider", "Delay", "0.25 s")

        self.click_pane("Appearance")
        self.write("truncationMode", "head")
        self.wait_described("combo box", "Long lines", "Cut at the beginning")
        self.write("selectedColorScheme", "dark")
        self.wait_described("combo box", "Theme", "Dark")

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



class OnALowScreen(PaneCase):
    size = "1280x480x24"
    stops = ("Sounds", "Volume", "Start when you log in", "Show the guide at the next start",
             "Always paste without formatting", "History", "Keep the history", "Clear History…", "When pasting")

    def is_seen(self, condition):
        """Whether the node that meets the condition is on the screen as a whole, below the toolbar."""
        nodes = self.nodes()
        found = next((node for node in nodes if condition(node)), None)
        if not found:
            return False
        tabs = next(node for node in nodes if node["role"] == "page tab list")
        window = next(node for node in nodes if node["role"] == "frame")
        top, bottom = found["place"][1], found["place"][1] + found["place"][3]
        end = window["place"][1] + window["place"][3]
        return tabs["place"][1] + tabs["place"][3] <= top and bottom <= end <= 480

    def wait_until_seen(self, name):
        wait_until(lambda: self.is_seen(lambda node: node["name"] == name), f"{name} on the screen")

    def test_the_pane_is_scrolled_with_the_wheel_and_the_keyboard_and_begins_at_its_top(self):
        self.desktop.start_app()
        self.open_settings()
        self.wait_until_seen("Start when you log in")
        self.assertFalse(self.is_seen(lambda node: node["name"] == "Copy to the clipboard only"))

        self.desktop.run(["xdotool", "mousemove", "640", "300", "click", "--repeat", "30", "5"])
        self.wait_until_seen("Copy to the clipboard only")
        self.desktop.press("Page_Up", "Page_Up")
        self.wait_until_seen("Start when you log in")
        self.desktop.press("Page_Down", "Page_Down")
        self.wait_until_seen("Copy to the clipboard only")
        self.desktop.press("Right")
        self.wait_still(self.wait_for_front("^Ignore$"))
        self.wait_until_seen("Ignore sensitive copies")

    def test_the_control_with_the_keyboard_is_brought_into_view(self):
        self.desktop.start_app()
        self.open_settings()

        for name in self.stops:
            self.desktop.press("Tab")
            wait_until(lambda: self.is_seen(lambda node: node["name"] == name and node["focused"]), f"{name} in view")


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
        self.wait_still(window)
        self.desktop.run(["xdotool", "windowmove", window, "90", "70"])
        wait_until(lambda: self.desktop.geometry(window)[0] < 110, "the window in its new place")
        self.wait_still(window)
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
