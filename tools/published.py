#!/usr/bin/env python3
"""Holds the solver against published figures: uniformly shuffled decks, the share of deals won.

usage: published.py [--program PATH] [--deals N] [--limit STATES] [--jobs N] [--seed WORD] [--results FOLDER] [ROW ...]

Prints a row a game as it is done. The published shares are those of Blake and Gent, "The winnability of Klondike
Solitaire and many other patience games", JAIR 85, 2026. A share agrees when the published one lies between what was won
and what was won or left unknown, give or take two sampling errors. Where our rules are the stricter ones it can only be
higher than what we win. Decks are the same at every run; another word for the seed gives others. What is found is kept,
a line a deal in a file a row, so that a run can be stopped and called again: a deal is tried again only where no answer
was found within fewer states than are asked for now.
"""
import argparse
import math
import pathlib
import random
import subprocess
import tempfile

NO_RETURN, SINGLE, HOME_SINGLY = "--no-return", "--single", "--home-singly"
STRICTER = "stricter"  # no switch: by our rules only complete runs leave for the foundations
PUBLISHED = {  # game, or game and what is other than by its rules: share won in percent, switches
    "American Canister": (5.606, [NO_RETURN]),
    "Eight Off": (99.8805, [NO_RETURN, SINGLE]),
    "Freecell": (99.9989, [NO_RETURN, SINGLE]),
    "Raglan": (81.226, []),
    "Somerset": (53.725, []),
    "Lawn": (15.996, []),
    "Fan": (48.776, []),
    "Seven By Four": (98.857, [NO_RETURN, SINGLE]),
    "Two Cells": (79.544, [NO_RETURN, SINGLE]),
    "King Albert": (68.542, [SINGLE]),
    "Beleaguered Castle": (68.170, []),
    "Streets and Alleys": (51.187, []),
    "Thirty-Six": (94.674, [NO_RETURN]),
    "Klondike": (90.480, []),
    "Spiderette": (99.620, [STRICTER]),
    "Spiderette, cards go home singly": (99.620, [HOME_SINGLY]),
    "Simple Simon": (97.45, [STRICTER]),
    "Simple Simon, cards go home singly": (97.45, [HOME_SINGLY]),
}

parser = argparse.ArgumentParser()
parser.add_argument("--program", default="build/bench/tarnival-winnable")
parser.add_argument("--deals", type=int, default=2000)
parser.add_argument("--limit", type=int, default=1000000)
parser.add_argument("--jobs", type=int, default=1)
parser.add_argument("--seed", default="")
parser.add_argument("--results", type=pathlib.Path, default=pathlib.Path("build/published"))
parser.add_argument("rows", nargs="*", default=list(PUBLISHED))
arguments = parser.parse_args()
arguments.results.mkdir(parents=True, exist_ok=True)


def solve(row, switches):
    """The answers of a row's deals, by number."""
    game = row.split(",")[0]
    path = arguments.results / f"{row}{arguments.seed}.txt"
    found = {}  # number: answer, limit
    text = path.read_text() if path.exists() else ""
    for line in text.splitlines():
        words = line.split()
        if len(words) == 5:  # else it was cut off
            found[int(words[0])] = words[1], int(words[4])
    source = random.Random(game + arguments.seed)
    decks = [source.sample(range(52), 52) for _ in range(arguments.deals)]
    missing = [
        number
        for number in range(1, arguments.deals + 1)
        if found.get(number, ("unknown", 0))[0] == "unknown" and found.get(number, ("", 0))[1] < arguments.limit
    ]
    with tempfile.NamedTemporaryFile("w", suffix=".decks") as file, path.open("a") as kept:
        kept.write("\n" if text and not text.endswith("\n") else "")
        for number in missing:
            print(*decks[number - 1], file=file)
        file.flush()
        command = [arguments.program, game, "--decks", file.name, "--each", "--limit", str(arguments.limit)]
        command += ["--jobs", str(arguments.jobs), *(word for word in switches if word != STRICTER)]
        process = subprocess.Popen(command, stdout=subprocess.PIPE, text=True)
        for line in process.stdout:
            place, answer, *rest = line.split()
            if not place.isdigit():
                continue  # the summary
            number = missing[int(place) - 1]
            found[number] = answer, arguments.limit
            print(number, answer, *rest, arguments.limit, file=kept, flush=True)
        if process.wait() != 0:
            raise SystemExit(f"{game}: the solver ended with status {process.returncode}")
    return [found[number][0] for number in range(1, arguments.deals + 1)]


print("| Game | Deals | Won % | Unknown % | Published % | Agrees |\n| --- | --- | --- | --- | --- | --- |", flush=True)
for row in arguments.rows:
    share, switches = PUBLISHED[row]
    answers = solve(row, switches)
    deals, won, unknown = len(answers), answers.count("won"), answers.count("unknown")
    error = 200 * math.sqrt(share / 100 * (1 - share / 100) / deals)
    low, high = 100 * won / deals, 100 * (won + unknown) / deals
    agrees = "yes" if low - error <= share and (share <= high + error or STRICTER in switches) else "NO"
    print(f"| {row} | {deals} | {low:.2f} | {100 * unknown / deals:.2f} | {share} ± {error:.2f} | {agrees} |", flush=True)
