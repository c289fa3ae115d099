#!/usr/bin/env python3
"""Holds the includes of the sources against the order of the floors in docs/architecture.md.

usage: floors.py [ROOT]

Leaves with 1 and a line for each include that reaches upward or sideways, and for each one of Qt below the
window.
"""
import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parents[2])
below = {}  # folder -> the folders that it may include, its own among them
for storey, order in re.findall(r"^    src/(\w+): (.+)$", (root / "docs/architecture.md").read_text(), re.M):
    seen = set()
    for floor in order.split(" < "):
        names = floor.split(", ")
        if names[0] in ("engine", "engine/catalogue"):  # another storey, whole or up to that folder
            seen |= {folder for folder in below if folder.startswith(names[0])} | below.get(names[0], set())
            continue
        folders = {storey if name == storey else f"{storey}/{name}" for name in names}
        below |= {folder: seen | {folder} for folder in folders}
        seen |= folders

faults = [] if below else ["docs/architecture.md no longer tells the order of the floors"]
sources = [path for path in (root / "src").rglob("*") if path.suffix in (".cpp", ".h") and path.name != "main.cpp"]
for path in sources:
    name, folder = path.relative_to(root), str(path.parent.relative_to(root / "src"))
    if folder not in below:
        faults.append(f"{name}: docs/architecture.md gives {folder} no floor")
        continue
    for kind, include in re.findall(r'^\s*#\s*include\s*([<"])([^">]+)', path.read_text(), re.M):
        target = include.rpartition("/")[0]
        if include.startswith("Q") and not folder.startswith("window"):
            faults.append(f"{name} includes {include}: there is no Qt below the window")
        elif kind == '"' and ".." in include or target in below and target not in below[folder]:
            faults.append(f"{name} includes {include}: it lies no lower than {folder}")
print("\n".join(faults) or f"{len(sources)} files include only their own floor and those below")
sys.exit(1 if faults else 0)
