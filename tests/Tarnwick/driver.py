"""Drives the real window from outside: by names and roles of the accessibility tree (AT-SPI), and by the keyboard."""

import contextlib
import io
import os
import pathlib
import re
import select
import shutil
import signal
import subprocess
import sys
import tempfile
import time

from displays import X11, display  # noqa: F401

SKIP = 77
GUARD_SECONDS = float(os.environ.get("ONDEL_GUARD_SECONDS", 40))  # not a test of speed: catches what never happens
ACCESSIBILITY = {"org.a11y.Bus": "/usr/libexec/at-spi-bus-launcher"}
MAIN = "^([0-9]+ % – )?Ondel Tarnwick$"  # the title of the main window


def bus_configuration(folder, services):
    """Writes the configuration of a private session bus. It starts only services of the folder."""
    path = pathlib.Path(folder, "bus.conf")
    path.write_text(f"""<busconfig><type>session</type><listen>unix:path={folder}/bus</listen><auth>EXTERNAL</auth>
<servicedir>{services}</servicedir><policy context="default"><allow send_destination="*" eavesdrop="true"/>
<allow eavesdrop="true"/><allow own="*"/></policy></busconfig>""")
    return path


@contextlib.contextmanager
def accessibility(env):
    """Starts the accessibility bus of the session bus of `env`. Returns its address."""
    ask = ["gdbus", "call", "--session", "--dest", "org.a11y.Bus", "--object-path", "/org/a11y/bus", "--method",
           "org.a11y.Bus.GetAddress"]
    with subprocess.Popen(list(ACCESSIBILITY.values()), env=env) as launcher:
        try:
            subprocess.run(["gdbus", "wait", "--session", "org.a11y.Bus"], env=env, check=True)
            yield subprocess.run(ask, env=env, check=True, capture_output=True, text=True).stdout.split("'")[1]
        finally:
            launcher.terminate()


def environment(home, services, variables):
    """The environment of all programs of a test, without anything of the surrounding session: folders in `home`, no other bus, no
    desktop. The bus of dbus-run-session starts `services` and the accessibility bus."""
    folder = pathlib.Path(home, "services")
    folder.mkdir()
    for name, program in (ACCESSIBILITY | services).items():
        pathlib.Path(folder, f"{name}.service").write_text(f"[D-BUS Service]\nName={name}\nExec={program}\n")
    bus_configuration(home, folder)
    runtime = pathlib.Path(home, "run")
    runtime.mkdir(mode=0o700)
    kept = {name: value for name, value in os.environ.items() if name in ("PICTURES", "PATH", "LD_LIBRARY_PATH", "TZ", "USER", "LOGNAME", "ONDEL_DISPLAY", "ONDEL_GUARD_SECONDS")}
    return kept | {
        "ONDEL_DRIVEN": "1", "HOME": home, "XDG_RUNTIME_DIR": str(runtime), "TMPDIR": home, "LC_ALL": "C.UTF-8",
        "XDG_CONFIG_HOME": f"{home}/config", "XDG_DATA_HOME": f"{home}/data", "XDG_STATE_HOME": f"{home}/state",
        "XDG_CACHE_HOME": f"{home}/cache", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
        "GSETTINGS_BACKEND": "memory", "DBUS_SYSTEM_BUS_ADDRESS": "disabled:",
        "QT_LOGGING_RULES": "qt.accessibility.atspi.warning=false;qt.qpa.wayland.warning=false"} | variables  # warnings of Qt 6.8


def enter_display(width=1400, height=1000, services={}, variables={}):
    """Runs this script again with a display, a session bus and a home of its own. Skips without the tools. The bus starts only
    `services`, programs by their bus names. Every program gets the `variables`."""
    if os.environ.get("ONDEL_DRIVEN"):
        return
    missing = [tool for tool in ("dbus-run-session", *display.TOOLS) if not shutil.which(tool)]
    check = subprocess.run(["/usr/bin/python3", "-c", "import gi; gi.require_version('Atspi', '2.0')"],
                           capture_output=True)
    if check.returncode != 0:
        missing.append("python3-gi with gir1.2-atspi-2.0")
    if missing:
        print("skipped, not installed:", ", ".join(missing))
        sys.exit(SKIP)
    with tempfile.TemporaryDirectory(prefix="ondel-test-") as home:
        env = environment(home, services, variables)
        with display.served(width, height) as clients:
            done = subprocess.run(["dbus-run-session", f"--config-file={home}/bus.conf", "--", "/usr/bin/python3", *sys.argv],
                                  env=env | clients)
    sys.exit(done.returncode)


