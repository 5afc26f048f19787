"""A desktop's settings service with one setting: dark (1) or light (2). Lines on standard input change it.
Usage: desktop_portal.py NUMBER"""

import sys

import gi
from gi.repository import Gio, GLib

NAMESPACE, KEY = "org.freedesktop.appearance", "color-scheme"
INTERFACE = """<node><interface name="org.freedesktop.portal.Settings">
  <method name="Read"><arg name="namespace" type="s" direction="in"/><arg name="key" type="s" direction="in"/>
    <arg name="value" type="v" direction="out"/></method>
  <signal name="SettingChanged"><arg name="namespace" type="s"/><arg name="key" type="s"/>
    <arg name="value" type="v"/></signal>
</interface></node>"""
PATH = "/org/freedesktop/portal/desktop"


class Settings:
    def __init__(self, scheme):
        self.scheme = scheme
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
        self.bus.register_object(PATH, interface, self.read, None, None)
        Gio.bus_own_name_on_connection(self.bus, "org.freedesktop.portal.Desktop", Gio.BusNameOwnerFlags.NONE,
                                       lambda *_: print("ready", flush=True), None)

    def read(self, _bus, _sender, _path, _interface, _method, arguments, invocation):
        if tuple(arguments) != (NAMESPACE, KEY):
            invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", "no such setting")
            return
        answer = GLib.Variant("v", GLib.Variant("u", self.scheme))
        invocation.return_value(GLib.Variant.new_tuple(GLib.Variant("v", answer)))

    def change(self, source, _condition):
        line = source.readline()
        if not line:
            loop.quit()
            return False
        self.scheme = int(line)
        self.bus.emit_signal(None, PATH, "org.freedesktop.portal.Settings", "SettingChanged",
                             GLib.Variant("(ssv)", (NAMESPACE, KEY, GLib.Variant("u", self.scheme))))
        return True


loop = GLib.MainLoop()
settings = Settings(int(sys.argv[1]))
GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, settings.change)
loop.run()
