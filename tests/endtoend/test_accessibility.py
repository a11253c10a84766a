"""What assistive programs are told, through the desktop's accessibility service."""

from accessiblecase import AccessibleCase


class WhatIsTold(AccessibleCase):
    def setUp(self):
        super().setUp()
        self.desktop.start_app()
        for text in ("1700000000", "an older text"):
            self.desktop.copy(text)
            self.desktop.wait_for_text(text)
        self.desktop.open_history()

    def test_the_history_has_its_field_its_rows_and_its_button(self):
        self.node("text", "Search", focused=True)
        self.node("list", "Clipboard history")
        self.node("list item", "an older text", selected=True)
        self.assertIn("Press", self.node("list item", "1700000000", selected=False)["actions"])
        self.assertIn("Press", self.node("push button", "Show or hide the preview")["actions"])

        self.desktop.press("Down")

        self.node("list item", "1700000000", selected=True)

    def test_the_preview_has_what_it_shows(self):
        self.desktop.press("Down")

        self.node("label", "ISO 8601 2023-11-14T22:13:20Z")
        self.assertIn("Press", self.node("push button", "Copy ISO 8601")["actions"])
        self.node("label", "1700000000")
        self.node("label", "10 bytes • 1 line")
        self.node("label", "Pasted 0 times")
