"""The displays of the tests: an X server, or a Wayland compositor (ONDEL_DISPLAY=wayland). Each one lists windows, sends keys,
moves the pointer and takes pictures."""

import contextlib
import functools
import json
import os
import pathlib
import re
import shutil
import socket
import struct
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

    def ppm(self, window):
        return subprocess.run(["import", "-window", window, "-depth", "8", "ppm:-"], capture_output=True, check=True).stdout

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
                    try:
                        yield clients | {"QT_QPA_PLATFORM": "wayland"}
                    finally:
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

    ppm = pixels

    def picture(self, window, path):
        do("grim", "-g", self.place(window), path)

    def place(self, window):
        at = self.node(window)["rect"]
        return f"{at['x']},{at['y']} {at['width']}x{at['height']}"


class Pointer:
    """A pointer of the compositor's, for as long as this lives: without hardware it has none. Speaks to it in the words of
    wlr-virtual-pointer-unstable-v1."""

    MANAGER = b"zwlr_virtual_pointer_manager_v1"
    REGISTRY, ROUND, MANAGED, ITSELF = 2, 3, 4, 5  # objects of the connection

    def __init__(self, path, width, height):
        self.size = width, height
        self.connection = socket.socket(socket.AF_UNIX)
        self.connection.connect(path)
        self.say(1, 1, self.REGISTRY)
        self.say(1, 0, self.ROUND)
        told = b""
        while struct.pack("=IHH", self.ROUND, 0, 12) not in told:
            told += self.connection.recv(65536)
        name = struct.unpack_from("=I", told, told.index(self.MANAGER) - 8)[0]
        self.say(self.REGISTRY, 0, name, len(self.MANAGER) + 1, self.MANAGER.ljust(32, b"\0"), 1, self.MANAGED)
        self.say(self.MANAGED, 0, 0, self.ITSELF)

    def say(self, thing, request, *words):
        body = b"".join(word if isinstance(word, bytes) else struct.pack("=I", word) for word in words)
        self.connection.sendall(struct.pack("=IHH", thing, request, 8 + len(body)) + body)

    def move(self, x, y):
        self.say(self.ITSELF, 1, time.monotonic_ns() // 10**6 % 2**32, x, y, *self.size)
        self.say(self.ITSELF, 4)

    def button(self, number, is_pressed):
        self.say(self.ITSELF, 2, time.monotonic_ns() // 10**6 % 2**32, 0x110 + number, int(is_pressed))
        self.say(self.ITSELF, 4)


class Frameless(Wayland):
    """weston, filling a screen of sway. It leaves title bars and borders to the windows. Programs find it by `inner`; keys, pointer
    and pictures are those of the whole screen, on which there is one window at a time."""

    TOOLS = (*Wayland.TOOLS, "weston")
    GROUND = bytes((0, 160, 0))
    SETTINGS = "[shell]\nbackground-type=tile\nbackground-color=0xff00a000\npanel-position=none\nlocking=false\nanimation=none\n"

    @staticmethod
    @contextlib.contextmanager
    def served(width, height):
        with Wayland.served(width, height) as outer, tempfile.TemporaryDirectory(prefix="ondel-weston-") as folder:
            pathlib.Path(folder, "weston.ini").write_text(Frameless.SETTINGS)
            command = ["weston", "--backend=wayland-backend.so", "--use-pixman", "--sprawl", f"--config={folder}/weston.ini",
                       "--idle-time=0", f"--socket={folder}/inner"]
            with subprocess.Popen(command, env=os.environ | outer | {"XDG_RUNTIME_DIR": folder}, stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL) as server:
                try:
                    while not pathlib.Path(folder, "inner").exists():
                        if server.poll() is not None:
                            sys.exit("weston does not start")
                        time.sleep(0.02)
                    yield outer | {"ONDEL_INNER": f"{folder}/inner"}
                finally:
                    server.terminate()

    @property
    def inner(self):
        return {"WAYLAND_DISPLAY": os.environ["ONDEL_INNER"]}

    @functools.cached_property
    def pointer(self):
        at = next(self.nodes())["rect"]
        return Pointer(os.environ["WAYLAND_DISPLAY"], at["width"], at["height"])

    def windows(self, _title):
        return super().windows("^Weston")

    def point(self, x, y):
        self.pointer.move(x, y)
        time.sleep(0.05)

    def button(self, is_pressed, number=0):
        self.pointer.button(number, is_pressed)
        time.sleep(0.05)

    def extent(self):
        """Left, top, width and height of the window: of what is not the ground, along lines through its middle, which the pointer
        at an edge or a corner does not touch."""
        head, size, _depth, data = self.pixels(self.windows("")[0]).split(b"\n", 3)
        width, height = map(int, size.split())
        rows = [data[at:at + 3 * width] for at in range(0, 3 * width * height, 3 * width)]
        shown = [y for y, row in enumerate(rows) if row != self.GROUND * width]
        if not shown:
            return None
        row = rows[shown[len(shown) // 2]]
        columns = [x for x in range(width) if row[3 * x:3 * x + 3] != self.GROUND]
        middle = 3 * columns[len(columns) // 2]
        shown = [y for y in shown if rows[y][middle:middle + 3] != self.GROUND]
        return columns[0], shown[0], columns[-1] - columns[0] + 1, shown[-1] - shown[0] + 1


KINDS = {"x11": X11, "wayland": Wayland, "frameless": Frameless}
display = KINDS[os.environ.get("ONDEL_DISPLAY", "x11")]()
