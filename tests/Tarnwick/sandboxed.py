#!/usr/bin/python3
"""The programs in a sandbox as Flatpak makes one from packaging/flatpak: a root folder of its own, no device files, no udev, no network,
buses that let through what the manifest names. Usage: sandboxed.py WINDOW-PROGRAM TERMINAL-PROGRAM [CASE]..."""

import contextlib
import io
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import threading
import time

import driver
from driven_requests import child, desktop_of, hears_of, launch_that_ended
from driven_window import choose_small_size, nothing_left, start, TESTS
from driver import check

NAME = "tools.ondel.tarnwick"
REFUSED = "Couldn’t write there. The volume may be read-only, or the folder may not allow it."
DESCRIPTION = f"[Application]\nname={NAME}\n\n[Context]\nshared=ipc;\nsockets=wayland;fallback-x11;\nfilesystems=host;\n"
SESSION_BUS = ["--filter", f"--own={NAME}", f"--own={NAME}.*", "--call=org.freedesktop.portal.*=*",
               "--broadcast=org.freedesktop.portal.*=@/org/freedesktop/portal/*"]
SYSTEM_BUS = ["--filter", "--talk=org.freedesktop.UDisks2"]
UDISKS = "org.freedesktop.UDisks2"
PERMISSION_STORE = "/usr/libexec/xdg-permission-store"
DOCUMENT_PORTAL = "/usr/libexec/xdg-document-portal"
CONTROLLER = f"{UDISKS}.NVMe.Controller"
INTERFACES = f"""<node>
<interface name="org.freedesktop.DBus.ObjectManager">
  <method name="GetManagedObjects"><arg type="a{{oa{{sa{{sv}}}}}}" direction="out"/></method>
</interface>
<interface name="org.freedesktop.DBus.Properties">
  <method name="GetAll"><arg type="s" direction="in"/><arg type="a{{sv}}" direction="out"/></method>
</interface>
<interface name="{CONTROLLER}">
  <method name="SmartUpdate"><arg type="a{{sv}}" direction="in"/></method>
  <method name="SmartGetAttributes"><arg type="a{{sv}}" direction="in"/><arg type="a{{sv}}" direction="out"/></method>
</interface></node>"""


def folders():
    """The host's folders that a sandbox has at their own places."""
    own = {"app", "bin", "boot", "dev", "etc", "proc", "root", "run", "sbin", "sys", "tmp", "usr", "var"}
    for folder in sorted(pathlib.Path("/").iterdir()):
        if folder.is_dir() and not folder.is_symlink() and folder.name not in own and not folder.name.startswith("lib"):
            yield str(folder)


class Sandbox:
    """What is started in it. `sysfs`: a folder that it has for the device tree."""

    def __init__(self, folder, sysfs="/sys"):
        home = os.environ["HOME"]
        (description := folder / "description").write_text(DESCRIPTION)
        self.words = ["bwrap", "--unshare-user", "--unshare-pid", "--unshare-ipc", "--unshare-net", "--cap-drop", "ALL", "--new-session",
                      "--die-with-parent", "--clearenv", "--proc", "/proc", "--dev", "/dev", "--dir", "/tmp", "--dir", "/var/tmp"]
        for name in ("lib", "lib32", "lib64", "bin", "sbin"):
            if os.path.islink(f"/{name}"):
                self.words += ["--symlink", os.readlink(f"/{name}"), f"/{name}"]
        for part in ("block", "bus", "class", "dev", "devices"):
            if os.path.exists(f"{sysfs}/{part}"):
                self.words += ["--ro-bind", f"{sysfs}/{part}", f"/sys/{part}"]
        for path in folders():
            self.words += ["--bind", path, path]
        for path, place in (("/usr", "/usr"), ("/etc", "/etc"), ("/usr", "/run/host/usr"), ("/usr/lib/os-release", "/run/host/os-release"),
                            (pathlib.Path(sys.argv[1]).parent, "/app/bin"), (description, "/.flatpak-info")):
            self.words += ["--ro-bind", str(path), place]
        self.words += ["--bind", home, home]
        self.set(HOME=home, PATH="/app/bin:/usr/bin", FLATPAK_ID=NAME, container="flatpak", LC_ALL="C.UTF-8",
                 DBUS_SYSTEM_BUS_ADDRESS="unix:path=/run/dbus/system_bus_socket", XDG_RUNTIME_DIR="/run/user/1")
        for kind in ("data", "config", "cache", "state"):
            self.set(**{f"XDG_{kind.upper()}_HOME": f"{home}/.var/app/{NAME}/{kind}"})
        self.words += ["--dir", "/run/user/1"]

    def set(self, **variables):
        for name, value in variables.items():
            self.words += ["--setenv", name, value]

    def bind(self, path, place=None):
        self.words += ["--bind", str(path), str(place or path)]

    def command(self, *words):
        return [*self.words, "--remount-ro", "/", *map(str, words)]

    def tells(self, *words):
        """Exit status, output and complaints of the terminal program."""
        done = subprocess.run(self.command("tarnwick-host", *words), capture_output=True, text=True)
        return done.returncode, done.stdout, done.stderr


