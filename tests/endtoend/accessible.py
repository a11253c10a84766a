"""Prints what assistive programs are told of the windows of an application: a JSON list of nodes, parents first.

    accessible.py NAME
"""

import json
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402


def nodes(accessible):
    states = accessible.get_state_set()
    if not states.contains(Atspi.StateType.SHOWING) and accessible.get_role() != Atspi.Role.APPLICATION:
        return
    place = accessible.get_extents(Atspi.CoordType.SCREEN) if accessible.get_component_iface() else Atspi.Rect()
    yield {"role": accessible.get_role_name(), "name": accessible.get_name(),
           "description": accessible.get_description(), "place": [place.x, place.y, place.width, place.height],
           "active": states.contains(Atspi.StateType.ACTIVE),
           "checked": states.contains(Atspi.StateType.CHECKED),
           "selected": states.contains(Atspi.StateType.SELECTED),
           "focused": states.contains(Atspi.StateType.FOCUSED),
           "actions": [Atspi.Action.get_action_name(accessible, index) for index in range(accessible.get_n_actions())]}
    for index in range(accessible.get_child_count()):
        child = accessible.get_child_at_index(index)
        if child:
            yield from nodes(child)


desktop = Atspi.get_desktop(0)
applications = [desktop.get_child_at_index(index) for index in range(desktop.get_child_count())]
print(json.dumps([node for application in applications if application.get_name() == sys.argv[1]
                  for node in nodes(application)]))
