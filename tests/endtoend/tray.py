#!/usr/bin/python3
"""A tray for the tests: StatusNotifierWatcher and host at once, without a panel.

Answers each line of standard input with one line of JSON on standard output:
  items             the registered items' bus names
  item              the properties of the first one
  menu              its entries, in their order
  click N           chooses entry N
  pictures          how often it has told of a new picture since the last time
"""

import json
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"


class Tray(dbus.service.Object):
    def __init__(self, bus):
        self.bus = bus
        self.items = []
        self.pictures = 0
        self.name = dbus.service.BusName(WATCHER, bus, do_not_queue=True)
        super().__init__(bus, "/StatusNotifierWatcher")
        bus.add_signal_receiver(self.on_new_icon, "NewIcon", ITEM)

    @dbus.service.method(WATCHER, in_signature="s", sender_keyword="sender")
    def RegisterStatusNotifierItem(self, service, sender):
        self.items.append(service if not service.startswith("/") else sender)

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
    def Get(self, interface, name):
        return {"IsStatusNotifierHostRegistered": True, "ProtocolVersion": 0,
                "RegisteredStatusNotifierItems": dbus.Array(self.items, "s")}[name]

    def on_new_icon(self):
        self.pictures += 1

    def object(self, path, interface):
        return dbus.Interface(self.bus.get_object(self.items[-1], path), interface)

    def item(self):
        properties = self.object("/StatusNotifierItem", dbus.PROPERTIES_IFACE).GetAll(ITEM)
        pixmaps = properties.pop("IconPixmap")
        properties["IconPixmap"] = [[int(width), int(height), bytes(pixels).hex()] for width, height, pixels in pixmaps]
        return properties

    def menu(self):
        _, (_, _, children) = self.object(self.item()["Menu"], MENU).GetLayout(0, -1, dbus.Array([], "s"))
        return [{"id": int(number), **properties} for number, properties, _ in children]

    def click(self, entry):
        self.object(self.item()["Menu"], MENU).Event(int(entry), "clicked", dbus.Int32(0), dbus.UInt32(0))
        return "clicked"

    def answer(self, line):
        word, *arguments = line.split()
        if word == "items":
            return self.items
        if word == "pictures":
            count, self.pictures = self.pictures, 0
            return count
        return getattr(self, word)(*arguments)


def main():
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    tray = Tray(dbus.SessionBus())
    loop = GLib.MainLoop()

    def on_input(*_):
        line = sys.stdin.readline()
        if not line:
            loop.quit()
            return False
        try:
            answer = tray.answer(line)
        except dbus.DBusException as failure:
            answer = {"failure": str(failure)}
        print(json.dumps(answer), flush=True)
        return True

    GLib.io_add_watch(0, GLib.PRIORITY_DEFAULT, GLib.IO_IN | GLib.IO_HUP, on_input)
    print("ready", flush=True)
    loop.run()


if __name__ == "__main__":
    main()