@contextlib.contextmanager
def filtered(address, rules):
    """A socket at which xdg-dbus-proxy answers for a bus."""
    with tempfile.TemporaryDirectory(prefix="ondel-bus-") as folder:
        socket = pathlib.Path(folder, "bus")
        with subprocess.Popen(["xdg-dbus-proxy", address, socket, *rules]) as proxy:
            try:
                end = time.monotonic() + driver.GUARD_SECONDS
                while not socket.exists():
                    check(proxy.poll() is None and time.monotonic() < end, "xdg-dbus-proxy does not start")
                    time.sleep(0.02)
                yield socket
            finally:
                proxy.terminate()


class Health:
    """UDisks2 with one drive that is behind a device, on the session bus, which serves as the system's."""

    def __init__(self, device):
        from gi.repository import Gio, GLib
        self.glib = GLib
        self.drive = {"SmartUpdated": GLib.Variant("t", int(time.time())), "SmartCriticalWarning": GLib.Variant("as", []),
                      "SmartTemperature": GLib.Variant("q", 311), "SmartPowerOnHours": GLib.Variant("t", 1234)}
        self.block = {"DeviceNumber": GLib.Variant("t", device), "Drive": GLib.Variant("o", "/org/freedesktop/UDisks2/drives/D")}
        self.loop = GLib.MainLoop(GLib.MainContext())
        self.thread = threading.Thread(target=self.serve, args=(Gio, threading.Event()), daemon=True)
        self.ready = self.thread._args[1]
        self.thread.start()
        check(self.ready.wait(driver.GUARD_SECONDS), "the health service does not start")

    def serve(self, gio, ready):
        context = self.loop.get_context()
        context.push_thread_default()
        address = gio.dbus_address_get_for_bus_sync(gio.BusType.SESSION)
        flags = gio.DBusConnectionFlags
        self.bus = gio.DBusConnection.new_for_address_sync(address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION)
        node = gio.DBusNodeInfo.new_for_xml(INTERFACES)
        for path, *names in (("/org/freedesktop/UDisks2", "org.freedesktop.DBus.ObjectManager"),
                             ("/org/freedesktop/UDisks2/drives/D", "org.freedesktop.DBus.Properties", CONTROLLER)):
            for name in names:
                self.bus.register_object(path, node.lookup_interface(name), self.called, None, None)
        gio.bus_own_name_on_connection(self.bus, UDISKS, gio.BusNameOwnerFlags.NONE, lambda *_: ready.set(), None)
        self.loop.run()

    def called(self, _bus, _sender, _path, _interface, method, _arguments, invocation):
        variant = self.glib.Variant
        answers = {"GetManagedObjects": lambda: variant("(a{oa{sa{sv}}})", ({
            "/org/freedesktop/UDisks2/block_devices/b": {f"{UDISKS}.Block": self.block},
            "/org/freedesktop/UDisks2/drives/D": {f"{UDISKS}.Drive": {}, CONTROLLER: self.drive}},)),
            "GetAll": lambda: variant("(a{sv})", (self.drive,)),
            "SmartUpdate": lambda: None,
            "SmartGetAttributes": lambda: variant("(a{sv})", ({"percent_used": variant("y", 7)},))}
        invocation.return_value(answers[method]())

    def end(self):
        self.loop.quit()
        self.thread.join()
        self.bus.close_sync()


