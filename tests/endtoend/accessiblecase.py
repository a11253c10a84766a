"""A desktop whose accessibility service tells what the program's windows show, and where."""

import json

from desktop import ROOT, wait_until
from roadcase import RoadCase


class AccessibleCase(RoadCase):
    def setUp(self):
        super().setUp()
        self.desktop.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"

    def nodes(self):
        # The system's Python has the service's library.
        answer = self.desktop.run(["/usr/bin/python3", ROOT / "tests/endtoend/accessible.py", "quillmonger"])
        return json.loads(answer.stdout)

    def nodes_of(self, role):
        return [node for node in self.nodes() if node["role"] == role]

    def node(self, role, name, **states):
        def find():
            return next((node for node in self.nodes() if (node["role"], node["name"]) == (role, name)
                         and all(node[state] == value for state, value in states.items())), None)
        return wait_until(find, f"{role} {name}")

    def click_on(self, node, share=0.5, button=1):
        """Clicks into its middle, or at this share of its width."""
        left, top, width, height = node["place"]
        self.desktop.click(left + round((width - 1) * share), top + height // 2, button)
