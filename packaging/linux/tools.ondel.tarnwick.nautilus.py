"""Nautilus's context menu on a folder and on the ground of a view, by the package python3-nautilus. Its words are those of Nemo's
action, which is installed beside it."""

import pathlib

import gi
from gi.repository import Gio, GLib, GObject, Nautilus

try:  # without it, the window may have to wait for the focus
    gi.require_version("Gdk", "4.0")
    from gi.repository import Gdk
except (ImportError, ValueError):
    Gdk = None

APPLICATION = "tools.ondel.tarnwick"


def words():
    file = GLib.KeyFile()
    file.load_from_file(str(pathlib.Path(__file__).parents[2] / f"nemo/actions/{APPLICATION}.nemo_action"), GLib.KeyFileFlags.NONE)
    return [file.get_locale_string("Nemo Action", key, None) for key in ("Name", "Comment")]


class MeasureThisFolder(GObject.GObject, Nautilus.MenuProvider):
    def get_file_items(self, files):
        return self.items("selection", files)

    def get_background_items(self, folder):
        return self.items("ground", [folder])

    def items(self, place, files):
        application = Gio.DesktopAppInfo.new(f"{APPLICATION}.desktop")
        if not application or len(files) != 1 or not files[0].is_directory() or files[0].get_uri_scheme() != "file":
            return []
        label, tip = words()
        item = Nautilus.MenuItem(name=f"{APPLICATION}.{place}", label=label, tip=tip, icon=APPLICATION)
        item.connect("activate", self.measure, application, files[0].get_uri())
        return [item]

    def measure(self, _item, application, url):
        display = Gdk and Gdk.Display.get_default()
        application.launch_uris([url], display and display.get_app_launch_context())
