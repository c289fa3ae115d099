"""Kills the real program at random moments of play, and looks at what the next start finds.

    kills.py PROGRAM [RUNS]

Each run goes on from the files that the killed one left: the program starts, a game is chosen and played at
random with dealing, undo, replay and new games in between, and after up to three seconds it is killed. What
stood in the score file before is still there, every line is whole, and the next start works.
"""

import random
import sys
import time

from play import score_file
from window import Failure, Game, run

GAMES = ["Klondike", "Spider", "Freecell", "Canfield", "Yukon", "Fan"]
KEYS = ["F2", "ctrl+F2", "F12", "ctrl+z", "ctrl+x", "ctrl+c", "ctrl+v", "shift+F1", "shift+F2", "F7"]


def play_and_kill(screen, program, seed):
    chance = random.Random(seed)
    with Game(screen, program) as game:
        game.choose(chance.choice(GAMES))
        end = time.monotonic() + chance.uniform(0, 3)
        while time.monotonic() < end:
            if chance.random() < 0.6:
                screen.xdotool("key", "--clearmodifiers", chance.choice(KEYS))
                continue
            # On the table and the toolbar: the menus above them hold the program's own end.
            start, end_of_drag = ((chance.randrange(300, 1000), chance.randrange(275, 650)) for _ in range(2))
            screen.xdotool("mousemove", *start, "mousedown", 1, "mousemove", *end_of_drag, "mouseup", 1)
        if game.process.poll() is not None:
            raise Failure(f"the program ended by itself with {game.process.returncode}")


def kill_often(screen, program, runs):
    seed = random.randrange(1 << 30)
    for run_number in range(1, runs + 1):
        before = score_file()
        try:
            play_and_kill(screen, program, seed + run_number)
            after = score_file()
            if not after.startswith(before):
                raise Failure("records are gone")
            if any(line.count(b",") != 6 for line in after.splitlines()) or after and not after.endswith(b"\r\n"):
                raise Failure(f"a line is torn: {after[-200:]!r}")
        except Failure as failure:
            raise Failure(f"run {run_number}, seed {seed + run_number}: {failure}") from failure
    return f"{runs} starts and kills, {len(score_file().splitlines())} records, all whole"


if __name__ == "__main__":
    run(kill_often, sys.argv[1], int(sys.argv[2]) if len(sys.argv) > 2 else 2)
