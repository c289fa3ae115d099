#!/usr/bin/env python3
"""Holds the solver against published figures: uniformly shuffled decks, the share of deals won.

usage: published.py [--program PATH] [--deals N] [--limit STATES] [--jobs N] [GAME ...]

Prints a row a game as it is done. The published shares are those of Blake and Gent, "The winnability of Klondike
Solitaire and many other patience games", JAIR 85, 2026. A share agrees when the published one lies between what was won
and what was won or left unknown, give or take two sampling errors. Decks are the same at every run.
"""
import argparse
import math
import random
import re
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
parser.add_argument("games", nargs="*", default=list(PUBLISHED))
arguments = parser.parse_args()

print("| Game | Deals | Won % | Unknown % | Published % | Agrees |\n| --- | --- | --- | --- | --- | --- |", flush=True)
for game in arguments.games:
    share, switches = PUBLISHED[game]
    source = random.Random(game)
    with tempfile.NamedTemporaryFile("w", suffix=".decks") as decks:
        for _ in range(arguments.deals):
            print(*source.sample(range(52), 52), file=decks)
        decks.flush()
        command = [arguments.program, game, "--decks", decks.name, "--limit", str(arguments.limit)]
        command += ["--jobs", str(arguments.jobs), *switches]
        answer = subprocess.run(command, check=True, capture_output=True, text=True).stdout
    deals, won, unknown = (int(re.search(rf"(\d+) {word}", answer)[1]) for word in ("deals", "won", "unknown"))
    error = 200 * math.sqrt(share / 100 * (1 - share / 100) / deals)
    low, high = 100 * won / deals, 100 * (won + unknown) / deals
    agrees = "yes" if low - error <= share <= high + error else "NO"
    print(f"| {game} | {deals} | {low:.2f} | {100 * unknown / deals:.2f} | {share} ± {error:.2f} | {agrees} |", flush=True)