def measures_and_leaves_nothing(folder):
    (target := folder / "measured").mkdir()
    status, told, complaints = Sandbox(folder).tells("run", "--size", "64M", "--json", target)
    check((status, complaints) == (0, ""), f"it ends with {status}: {complaints}")
    tests = json.loads(told)["tests"] if "tests" in json.loads(told) else json.loads(told)
    check(len(tests) >= 5, f"it has measured {tests}")
    nothing_left(target)


def shows_the_volumes_of_people(folder):
    status, told, complaints = Sandbox(folder).tells("volumes")
    places = {line.split()[-1] for line in told.splitlines()[1:]}
    check((status, complaints) == (0, ""), f"it ends with {status}: {complaints}")
    check(not places & {"/", "/app", "/usr", "/opt", "/mnt", "/srv", "/var/tmp"}, f"it lists {places}")


def refuses_what_is_read_only(folder):
    for place in ("/", "/usr", "/app/bin"):
        ended = Sandbox(folder).tells("run", "--size", "64M", place)
        check(ended == (1, "", REFUSED + "\n"), f"on {place} it ends with {ended}")


def tells_what_is_hidden_from_it(folder):
    """Whoever is told that a folder of the machine does not exist looks for it in the wrong place."""
    sandbox = Sandbox(folder)
    hidden = "'/var/log' is not in this sandbox, which has only some of the machine’s folders\n"
    for command in (("facts",), ("smart-report",), ("run", "--size", "64M"), ("check", "--size", "16M")):
        ended = sandbox.tells(*command, "/var/log")
        check(ended == (2, "", f"tarnwick-host {command[0]}: {hidden}"), f"{command} ends with {ended}")
    check("No such file" in sandbox.tells("facts", "none")[2], "a relative name is taken for a hidden folder")
    for place, is_own in (("/", True), ("/tmp", True), (folder, False)):
        status, _, complaints = sandbox.tells("facts", place)
        own = f"'{place}' is the sandbox’s own; the machine’s folder of that name is hidden from it.\n"
        check((status, complaints) == (0, own if is_own else ""), f"on {place} it ends with {status}: {complaints}")


@contextlib.contextmanager
def disk(folder):
    """A mounted file system and its device number."""
    image, place = folder / "image", folder / "disk"
    place.mkdir()
    with open(image, "wb") as file:
        file.truncate(16 << 20)
    subprocess.run(["mkfs.ext4", "-q", image], check=True)
    subprocess.run(["mount", "-o", "loop", image, place], check=True)
    try:
        yield place, os.stat(place).st_dev
    finally:
        subprocess.run(["umount", place], check=True)


def device_tree(folder, device):
    """One NVMe drive with the number of a device, as the kernel shows it."""
    number = f"{os.major(device)}:{os.minor(device)}"
    tree = folder / "sys"
    drive = tree / "devices/nvme0/nvme0n1"
    for path in (drive, tree / "class/nvme", tree / "class/block", tree / "dev/block"):
        path.mkdir(parents=True)
    (drive / "dev").write_text(number + "\n")
    (drive / "device").symlink_to("..")
    (drive.parent / "subsystem").symlink_to("../../class/nvme")
    for link in (tree / "dev/block" / number, tree / "class/block/nvme0n1"):
        link.symlink_to("../../devices/nvme0/nvme0n1")
    return str(tree)


