#!/usr/bin/env python3
"""Makes the picture of a running game that the README and software catalogues show. Run by hand:

    tools/picture.py build/check/tarnival build/check/tarnival-lab tests/endtoend/klondike-win.txt docs/klondike.png

The size of the picture stands in packaging/org.kelmor.Tarnival.metainfo.xml, too.
"""

import subprocess
import sys
from contextlib import closing
from pathlib import Path

sys.path.append(str(Path(__file__).resolve().parent.parent / "tests" / "endtoend"))
from play import Driver, commands_of, deal, make
from window import Game, run

MOVES = 22  # of the game: some runs, and all piles still in use


def toolbar(game):
    """The last entry of the menu hides the toolbar, or shows it again."""
    game.keys("alt+g", "Up", "Return")


def picture(screen, program, lab, moves, file):
    commands = commands_of(moves)
    with Game(screen, program) as game, closing(Driver(lab)) as driver:
        game.choose("Klondike")
        screen.settle()
        game.keys("ctrl+0")
        toolbar(game)
        title = deal(game, commands[0].split()[-1])
        state = driver.do(commands[0])
        for command in commands[1:MOVES]:
            state = make(game, driver, state, command)
        toolbar(game)
        game.keys("ctrl+9")
        screen.xdotool("mousemove", 5, 5)
        screen.settle()
        subprocess.run(["import", "-frame", "-window", screen.windows(title)[0], "-strip", file],
                       env=screen.environment, check=True)
    size = subprocess.run(["identify", "-format", "%w x %h", file], text=True, stdout=subprocess.PIPE, check=True)
    return f"{file} is {size.stdout} pixels"


if __name__ == "__main__":
    run(picture, *sys.argv[1:])
