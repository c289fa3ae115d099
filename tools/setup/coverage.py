#!/usr/bin/env python3
"""Prints the lines of the engine that a run of the coverage build did not reach.

    coverage.py BUILD-FOLDER
"""

import gzip
import json
import os
import pathlib
import subprocess
import sys
import tempfile


def counts_of(build, root):
    """Reached counts by line, for every file of the engine: its functions in headers are reached in whatever
    object calls them."""
    counts = {}
    engine = sorted((build / "src" / "CMakeFiles" / "engine.dir").rglob("*.gcda"))
    objects = engine + sorted(set(build.rglob("*.gcda")) - set(engine))
    if not engine:
        sys.exit("coverage.py: no counters; were the tests run?")
    with tempfile.TemporaryDirectory() as scratch:
        for data in objects:
            is_engine = data in engine
            subprocess.run(["gcov", "--json-format", "--object-file", str(data), str(data)], cwd=scratch,
                           check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            for path in pathlib.Path(scratch).glob("*.gcov.json.gz"):
                with gzip.open(path) as file:
                    report = json.load(file)
                for source in report["files"]:
                    name = os.path.realpath(os.path.join(report["current_working_directory"], source["file"]))
                    if not name.startswith(str(root / "src") + os.sep):
                        continue
                    name = os.path.relpath(name, root)
                    if not is_engine and name not in counts:
                        continue
                    lines = counts.setdefault(name, {})
                    for line in source["lines"]:
                        number = line["line_number"]
                        lines[number] = lines.get(number, 0) + line["count"]
                path.unlink()
    return counts


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    root = build.parent.parent
    counts = counts_of(build, root)
    reached = total = 0
    for name, lines in sorted(counts.items()):
        # A line of closing braces stands for the way of an exception out of the function.
        text = (root / name).read_text(encoding="utf-8").splitlines()
        for number in [number for number in lines if not text[number - 1].strip("{}(); ")]:
            del lines[number]
        hit = sum(1 for count in lines.values() if count)
        reached += hit
        total += len(lines)
        print(f"{hit:6} of {len(lines):5}  {name}")
    print(f"{reached:6} of {total:5}  ({100 * reached / total:.2f} %)")
    for name, lines in sorted(counts.items()):
        missed = sorted(number for number, count in lines.items() if not count)
        if not missed:
            continue
        text = (root / name).read_text(encoding="utf-8").splitlines()
        print(f"\n{name}")
        for number in missed:
            print(f"{number:6}  {text[number - 1]}")


if __name__ == "__main__":
    main()