def reads_health_through_udisks(folder):
    if os.getuid() != 0 or not os.path.exists("/dev/loop-control"):
        print("  skipped: needs root and loop devices")
        return
    with disk(folder) as (place, device), filtered(os.environ["DBUS_SESSION_BUS_ADDRESS"], SYSTEM_BUS) as bus:
        sandbox = Sandbox(folder, device_tree(folder, device))
        sandbox.bind(place)
        status, told, complaints = sandbox.tells("facts", place)
        check(status == 0 and "nvme0n1 is out of this process's reach, and UDisks2 does not answer" in " ".join(told.split()),
              f"without a service: {status} {told} {complaints}")
        sandbox.bind(bus, "/run/dbus/system_bus_socket")
        health = Health(device)
        try:
            status, told, complaints = sandbox.tells("facts", place)
        finally:
            health.end()
        words = " ".join(told.split())
        check((status, complaints) == (0, "") and "UDisks2 for nvme0n1" in words and "Life used 7%" in words, f"{status} {told} {complaints}")


def windowed(folder, bus):
    """A sandbox with a display and a session bus."""
    sandbox = Sandbox(folder)
    sandbox.bind(bus, "/run/flatpak/bus")
    sandbox.bind("/tmp/.X11-unix")
    sandbox.set(DBUS_SESSION_BUS_ADDRESS="unix:path=/run/flatpak/bus", DISPLAY=os.environ["DISPLAY"], QT_QPA_PLATFORM="xcb")
    return sandbox


def asks_the_portals(folder):
    """Not through the accessibility tree: programs are known there by their numbers, which are others inside of a sandbox."""
    with desktop_of(2, "files") as desktop, filtered(os.environ["DBUS_SESSION_BUS_ADDRESS"], SESSION_BUS) as bus:
        told = hears_of(desktop)
        told("ready")
        with child(*windowed(folder, bus).command("tarnwick", folder)):
            driver.focus(driver.MAIN)
            driver.display.press("ctrl+o")
            question = json.loads(told("asked").removeprefix("asked "))
            check(question["directory"] and question["parent"].startswith("x11:"), f"asked {question}")


@contextlib.contextmanager
def document_portal(folder):
    """The real one. Returns a function that hands a folder over, and returns its path in the portal's folder, which comes second."""
    from gi.repository import Gio, GLib
    (runtime := folder / "portal").mkdir(mode=0o700)
    variables = os.environ | {"XDG_RUNTIME_DIR": str(runtime)}
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    place = "org.freedesktop.portal.Documents", "/org/freedesktop/portal/documents", "org.freedesktop.portal.Documents"

    def hand_over(target):
        descriptors = Gio.UnixFDList.new_from_array([os.open(target, os.O_PATH)])
        is_folder = 8
        words = GLib.Variant("(ahusas)", ([0], is_folder, NAME, ["read", "write", "grant-permissions"]))
        answer, _ = bus.call_with_unix_fd_list_sync(*place, "AddFull", words, None, Gio.DBusCallFlags.NONE, -1, descriptors, None)
        return f"{answer.unpack()[0][0]}/{target.name}"
    with child(PERMISSION_STORE, env=variables), child(DOCUMENT_PORTAL, env=variables) as portal:
        for name in ("org.freedesktop.impl.portal.PermissionStore", place[0]):
            subprocess.run(["gdbus", "wait", "--session", name], check=True)
        try:
            yield hand_over, runtime / "doc/by-app" / NAME
        finally:
            portal.terminate()
            portal.wait()
            subprocess.run(["umount", "--lazy", runtime / "doc"], capture_output=True)


def measures_what_the_portal_hands_over(folder):
    """A folder that the sandbox has too is measured itself, where the portal tells its place (from version 1.18 on)."""
    if os.getuid() != 0 or not os.path.exists("/dev/fuse") or not os.path.exists(DOCUMENT_PORTAL):
        print("  skipped: needs root, FUSE and the document portal")
        return
    (reached := folder / "reached").mkdir()
    with tempfile.TemporaryDirectory(dir="/var/tmp") as hidden, document_portal(folder) as (hand_over, documents):
        for target in (reached, pathlib.Path(hidden)):
            handed = hand_over(target)
            tells = "user.document-portal.host-path" in os.listxattr(documents / handed)
            sandbox = Sandbox(folder)
            sandbox.bind(documents, "/run/user/1/doc")
            status, told, complaints = sandbox.tells("run", "--size", "64M", "--json", f"/run/user/1/doc/{handed}")
            check((status, complaints) == (0, ""), f"it ends with {status}: {complaints}")
            codes = [remark["code"] for remark in json.loads(told)["remarks"]]
            is_itself = tells and target == reached
            check(("throughPortal" in codes) != is_itself, f"{target}: {codes}")
            check(json.loads(told)["folder"] == (str(target) if is_itself else f"/run/user/1/doc/{handed}"), told)
            nothing_left(target)
            status, told, complaints = sandbox.tells("check", "--size", "16M", f"/run/user/1/doc/{handed}")
            check((status, complaints) == (0, ""), f"the check ends with {status}: {told} {complaints}")
            nothing_left(target)


