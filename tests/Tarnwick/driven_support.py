#!/usr/bin/python3
"""Reports, the support note, the About panel and the page about remarks in the real window. Usage: driven_support.py PROGRAM"""

import os
import pathlib
import socket
import subprocess
import sys
import threading
import urllib.parse

import driver
import saved_runs
from driver import check


class Proxy:
    """A proxy between the window and the network, in place of the report service."""

    def __init__(self):
        self.answer = b""
        self.heard = []
        self.connections = []
        self.listener = socket.create_server(("127.0.0.1", 0))
        self.address = f"http://127.0.0.1:{self.listener.getsockname()[1]}"
        threading.Thread(target=self._serve, daemon=True).start()

    def _serve(self):
        while True:
            connection, _ = self.listener.accept()
            self.connections.append(connection)
            self.heard.append(connection.recv(4096))
            if self.answer:
                connection.sendall(self.answer)
                connection.close()


def type_text(text):
    subprocess.run(["xdotool", "type", "--delay", "10", text], check=True)


def opened(home):
    """The last address opened by the desktop. Removes the record."""
    record = home / "xdg-open"
    if not record.exists() or not record.read_text().endswith("\n"):
        return None
    words = record.read_text().strip()
    record.unlink()
    return urllib.parse.unquote(words.removeprefix("file://"))


def says(window, start):
    """The text of an alert that begins with `start`."""
    return next((node.get_name() for node, _ in window.nodes()
                 if node.get_role_name() == "alert" and node.get_name().startswith(start)), None)


def reports(window, proxy, home):
    window.press("Help")
    window.press("Report a Problem…")
    window.find("Send", "push button")
    window.keys("a", "b", "Return")
    check(not window.enabled("Send"), "a summary of two characters can be sent")
    window.keys("c", "Tab")
    type_text("five")
    check(not window.enabled("Send"), "a description of four characters can be sent")
    window.keys("Return", "x")
    window.until("enough to send", lambda: window.enabled("Send"))

    window.press("Attach diagnostics")
    window.press("View…")
    preview = pathlib.Path(window.until("the preview", lambda: opened(home)))
    check("---- recent activity ----" in preview.read_text(), "the preview lacks the log")
    check(preview.stat().st_mode & 0o77 == 0 and preview.parent.stat().st_mode & 0o77 == 0, "others can read the preview")
    window.press("ondel.example/report")
    check(window.until("the web form", lambda: opened(home)).endswith("/report"), "the web form's address")

    proxy.answer = b"HTTP/1.1 502 No\r\nContent-Length: 0\r\nConnection: close\r\n\r\n"
    window.keys("ctrl+Return")
    window.until("the failure", lambda: says(window, ""))
    check(window.enabled("Send"), "the typed text is lost")
    window.press("Feature request")
    window.gone("Attach diagnostics")

    proxy.answer = b""
    count = len(proxy.heard)
    window.press("Send")
    window.until("the second try", lambda: len(proxy.heard) > count)
    check(not window.enabled("Send"), "two reports at a time")
    window.press("Cancel")
    window.gone("Send")
    proxy.connections[-1].settimeout(driver.GUARD_SECONDS)
    check(proxy.connections[-1].recv(1) == b"", "a cancelled report is sent")
    check(all(heard.startswith(b"CONNECT service.ondel.example:443 ") and b"Ondel-App-Secret" not in heard
              for heard in proxy.heard), str(proxy.heard))


def tells_about(window, home):
    window.press("Tarnwick")
    window.press("About Ondel Tarnwick")
    window.find("Version 0.2.0 (1)")
    window.press("Acknowledgments")
    check(window.until("the notices", lambda: opened(home)).endswith("ThirdPartyNotices.txt"), "the notices")


def explains_a_mark(window, home):
    window.resize(1180, 1200)
    window.find("Read: 432 MB/s, not the disk’s figure", "label")
    window.find("Write: 412 MB/s", "label")
    window.press("Backup", "push button")
    window.find("Sequential Read: 432 MB/s, not the disk’s figure, peak 513 · min 190", "label")
    check(any(node.get_name().startswith("Invalid: Sequential read: At most 1 % of ") for node, _ in window.nodes()), "no remark is read")
    window.press("What these remarks mean")
    page = pathlib.Path(window.until("the page", lambda: opened(home)))
    check(page.name == "figures.md" and page.is_file(), f"opened {page}")


def ends_beside_dead_proxy_settings(program, home):
    """Proxy settings may name a script on a server. The wait for it cannot be interrupted."""
    silent = socket.create_server(("127.0.0.1", 0))
    env = {"https_proxy": f"pac+http://127.0.0.1:{silent.getsockname()[1]}/proxy.pac"}
    with driver.Window(program, home, env=env) as window:
        window.press("Help")
        window.press("Report a Problem…")
        window.find("Send", "push button")
        window.keys("a", "b", "c", "Tab")
        type_text("five five")
        window.until("enough to send", lambda: window.enabled("Send"))
        window.press("Send")
        silent.settimeout(driver.GUARD_SECONDS)
        connection, _ = silent.accept()
        window.quits()
        connection.close()


def main():
    program = pathlib.Path(sys.argv[1])
    driver.enter_display(1400, 1300)
    home = pathlib.Path(os.environ["HOME"])
    tool = home / "bin" / "xdg-open"
    tool.parent.mkdir()
    tool.write_text(f'#!/bin/sh\nexec echo "$@" >"{home}/xdg-open"\n')
    tool.chmod(0o755)
    proxy = Proxy()
    remark = {"code": "fromMemory", "weight": "invalid", "test": "sequentialRead", "numbers": [0.01]}
    saved_runs.lay_down([saved_runs.run(1, remarks=[remark])])
    env = {"PATH": f"{tool.parent}:{os.environ['PATH']}", "https_proxy": proxy.address}
    with driver.Window(program, home, env=env) as window:
        reports(window, proxy, home)
        tells_about(window, home)
        explains_a_mark(window, home)
        window.press("Support on Ko-fi")
        check(window.until("the page", lambda: opened(home)).endswith("/support"), "the support page's address")
        window.gone("Not Now")
        window.quits()
    with driver.Window(program, home, env=env) as window:
        window.find("Ready to benchmark")
        check(window.look("Not Now") is None, "the dismissed note is shown")
        window.quits()
    ends_beside_dead_proxy_settings(program, home)


if __name__ == "__main__":
    main()
