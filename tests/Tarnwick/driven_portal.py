#!/usr/bin/python3
"""The window on a desktop with a real portal and its GTK back end. Usage: driven_portal.py PROGRAM DRAG-SOURCE [CASE]..."""

import os
import pathlib
import subprocess
import sys

import driver
import saved_runs
from driven_requests import child, desktop_of, hears_of, run_file, shows_run
from driver import check
from driven_window import choose_small_size, start, TESTS

PROGRAMS = {"org.freedesktop.portal.Desktop": "/usr/libexec/xdg-desktop-portal",
            "org.freedesktop.impl.portal.desktop.gtk": "/usr/libexec/xdg-desktop-portal-gtk",
            "org.freedesktop.impl.portal.PermissionStore": "/usr/libexec/xdg-permission-store"}
MAIL = """[Desktop Entry]
Type=Application
Name=Mail
Exec={program} %u
MimeType=x-scheme-handler/mailto;
"""


def brightness(window):
    """The window's mean brightness, from 0 to 1."""
    words = subprocess.run(["import", "-window", window.id(), "-colorspace", "gray", "-format", "%[fx:mean]", "info:"],
                           capture_output=True, text=True, check=True)
    return float(words.stdout)


def scheme(name):
    subprocess.run(["gsettings", "set", "org.gnome.desktop.interface", "color-scheme", name], check=True)


def follows_the_colour_scheme(program, _folder, _desktop):
    scheme("prefer-dark")
    with driver.Window(program) as window:
        window.until("the dark window", lambda: brightness(window) < 0.4)
        scheme("prefer-light")
        window.until("the light window", lambda: brightness(window) > 0.6)
        window.terminate()


def keeps_the_machine_awake_and_gives_notice(program, folder, desktop):
    told = hears_of(desktop)
    with child(source, stdout=subprocess.DEVNULL), driver.Window(program, folder) as window:
        choose_small_size(window)
        for test in TESTS[1:]:
            window.press(test)
        driver.focus("Drag from here")  # a window with the focus gives no notice; one without keeps no menu open
        start(window, folder)
        told("awake 12 A benchmark is running")
        window.find("Complete", "status bar")
        told("asleep")
        told("notice Benchmark complete: ")
        window.terminate()


def opens_through_the_file_dialog(program, folder, _desktop):
    with driver.Window(program) as window:
        window.find("Choose a volume to begin")
        window.keys("ctrl+shift+o")
        dialog = "^Open$"
        driver.focus(dialog)
        window.settled(dialog)
        driver.display.press("ctrl+l")
        window.settled(dialog)  # a key is lost while the path entry opens
        driver.display.press("ctrl+a")
        window.type(f"{run_file(folder, 5)}")
        window.settled(dialog)
        driver.display.press("Return")
        shows_run(window, 5)
        window.terminate()


def sends_by_email(program, _folder, _desktop):
    home = pathlib.Path(os.environ["HOME"])
    mail, record = home / "mail", home / "message"
    mail.write_text(f'#!/bin/sh\necho "$@" >{record}\n')
    mail.chmod(0o755)
    entries = pathlib.Path(os.environ["XDG_DATA_HOME"], "applications")
    entries.mkdir(parents=True)
    (entries / "mail.desktop").write_text(MAIL.format(program=mail))
    subprocess.run(["update-desktop-database", entries], check=True)
    saved_runs.lay_down([saved_runs.run(3)])
    with driver.Window(program) as window:
        window.press("SD card")
        window.press("Share")
        window.press("Send by Email…", "menu item")
        words = window.until("the message", lambda: record.exists() and record.read_text().endswith("\n") and record.read_text())
        check("subject=Ondel%20Tarnwick%20%E2%80%94%20SD%20card" in words and words.endswith("/Ondel Tarnwick — SD card.png\n"), words)
        window.terminate()


def is_one_program_for_assistive_technology(program, _folder, _desktop):
    """GTK, which Qt's theme for this desktop starts, would make it two."""
    with driver.Window(program) as window:
        window.find("Choose a volume to begin")
        maps = pathlib.Path(f"/proc/{window.process.pid}/maps").read_text()
        check("/libqgtk3.so" in maps, "Qt's theme for GTK is not loaded")
        tree = window.atspi.get_desktop(0)
        programs = [tree.get_child_at_index(i) for i in range(tree.get_child_count())]
        names = [one.get_name() for one in programs if one.get_process_id() == window.process.pid]
        check(names == ["Ondel Tarnwick"], f"its entries on the accessibility bus: {names}")
        window.terminate()


if __name__ == "__main__":
    if missing := [program for program in PROGRAMS.values() if not os.path.exists(program)]:
        print("skipped, not installed:", ", ".join(missing))
        sys.exit(driver.SKIP)
    # The back end reads its settings from a file that "gsettings" can change.
    driver.enter_display(services=PROGRAMS, variables={"GSETTINGS_BACKEND": "keyfile", "XDG_CURRENT_DESKTOP": "GNOME"})
    program, source, *only = sys.argv[1:]
    with driver.fast_folder() as name, desktop_of("behind") as desktop:
        check(desktop.stdout.readline() == b"ready\n", "the fake desktop did not start")
        cases = (follows_the_colour_scheme, keeps_the_machine_awake_and_gives_notice, opens_through_the_file_dialog, sends_by_email,
                 is_one_program_for_assistive_technology)
        for case in driver.chosen(cases, only):
            case(program, pathlib.Path(name), desktop)