def inside(starter):
    """The window program that bwrap has started, by its number outside."""
    def found(number):
        for child_of in pathlib.Path(f"/proc/{number}/task/{number}/children").read_text().split():
            if pathlib.Path(f"/proc/{child_of}/comm").read_text() == "tarnwick\n":
                return int(child_of)
            if deeper := found(child_of):
                return deeper
        return None
    driver.appearing(driver.MAIN)
    program = driver.Started.__new__(driver.Started)
    program.pid, program.stderr = found(starter.pid), io.StringIO()
    program.descriptor = os.pidfd_open(program.pid)
    return program


def stays_awake_and_gives_notice_by_portal(folder):
    """The window is driven on the accessibility bus as it is outside, where the program has another number."""
    ask = ["gdbus", "call", "--session", "--dest", "org.a11y.Bus", "--object-path", "/org/a11y/bus", "--method", "org.a11y.Bus.GetAddress"]
    address = subprocess.run(ask, check=True, capture_output=True, text=True).stdout.split("'")[1]
    (target := folder / "measured").mkdir()
    with (desktop_of(2) as desktop, filtered(os.environ["DBUS_SESSION_BUS_ADDRESS"], [*SESSION_BUS, "--talk=org.a11y.Bus"]) as bus,
          child(pathlib.Path(sys.argv[1]).with_name("drag-source"), stdout=subprocess.PIPE) as other):
        told = hears_of(desktop)
        told("ready")
        sandbox = windowed(folder, bus)
        sandbox.bind(address.removeprefix("unix:path=").split(",")[0])
        sandbox.set(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        with child(*sandbox.command("tarnwick", target)) as starter, driver.Window(inside(starter)) as window:
            choose_small_size(window)
            for test in TESTS[1:]:
                window.press(test)
            driver.focus("Drag from here")
            start(window, target)
            told("awake 12 A benchmark is running")
            window.find("Complete", "status bar")
            told("asleep", "portal's notice Benchmark complete: ")
            desktop.stdin.write(b"press portal's\n")
            heard = launch_that_ended(other)
            check(heard == 'remove: ID="pressed"', f"a press on the notice: the desktop heard {heard}")
            driver.focus(driver.MAIN)
            told("portal's withdrawn")
        nothing_left(target)


def obstacle():
    """Why no sandbox can be made here; absent: it can."""
    with tempfile.TemporaryDirectory() as name:
        try:
            done = subprocess.run(Sandbox(pathlib.Path(name)).command("true"), capture_output=True, text=True)
        except FileNotFoundError:
            return "bwrap is not installed"
    return done.stderr.strip() if done.returncode else None


if __name__ == "__main__":
    driver.enter_display()
    if why := obstacle():
        print("skipped, no sandbox can be made here:", why)
        sys.exit(driver.SKIP)
    cases = (measures_and_leaves_nothing, shows_the_volumes_of_people, refuses_what_is_read_only, tells_what_is_hidden_from_it,
             reads_health_through_udisks, measures_what_the_portal_hands_over, asks_the_portals,
             stays_awake_and_gives_notice_by_portal)
    for case in driver.chosen(cases, sys.argv[3:]):
        with tempfile.TemporaryDirectory(prefix="ondel-sandbox-", dir=os.environ["HOME"]) as name:
            case(pathlib.Path(name))
