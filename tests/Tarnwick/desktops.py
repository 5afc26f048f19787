#!/usr/bin/python3
"""The installed package on a real desktop, in a session of its own: desktops.py DESKTOP [CASE]... (scripts/check-desktops runs it).
Each case leaves pictures in /run/pictures. A case that fails does not keep the others from being tried."""

import contextlib
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import time

import driver
from displays import X11, do, output
from driven_requests import NAME, run_file, shows_run
from driven_window import choose_small_size, nothing_left
from driver import check

PICTURES = pathlib.Path("/run/pictures")
HOME = pathlib.Path.home()
ASSISTIVE = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}  # as if a screen reader were there
SCREEN = 1440, 900
DARK_PIXEL = 96  # the greatest mean of red, green and blue

# The window of another application, which asks for nothing.
OTHER = """
import gi
gi.require_version("Gtk", "3.0")
from gi.repository import Gtk
window = Gtk.Window(title="Another application")
window.set_default_size(700, 500)
window.show_all()
Gtk.main()"""


def begin(*command):
    """A program of the session. Its output goes to the session's."""
    return subprocess.Popen(command, stdout=sys.stderr)


def becomes(what, answer):
    """Calls `answer` until its result is true, and returns it."""
    end = time.monotonic() + driver.GUARD_SECONDS
    while not (found := answer()):
        check(time.monotonic() < end, f"never: {what}")
        time.sleep(0.05)
    return found


