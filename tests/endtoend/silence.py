"""The program on machines that cannot play a sound: it plays on without one, and says nothing about it.

    silence.py PROGRAM
"""

import os
import socket
import sys
import tempfile

from window import Failure, Game, run

MARK = "tarnival: "  # before each message of the program and of Qt


def lines(errors):
    errors.seek(0)
    return errors.read().decode(errors="replace").splitlines()


def play(screen, program, machine, server):
    """Deals a game, whose first sound the machine cannot play, makes a move's worth of clicks, and leaves.

    Other libraries have words of their own for a machine, those of the graphics for one. They say them as they are
    loaded; the sound's come only with the first sound, that of the deal.
    """
    with tempfile.TemporaryFile("a+b") as errors:
        try:
            with Game(screen, program, errors, PULSE_SERVER=server, QT_MESSAGE_PATTERN=MARK + "%{message}") as game:
                game.open_selection()
                at_start = [line for line in lines(errors) if not line.startswith(MARK)]
                game.pick("Klondike")
                screen.settle()
                game.keys("F2")
                game.leave()
        except Failure as failure:
            raise Failure(f"{machine}: {failure}") from failure
        told = [line for line in lines(errors) if line not in at_start]
        if told:
            raise Failure(f"{machine}: the terminal shows {told!r}")


def both_machines(screen, program):
    home = os.environ["HOME"]
    with socket.socket(socket.AF_UNIX) as mute:
        play(screen, program, "no sound server", f"unix:{home}/none")
        # A server that takes the call and never answers: whoever waits for it waits for ever.
        mute.bind(os.path.join(home, "mute"))
        mute.listen()
        play(screen, program, "a sound server that hangs", f"unix:{home}/mute")
    return "games were dealt in silence"


if __name__ == "__main__":
    run(both_machines, sys.argv[1])
