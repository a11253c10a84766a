"""The pane of what is not kept: its list by mouse and keyboard, and the effect of its switches."""

import json

from desktop import wait_until
from test_panes import PaneCase

APPLICATIONS = "file:///usr/share/applications/"
EDITORS = [f"{APPLICATIONS}org.xfce.mousepad.desktop", f"{APPLICATIONS}featherpad.desktop"]


class TheIgnoredApplications(PaneCase):
    def setUp(self):
        super().setUp()
        self.write("ignoredApps", json.dumps(EDITORS))
        self.desktop.start_app()

    def names(self):
        return [node["name"] for node in self.nodes_of("list item")]

    def wait_for_list(self, *names):
        wait_until(lambda: self.names() == list(names), f"the rows to be {names}, not {self.names()}")
        wait_until(lambda: len(json.loads(self.read("ignoredApps"))) == len(names), "the list to be stored")

    def test_come_and_go_with_the_mouse(self):
        self.open_settings("Ignore")
        self.wait_for_list("Mousepad", "FeatherPad")
        self.click_on(self.node("list item", "Mousepad"))
        self.node("list item", "Mousepad", selected=True)
        self.click_on(self.node("push button", "Remove the selected application"))
        self.wait_for_list("FeatherPad")

        self.click_on(self.node("push button", "Add an application"))
        self.wait_for_front("^Choose an Application$")
        self.desktop.type("mousep")
        # The other one stands in the pane alone then, and in the picker no more.
        wait_until(lambda: "Mousepad" in self.names() and self.names().count("FeatherPad") == 1, "the match")
        self.click_on(self.node("list item", "Mousepad"))
        self.click_on(self.node("push button", "Choose"))
        self.wait_for_front("^Ignore$")
        self.wait_for_list("FeatherPad", "Mousepad")

        row = self.node("list item", "FeatherPad")
        self.click_on(row, button=3)
        self.click_on(self.node("menu item", "Delete"))
        self.wait_for_list("Mousepad")

    def test_go_with_the_keyboard_by_the_minus_and_by_delete(self):
        self.open_settings("Ignore")
        self.wait_for_list("Mousepad", "FeatherPad")
        self.desktop.press("Tab", "Tab", "Tab", "Down", "Down")
        self.node("list item", "FeatherPad", selected=True)

        self.desktop.press("Tab", "Tab", "space")
        self.wait_for_list("Mousepad")
        self.desktop.press("shift+Tab", "shift+Tab", "Delete")

        self.wait_for_list()


class ThePictures(PaneCase):
    def copy_picture(self):
        file = self.desktop.home / "picture.png"
        self.desktop.run(["convert", "-size", "40x30", "xc:#336699", file])
        self.desktop.copy(file.read_bytes(), target="image/png")

    def test_are_kept_or_not_as_their_switch_says_at_once(self):
        self.desktop.start_app()
        self.open_settings("Ignore")
        self.desktop.press("Tab", "Tab", "space")
        self.wait_for_setting("ignoreImages", "true")
        self.copy_picture()
        self.desktop.copy("after the picture")
        self.desktop.wait_for_text("after the picture")
        self.assertEqual(len(self.desktop.records()), 1)

        self.desktop.press("space")
        self.wait_for_setting("ignoreImages", "false")
        self.copy_picture()

        wait_until(lambda: len(self.desktop.records()) == 2, "the picture")
        self.assertIn("public.png", self.desktop.records()[0]["types"])