def fast_folder(prefix="ondel test "):
    """A folder in memory if there is enough, else in the temporary folder. Remove it afterwards."""
    memory = pathlib.Path("/dev/shm")
    enough = memory.is_dir() and shutil.disk_usage(memory).free > 3 * 2**30
    return tempfile.TemporaryDirectory(prefix=prefix, dir=memory if enough else None)


def windows(title):
    """The numbers of the visible windows with that title."""
    return display.windows(title)


class Failure(Exception):
    pass


def check(holds, what):
    if not holds:
        raise Failure(what)


def chosen(cases, names, left_out=()):
    """The cases with these names, or all. Says which one begins."""
    for case in cases:
        if (not names or case.__name__ in names) and case not in left_out:
            print(case.__name__.replace("_", " "), flush=True)
            yield case


def appearing(title):
    """Waits for a visible window with that title."""
    end = time.monotonic() + GUARD_SECONDS
    while not (found := windows(title)):
        if time.monotonic() > end:
            raise Failure(f"no window {title!r} was opened; there are {[display.title(window) for window in windows('.')]}")
        time.sleep(0.02)
    return found[0]


def focus(title):
    """Waits for a window and gives it the focus."""
    display.focus(appearing(title))


class Started:
    """A program started by another process, with the interface of subprocess.Popen. Its exit status is not known."""

    def __init__(self):
        """Waits for its main window."""
        self.pid = display.process(appearing(MAIN))
        self.descriptor = os.pidfd_open(self.pid)
        self.stderr = io.StringIO()

    def wait(self, seconds=None):
        if not select.select([self.descriptor], [], [], seconds)[0]:
            raise Failure("it does not end")
        return 0

    def poll(self):
        return 0 if select.select([self.descriptor], [], [], 0)[0] else None

    def send_signal(self, number):
        signal.pidfd_send_signal(self.descriptor, number)

    def kill(self):
        self.send_signal(signal.SIGKILL)


def role_of(node):
    """With role names as before version 2.56 of the accessibility library."""
    name = node.get_role_name()
    return "push button" if name == "button" else name


