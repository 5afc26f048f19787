"""A fake desktop: its dark (1) or light (2) setting, inhibition of suspend, and notifications by their service or by the portal.
Usage: desktop_portal.py NUMBER, or desktop_portal.py behind: only what a real portal needs, which is a session manager and
notifications from the portal alone. With "desktop_portal.py NUMBER refuses" the portal accepts the request to inhibit suspend
and then answers that it failed, and there is a login manager. With "desktop_portal.py NUMBER files" it has file dialogs that nobody
sees, and tells of each one "asked JSON": method, parent, title and options. Lines on standard input: a number changes the setting,
"contrast NUMBER" that of the contrast, "high-contrast NUMBER" GNOME's own of it, "text NUMBER" that of the text scale,
"press" activates the last notification, with the token "pressed", "press portal's" that of the portal, by the application's name;
of the last file dialog "answer CODE JSON" is the answer, "stranger CODE JSON" one of another program (both are followed by
"said"), "nonsense" one of other types; "vanish" ends the portal.
Lines on standard output: "ready", "awake FLAGS REASON", "asleep", "locked WHAT WHO WHY MODE", "unlocked", "notice TITLE: TEXT",
"withdrawn", for those of the portal "portal's notice TITLE: TEXT" and "portal's withdrawn", "asked JSON", "closed"."""

import json
import os
import sys

from gi.repository import Gio, GLib

NAMESPACE, KEY = "org.freedesktop.appearance", "color-scheme"
OF_GNOME = {"text": ("org.gnome.desktop.interface", "text-scaling-factor", lambda word: GLib.Variant("d", float(word))),
            "high-contrast": ("org.gnome.desktop.a11y.interface", "high-contrast", lambda word: GLib.Variant("b", word == "1"))}
PATH = "/org/freedesktop/portal/desktop"
NOTICES = "org.freedesktop.Notifications"
LOGIN = "org.freedesktop.login1"
SESSION = "org.gnome.SessionManager"
INTERFACES = Gio.DBusNodeInfo.new_for_xml("""<node>
<interface name="org.freedesktop.portal.Settings">
  <method name="ReadAll"><arg type="as" direction="in"/><arg type="a{sa{sv}}" direction="out"/></method>
  <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
</interface>
<interface name="org.freedesktop.portal.Inhibit">
  <method name="Inhibit"><arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="a{sv}" direction="in"/>
    <arg type="o" direction="out"/></method>
</interface>
<interface name="org.freedesktop.portal.Notification">
  <method name="AddNotification"><arg type="s" direction="in"/><arg type="a{sv}" direction="in"/></method>
  <method name="RemoveNotification"><arg type="s" direction="in"/></method>
</interface>
<interface name="org.freedesktop.portal.FileChooser">
  <method name="OpenFile"><arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="a{sv}" direction="in"/>
    <arg type="o" direction="out"/></method>
  <method name="SaveFile"><arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="a{sv}" direction="in"/>
    <arg type="o" direction="out"/></method>
</interface>
<interface name="org.freedesktop.portal.Request">
  <method name="Close"/>
  <signal name="Response"><arg type="u"/><arg type="a{sv}"/></signal>
</interface>
<interface name="org.freedesktop.login1.Manager">
  <method name="Inhibit"><arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="s" direction="in"/>
    <arg type="s" direction="in"/><arg type="h" direction="out"/></method>
</interface>
<interface name="org.freedesktop.Notifications">
  <method name="Notify"><arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
    <arg type="a{sv}" direction="in"/><arg type="i" direction="in"/><arg type="u" direction="out"/></method>
  <method name="CloseNotification"><arg type="u" direction="in"/></method>
  <method name="GetCapabilities"><arg type="as" direction="out"/></method>
  <signal name="ActionInvoked"><arg type="u"/><arg type="s"/></signal>
</interface>
<interface name="org.gnome.SessionManager">
  <method name="Inhibit"><arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
    <arg type="u" direction="in"/><arg type="u" direction="out"/></method>
  <method name="RegisterClient"><arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="o" direction="out"/></method>
  <method name="Uninhibit"><arg type="u" direction="in"/></method>
</interface></node>""")


