#!/usr/bin/python3
"""The title bar and the border that the window draws where the compositor draws none. Usage: driven_frame.py PROGRAM [CASE]..."""

import sys
import time

import driver
from driver import check, display

SCREEN = (0, 0, 1400, 1000)


class Framed(driver.Window):
    def __init__(self, program):
        super().__init__(program, env=display.inner)
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


if __name__ == "__main__":
    driver.enter_display(*SCREEN[2:])
    program, *only = sys.argv[1:]
    for case in driver.chosen((its_buttons_go_by_keyboard, it_is_moved_and_sized_by_pointer, other_windows_have_it_too), only):
        case(program)
