"""The status item in a tray, as panels read it over the session bus."""

import json
import subprocess
import time
from pathlib import Path

from desktop import wait_until
from roadcase import RoadCase

ABOUT, SEPARATOR, TOGGLE, SETTINGS, UPDATES, _, HEADING, INCOGNITO, _, QUIT = range(1, 11)

PANEL = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="26"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty"><property name="plugin-1" type="string" value="systray"/></property>
</channel>
"""


class TheTray(RoadCase):
    def setUp(self):
        super().setUp()
        self.tray = None

    def start_tray(self):
        # A program of its own, since only Debian's Python has the packages that it needs.
        self.tray = self.desktop.spawn([Path(__file__).with_name("tray.py")],
                                       stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.assertEqual(self.tray.stdout.readline(), "ready\n")

    def ask(self, words):
        self.tray.stdin.write(words + "\n")
        self.tray.stdin.flush()
        return json.loads(self.tray.stdout.readline())

    def wait_for_item(self):
        wait_until(lambda: self.ask("items"), "the item in the tray")

    def start_both(self):
        self.start_tray()
        self.desktop.start_app()
        self.wait_for_item()

    def pictures(self):
        return self.ask("item")["IconPixmap"]

    def entry(self, number):
        return self.ask("menu")[number - 1]

    def default(self, name):
        return self.desktop.quillmonger("defaults", "read", name).stdout.strip()

    def test_the_tray_shows_the_item_with_its_picture_in_the_sizes_of_panels(self):
        self.start_both()

        item = self.ask("item")

        self.assertEqual((item["Id"], item["Title"], item["Status"], item["Category"], item["ItemIsMenu"]),
                         ("quillmonger", "Quillmonger", "Active", "ApplicationStatus", True))
        self.assertEqual([size for size, _, _ in item["IconPixmap"]], [16, 22, 24, 32, 48])
        for size, _, pixels in item["IconPixmap"]:
            alphas = bytes.fromhex(pixels)[::4]
            self.assertTrue(0.15 < sum(alphas) / 255 / size**2 < 0.85, "neither empty nor a block")

    def test_the_menu_has_its_entries_in_their_order(self):
        self.start_both()

        entries = [(e.get("label", e.get("type")), e.get("enabled")) for e in self.ask("menu")]

        self.assertEqual(entries, [
            ("About Quillmonger", True), ("separator", None), ("Show or Hide History", True),
            ("Settings…", True), ("Check for Updates…", False), ("separator", None), ("History", False),
            ("Incognito", True), ("separator", None), ("Quit Quillmonger", True)])
        self.assertEqual(self.entry(SETTINGS)["shortcut"], [["Control", "comma"]])
        self.assertEqual(self.entry(QUIT)["shortcut"], [["Control", "q"]])

    def test_the_menu_toggles_the_history_and_shows_the_settings(self):
        self.start_both()

        self.ask(f"click {TOGGLE}")
        wait_until(self.desktop.history_window, "the history window")
        self.ask(f"click {TOGGLE}")
        self.desktop.wait_hidden()
        self.ask(f"click {SETTINGS}")

        self.desktop.window("^Ignore|^General|^Quillmonger Settings")

    def test_the_heading_and_the_update_entry_do_nothing(self):
        self.start_both()

        self.ask(f"click {HEADING}")
        self.ask(f"click {UPDATES}")

        self.assertTrue(self.desktop.answers())
        self.assertIsNone(self.desktop.history_window())

    def test_incognito_has_its_check_mark_its_picture_and_its_effect(self):
        self.start_both()
        usual = self.pictures()
        self.assertEqual(self.entry(INCOGNITO)["toggle-state"], 0)

        self.ask(f"click {INCOGNITO}")

        self.assertEqual(self.entry(INCOGNITO)["toggle-state"], 1)
        self.assertEqual(self.default("isIncognitoMode"), "true")
        self.assertNotEqual(self.pictures(), usual)
        self.ask(f"click {INCOGNITO}")
        self.assertEqual(self.default("isIncognitoMode"), "false")
        self.assertEqual(self.pictures(), usual)

    def test_a_copy_lets_the_picture_bounce_and_come_to_rest_as_it_was(self):
        self.start_both()
        usual = self.pictures()
        self.ask("pictures")

        self.desktop.copy("bounce")
        self.desktop.wait_for_text("bounce")
        time.sleep(1)

        self.assertEqual(self.ask("pictures"), 13)
        self.assertEqual(self.pictures(), usual)

    def test_with_the_animation_off_a_copy_changes_nothing(self):
        self.start_both()
        self.desktop.quillmonger("defaults", "write", "animateMenuBar", "false")
        self.ask("pictures")

        self.desktop.copy("still")
        self.desktop.wait_for_text("still")
        time.sleep(0.7)

        self.assertEqual(self.ask("pictures"), 0)

    def test_a_tray_that_starts_later_or_anew_gets_the_item(self):
        self.desktop.start_app()
        self.start_tray()
        self.wait_for_item()

        self.tray.kill()
        self.tray.wait()
        self.start_tray()

        self.wait_for_item()
        self.assertEqual(len(self.ask("menu")), 10)

    def test_a_desktop_without_a_tray_is_told_of_once_and_all_the_rest_works(self):
        self.desktop.start_app()
        self.desktop.copy("without a tray")
        self.desktop.wait_for_text("without a tray")

        self.desktop.open_history()

        self.assertEqual(self.desktop.log.read_text().count("No tray shows the status item"), 1)

    def test_a_panel_shows_the_item_and_its_menu_shows_the_history(self):
        # A bar of its own at the top left, with nothing but the tray in it.
        folder = self.desktop.home / ".config/xfce4/xfconf/xfce-perchannel-xml"
        folder.mkdir(parents=True)
        (folder / "xfce4-panel.xml").write_text(PANEL)
        self.desktop.spawn(["xfce4-panel", "--disable-wm-check"])
        self.desktop.start_app()
        wait_until(lambda: "#7887AD" in self.pixels("26x26+0+0"), "the picture in the panel", seconds=30)

        self.desktop.run(["xdotool", "mousemove", "12", "12", "click", "1"])
        wait_until(lambda: "#FFFFFF" in self.pixels("100x100+10+60"), "the menu over the empty screen")
        self.desktop.press("Down", "Down", "Return")

        wait_until(self.desktop.history_window, "the history window")

    def pixels(self, place):
        """The colours of a part of the screen, a line for each point."""
        command = ["import", "-window", "root", "-crop", place, "-depth", "8", "txt:-"]
        return self.desktop.run(command, check=False).stdout

    def test_there_is_no_item_while_the_guide_is_up(self):
        self.start_tray()
        self.desktop.start_app(first_launch=True)
        self.desktop.guide_window()
        self.assertEqual(self.ask("items"), [])

        self.desktop.finish_guide()

        self.wait_for_item()

    def test_the_menu_quits(self):
        self.start_both()

        self.ask(f"click {QUIT}")

        self.assertEqual(self.desktop.app.wait(10), 0)
