"""The installed program, started as a menu would start it: it opens, deals, and finds its modules.

    installed.py BUILD
"""

import configparser
import os
import subprocess
import sys
import tempfile

from window import Failure, Game, run, wait_for


def play(screen, prefix):
    menu = configparser.ConfigParser(interpolation=None)
    menu.read(f"{prefix}/share/applications/tarnival.desktop")
    with Game(screen, menu["Desktop Entry"]["Exec"]) as game:
        game.choose("Klondike")

        def loaded(module):
            with open(f"/proc/{game.process.pid}/maps", encoding="utf-8") as maps:
                return any(line.rstrip().endswith(f"/{module}.so") and prefix in line for line in maps)

        wait_for("the installed sound module", lambda: loaded("tarnival-sounds"))
        if loaded("tarnival-charts"):
            raise Failure("the chart module is there before a chart")
        screen.settle()
        game.keys("F4")
        wait_for("the installed chart module", lambda: loaded("tarnival-charts"))


def install_and_play(screen, build):
    with tempfile.TemporaryDirectory() as folder:
        prefix = os.path.join(os.path.realpath(folder), "usr")
        subprocess.run(["cmake", "--install", build, "--prefix", prefix], check=True, stdout=subprocess.DEVNULL)
        play(screen, prefix)
    return "played from the menu entry"


if __name__ == "__main__":
    run(install_and_play, sys.argv[1])
