"""Nautilus's context menu on a folder and on the ground of a view, by the package python3-nautilus. Its words are those of Nemo's
action, which is installed beside it."""

import pathlib

from gi.repository import Gdk, Gio, GLib, GObject, Nautilus

APPLICATION = "tools.ondel.tarnwick"


def words():
    file = GLib.KeyFile()
    file.load_from_file(str(pathlib.Path(__file__).parents[2] / f"nemo/actions/{APPLICATION}.nemo_action"), GLib.KeyFileFlags.NONE)
    return [file.get_locale_string("Nemo Action", key, None) for key in ("Name", "Comment")]


class MeasureThisFolder(GObject.GObject, Nautilus.MenuProvider):
    def get_file_items(self, *arguments):  # up to 3.x, the window comes first
        return self.items("selection", arguments[-1])

    def get_background_items(self, *arguments):
        return self.items("ground", [arguments[-1]])

    def items(self, place, files):
        application = Gio.DesktopAppInfo.new(f"{APPLICATION}.desktop")
        if not application or len(files) != 1 or not files[0].is_directory() or files[0].get_uri_scheme() != "file":
            return []
        label, tip = words()
        item = Nautilus.MenuItem(name=f"{APPLICATION}.{place}", label=label, tip=tip, icon=APPLICATION)
        item.connect("activate", self.measure, application, files[0].get_uri())
        return [item]

    def measure(self, _item, application, url):
        display = Gdk.Display.get_default()
        application.launch_uris([url], display and display.get_app_launch_context())
