#!/usr/bin/python3
"""The search provider on a bus of its own, as a desktop's shell starts and asks it. Usage: driven_search.py PROGRAM DRAG-SOURCE;
the provider is beside the program."""

import json
import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import time

from gi.repository import Gio, GLib

import driver
import saved_runs
from driver import check

NAME, OBJECT = "tools.ondel.tarnwick.SearchProvider", "/tools/ondel/tarnwick/SearchProvider"
WINDOW = "tools.ondel.tarnwick"
RUNS = [saved_runs.run(0, volumeName="Attic", deviceModel="Fernmoor 400", customTitle="Première archive"),
        saved_runs.run(1, volumeName="Backup \u202edlrow\n2", deviceModel=None),
        saved_runs.run(2, volumeName="Ünterlage", writeBps=None, randomReadIOPS=None),
        saved_runs.run(3, volumeName="attic", remarks=[{"code": "fromMemory", "weight": "invalid", "test": "sequentialRead", "numbers": [1]}])]


class Shell:
    """What asks the provider, and takes the place of the window."""

    def __init__(self, address, home):
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        self.bus = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
        self.home = home

    def call(self, method, types, *values, answer=None, name=NAME, path=OBJECT, interface="org.gnome.Shell.SearchProvider2"):
        reply = self.bus.call_sync(name, path, interface, method, GLib.Variant(types, values), answer and GLib.VariantType(answer),
                                   Gio.DBusCallFlags.NONE, 20000, None)
        return reply.unpack()[0] if answer else None

    def search(self, *terms):
        """The titles that it finds, first as the shell does and then by the narrower search."""
        found = self.call("GetInitialResultSet", "(as)", terms, answer="(as)")
        again = self.call("GetSubsearchResultSet", "(asas)", found[:2] + ["none"], terms, answer="(as)")
        check(again == found[:2], f"{terms}: narrowed to {again} of {found}")
        return found

    def metas(self, ids):
        return self.call("GetResultMetas", "(as)", ids, answer="(aa{sv})")

    def process(self):
        """That of the provider; None without one."""
        bus = ("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus")
        called = dict(zip(("name", "path", "interface"), bus))
        if not self.call("NameHasOwner", "(s)", NAME, answer="(b)", **called):
            return None
        return self.call("GetConnectionUnixProcessID", "(s)", NAME, answer="(u)", **called)


def ids(*indices):
    return [RUNS[index]["id"].lower() for index in indices]


def finds_runs(shell):
    for terms, found in [(["attic"], ids(0, 3)), (["ATTIC", "fernmoor"], ids(0)), (["premiere", "arch"], ids(0)), (["unterlage"], ids(2)),
                         (["backup"], ids(1)), (["attic", "nowhere"], []), ([], []), ([""], []), (["  ", "\t"], []), (["", "\x1b"], []),
                         (["a" * 100_000], []), (["a"] * 1000, []), (["\ufffd%n'\"\\"], []), ([" Attic "], ids(0, 3))]:
        got = shell.search(*terms)
        check(got == found, f"{[term[:20] for term in terms[:3]]} finds {got}, not {found}")


def tells_of_them(shell):
    first, second, third, fourth = shell.metas(ids(0, 1, 2, 3))
    check(first["name"] == "Première archive" and first["gicon"] == WINDOW, f"the first run: {first}")
    for figure in ("Dec 28", "Write 6,400 MB/s", "Read 7,100 MB/s"):
        check(figure in first["description"], f"no {figure} in {first['description']}")
    check(not set("\u202e\n") & set(second["name"]), f"a name that steers what shows it: {second['name']!r}")
    check("Write" not in third["description"] and "Read" in third["description"], f"figures that are missing: {third}")
    check("Read " not in fourth["description"] and "Write" in fourth["description"], f"figures of memory: {fourth}")
    check(shell.metas(["", "x", "{}", "\x07" * 5000] + ids(1)) == [second], "runs that are none")
    check(shell.metas(ids(1) * 5000) == [second] * 100, "a long list")


def follows_the_file(shell):
    """Writes nothing itself."""
    file = saved_runs.history(shell.home / "data")
    kept = file.read_bytes()
    try:
        for content, found in ((json.dumps(RUNS[3:]).encode(), ids(3)), (b"[" + json.dumps(RUNS[0]).encode() + b", {", ids(0)),
                               (b"\xff" * 4096, []), (b"[" * 100_000, []), (b"", []), (None, [])):
            file.unlink()
            if content is not None:
                file.write_bytes(content)
            got = shell.search("attic")
            # A file that cannot be read at all says nothing about the runs, so that those known before may stay.
            check(got == found or (not found and set(got) <= set(ids(0, 3))), f"of {content and content[:20]}: {got}")
            left = sorted(path.name for path in file.parent.iterdir())
            check(left == (["history.json"] if content is not None else []), f"it wrote: {left}")
            check(content is None or file.read_bytes() == content, "it changed the history")
    finally:
        file.write_bytes(kept)


def opens_the_window(shell):
    heard = []
    shell.bus.register_object("/tools/ondel/tarnwick", Gio.DBusNodeInfo.new_for_xml("""<node><interface name="org.freedesktop.Application">
      <method name="Activate"><arg type="a{sv}" direction="in"/></method>
      <method name="ActivateAction"><arg type="s" direction="in"/><arg type="av" direction="in"/><arg type="a{sv}" direction="in"/></method>
      </interface></node>""").interfaces[0], lambda *call: (heard.append((call[4], call[5].unpack())), call[6].return_value(None)), None, None)
    shell.call("RequestName", "(su)", WINDOW, 0, answer="(u)", name="org.freedesktop.DBus", path="/org/freedesktop/DBus",
               interface="org.freedesktop.DBus")
    shell.call("ActivateResult", "(sasu)", ids(2)[0], ["x"], 77)
    shell.call("LaunchSearch", "(asu)", ["x"], 78)
    while len(heard) < 2:
        GLib.MainContext.default().iteration(True)
    token = {"desktop-startup-id": "tarnwick-search_TIME77"}
    check(heard[0] == ("ActivateAction", ("show-run", ids(2), token)), f"the window heard {heard[0]}")
    check(heard[1] == ("Activate", ({"desktop-startup-id": "tarnwick-search_TIME78"},)), f"the window heard {heard[1]}")


def ends_by_itself(shell):
    first = shell.process()
    check(first, "the bus did not start it")
    end = time.monotonic() + driver.GUARD_SECONDS
    while shell.process():
        check(time.monotonic() < end, "it stays")
        time.sleep(0.2)
    check(shell.search("backup") == ids(1) and shell.process() not in (None, first), "it is not started again")


if __name__ == "__main__":
    program = pathlib.Path(sys.argv[1]).resolve().with_name("tarnwick-search-provider")
    with tempfile.TemporaryDirectory(prefix="ondel-test-") as home:
        env = driver.environment(home, {NAME: program}, {"TZ": "UTC"})
        saved_runs.lay_down(RUNS, env["XDG_DATA_HOME"])
        command = ["dbus-daemon", f"--config-file={home}/bus.conf", "--nofork", "--print-address"]
        with subprocess.Popen(command, stdout=subprocess.PIPE, text=True, env=env) as daemon:
            try:
                shell = Shell(daemon.stdout.readline().strip(), pathlib.Path(home))
                for case in (finds_runs, tells_of_them, follows_the_file, opens_the_window, ends_by_itself):
                    case(shell)
                    print(case.__name__, flush=True)
                os.kill(shell.process(), signal.SIGTERM)
            finally:
                daemon.terminate()
