"""The installed program, started as a menu would start it: it opens, deals, and finds its sound module.

    installed.py BUILD
"""

import configparser
import os
import subprocess
import sys
import tempfile
import time

from window import Failure, Game, Screen, wait_for


def play(screen, prefix):
    menu = configparser.ConfigParser(interpolation=None)
    menu.read(f"{prefix}/share/applications/tarnival.desktop")
    game = Game(screen, menu["Desktop Entry"]["Exec"])
    try:
        wait_for("the splash", lambda: screen.windows("Tarnival"))
        time.sleep(0.5)
        game.keys("space")
        wait_for("the selection over the table", lambda: len(screen.windows("Tarnival")) >= 2)
        time.sleep(0.5)
        game.keys("Return")
        wait_for("a game", lambda: screen.windows(r"\] \[Player1\]"))

        def module_loaded():
            with open(f"/proc/{game.process.pid}/maps", encoding="utf-8") as maps:
                return any(line.rstrip().endswith("/tarnival-sounds.so") and prefix in line for line in maps)

        wait_for("the installed sound module", module_loaded)
    finally:
        game.close()


def main():
    screen = Screen()
    with tempfile.TemporaryDirectory() as folder:
        prefix = os.path.join(os.path.realpath(folder), "usr")
        try:
            subprocess.run(["cmake", "--install", sys.argv[1], "--prefix", prefix], check=True,
                           stdout=subprocess.DEVNULL)
            play(screen, prefix)
        except Failure as failure:
            print(f"installed.py: {failure}", file=sys.stderr)
            return 1
        finally:
            screen.close()
    print("installed.py: played from the menu entry")
    return 0


if __name__ == "__main__":
    sys.exit(main())
