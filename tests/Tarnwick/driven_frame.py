#!/usr/bin/python3
"""The title bar and the border that the window draws where the compositor draws none. Usage: driven_frame.py PROGRAM [CASE]..."""

import os
import pathlib
import sys
import time

os.environ["ONDEL_DISPLAY"] = "frameless"  # before the display is chosen
import driver
import driven_looks as looks
import translated
from driven_requests import desktop_of
from driver import check, display

SCREEN = (0, 0, 1400, 1000)


class Framed(translated.Window):
    def __init__(self, program, words=str, env={}):
        super().__init__(program, words=words, env=display.inner | env)
        self.find("Choose a volume to begin")
        self.settled()
        self.extent = display.extent()

    def becomes(self, what, extent):
        """Waits for a place and a size of the window."""
        def has():
            self.seen = display.extent()
            return self.seen == extent
        try:
            self.until("it", has)
        except driver.Failure:
            raise driver.Failure(f"{what} it is at {self.seen}, not at {extent}") from None

    def drag(self, begin, by):
        """From a place in the window, with some steps on the way."""
        x, y = (at + self.extent[axis] for axis, at in enumerate(begin))
        display.point(x, y)
        display.button(True)
        for step in range(1, 6):
            display.point(x + by[0] * step // 5, y + by[1] * step // 5)
            time.sleep(0.03)
        display.button(False)

    def click(self, begin, button=0):
        display.point(*(at + self.extent[axis] for axis, at in enumerate(begin)))
        display.button(True, button)
        display.button(False, button)


def its_buttons_go_by_keyboard(program):
    with Framed(program) as window:
        window.keys("Tab")
        window.until("the first control", lambda: window.focused() == "Volume")
        reached = []
        for _ in range(3):
            reached.append(window.step("shift+Tab"))
        check(reached == ["Close", "Maximize", "Minimize"], f"before the first control come {reached}")
        window.keys("Tab", "space")
        window.becomes("maximized", SCREEN)
        window.until("the focus still there", lambda: window.focused() == "Restore")
        window.keys("space")
        window.becomes("restored", window.extent)
        window.keys("Tab", "Return")
        ended = window.end()
        check(ended == (0, ""), f"closed, it ends with {ended}")


def it_is_moved_and_sized_by_pointer(program):
    with Framed(program) as window:
        left, top, width, height = window.extent
        middle = (width // 2, 16)
        window.drag(middle, (60 if left < 110 else -60, 0))  # the first steps of the pointer do not count
        window.until("another place", lambda: 20 < abs(display.extent()[0] - left) < 61)
        window.settled()
        check((moved := display.extent())[1:] == (top, width, height), f"moved, it is at {moved}")
        window.extent = moved
        window.drag((width - 2, height // 3), (50, 0))
        window.becomes("wider", (moved[0], top, width + 50, height))
        window.drag((1, height - 2), (40, -30))
        window.becomes("smaller at a corner", (moved[0] + 40, top, width + 10, height - 30))
        floating = display.extent()
        for now, then in ((floating, SCREEN), (SCREEN, floating)):  # after all that, the pointer is not held
            window.extent = now
            window.click(middle)
            window.click(middle)
            window.becomes("after a double click", then)
        window.extent = floating
        window.click(middle, button=1)
        window.find("Maximize", "menu item")
        window.press("Close", "menu item")
        ended = window.end()
        check(ended == (0, ""), f"closed, it ends with {ended}")


def other_windows_have_it_too(program):
    with Framed(program) as window:
        window.keys("ctrl+comma")
        window.find("Check for updates automatically")
        closing = window.until("a button for each window", lambda: [
            node for node, _ in window.nodes() if node.get_name() == "Close" and driver.role_of(node) == "push button"][1:])
        closing[0].do_action(0)
        window.gone("Check for updates automatically")
        window.quits()


def it_goes_the_way_of_the_language(program):
    """From left to right, or from right to left: menus, title, buttons, what opens from them, and the arrow keys."""
    titles, buttons = ("&Tarnwick", "&File", "&Run", "Hi&story", "&Help"), ("Minimize", "Maximize", "Close")
    for language, way, next_menu in (("de", 1, "Right"), ("ar", -1, "Left"), ("he", -1, "Left")):
        env = {"LC_ALL": "", "LANG": "en_US.UTF-8", "LANGUAGE": language}
        with Framed(program, words=translated.words_of(language), env=env) as window:
            def edges(name, role):
                """Where a node begins and ends, from the window's edge at which lines begin."""
                place = window.find(name, role).get_extents(window.atspi.CoordType.WINDOW)
                width = window.extent[2]
                return (place.x, place.x + place.width) if way > 0 else (width - place.x - place.width, width - place.x)
            places = [edges(name, "menu item") for name in titles] + [edges(name, "push button") for name in buttons]
            check(places == sorted(places) and all(one[1] <= other[0] for one, other in zip(places, places[1:])), f"{language}: {places}")
            check(places[0][0] < 20 and window.extent[2] - places[-1][1] < 20, f"{language}: not to the edges: {places}")
            middle = (window.extent[2] // 2, 16)
            window.click(middle, button=1)
            begin, _ = edges("Maximize", "menu item")
            check(0 <= begin - middle[0] < 10, f"{language}: the menu begins at {begin}, the pointer is at {middle[0]}")
            window.keys("Escape")
            window.gone("Maximize", "menu item")
            window.press("&File", "menu item")
            begin, _ = edges("Choose Folder…", "menu item")
            check(abs(begin - places[1][0]) < 10, f"{language}: the menu begins at {begin}, its title at {places[1][0]}")
            window.keys(next_menu)
            window.find("Check Capacity…", "menu item")
            window.keys("Escape")
            window.gone("Check Capacity…", "menu item")
            floating = window.extent
            for then in (SCREEN, floating):
                window.click(middle)
                window.click(middle)
                window.becomes("after a double click", then)
                window.extent, middle = then, (then[2] // 2, 16)
            begin, end = places[-1]
            window.click(((begin + end) // 2 if way > 0 else floating[2] - (begin + end) // 2, 16))
            ended = window.end()
            check(ended == (0, ""), f"{language}: closed, it ends with {ended}")


def it_has_the_desktops_look(program):
    """Its texts can be read, its buttons hit. Its menu follows while it is closed, and the border stands out in high contrast."""
    programs = pathlib.Path(program).parent
    census = pathlib.Path(os.environ["HOME"], "census")
    census.mkdir()
    env = {"ONDEL_TEXT_CENSUS": str(census), "QT_QPA_GENERIC_PLUGINS": "textcensus", "QT_PLUGIN_PATH": str(programs / "plugins")}
    with desktop_of(2) as desktop:
        check(desktop.stdout.readline() == b"ready\n", "the fake desktop did not start")
        with Framed(program, env=env) as window:
            reader = looks.Reader(window, census, desktop)
            gate, floating, middle = looks.Gate(reader), window.extent, (window.extent[2] // 2, 16)

            def changes(then):
                window.click(middle)
                window.click(middle)
                window.becomes("after a double click", then)
                window.extent = then
            changes(SCREEN)
            gate.pass_through("the title bar")
            for look in looks.LOOKS:
                reader.take(look, driver.MAIN)
                window.click(middle, button=1)
                window.find("Minimize", "menu item")
                window.settled()
                left, top, width, height = next(text["place"] for text in reader.texts(driver.MAIN) if text["text"] == "Minimize")
                ground = looks.Picture(window, driver.MAIN).colors(left, top, width, height).most_common(1)[0][0]
                check((looks.luminance(ground) < 0.2) == ("dark" in look), f"{look}: the menu's ground is {ground}")
                window.keys("Escape")
                window.gone("Minimize", "menu item")
            for look in [look for look in looks.LOOKS if "high contrast" in look]:
                reader.take(look, driver.MAIN)
                changes(floating)
                picture, (left, top, _, height) = looks.Picture(window, driver.MAIN), floating
                border, inside = (picture.colors(x, top + height // 2, 1, 1).most_common(1)[0][0] for x in (left, left + 8))
                check(looks.contrast(border, inside) > 7, f"{look}: the border is {border} on {inside}")
                changes(SCREEN)
            gate.close()
            window.quits()


if __name__ == "__main__":
    driver.enter_display(*SCREEN[2:])
    program, *only = sys.argv[1:]
    for case in driver.chosen((its_buttons_go_by_keyboard, it_is_moved_and_sized_by_pointer, other_windows_have_it_too,
                               it_goes_the_way_of_the_language, it_has_the_desktops_look), only):
        case(program)