class Window:
    """One started program (its path, or a Started) and its accessibility tree."""

    def __init__(self, program, *arguments, env=None):
        import gi
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi, GLib
        self.atspi = Atspi
        self.gone_error = GLib.Error
        self.events = GLib.MainContext.default()
        self.scale = (env or {}).get("QT_SCALE_FACTOR", "1")
        self.process = program if isinstance(program, Started) else subprocess.Popen(
            [program, *map(str, arguments)], stderr=subprocess.PIPE, text=True, env=os.environ | (env or {}))
        self.root = None
        self.root = self.until("the window on the accessibility bus", self._application)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()
        self.process.stderr.close()

    def until(self, what, answer):
        """Calls `answer` until its result is true, and returns it."""
        end = time.monotonic() + GUARD_SECONDS
        while time.monotonic() < end:
            while self.events.pending():
                self.events.iteration(False)
            try:
                found = answer()
            except self.gone_error:  # nodes may vanish during the walk
                found = None
            if found:
                return found
            if self.process.poll() is not None:
                raise Failure(f"ended with {self.process.returncode} before {what}: {self.process.stderr.read()}")
            time.sleep(0.02)
        raise Failure(f"never saw {what}; the tree:\n{self.tree()}")

    def _application(self):
        desktop = self.atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(i)
            if child and child.get_process_id() == self.process.pid and child.get_child_count():
                child.set_cache_mask(self.atspi.Cache.NONE)
                return child
        return None

    def nodes(self, start=None, depth=0):
        node = start or self.root
        if not node:
            return
        yield node, depth
        for i in range(node.get_child_count()):
            child = node.get_child_at_index(i)
            if child:
                yield from self.nodes(child, depth + 1)

    def shows(self, node, *states):
        held = node.get_state_set()
        return all(held.contains(getattr(self.atspi.StateType, state)) for state in states)

    def look(self, name, role=None):
        """The visible node, or None."""
        for node, _ in self.nodes():
            if node.get_name() == name and role in (None, role_of(node)) and self.shows(node, "SHOWING"):
                return node
        return None

    def find(self, name, role=None):
        return self.until(f"{role or 'node'} {name!r}", lambda: self.look(name, role))

    def gone(self, name, role=None):
        self.until(f"the end of {role or 'node'} {name!r}", lambda: self.look(name, role) is None)

    def enabled(self, name, role=None):
        return self.find(name, role).get_description() != "Not available now"

    def actions(self, node):
        return [node.get_action_name(i) for i in range(node.get_n_actions())]

    def press(self, name, role=None):
        def pressed():
            node = self.look(name, role)
            actions = self.actions(node) if node else []
            wanted = [action for action in ("Press", "Toggle") if action in actions]
            return wanted and node.do_action(actions.index(wanted[0]))
        self.until(f"{role or 'node'} {name!r} that can be pressed", pressed)

    def grab(self, name, role=None):
        self.find(name, role).grab_focus()
        self.until(f"the focus on {name!r}", lambda: self.focused() == name)

    def context_menu(self, name):
        """By its access key, the only way without a pointer."""
        self.grab(name)
        self.keys("Menu")

    def hover(self, name, role=None):
        """Moves the pointer to it, a little inside its leading edge."""
        place = self.find(name, role).get_extents(self.atspi.CoordType.SCREEN)
        # Qt reports logical pixels on the bus.
        display.point(*(round(at * float(self.scale)) for at in (place.x + 20, place.y + place.height / 2)))

    def resize(self, width, height):
        """Units: logical pixels, clipped to the screen."""
        scale = float(self.scale)
        display.resize(self.id(), round(width * scale), round(height * scale))
        self.settled()

    def type(self, text):
        display.type(text)

    def listen(self):
        """A list that receives all names that nodes of the window get from now on."""
        heard = []

        def hear(event):
            try:
                heard.append(event.source.get_name())
            except self.gone_error:
                pass
        self.listener = self.atspi.EventListener.new(hear)
        self.listener.register("object:property-change:accessible-name")
        return heard

    def progress(self, title):
        """The percentage of a test's progress bar; None without one."""
        for node, _ in self.nodes():
            if role_of(node) == "progress bar" and self.shows(node, "SHOWING"):
                told = re.fullmatch(re.escape(title) + r": (\d+) %", node.get_name())
                return int(told.group(1)) if told else None
        return None

    def id(self, title=MAIN):
        return self.until(f"the window {title!r}", lambda: windows(title))[0]

    def keys(self, *keys):
        display.focus(self.id())
        display.press(*keys)

    def step(self, key="Tab"):
        """Presses the key and returns what then has the focus."""
        last = self.focused()
        self.keys(key)
        return self.until(f"a control with the focus after {last!r}", lambda: (now := self.focused()) != last and now)

    def focused(self):
        for node, _ in self.nodes():
            if self.shows(node, "FOCUSED", "SHOWING") and node.get_role_name() not in ("frame", "application", "filler"):
                return node.get_name()
        return None

    def settled(self, title=MAIN):
        """Waits until two successive pictures of the window are equal."""
        def shown():
            return display.pixels(self.id(title))

        def still():
            last = shown()
            time.sleep(0.2)
            return last == shown()
        self.until("a still picture", still)

    def picture(self, path, title=MAIN):
        display.picture(self.id(title), path)

    def end(self, *signals):
        for number in signals:
            self.process.send_signal(number)
        status = self.process.wait(GUARD_SECONDS)
        return status, self.process.stderr.read()

    def terminate(self):
        return self.end(signal.SIGTERM)

    def quits(self):
        """Ends it as the end of a session does. It must end in order and without a word."""
        ended = self.terminate()
        check(ended == (0, ""), f"it ends with {ended}")

    def tree(self):
        lines = []
        for node, depth in self.nodes():
            lines.append(f"{'  ' * depth}{node.get_role_name()} {node.get_name()!r} {node.get_description()!r} {self.actions(node)}")
        return "\n".join(lines)
