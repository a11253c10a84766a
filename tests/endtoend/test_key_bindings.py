"""Chords that the user records in the settings, and what they do from then on."""

import json
import subprocess
import sys

from accessiblecase import AccessibleCase
from desktop import wait_until

# Another program that has a chord for itself: Control, Alt and K.
HOLDER = """
import ctypes, time
x = ctypes.CDLL("libX11.so.6")
x.XOpenDisplay.restype = ctypes.c_void_p
x.XDefaultRootWindow.restype = ctypes.c_ulong
display = ctypes.c_void_p(x.XOpenDisplay(None))
root = ctypes.c_ulong(x.XDefaultRootWindow(display))
x.XGrabKey(display, x.XKeysymToKeycode(display, ctypes.c_ulong(ord("k"))), 4 | 8, root, 1, 1, 1)
x.XSync(display, 0)
print("ready", flush=True)
time.sleep(600)
"""
ACTIVATE = "KeyboardShortcuts_activate"
CONTROL_ALT = 0x1000 | 0x800


class KeyBindingsCase(AccessibleCase):
    def open_key_bindings(self):
        """Shows the pane, with the toolbar in the keyboard's hands."""
        self.desktop.quillmonger("settings")
        self.wait_for_front("^General$")
        self.desktop.press("Tab")
        for title in ("Ignore", "Search", "Appearance", "Key Bindings"):
            self.desktop.press("Right")
            self.wait_still(self.wait_for_front(f"^{title}$"))

    def stored(self, key):
        settings = self.desktop.home / ".config/quillmonger/settings.json"
        value = json.loads(settings.read_text())["values"].get(key)
        return value and next(iter(value.values()))

    def wait_for_chord(self, key_code, modifiers):
        chord = {"carbonKeyCode": key_code, "carbonModifiers": modifiers}

        def is_stored():
            value = self.stored(ACTIVATE)
            return isinstance(value, str) and json.loads(value) == chord
        wait_until(is_stored, f"the chord to be stored, not {self.stored(ACTIVATE)}")

    def hide_settings(self):
        self.desktop.press("Escape")
        wait_until(lambda: not self.is_shown("^Key Bindings$"), "the settings to go")

    def hold_a_chord(self):
        holder = self.desktop.spawn([sys.executable, "-c", HOLDER], stdout=subprocess.PIPE, text=True)
        self.assertEqual(holder.stdout.readline().strip(), "ready")


class TheKeyBindings(KeyBindingsCase):
    def test_a_recorded_chord_shows_the_history_and_the_former_one_no_longer_does(self):
        self.desktop.start_app()
        self.open_key_bindings()

        self.desktop.press("Tab", "ctrl+alt+j")
        self.wait_for_chord(38, CONTROL_ALT)
        self.hide_settings()

        # If the former one still showed the history, the new one would hide it.
        self.desktop.press("shift+super+v", "ctrl+alt+j")
        wait_until(self.desktop.history_window, "the history")
        self.desktop.press("Escape")
        self.desktop.wait_hidden()
        self.desktop.stop_app()
        self.desktop.start_app()
        self.desktop.press("ctrl+alt+j")
        wait_until(self.desktop.history_window, "the history after a restart")

    def test_a_chord_of_another_program_is_told_and_another_one_recorded(self):
        self.desktop.start_app()
        self.hold_a_chord()
        self.open_key_bindings()
        self.desktop.press("Tab")

        def is_told():
            self.desktop.press("ctrl+alt+k")
            return self.is_shown("^This shortcut is already in use")
        wait_until(is_told, "the alert", step=0.2)
        self.wait_for_front("^This shortcut is already in use")
        self.desktop.press("Return")
        self.wait_for_front("^Key Bindings$")

        def is_recorded():
            self.desktop.press("ctrl+alt+j")
            return "38" in str(self.stored(ACTIVATE))
        wait_until(is_recorded, "the other chord", step=0.2)

    def test_a_chord_of_the_programs_own_menu_is_told_and_escape_leaves_the_old_chord(self):
        self.desktop.start_app()
        self.open_key_bindings()
        before = self.stored(ACTIVATE)

        self.desktop.press("Tab", "ctrl+comma")
        self.wait_for_front("^This shortcut already belongs to the menu entry .*Settings")
        self.desktop.press("Escape")
        window = self.wait_for_front("^Key Bindings$")

        self.assertEqual(self.stored(ACTIVATE), before)
        self.assertEqual(self.desktop.focused(), window)

    def test_a_cleared_chord_does_nothing(self):
        self.desktop.start_app()
        self.open_key_bindings()

        self.desktop.press("Tab", "BackSpace")
        wait_until(lambda: self.stored(ACTIVATE) is False, "the chord to be cleared")
        self.desktop.press("Escape")
        self.hide_settings()

        # If it still showed the history, the command would hide it.
        self.desktop.press("shift+super+v")
        self.desktop.quillmonger("toggle")
        wait_until(self.desktop.history_window, "the history")

    def test_restoring_the_defaults_leaves_the_chord_that_shows_the_history(self):
        self.desktop.start_app()
        self.open_key_bindings()
        self.desktop.press("Tab", "ctrl+alt+j")
        self.wait_for_chord(38, CONTROL_ALT)
        self.desktop.press("Tab", "Tab", "BackSpace")
        wait_until(lambda: self.stored("KeyboardShortcuts_quickPaste1") is False, "the chord to be cleared")

        self.desktop.press("Tab", "Tab", "Tab", "Return")
        self.wait_for_front("^Restore the shortcuts of Quick Paste")
        self.desktop.press("Return")

        wait_until(lambda: self.stored("KeyboardShortcuts_quickPaste1"), "the chord's default")
        self.wait_for_chord(38, CONTROL_ALT)


