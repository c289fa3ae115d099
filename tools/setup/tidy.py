#!/usr/bin/env python3
"""Runs clang-tidy over the sources of one target.

usage: tidy.py <build folder> <target>

A source that passed is not looked at again until its text, one of the headers it was compiled
with, its compile command, the checks, clang-tidy or this script change. Leaves with 1 where a check
found something.
"""
import concurrent.futures
import functools
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


@functools.cache
def content_hash(path):
    return hashlib.sha256(pathlib.Path(path).read_bytes()).hexdigest()


def dependencies(build):
    """Object file -> the files it was compiled from, as the build has recorded them."""
    found, current = {}, None
    for line in output("ninja", "-C", build, "-t", "deps").splitlines():
        if line.startswith(" "):
            found[current].append(os.path.normpath(os.path.join(build, line.strip())))
        elif ":" in line:
            current = line.split(":", 1)[0]
            found[current] = []
    return found


def sources(build, target):
    """(source, object, command) of the target."""
    part = f"CMakeFiles/{target}.dir/"
    for entry in json.loads(pathlib.Path(build, "compile_commands.json").read_text()):
        arguments = shlex.split(entry["command"])
        produced = arguments[arguments.index("-o") + 1]
        if part in produced and "_autogen" not in entry["file"]:
            yield entry["file"], produced, entry["command"]


def main():
    build, target = sys.argv[1:]
    build = os.path.abspath(build)
    passed = pathlib.Path(build, "tidy")
    passed.mkdir(exist_ok=True)
    tool = output("clang-tidy", "--version")
    headers = dependencies(build)

    work = []
    for source, produced, command in sources(build, target):
        files = headers.get(produced)
        if not files:
            sys.exit(f"{source} is not built: build the target first")
        state = [tool, command, content_hash(".clang-tidy"), content_hash(__file__)]
        state += [name + content_hash(name) for name in sorted(set(files))]
        stamp = passed / hashlib.sha256("\n".join(state).encode()).hexdigest()
        work.append((source, stamp))
    if not work:
        sys.exit(f"the target {target} has no sources in {build}")

    pending = [(source, stamp) for source, stamp in work if not stamp.exists()]
    print(f"{len(work)} sources, {len(pending)} of them new or changed", flush=True)

    shown = set()

    def show(text):
        # A finding in a header comes back with every source that includes it.
        for finding in re.split(r"^(?=/\S+:\d+:\d+: (?:error|warning): )", text, flags=re.MULTILINE):
            if finding not in shown:
                shown.add(finding)
                print(finding, end="", flush=True)

    def tidy(item):
        source, stamp = item
        # The commands are g++'s; clang does not know all of its warnings. The sanitizers' build reads eight sources
        # as one, which takes a third of the time here too; only there a source is included.
        run = subprocess.run(["clang-tidy", "--quiet", "--extra-arg=-Wno-unknown-warning-option",
                              "--checks=-bugprone-suspicious-include", "-p", build, source],
                             capture_output=True, text=True)
        if run.returncode == 0:
            stamp.touch()
        else:
            show(run.stdout or run.stderr)
        return run.returncode == 0

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        clean = all(list(pool.map(tidy, pending)))

    # Stamps of older states would pile up for ever.
    current = {stamp for _, stamp in work}
    for stamp in passed.iterdir():
        if stamp not in current:
            stamp.unlink()
    return 0 if clean else 1


if __name__ == "__main__":
    sys.exit(main())
