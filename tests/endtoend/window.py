"""A real window to play in: a virtual screen with a window manager, the program, and a mouse."""

import os
import re
import signal
import subprocess
import time

TWIPS_PER_PIXEL = 15
PLATE_WIDTH = 15480
CLIENT_HEIGHT = 437  # pixels under the menu bar when the program starts


class Failure(Exception):
    pass


def wait_for(what, condition, seconds=20):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        answer = condition()
        if answer:
            return answer
        time.sleep(0.05)
    raise Failure(f"waited {seconds} s in vain for {what}")


class Screen:
    """An Xvfb screen of its own with openbox; both end with the test."""

    def __init__(self, size="1280x900x24"):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", size, "-nolisten", "tcp"],
            pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise Failure("Xvfb did not start")
        self.environment = dict(os.environ, DISPLAY=f":{number}", QT_QPA_PLATFORM="xcb")
        self.manager = subprocess.Popen(["openbox"], env=self.environment, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)

    def xdotool(self, *words):
        done = subprocess.run(["xdotool", *map(str, words)], env=self.environment, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
        return done.stdout.split()

    def windows(self, title):
        return self.xdotool("search", "--onlyvisible", "--name", title)

    def close(self):
        for process in (self.manager, self.server):
            process.send_signal(signal.SIGTERM)
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                process.kill()


class Game:
    """The running program, played by the mouse and the keyboard."""

    def __init__(self, screen, program, errors=None, **environment):
        self.screen = screen
        self.process = subprocess.Popen([program], env=dict(screen.environment, **environment), stderr=errors)

    def keys(self, *names):
        self.screen.xdotool("key", "--clearmodifiers", *names)
        time.sleep(0.2)

    def type(self, text):
        self.screen.xdotool("type", "--delay", 30, text)
        time.sleep(0.2)

    def find_plate(self, title):
        """Where the plate's origin lies on the screen. The toolbar must be hidden."""
        window = wait_for(title, lambda: self.screen.windows(title))[0]
        told = subprocess.run(["xwininfo", "-id", window], env=self.screen.environment, text=True,
                              stdout=subprocess.PIPE, check=True).stdout
        x, y, width, height = (int(re.search(name + r":\s+(-?\d+)", told)[1]) for name in (
            "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        left = ((width * TWIPS_PER_PIXEL - PLATE_WIDTH) / 2 - 20) / TWIPS_PER_PIXEL
        self.origin = (x + round(left), y + height - CLIENT_HEIGHT)

    def at(self, left, top):
        return (self.origin[0] + round(left / TWIPS_PER_PIXEL), self.origin[1] + round(top / TWIPS_PER_PIXEL))

    def press(self, left, top):
        x, y = self.at(left, top)
        self.screen.xdotool("mousemove", x, y, "mousedown", 1, "mouseup", 1)

    def drag(self, start, end):
        (x, y), (to_x, to_y) = self.at(*start), self.at(*end)
        words = ["mousemove", x, y, "mousedown", 1]
        for step in range(1, 5):
            words += ["mousemove", x + (to_x - x) * step // 4, y + (to_y - y) * step // 4]
        self.screen.xdotool(*words, "mouseup", 1)

    def close(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()