class TheRecorder(KeyBindingsCase):
    """With the mouse."""

    def setUp(self):
        super().setUp()
        self.desktop.start_app()
        self.open_key_bindings()

    def wait_for_field(self, label, words):
        wait_until(lambda: any((node["name"], node["description"]) == (label, words) for node in self.nodes_of("text")),
                   f"{label}: {words}")

    def wait_for_quick_paste(self, number, key_code):
        wait_until(lambda: str(key_code) in str(self.stored(f"KeyboardShortcuts_quickPaste{number}")),
                   f"the chord of item {number}")

    def test_records_after_a_click_and_clears_with_its_button(self):
        self.click_on(self.node("text", "Paste 1st item"))
        self.node("text", "Paste 1st item", focused=True)
        self.desktop.press("ctrl+alt+j")
        self.wait_for_quick_paste(1, 38)
        self.wait_for_field("Paste 1st item", "Ctrl+Alt+J")

        field = self.node("text", "Paste 2nd item")
        self.click_on(field, share=0.93)

        wait_until(lambda: self.stored("KeyboardShortcuts_quickPaste2") is False, "the chord to be cleared")
        self.wait_for_field("Paste 2nd item", "Record Shortcut")
        self.click_on(field)
        self.wait_for_field("Paste 2nd item", "Press Shortcut…")
        self.desktop.press("ctrl+alt+k")
        self.wait_for_quick_paste(2, 40)

    def test_ends_with_a_click_elsewhere_and_leaves_the_chord(self):
        before = self.stored("KeyboardShortcuts_quickPaste3")
        self.click_on(self.node("text", "Show the history"))
        self.node("text", "Show the history", focused=True)

        self.click_on(self.node("text", "Paste 3rd item"))
        self.node("text", "Paste 3rd item", focused=True)
        self.click_on(self.node("panel", "Quick Paste"), share=0.9)
        self.desktop.press("ctrl+alt+l")

        self.desktop.press("shift+super+v")
        wait_until(self.desktop.history_window, "the history by the chord that is left")
        self.assertEqual(self.stored("KeyboardShortcuts_quickPaste3"), before)

    def test_restores_the_defaults_with_the_mouse(self):
        self.click_on(self.node("text", "Paste 1st item"), share=0.93)
        wait_until(lambda: self.stored("KeyboardShortcuts_quickPaste1") is False, "the chord to be cleared")
        self.click_on(self.node("push button", "Restore Defaults…"))
        self.wait_for_front("^Restore the shortcuts of Quick Paste")
        self.click_on(self.node("push button", "Restore"))

        self.wait_for_quick_paste(1, 7)


class TheQuickPaste(KeyBindingsCase):
    def test_pastes_the_item_of_its_chord_while_its_switch_is_on(self):
        self.desktop.start_app()
        for text in ("third", "second", "first"):
            self.desktop.copy(text)
            self.desktop.wait_for_text(text)
        self.open_key_bindings()
        self.desktop.press("Tab", "Tab", "space")
        wait_until(lambda: self.stored("quickPaste") is True, "the switch to be on")
        self.hide_settings()
        file, _ = self.open_gtk_editor()

        self.desktop.press("shift+super+x")
        self.save_until(file, "first")
        self.desktop.quillmonger("defaults", "write", "quickPaste", "false")
        self.desktop.press("shift+super+x", "ctrl+a")
        self.paste_from_history("third")
        self.save_until(file, "third")
        self.assertEqual(self.desktop.log.read_text().count("isAccessibilityAllowed = true"), 2, "the pastes")
