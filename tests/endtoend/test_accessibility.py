"""What assistive programs are told, through the desktop's accessibility service."""

import json

from desktop import ROOT, wait_until
from roadcase import RoadCase


class WhatIsTold(RoadCase):
    def setUp(self):
        super().setUp()
        self.desktop.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        self.desktop.start_app()
        for text in ("1700000000", "an older text"):
            self.desktop.copy(text)
            self.desktop.wait_for_text(text)
        self.desktop.open_history()

    def nodes(self):
        # The system's Python has the service's library.
        answer = self.desktop.run(["/usr/bin/python3", ROOT / "tests/endtoend/accessible.py", "quillmonger"])
        return json.loads(answer.stdout)

    def node(self, role, name, **states):
        def find():
            return next((node for node in self.nodes() if (node["role"], node["name"]) == (role, name)
                         and all(node[state] == value for state, value in states.items())), None)
        return wait_until(find, f"{role} {name}")

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
