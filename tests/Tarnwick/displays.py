"""The displays of the tests: an X server, or a Wayland compositor (ONDEL_DISPLAY=wayland). Each one lists windows, sends keys,
moves the pointer and takes pictures."""

import contextlib
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time


def output(*command):
    return subprocess.run(list(map(str, command)), capture_output=True, text=True).stdout


def do(*command):
    subprocess.run(list(map(str, command)), check=True)


class X11:
    """Xvfb without a window manager. A window is its number."""

    TOOLS = ("Xvfb", "xdotool", "import")

    @staticmethod
    @contextlib.contextmanager
    def served(width, height):
        """Returns the environment of its clients."""
        with subprocess.Popen(["Xvfb", "-displayfd", "1", "-screen", "0", f"{width}x{height}x24", "-dpi", "96", "-noreset",
                               "-nolisten", "tcp"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True) as server:
            yield {"DISPLAY": ":" + server.stdout.readline().strip(), "QT_QPA_PLATFORM": "xcb"}
            server.terminate()

    def windows(self, title):
        return output("xdotool", "search", "--onlyvisible", "--name", title).split()

    def title(self, window):
        return output("xdotool", "getwindowname", window).strip()

    def process(self, window):
        return int(output("xdotool", "getwindowpid", window))

    def focus(self, window):
        do("xdotool", "windowfocus", "--sync", window)

    def point(self, x, y):
        do("xdotool", "mousemove", x, y)

    def resize(self, window, width, height):
        do("xdotool", "windowsize", window, width, height)

    def type(self, text):
        do("xdotool", "type", "--delay", "20", text)

    def press(self, *keys):
        do("xdotool", "key", "--delay", "30", *keys)

    def pixels(self, window):
        return subprocess.run(["import", "-window", window, "rgb:-"], capture_output=True).stdout

    def picture(self, window, path):
        do("import", "-window", window, path)


SWAY = """xwayland disable
output HEADLESS-1 resolution {width}x{height}
default_border none
default_floating_border none
for_window [app_id=".*"] floating enable
exec sh -c 'echo $WAYLAND_DISPLAY $SWAYSOCK >$XDG_RUNTIME_DIR/new && mv $XDG_RUNTIME_DIR/new $XDG_RUNTIME_DIR/ready'
"""


class Wayland:
    """sway without hardware. A window is its container's number; it floats in its requested size."""

    TOOLS = ("sway", "swaymsg", "grim", "wtype", "setpriv")

    @staticmethod
    @contextlib.contextmanager
    def served(width, height):
        with tempfile.TemporaryDirectory(prefix="ondel-sway-") as folder:
            pathlib.Path(folder, "config").write_text(SWAY.format(width=width, height=height))
            command = ["sway", "--config", f"{folder}/config"]
            if os.getuid() == 0:  # sway refuses root
                shutil.chown(folder, "nobody")
                command = ["setpriv", "--reuid=nobody", "--regid=nogroup", "--clear-groups", *command]
            env = {"PATH": os.environ["PATH"], "HOME": folder, "XDG_RUNTIME_DIR": folder, "WLR_BACKENDS": "headless",
                   "WLR_RENDERER": "pixman", "WLR_LIBINPUT_NO_DEVICES": "1"}
            with subprocess.Popen(command, env=env, stderr=subprocess.DEVNULL) as server:
                ready = pathlib.Path(folder, "ready")
                while not ready.exists():
                    if server.poll() is not None:
                        sys.exit("sway does not start")
                    time.sleep(0.02)
                name, socket = ready.read_text().split()
                clients = {"WAYLAND_DISPLAY": f"{folder}/{name}", "SWAYSOCK": socket}
                # A permanent keyboard: without one the focus is lost, and so are the first keys of a new one.
                with subprocess.Popen(["wtype", "-s", str(2**31 - 1)], env=os.environ | clients) as keyboard:
                    yield clients | {"QT_QPA_PLATFORM": "wayland"}
                    keyboard.terminate()
                server.terminate()

    def nodes(self, node=None):
        node = node or json.loads(output("swaymsg", "--raw", "--type", "get_tree"))
        yield node
        for child in node["nodes"] + node["floating_nodes"]:
            yield from self.nodes(child)

    def node(self, window):
        return next(node for node in self.nodes() if node["id"] == int(window))

    def windows(self, title):
        return [str(node["id"]) for node in self.nodes() if node.get("pid") and re.search(title, node["name"] or "")]

    def title(self, window):
        return self.node(window)["name"]

    def process(self, window):
        return self.node(window)["pid"]

    def focus(self, window):
        do("swaymsg", "--quiet", f"[con_id={window}] focus")

    def point(self, x, y):
        do("swaymsg", "--quiet", f"seat - cursor set {x} {y}")

    def resize(self, window, width, height):
        do("swaymsg", "--quiet", f"[con_id={window}] resize set width {width} px height {height} px")

    def type(self, text):
        do("wtype", "-d", "20", text)

    def press(self, *keys):
        words = []
        for key in keys:
            *held, last = key.split("+")
            words += [word for name in held for word in ("-M", name)] + ["-k", {"alt": "Alt_L"}.get(last, last)]
            words += [word for name in held for word in ("-m", name)] + ["-s", "60"]
        do("wtype", "-s", "60", *words)

    def pixels(self, window):
        return subprocess.run(["grim", "-t", "ppm", "-g", self.place(window), "-"], capture_output=True).stdout

    def picture(self, window, path):
        do("grim", "-g", self.place(window), path)

    def place(self, window):
        at = self.node(window)["rect"]
        return f"{at['x']},{at['y']} {at['width']}x{at['height']}"


KINDS = {"x11": X11, "wayland": Wayland}
display = KINDS[os.environ.get("ONDEL_DISPLAY", "x11")]()