class Hand:
    """What a person does with the pointer."""

    def click(self, x, y):
        self.point(x, y)
        self.button(True)
        self.button(False)

    def drag(self, begin, by):
        self.point(*begin)
        self.button(True)
        for step in range(1, 9):
            self.point(*(at + way * step // 8 for at, way in zip(begin, by)))
            time.sleep(0.05)
        self.button(False)


class Plasma(X11, Hand):
    """Plasma under Xvfb."""

    environment = {"DISPLAY": ":0", "XDG_SESSION_TYPE": "x11", "XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true",
                   "KDE_SESSION_VERSION": "5"}
    open_file = ("kde-open5",)

    def start(self):
        begin("Xvfb", ":0", "-screen", "0", "{}x{}x24".format(*SCREEN), "-nolisten", "tcp")
        becomes("an X server", lambda: subprocess.run(["xdpyinfo"], capture_output=True).returncode == 0)
        do("dbus-update-activation-environment", *self.environment, *ASSISTIVE)
        for program in "kwin_x11", "kded5", "plasmashell":
            begin(program)
        becomes("a panel", lambda: "_NET_WM_WINDOW_TYPE_DOCK" in "".join(
            self.property(window, "_NET_WM_WINDOW_TYPE") for window in self.of_shell()))
        do("gdbus", "wait", "--session", "--timeout", "30", "org.freedesktop.Notifications")

    def of_shell(self):
        return output("xdotool", "search", "--onlyvisible", "--class", "plasmashell").split()

    def start_from_menu(self):
        begin("kstart5", "--application", NAME)

    def property(self, window, name):
        return output("xprop", "-id", window, name)

    def active(self):
        words = output("xprop", "-root", "_NET_ACTIVE_WINDOW").split()
        return str(int(words[-1], 16))

    def application(self, window):
        return NAME if "Ondel Tarnwick" in self.property(window, "WM_CLASS") else None

    def focus(self, window):
        do("xdotool", "windowactivate", "--sync", window)

    def parent(self, window):
        told = re.search(r"window id # (0x[0-9a-f]+)", self.property(window, "WM_TRANSIENT_FOR"))
        return told and str(int(told.group(1), 16))

    def wants_attention(self, window):
        return "_NET_WM_STATE_DEMANDS_ATTENTION" in self.property(window, "_NET_WM_STATE")

    def notices(self):
        """Names of the windows that are notifications."""
        return [window for window in self.of_shell() if "NOTIFICATION" in self.property(window, "_NET_WM_WINDOW_TYPE")]

    def set_dark(self, dark):
        output("plasma-apply-colorscheme", "BreezeDark" if dark else "BreezeLight")

    def frame(self, window):
        """Left, top, width and height of the window with its decoration."""
        place = dict(word.split("=") for word in output("xdotool", "getwindowgeometry", "--shell", window).split())
        left, right, top, bottom = map(int, re.findall(r"\d+", self.property(window, "_NET_FRAME_EXTENTS")))
        return [int(place["X"]) - left, int(place["Y"]) - top, int(place["WIDTH"]) + left + right,
                int(place["HEIGHT"]) + top + bottom]

    def button(self, is_pressed):
        do("xdotool", "mousedown" if is_pressed else "mouseup", 1)

    def screen(self, path):
        do("import", "-window", "root", path)


class Gnome(Hand):
    """gnome-shell without hardware. A window is its number; what the shell knows is asked in its own language."""

    environment = {"WAYLAND_DISPLAY": "wayland-0", "XDG_SESSION_TYPE": "wayland", "XDG_CURRENT_DESKTOP": "GNOME"}
    open_file = ("gio", "open")
    KEYS = {"ctrl": "Control_L", "alt": "Alt_L", "shift": "Shift_L", "super": "Super_L"}

    def start(self):
        from gi.repository import Gio
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self.set_dark(False)  # the settings' file is there before anybody watches it, as after a first login
        begin("gnome-shell", "--headless", "--wayland", "--virtual-monitor", "{}x{}".format(*SCREEN), "--unsafe-mode")
        do("gdbus", "wait", "--session", "--timeout", "60", "org.gnome.Shell")
        becomes("a started shell", lambda: self.ask("Main.layoutManager._startingUp") is False)
        do("dbus-update-activation-environment", *self.environment, *ASSISTIVE)
        self.ask("Main.overview.hide()")
        becomes("the desktop", lambda: self.ask("Main.overview.visible") is False)
        self.ask("Main.messageTray.getSources().forEach(source => source.destroy())")  # "no screen lock here"
        self.ask("const {Clutter} = imports.gi; const seat = Clutter.get_default_backend().get_default_seat(); global.hands = {"
                 "keys: seat.create_virtual_device(Clutter.InputDeviceType.KEYBOARD_DEVICE),"
                 "pointer: seat.create_virtual_device(Clutter.InputDeviceType.POINTER_DEVICE)}; 0")

    def call(self, name, path, interface, method, *arguments):
        from gi.repository import GLib
        values = [GLib.Variant("b" if isinstance(word, bool) else "s", word) for word in arguments]
        return self.bus.call_sync(name, path, interface, method, GLib.Variant.new_tuple(*values), None, 0, 20000, None).unpack()

    def ask(self, script):
        """The value of its last expression. None if it has none or fails."""
        try:
            done, value = self.call("org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell", "Eval", script)
        except Exception:  # the shell is still starting
            return None
        return json.loads(value) if done and value else None

    def of(self, window, expression):
        return self.ask(f"const w = global.get_window_actors().map(a => a.meta_window).find(w => w.get_id() == {window}); {expression}")

    def windows(self, title):
        known = self.ask("global.get_window_actors().map(a => [a.meta_window.get_id(), a.meta_window.title])") or []
        return [str(number) for number, name in known if re.search(title, name or "")]

    def title(self, window):
        return self.of(window, "w.title")

    def process(self, window):
        return self.of(window, "w.get_pid()")

    def start_from_menu(self):
        self.ask(f"imports.gi.Shell.AppSystem.get_default().lookup_app('{NAME}.desktop').activate()")

    def active(self):
        return str(self.ask("global.display.focus_window?.get_id() ?? 0"))

    def application(self, window):
        identity = self.of(window, "imports.gi.Shell.WindowTracker.get_default().get_window_app(w).get_id()")
        return identity.removesuffix(".desktop")

    def focus(self, window):
        self.of(window, "w.activate(global.get_current_time()); 0")
        becomes("the focus", lambda: self.active() == window)

    def parent(self, window):
        found = self.of(window, "w.get_transient_for()?.get_id() ?? 0")
        return found and str(found)

    def wants_attention(self, window):
        return self.of(window, "w.demands_attention || w.urgent")

    def notices(self):
        return self.ask("Main.messageTray.getSources().flatMap(source => source.notifications.map(notice => notice.title))")

    def set_dark(self, dark):
        do("gsettings", "set", "org.gnome.desktop.interface", "color-scheme", "prefer-dark" if dark else "default")

    def frame(self, window):
        return self.of(window, "const r = w.get_frame_rect(); [r.x, r.y, r.width, r.height]")

    def press(self, *keys):
        for key in keys:
            *held, last = (self.KEYS.get(word, word) for word in key.split("+"))
            for name, state in [(name, 1) for name in (*held, last)] + [(name, 0) for name in (last, *reversed(held))]:
                self.ask("const {Clutter, GLib} = imports.gi; global.hands.keys.notify_keyval("
                         f"GLib.get_monotonic_time(), Clutter.KEY_{name}, {state}); 0")
                time.sleep(0.03)

    def point(self, x, y):
        self.ask(f"global.hands.pointer.notify_absolute_motion(imports.gi.GLib.get_monotonic_time(), {x}, {y}); 0")
        time.sleep(0.05)

    def button(self, is_pressed):
        self.ask(f"global.hands.pointer.notify_button(imports.gi.GLib.get_monotonic_time(), 1, {int(is_pressed)}); 0")
        time.sleep(0.05)

    def screen(self, path):
        self.call("org.gnome.Shell.Screenshot", "/org/gnome/Shell/Screenshot", "org.gnome.Shell.Screenshot", "Screenshot",
                  False, False, str(path))

    def pixels(self, _window):
        path = HOME / "shown.png"
        self.screen(path)
        return path.read_bytes()


KINDS = {"plasma": Plasma, "gnome": Gnome}


def look(what):
    """Leaves a picture of the whole screen, when nothing slides or fades any more; or else as it is after three seconds."""
    path, before = PICTURES / f"{running}, {what}.png", None
    for _ in range(10):
        desktop.screen(path)
        shown = path.read_bytes()
        if shown == before:
            break
        before = shown
        time.sleep(0.3)


@contextlib.contextmanager
def started(begin_it):
    begin_it()
    with driver.Window(driver.Started()) as window:
        yield window
        if window.process.poll() is None:
            window.terminate()


def from_menu():
    return started(desktop.start_from_menu)


def opened(folder):
    return started(lambda: begin("tarnwick", str(folder)))


@contextlib.contextmanager
def another_application():
    with subprocess.Popen([sys.executable, "-c", OTHER]) as process:
        try:
            desktop.focus(driver.appearing("^Another application$"))
            yield
        finally:
            process.kill()


def folder_of_disk():
    folder = HOME / "disk"
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir()
    return folder


def starts_from_the_menu():
    with from_menu() as window:
        window.find("Choose a volume to begin")
        main = window.id()
        becomes("the focus", lambda: desktop.active() == main)
        look("window")
        check(len(desktop.windows(driver.MAIN)) == 1, "more than one window")
        check(desktop.application(main) == NAME, f"the desktop takes it for {desktop.application(main)}")


def ends_when_its_window_is_closed():
    with from_menu() as window:
        window.find("Choose a volume to begin")
        end = time.monotonic() + driver.GUARD_SECONDS
        while window.process.poll() is None and time.monotonic() < end:  # the desktop's service for its keys may only be starting
            window.keys("alt+F4")
            with contextlib.suppress(driver.Failure):
                window.process.wait(3)
        becomes("the end of the window", lambda: not desktop.windows(driver.MAIN))


def opens_a_file_cold():
    file = run_file(folder_of_disk(), 1)
    with started(lambda: begin(*desktop.open_file, str(file))) as window:
        shows_run(window, 1)
        look("run")
        becomes("the focus", lambda: desktop.active() == window.id())


def asks_for_a_folder_in_a_dialog_of_its_own():
    with from_menu() as window:
        window.find("Choose a volume to begin")
        main = window.id()
        window.keys("ctrl+o")
        dialog = becomes("a dialog", lambda: [found for found in desktop.windows(".") if desktop.parent(found) == main] or (
            look("no parent"), None)[1])[0]
        look("dialog")
        check(desktop.process(dialog) != window.process.pid, "it is the program's own dialog, not the desktop's")
        window.press("Help", "menu item")  # the window is alive
        window.find("Tarnwick Help", "menu item")
        window.press("Help", "menu item")
        desktop.focus(dialog)
        desktop.press("Escape")
        becomes("the end of the dialog", lambda: dialog not in desktop.windows("."))
        becomes("the focus back", lambda: desktop.active() == main)


def light_parts(window):
    """Which share is light of the window's frame, its decoration included (a band of 3 pixels around, and the title bar), and
    which of the whole window."""
    import gi
    gi.require_version("GdkPixbuf", "2.0")
    from gi.repository import GdkPixbuf
    path = HOME / "frame.png"
    desktop.screen(path)
    shown = GdkPixbuf.Pixbuf.new_from_file(str(path))
    left, top, width, height = desktop.frame(window)
    data, row, step = shown.get_pixels(), shown.get_rowstride(), shown.get_n_channels()

    def part(places):
        on_screen = [(top + y) * row + (left + x) * step for x, y in places
                     if 0 <= left + x < SCREEN[0] and 0 <= top + y < SCREEN[1]]
        return sum(sum(data[at:at + 3]) > 3 * DARK_PIXEL for at in on_screen) / len(on_screen)
    band = [(x, y) for y in range(height) for x in range(width) if y < 24 or min(x, width - 1 - x, height - 1 - y) < 3]
    return part(band), part([(x, y) for y in range(0, height, 5) for x in range(0, width, 5)])


def follows_the_dark():
    with from_menu() as window:
        window.find("Choose a volume to begin")
        becomes("a light window", lambda: min(light_parts(window.id())) > 0.8)
        desktop.set_dark(True)
        try:
            becomes("a dark window", lambda: max(light_parts(window.id())) < 0.25)  # the border and the texts are light
        finally:
            look("dark")
            desktop.set_dark(False)
        becomes("a light window again", lambda: min(light_parts(window.id())) > 0.8)
        look("light")


def has_a_frame():
    """The desktop's or its own: it can be maximized by what stands at its upper edge, and moved."""
    with from_menu() as window:
        window.find("Choose a volume to begin")
        window.settled()
        left, top, width, height = floating = desktop.frame(window.id())
        bar = left + width // 2, top + 12
        for _ in range(2):
            desktop.click(*bar)
        becomes("maximized", lambda: desktop.frame(window.id())[2] >= SCREEN[0])
        look("maximized")
        for _ in range(2):
            desktop.click(desktop.frame(window.id())[2] // 2, desktop.frame(window.id())[1] + 12)
        becomes("restored", lambda: desktop.frame(window.id()) == floating)
        desktop.drag(bar, (-60, 20))
        becomes("moved", lambda: -61 < desktop.frame(window.id())[0] - left < -20)
        check(desktop.frame(window.id())[2:] == [width, height], f"moved, it has another size: {desktop.frame(window.id())}")
        look("moved")


def tells_the_end_of_a_run():
    folder = folder_of_disk()
    with opened(folder) as window:
        window.find("Ready to benchmark")
        choose_small_size(window)
        before = desktop.notices()
        with another_application():
            window.press("Run Benchmark")
            becomes("the notice", lambda: desktop.notices() != before)
            look("notice")
        window.find("Complete", "status bar")
    nothing_left(folder)


def comes_forward_at_a_second_start():
    with from_menu() as window:
        window.find("Choose a volume to begin")
        main = window.id()
        with another_application():
            done = subprocess.run(["tarnwick"], timeout=driver.GUARD_SECONDS)
            check(done.returncode == 0, f"the second start ends with {done.returncode}")
            becomes("the window in front or asking for it",
                    lambda: desktop.active() == main or desktop.wants_attention(main))
            look("second start")


CASES = (starts_from_the_menu, ends_when_its_window_is_closed, opens_a_file_cold, asks_for_a_folder_in_a_dialog_of_its_own,
         follows_the_dark, has_a_frame, tells_the_end_of_a_run, comes_forward_at_a_second_start)


def tried(case):
    global running
    running = case.__name__.replace("_", " ")
    try:
        case()
        print(f"  {running}", flush=True)
        return True
    except Exception as failure:
        print(f"  FAILED: {running}: {failure if isinstance(failure, driver.Failure) else repr(failure)}", flush=True)
        with contextlib.suppress(Exception):
            look("failed")
        return False


if __name__ == "__main__":
    name, *only = sys.argv[1:]
    desktop = driver.display = KINDS[name]()
    os.environ.update(desktop.environment | ASSISTIVE)
    print(f"{name}:", flush=True)
    fine = tried(desktop.start) and [tried(case) for case in CASES if not only or case.__name__ in only]
    sys.exit(0 if fine and all(fine) else 1)
