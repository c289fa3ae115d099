"""The program on machines that cannot play a sound: it plays on without one, and says nothing about it.

    silence.py PROGRAM
"""

import os
import socket
import sys
import tempfile
import time

from window import Failure, Game, Screen, wait_for


def play(screen, program, home, machine, server):
    """Deals a game, whose first sound the machine cannot play, makes a move's worth of clicks, and leaves."""
    with tempfile.TemporaryFile() as errors:
        environment = {name: home for name in ("HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR")}
        game = Game(screen, program, errors, PULSE_SERVER=server, **environment)
        try:
            wait_for("the splash", lambda: screen.windows("Tarnival"))
            time.sleep(0.5)
            game.keys("space")
            wait_for("the selection over the table", lambda: len(screen.windows("Tarnival")) >= 2)
            time.sleep(0.5)
            game.type("Klondike")
            game.keys("Return")
            wait_for("a game of Klondike", lambda: screen.windows(r"\[Klondike\]"))
            time.sleep(1.5)
            game.keys("F2")
            time.sleep(1.5)
            game.keys("alt+F4")
            wait_for("the end of the program", lambda: game.process.poll() is not None)
        finally:
            game.close()
        if game.process.returncode != 0:
            raise Failure(f"{machine}: exit code {game.process.returncode}")
        errors.seek(0)
        told = errors.read().decode(errors="replace")
        if told:
            raise Failure(f"{machine}: the terminal shows {told!r}")


def main():
    program = sys.argv[1]
    screen = Screen()
    with tempfile.TemporaryDirectory() as home, socket.socket(socket.AF_UNIX) as mute:
        try:
            play(screen, program, home, "no sound server", f"unix:{home}/none")
            # A server that takes the call and never answers: whoever waits for it waits for ever.
            mute.bind(os.path.join(home, "mute"))
            mute.listen()
            play(screen, program, home, "a sound server that hangs", f"unix:{home}/mute")
        except Failure as failure:
            print(f"silence.py: {failure}", file=sys.stderr)
            return 1
        finally:
            screen.close()
    print("silence.py: games were dealt in silence")
    return 0


if __name__ == "__main__":
    sys.exit(main())
