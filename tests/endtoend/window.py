"""A real window to play in: a virtual screen with a window manager, the program, and a mouse."""

import os
import re
import signal
import subprocess
import sys
import tempfile
import time
import zlib

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


# By their codes, which all keyboards of PCs share: newer maps of the keyboard have the names of the function keys in a
# place where xdotool presses Alt to get at them.
FUNCTION_KEY = re.compile(r"\bF(\d+)$")
KEY_CODES = [*range(67, 77), 95, 96]


class Screen:
    """An Xvfb screen of its own with openbox; both end with the test."""

    def __init__(self, size="1280x900x24"):
        # The server keeps the screen's pixels in a file of this folder.
        self.folder = tempfile.TemporaryDirectory()
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", size, "-nolisten", "tcp", "-fbdir", self.folder.name],
            pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise Failure("Xvfb did not start")
        self.environment = dict(os.environ, DISPLAY=f":{number}", QT_QPA_PLATFORM="xcb")
        with open(os.path.join(self.folder.name, "openbox"), "wb") as told:
            self.manager = subprocess.Popen(["openbox"], env=self.environment, stdout=told, stderr=told)
        wait_for("the window manager", self.is_managed)

    def is_managed(self):
        if self.manager.poll() is not None:
            with open(os.path.join(self.folder.name, "openbox"), encoding="utf-8") as told:
                raise Failure(f"the window manager ended: {told.read()}")
        told = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], env=self.environment, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False).stdout
        return "window id" in told

    def xdotool(self, *words):
        if words[0] == "key":
            words = [FUNCTION_KEY.sub(lambda key: str(KEY_CODES[int(key[1]) - 1]), str(word)) for word in words]
        done = subprocess.run(["xdotool", *map(str, words)], env=self.environment, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
        return done.stdout.split()

    def windows(self, title):
        return self.xdotool("search", "--onlyvisible", "--name", title)

    def in_front(self, title):
        """Whether the keyboard goes to a window of that title."""
        return bool(set(self.xdotool("getactivewindow")) & set(self.windows(title)))

    def settle(self, seconds=0.3):
        """Waits until the screen has stood still for so long. The clock of a game moves once a second."""
        def picture():
            with open(os.path.join(self.folder.name, "Xvfb_screen0"), "rb") as pixels:
                return zlib.crc32(pixels.read())
        last, since = picture(), time.monotonic()

        def still():
            nonlocal last, since
            now = picture()
            if now != last:
                last, since = now, time.monotonic()
            return time.monotonic() - since >= seconds
        wait_for("a screen that stands still", still)

    def close(self):
        for process in (self.manager, self.server):
            process.send_signal(signal.SIGTERM)
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                process.kill()
        self.folder.cleanup()


class Game:
    """The running program, played by the mouse and the keyboard. It ends with the block that uses it."""

    def __init__(self, screen, program, errors=None, **environment):
        self.screen = screen
        self.process = subprocess.Popen([program], env=dict(screen.environment, **environment), stderr=errors)

    def __enter__(self):
        return self

    def __exit__(self, kind, failure, trace):
        if kind is not None:
            # What stood on the screen tells most about a failure.
            subprocess.run(["sh", "-c", "command -v import >/dev/null && import -window root failure.png"],
                           env=self.screen.environment, check=False)
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()

    def keys(self, *names):
        self.screen.xdotool("key", "--clearmodifiers", *names)
        self.screen.settle()

    def type(self, text):
        self.screen.xdotool("type", "--delay", 30, text)
        self.screen.settle()

    def open_selection(self):
        """From the splash to the selection."""
        wait_for("the splash", lambda: self.screen.in_front("^Tarnival"))
        self.keys("space")
        wait_for("the selection over the table", lambda: len(self.screen.windows("^Tarnival")) >= 2)
        self.screen.settle()

    def choose(self, name):
        """The way to the first game: from the splash over the selection to a game that is being dealt."""
        self.open_selection()
        self.pick(name)

    def pick(self, name):
        """From the selection to a game that is being dealt."""
        self.type(name)
        self.screen.xdotool("key", "Return")
        wait_for(f"a game of {name}", lambda: self.screen.windows(rf"\[{name}\]"))

    def deal(self, number):
        """Deals the game that runs by a number."""
        self.screen.xdotool("key", "ctrl+F12")
        wait_for("the dialog for a number", lambda: self.screen.in_front("^Select a Game Number"))
        self.screen.settle()
        self.type(number)
        self.keys("Return")
        wait_for("the deal of that number", lambda: self.screen.windows(rf"\[{number}\]"))

    def leave(self):
        """Closes the program by its own key."""
        self.screen.xdotool("key", "alt+F4")
        wait_for("the end of the program", lambda: self.process.poll() is not None)
        if self.process.returncode != 0:
            raise Failure(f"exit code {self.process.returncode}")

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


def run(test, *arguments):
    """Runs a test on a screen and with files of its own. It says what it has seen, or fails. Ends this process."""
    name = os.path.basename(sys.argv[0])
    home = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
    for variable in ("HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"):
        os.environ[variable] = home.name
    screen = Screen()
    try:
        print(f"{name}: {test(screen, *arguments)}")
    except Failure as failure:
        sys.exit(f"{name}: {failure}")
    finally:
        screen.close()
        home.cleanup()
