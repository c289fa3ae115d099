#!/usr/bin/env python3
"""Finds out how often each game can be won, and writes what was found into the source.

    tools/winnability.py try --program build/release/tarnival-winnable --deals 100 --limit 100000
    tools/winnability.py table

"try" gives the deals 1 to N of each game to the solver and keeps a line for each deal in a folder, a file for each
game. It can be stopped at any time and called again: what is there is not tried again, unless no answer was found
within fewer states than are asked for now. A game whose signature has changed begins anew. "table" writes one row
for each game into src/engine/catalogue/winnability.inc, from the deals that lie without a gap from 1 on.
"""
import argparse
import concurrent.futures
import pathlib
import statistics
import subprocess
import sys
import threading

ROOT = pathlib.Path(__file__).resolve().parent.parent
SIGNATURES = ROOT / "tests/engine/signatures.txt"
TABLE = ROOT / "src/engine/catalogue/winnability.inc"
ANSWERS = ("won", "lost", "unknown")


def signatures():
    """Name and signature of each game, in the order of the catalogue."""
    return [line.rsplit(" ", 1) for line in SIGNATURES.read_text().splitlines()]


class Results:
    """What was found for the deals of one game: a file of lines "NUMBER ANSWER STATES MOVES LIMIT"."""

    def __init__(self, folder, game, signature):
        self.path = folder / (game + ".txt")
        self.deals = {}  # number: (answer, moves, limit)
        head = "# " + signature
        lines = self.path.read_text().split("\n") if self.path.exists() else []
        self.fresh = not lines or lines[0] != head
        self.head = head
        if not self.fresh:
            for line in lines[1:-1]:  # what follows the last end of line was cut off
                self.take(line)

    def take(self, line):
        words = line.split()
        if len(words) == 5 and words[1] in ANSWERS:
            number, _, moves, limit = (int(word) for word in (words[0], *words[2:]))
            self.deals[number] = (words[1], moves, limit)

    def missing(self, deals, limit):
        """Ranges of numbers that are still to be tried."""
        ranges = []
        for number in range(1, deals + 1):
            answer, _, tried = self.deals.get(number, ("unknown", 0, 0))
            if answer != "unknown" or tried >= limit:
                continue
            if ranges and ranges[-1][1] == number - 1:
                ranges[-1][1] = number
            else:
                ranges.append([number, number])
        return ranges

    def add(self, line):
        if self.fresh:
            self.path.write_text(self.head + "\n")
            self.fresh = False
        text = self.path.read_text()
        if not text.endswith("\n"):  # a line that was cut off
            self.path.write_text(text[: text.rfind("\n") + 1])
        with self.path.open("a") as file:
            file.write(line + "\n")
        self.take(line)

    def row(self, game, signature):
        count = 0
        while count + 1 in self.deals:
            count += 1
        if count == 0:
            return None
        tried = [self.deals[number] for number in range(1, count + 1)]
        won, lost, unknown = ([deal for deal in tried if deal[0] == answer] for answer in ANSWERS)
        limit = min((deal[2] for deal in unknown), default=0)
        moves = statistics.median_low(deal[1] for deal in won) if won else 0
        name = '"' + game + '",'
        return (
            f"    {{{name:33}0x{signature}, {limit:8}, {count:5}, {len(won):5}, {len(lost):5}, "
            f"{len(unknown):6}, {moves:4}}},"
        )


class Trial:
    """The games, tried by as many processes as wanted."""

    def __init__(self, options):
        self.options = options
        self.running = set()
        self.lock = threading.Lock()
        self.stopped = False

    def run(self, game, results, deals):
        for first, last in results.missing(deals, self.options.limit):
            command = [self.options.program, game, str(first), str(last), "--each", "--replay"]
            command += ["--limit", str(self.options.limit), "--memory", str(self.options.memory)]
            with self.lock:
                if self.stopped:
                    return
                process = subprocess.Popen(command, stdout=subprocess.PIPE, text=True)
                self.running.add(process)
            for line in process.stdout:
                words = line.split()
                if len(words) == 4 and words[1] in ANSWERS and words[0].isdigit():
                    results.add(f"{line.strip()} {self.options.limit}")
            status = process.wait()
            with self.lock:
                self.running.discard(process)
            if status != 0 and not self.stopped:
                print(f"{game}: the solver ended with status {status}", file=sys.stderr)
                return

    def stop(self):
        with self.lock:
            self.stopped = True
            for process in self.running:
                process.terminate()


def attempt(options):
    options.results.mkdir(parents=True, exist_ok=True)
    wanted = [pair for pair in signatures() if not options.games or pair[0] in options.games]
    games = [(game, Results(options.results, game, signature)) for game, signature in wanted]
    trial = Trial(options)
    # A few deals of every game first, so that a table can be made early.
    rounds = sorted({min(options.deals, few) for few in (5, 25, options.deals)})
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        try:
            for deals in rounds:
                waiting = [pool.submit(trial.run, game, results, deals) for game, results in games]
                for done in concurrent.futures.as_completed(waiting):
                    done.result()
        except KeyboardInterrupt:
            trial.stop()


def table(options):
    rows = [Results(options.results, game, signature).row(game, signature) for game, signature in signatures()]
    found = [row for row in rows if row]
    head = (
        "// Written by tools/winnability.py: a row for each game that was tried, in the order of the catalogue.\n"
        "// states: those after which a deal was given up; 0 where none was\n"
        "// moves:  half of the wins found take the player so many or fewer\n"
        f"//   {'game':32} {'signature':18}    states  deals    won   lost unknown moves\n"
    )
    TABLE.write_text(head + "\n".join(found) + "\n")
    print(f"{len(found)} of {len(rows)} games")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("task", choices=("try", "table"))
    parser.add_argument("--program", default=str(ROOT / "build/release/tarnival-winnable"))
    parser.add_argument("--results", type=pathlib.Path, default=ROOT / "build/winnability", help="the folder")
    parser.add_argument("--deals", type=int, default=100, help="the deals 1 to this number")
    parser.add_argument("--limit", type=int, default=100000, help="states a deal")
    parser.add_argument("--memory", type=int, default=512, help="MiB a process")
    parser.add_argument("--jobs", type=int, default=1, help="processes")
    parser.add_argument("--games", nargs="*", default=[], help="only these")
    options = parser.parse_args()
    table(options) if options.task == "table" else attempt(options)


if __name__ == "__main__":
    main()
