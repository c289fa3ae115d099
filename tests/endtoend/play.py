"""Plays a whole game in the real program with a real mouse and looks at what it records.

    play.py PROGRAM TEXT-DRIVER MOVES

The moves are commands of the text driver. The driver plays the same deal beside the window and says where
each card lies before each move, and what the record must tell in the end.
"""

import csv
import json
import os
import subprocess
import sys
from contextlib import closing

from window import Failure, Game, run, wait_for

GRIP = (150, 90)  # where in a card it is gripped, twips: its index, which a fan leaves free


class Driver:
    def __init__(self, program):
        self.process = subprocess.Popen([program], text=True, stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def do(self, command):
        self.process.stdin.write(command + "\n")
        self.process.stdin.flush()
        state = json.loads(self.process.stdout.readline())
        if "error" in state:
            raise Failure(f"{command}: {state['error']}")
        return state

    def close(self):
        self.process.stdin.close()
        self.process.wait()


def place_of(state, card):
    for group in state["cells"]:
        for pile in group:
            for picture, _, _, left, top in pile:
                if picture == card:
                    return left, top
    raise Failure(f"card {card} is not on the table")


def make(game, driver, state, command):
    """One command in both, and the time that the window's moves take on the screen."""
    word, *rest = command.split()
    if word == "redeal":
        _, left, top = state["markers"]["stock"]
        game.press(left + 500, top + 700)
    else:
        left, top = place_of(state, int(rest[0]))
        grip = (left + GRIP[0], top + GRIP[1])
        if word == "press":
            game.press(*grip)
        else:
            game.drag(grip, (int(rest[1]) + GRIP[0], int(rest[2]) + GRIP[1]))
    after = driver.do(command)
    game.screen.settle(0.1 if after["trans"] == state["trans"] else 0.15)
    return after


def commands_of(path):
    with open(path, encoding="utf-8") as file:
        return [line.strip() for line in file if line.strip()]


def score_file():
    for path, _, files in os.walk(os.environ["XDG_DATA_HOME"]):
        if "Player1.sre" in files:
            with open(os.path.join(path, "Player1.sre"), "rb") as file:
                return file.read()
    return b""


def records():
    return list(csv.reader(score_file().decode().splitlines()))


def expect(what, seen, wanted):
    if seen != wanted:
        raise Failure(f"{what}: {seen!r} instead of {wanted!r}")


def deal(game, number):
    """Deals the game that runs by a number, and finds its table on the screen."""
    game.deal(number)
    title = rf"\[Klondike\] \[Player1\] \[{number}\]"
    game.screen.settle()
    game.find_plate(title)
    return title


def play(screen, program, lab, moves):
    commands = commands_of(moves)
    number = commands[0].split()[-1]
    with Game(screen, program) as game, closing(Driver(lab)) as driver:
        game.choose("Klondike")
        screen.settle()
        # Actual size; and the last entry of the menu hides the toolbar.
        game.keys("ctrl+0", "alt+g", "Up", "Return")
        title = deal(game, number)
        expect("the abandoned game", [row[-1] for row in records()], ["0"])

        state = driver.do(commands[0])
        for command in commands[1:]:
            state = make(game, driver, state, command)
        expect("the driver's own win", state["finished"], 1)
        wait_for("the end-of-game dialog", lambda: screen.in_front("Congrats"))
        won = records()[-1]
        expect("the record's game, number and result", [won[1], won[2], won[6]], ["Klondike", number, "1"])
        game.keys("Escape")

        game.keys("F2")
        wait_for("another game", lambda: not screen.windows(title))
        screen.settle()
        game.leave()
        expect("all results", [row[-1] for row in records()], ["0", "1", "0"])
    return "a game was chosen, abandoned, dealt by number, won, and recorded"


if __name__ == "__main__":
    run(play, *sys.argv[1:])
