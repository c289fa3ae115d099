#!/usr/bin/env python3
"""Holds the solver against published figures: uniformly shuffled decks, the share of deals won.

usage: published.py [--program PATH] [--deals N] [--limit STATES] [--jobs N] [--seed WORD] [--results FOLDER] [GAME ...]

Prints a row a game as it is done. The published shares are those of Blake and Gent, "The winnability of Klondike
Solitaire and many other patience games", JAIR 85, 2026. A share agrees when the published one lies between what was won
and what was won or left unknown, give or take two sampling errors. Decks are the same at every run; another word for
the seed gives others. What is found is kept, a line a deal in a file a game, so that a run can be stopped and called
again: a deal is tried again only where no answer was found within fewer states than are asked for now.
"""
import argparse
import math
import pathlib
import random
import subprocess
import tempfile

NO_RETURN, SINGLE = "--no-return", "--single"
PUBLISHED = {  # game: share won in percent, switches
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
    "Spiderette": (99.620, []),
}

parser = argparse.ArgumentParser()
parser.add_argument("--program", default="build/bench/tarnival-winnable")
parser.add_argument("--deals", type=int, default=2000)
parser.add_argument("--limit", type=int, default=1000000)
parser.add_argument("--jobs", type=int, default=1)
parser.add_argument("--seed", default="")
parser.add_argument("--results", type=pathlib.Path, default=pathlib.Path("build/published"))
parser.add_argument("games", nargs="*", default=list(PUBLISHED))
arguments = parser.parse_args()
arguments.results.mkdir(parents=True, exist_ok=True)


def solve(game, switches):
    """The answers of a game's deals, by number."""
    path = arguments.results / f"{game}{arguments.seed}.txt"
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
        command += ["--jobs", str(arguments.jobs), *switches]
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
for game in arguments.games:
    share, switches = PUBLISHED[game]
    answers = solve(game, switches)
    deals, won, unknown = len(answers), answers.count("won"), answers.count("unknown")
    error = 200 * math.sqrt(share / 100 * (1 - share / 100) / deals)
    low, high = 100 * won / deals, 100 * (won + unknown) / deals
    agrees = "yes" if low - error <= share <= high + error else "NO"
    print(f"| {game} | {deals} | {low:.2f} | {100 * unknown / deals:.2f} | {share} ± {error:.2f} | {agrees} |", flush=True)
