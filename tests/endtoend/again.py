"""Looks back in the real program and plays deals of the ranking again, by keys and by the mouse.

    again.py PROGRAM

A deal is asked for out of the menu of a list: the question, the end of the dialog and the deal come while the menu's
own event is still at work, in an order that only the real program has.
The table must have the keyboard behind all of them.
"""

import os
import re
import subprocess
import sys
import time

from window import Failure, Game, run, wait_for

BEST, LAST = 101, 120  # the deals of a ranking of 20 places
DEAL = r"\[Yukon\] \[Player1\] \[(\d+)\]"


def write_records():
    folder = os.path.join(os.environ["XDG_DATA_HOME"], "Kelmor", "Tarnival 2004 11.0")
    os.makedirs(folder)
    with open(os.path.join(folder, "Player1.sre"), "w", newline="", encoding="utf-8") as file:
        for place, deal in enumerate(range(BEST, LAST + 1)):
            file.write(f'"2026-01-01 10:00:{place:02}","Yukon",{deal},100,60,{200 - place},1\r\n')


def choose_by_keys(game):
    """The first row, once the list is sorted downward by its last column."""
    game.keys("Tab")
    for entry in ("Up", "Up"):
        game.keys("shift+F10", "s")
        game.keys(entry, "Return")
    game.keys("Home", "shift+F10")
    game.keys("p")


def choose_by_mouse(game, share):
    """The row there, where 0 is the dialog's top and 1 its end."""
    window = game.screen.windows("^High Score")[-1]
    told = subprocess.run(["xwininfo", "-id", window], env=game.screen.environment, text=True,
                          stdout=subprocess.PIPE, check=True).stdout
    left, top, width, height = (int(re.search(name + r":\s+(-?\d+)", told)[1]) for name in (
        "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
    game.screen.xdotool("mousemove", left + width // 3, top + int(height * share), "click", 1, "click", 3)
    game.screen.settle()
    game.screen.xdotool("mousemove_relative", 40, 35, "click", 1)


def press_until(game, key, what, condition):
    """A key while cards are dealt only hurries them, so that it may have to be pressed again."""
    def answer():
        if condition():
            return True
        game.screen.xdotool("key", key)
        time.sleep(1)
        return condition()
    wait_for(what, answer)


def running_deal(game):
    """The number of the deal in the caption; 0 while there is none."""
    screen = game.screen
    for window in screen.windows(r"\[Yukon\]"):
        found = re.search(DEAL, " ".join(screen.xdotool("getwindowname", window)))
        if found:
            return int(found[1])
    return 0


def play_again(game, choose, wanted):
    before = running_deal(game)
    press_until(game, "F9", "the ranking", lambda: game.screen.in_front("^High Score"))
    game.screen.settle()
    choose(game)
    wait_for("the question", lambda: not game.screen.in_front("^High Score"))
    game.screen.settle()
    game.keys("alt+y")
    deal = wait_for("another deal", lambda: running_deal(game) not in (0, before) and running_deal(game))
    if deal not in wanted:
        raise Failure(f"deal {deal} instead of one of {list(wanted)}")
    game.screen.settle(0.6)


def look_back(screen, program):
    write_records()
    with Game(screen, program) as game:
        game.choose("Yukon")
        screen.settle(0.6)
        play_again(game, choose_by_keys, [LAST])
        play_again(game, lambda game: choose_by_mouse(game, 1 / 2), range(BEST + 5, LAST - 5))
        play_again(game, lambda game: choose_by_mouse(game, 1 / 4), range(LAST - 5, LAST))  # still sorted downward
        press_until(game, "alt+F4", "the end of the program", lambda: game.process.poll() is not None)
        if game.process.returncode != 0:
            raise Failure(f"exit code {game.process.returncode}")
    return "deals of the ranking were played again"


if __name__ == "__main__":
    run(look_back, sys.argv[1])