def tell(*words):
    print(*words, flush=True)


class Desktop:
    def __init__(self, scheme, refuses, has_files):
        """Without a scheme it serves a real portal."""
        self.scheme = scheme
        self.numbers = {KEY: scheme}
        self.of_gnome = {}
        self.refuses = refuses
        self.notices = 0
        self.requests = {}
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        if scheme is None:
            self.serve("/org/gnome/SessionManager", SESSION)
        else:
            for name in ("Settings", "Inhibit", "Notification", *["FileChooser"] * has_files):
                self.serve(PATH, f"org.freedesktop.portal.{name}")
        self.serve("/org/freedesktop/Notifications", NOTICES)
        own = Gio.bus_own_name_on_connection
        if refuses:
            self.serve("/org/freedesktop/login1", f"{LOGIN}.Manager")
            own(self.bus, LOGIN, Gio.BusNameOwnerFlags.NONE, None, None)
        own(self.bus, NOTICES, Gio.BusNameOwnerFlags.NONE, None, None)
        if scheme is None:  # the GTK back end uses both names or neither
            own(self.bus, "org.gnome.ScreenSaver", Gio.BusNameOwnerFlags.NONE, None, None)
        last = SESSION if scheme is None else "org.freedesktop.portal.Desktop"
        own(self.bus, last, Gio.BusNameOwnerFlags.NONE, lambda *_: tell("ready"), None)

    def serve(self, path, interface):
        return self.bus.register_object(path, INTERFACES.lookup_interface(interface), self.called, None, None)

    def called(self, _bus, sender, path, interface, method, arguments, invocation):
        if interface == f"{LOGIN}.Manager":
            self.lock(invocation, *arguments.unpack())
            return
        if interface == SESSION:
            answer = self.session(method, *arguments.unpack())
        elif self.scheme is None and method == "Notify" and arguments.unpack()[0]:
            invocation.return_dbus_error("org.freedesktop.DBus.Error.AccessDenied", "Only the portal, which gives no name, is allowed.")
            return
        else:
            answer = getattr(self, method)(sender, path, *arguments.unpack())
        invocation.return_value(answer and GLib.Variant.new_tuple(answer))

    def ReadAll(self, _sender, _path, groups):
        mine = {NAMESPACE: {key: GLib.Variant("u", value) for key, value in self.numbers.items()} | {"accent-color": GLib.Variant("(ddd)", (1, 0, 0))}}
        for group, key, value in self.of_gnome.values():
            mine[group] = {key: value}
        return GLib.Variant("a{sa{sv}}", {name: mine[name] for name in groups if name in mine})

    def request(self, sender, options, end):
        """A new request's path. `end` is told when it is closed."""
        path = f"{PATH}/request/{sender[1:].replace('.', '_')}/{options['handle_token']}"
        self.requests[path] = (self.serve(path, "org.freedesktop.portal.Request"), end)
        return path

    def answer(self, request, response, bus=None):
        (bus or self.bus).emit_signal(None, request, "org.freedesktop.portal.Request", "Response", response)

    def ask(self, method, sender, parent, title, options):
        self.dialog = self.request(sender, options, "closed")
        tell("asked", json.dumps({"method": method, "parent": parent, "title": title} | options))
        return GLib.Variant("o", self.dialog)

    def OpenFile(self, sender, _path, *words):
        return self.ask("OpenFile", sender, *words)

    def SaveFile(self, sender, _path, *words):
        return self.ask("SaveFile", sender, *words)

    def Inhibit(self, sender, _path, _window, flags, options):
        request = self.request(sender, options, "asleep")
        tell("awake", flags, options["reason"])
        if self.refuses:
            GLib.idle_add(self.refuse, request)
        return GLib.Variant("o", request)

    def refuse(self, request):
        self.answer(request, GLib.Variant("(ua{sv})", (2, {})))
        self.bus.unregister_object(self.requests.pop(request)[0])

    def lock(self, invocation, *words):
        """The lock holds until its other end is closed."""
        held, given = os.pipe()
        descriptors = Gio.UnixFDList.new_from_array([given])
        tell("locked", *words)
        GLib.io_add_watch(held, GLib.IO_HUP, lambda *_: tell("unlocked"))
        invocation.return_value_with_unix_fd_list(GLib.Variant("(h)", (0,)), descriptors)

    def Close(self, _sender, path):
        served, end = self.requests.pop(path)
        self.bus.unregister_object(served)
        tell(end)

    def session(self, method, *what):
        if method == "Uninhibit":
            return tell("asleep")
        if method == "RegisterClient":
            return GLib.Variant("o", "/org/gnome/SessionManager/Client1")
        tell("awake", what[3], what[2])
        return GLib.Variant("u", 1)

    def GetCapabilities(self, *_):
        return GLib.Variant("as", ["actions", "body"])

    def Notify(self, _sender, _path, _name, _replaced, _icon, title, text, *_):
        self.notices += 1
        tell("notice", f"{title}: {text}")
        return GLib.Variant("u", self.notices)

    def AddNotification(self, _sender, _path, _name, notice):
        tell("portal's notice", f"{notice['title']}: {notice['body']}")

    def RemoveNotification(self, _sender, _path, _name):
        tell("portal's withdrawn")

    def CloseNotification(self, _sender, _path, _notice):
        tell("withdrawn")

    def change(self, key, value):
        if key in OF_GNOME:
            group, name, variant = OF_GNOME[key]
            setting = self.of_gnome[key] = group, name, variant(value)
        else:
            self.numbers[key] = int(value)
            setting = (NAMESPACE, key, GLib.Variant("u", int(value)))
        self.bus.emit_signal(None, PATH, "org.freedesktop.portal.Settings", "SettingChanged", GLib.Variant("(ssv)", setting))

    def command(self, source, _condition):
        line = source.readline().decode().strip()
        if not line:
            loop.quit()
        elif line == "press portal's":
            token = {"activation-token": GLib.Variant("s", "pressed"), "desktop-startup-id": GLib.Variant("s", "pressed")}
            self.bus.call_sync("tools.ondel.tarnwick", "/tools/ondel/tarnwick", "org.freedesktop.Application", "Activate",
                               GLib.Variant("(a{sv})", (token,)), None, Gio.DBusCallFlags.NO_AUTO_START, -1, None)
        elif line == "press":
            self.bus.emit_signal(None, "/org/freedesktop/Notifications", NOTICES, "ActivationToken",
                                 GLib.Variant("(us)", (self.notices, "pressed")))
            self.bus.emit_signal(None, "/org/freedesktop/Notifications", NOTICES, "ActionInvoked",
                                 GLib.Variant("(us)", (self.notices, "default")))
        elif line == "vanish":
            loop.quit()
        elif line == "nonsense":
            self.answer(self.dialog, GLib.Variant("(s)", ("0",)))
        elif line.startswith(("answer", "stranger")):
            who, code, uris = line.split(" ", 2)
            uris = json.loads(uris)
            kind = "as" if isinstance(uris, list) else "s"
            address = Gio.dbus_address_get_for_bus_sync(Gio.BusType.SESSION)
            self.other = Gio.DBusConnection.new_for_address_sync(
                address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
            self.answer(self.dialog, GLib.Variant("(ua{sv})", (int(code), {"uris": GLib.Variant(kind, uris)})),
                        self.other if who == "stranger" else self.bus)
            self.other.flush_sync()
            self.bus.flush_sync()
            tell("said")
        else:
            *other, value = line.split()
            self.change((other or [KEY])[0], value)
        return bool(line)


loop = GLib.MainLoop()
desktop = Desktop(None if sys.argv[1] == "behind" else int(sys.argv[1]), "refuses" in sys.argv[2:], "files" in sys.argv[2:])
commands = open(0, "rb", buffering=0)  # a buffer would keep lines that nothing announces any more
GLib.io_add_watch(commands, GLib.IO_IN | GLib.IO_HUP, desktop.command)
loop.run()
