#!/usr/bin/env python3
"""Holds the figures of the benchmarks against their limits.

    bench/limits.py [--complete] bench/limits.txt <FIGURES

A figure is a line "  name  value unit", as bench/mFigures.h prints them; other lines are passed over. Prints figure,
limit and how much of it is used. Fails where a figure is above its limit, or has none; with --complete also where a
limit has no figure.
"""
import re
import sys

LINE = re.compile(r"  (?P<name>\S.*?)\s{1,}(?P<value>-?\d+(?:\.\d+)?) (?P<unit>\S+)$")


def limits(path):
    known = {}
    for line in open(path):
        if line.strip() and not line.startswith("#"):
            limit, unit, name = line.rstrip("\n").split(None, 2)
            known[name] = float(limit), unit
    return known


def main():
    complete = "--complete" in sys.argv
    known = limits(sys.argv[-1])
    kept = True
    seen = set()
    for line in sys.stdin:
        found = LINE.fullmatch(line.rstrip("\n"))
        if not found:
            continue
        name, value, unit = found["name"], float(found["value"]), found["unit"]
        seen.add(name)
        limit, expected = known.get(name, (None, unit))
        if limit is None or expected != unit:
            verdict = f"has no limit in {unit}: give it a line in bench/limits.txt"
        else:
            verdict = f"limit {limit:<10g} {value / limit:5.0%}" + ("  MISSED" if value > limit else "")
        kept = kept and verdict.endswith("%")
        print(f"  {name:62} {value:12.3f} {unit:12} {verdict}")
    for name in known if complete else ():
        if name not in seen:
            kept = False
            print(f"  {name:62} was not measured")
    sys.exit(0 if kept else 1)


if __name__ == "__main__":
    main()
