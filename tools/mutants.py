#!/usr/bin/env python3
"""Puts wrong rules into a copy of the sources, one at a time, and looks whether a test of the engine notices.

    tools/mutants.py            all edits of tools/mutants.txt; a few seconds each, once its copy is built
    tools/mutants.py WORD...    those whose file, rule or text has one of the words in it
    tools/mutants.py --anew     forgets what build/mutants/results.txt says of an earlier run

The copy and its build lie in build/mutants; the checkout is only read. Only the tests of rules, state and commands
run: the signature of all games, other pinned numbers and the random players notice a change too, but do not say which
rule it was. Each result is written down at once, so that a run that was stopped goes on where it was; an edit that
was not caught is tried again. Prints a table and fails when less than 95 of 100 edits are caught, when one that is
not caught is not explained, or when the text of an edit is no longer found.
"""
import json
import os
import resource
import shutil
import signal
import subprocess
import sys
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
COPY = ROOT / "build" / "mutants"
BUILD = COPY / "build"
PROGRAM = BUILD / "rule-tests"
LIST = ROOT / "tools" / "mutants.txt"
RESULTS = COPY / "results.txt"
ENOUGH = 0.95
FOLDERS = ("rules", "state", "commands")
# What the copy has beside the checkout's text. Most of the time of an edit is reading the library's headers, so they
# are read once; the tests of the folders are a program of their own, which takes less to link.
ADDED = {
    "src/engine/CMakeLists.txt":
        "\ntarget_precompile_headers(engine PRIVATE <algorithm> <array> <memory> <string> <vector> <fmt/format.h>)\n",
    "tests/CMakeLists.txt": f"""
file(GLOB rule_tests {" ".join(f"engine/{folder}/*_test.cpp" for folder in FOLDERS)})
add_executable(rule-tests ${{rule_tests}} support/Script.cpp)
target_link_libraries(rule-tests PRIVATE test_options testsupport fmt::fmt GTest::gtest GTest::gmock GTest::gtest_main)
"""}
# What is in these headers is used by sources with these words; the others include them for other things and need not
# be compiled.
USED_AS = {"Card.h": "Color()", "mDeal.h": "KingSweeps", "mOrder.h": "mOrder", "mRandom.h": "RoundToEven"}
PATIENCE = 20  # seconds of processor time: a wrong rule may make a loop endless
# They walk over the tables of all games for many seconds, and say no more of a rule than a signature does.
LEFT_OUT = ("Keys.ArrowsReachEveryCardAndPileOfEveryGame", "Zoom.NoCardOfAnyGameIsOutOfSight")


@dataclass
class Edit:
    file: str
    rule: str
    old: str
    new: str
    excuse: str = ""


def fail(text):
    sys.exit(f"== {text}")


def read_edits():
    """A block an edit: 'file: rule', then the lines that go (-) and come (+), and why none may notice it (?)."""
    edits = []
    for block in LIST.read_text().split("\n\n"):
        lines = [line for line in block.splitlines() if line and not line.startswith("#")]
        if not lines:
            continue
        file, rule = lines[0].split(": ", 1)
        part = {mark: "\n".join(line[1:] for line in lines[1:] if line[0] == mark) for mark in "-+?"}
        edits.append(Edit(f"src/engine/{file}", rule, part["-"], part["+"], part["?"].strip()))
    return edits


def spread(edits):
    """Two thirds of the edits of each file, then the others: a run that is stopped has seen something of each."""
    seen = {}
    later = []
    for edit in edits:
        seen[edit.file] = seen.get(edit.file, 0) + 1
        later.append(seen[edit.file] % 3 == 0)
    return [edit for turn in (False, True) for edit, late in zip(edits, later) if late == turn]


def check(edits):
    """Every edit must find its text, once: a list that has aged proves nothing."""
    faults = [f"{edit.file}: {edit.rule}: found {count} times" for edit in edits
              if (count := (ROOT / edit.file).read_text().count(edit.old)) != 1 or edit.old == edit.new]
    if faults:
        fail("These edits have lost their text, or do not say which of several:\n" + "\n".join(faults))


def write(path, data):
    """Only where it changes, so that nothing is compiled for nothing."""
    if not path.exists() or path.read_bytes() != data:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)


def copy_sources():
    listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=ROOT,
                            check=True, capture_output=True).stdout.decode().split("\0")
    names = {name for name in listed if name and (ROOT / name).is_file()}
    for name in names:
        write(COPY / name, (ROOT / name).read_bytes() + ADDED.get(name, "").encode())
        shutil.copymode(ROOT / name, COPY / name)
    for folder in ("src", "tests", "tools"):  # what has gone from the checkout goes here too
        for path in (COPY / folder).rglob("*"):
            if path.is_file() and str(path.relative_to(COPY)) not in names:
                path.unlink()


def environment():
    return os.environ | {"CCACHE_DIR": str(ROOT / "build" / "ccache"), "CCACHE_BASEDIR": str(COPY),
                         "CCACHE_NOHASHDIR": "1", "CCACHE_SLOPPINESS": "pch_defines,time_macros",
                         "QT_QPA_PLATFORM": "offscreen"}


def compile_tests(**settings):
    return subprocess.run(["ninja", "-C", BUILD, PROGRAM.name], env=environment() | settings, capture_output=True,
                          text=True)


def build_copy():
    copy_sources()
    options = ["-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -D_GLIBCXX_ASSERTIONS",
               "-DTARNIVAL_BENCHMARKS=OFF"]
    if shutil.which("ccache"):
        options.append("-DCMAKE_CXX_COMPILER_LAUNCHER=ccache")
    if shutil.which("ld.lld"):
        options.append("-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld")
    done = subprocess.run(["cmake", "-S", COPY, "-B", BUILD, "-G", "Ninja", *options], capture_output=True, text=True)
    if done.returncode != 0:
        fail(done.stdout + done.stderr)
    done = compile_tests()
    if done.returncode != 0:
        fail(done.stdout[-4000:])


def first_failure():
    """The first test that fails, or None."""
    done = subprocess.run([PROGRAM, "--gtest_filter=-" + ":".join(LEFT_OUT), "--gtest_fail_fast", "--gtest_brief=1"],
                          env=environment(), capture_output=True, text=True, errors="replace", cwd=BUILD,
                          preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_CPU, (PATIENCE, PATIENCE)))
    if done.returncode == 0:
        return None
    if done.returncode in (-signal.SIGXCPU, -signal.SIGKILL):
        return "(an endless loop)"
    failed = [line.split()[3].rstrip(",") for line in done.stdout.splitlines() if line.startswith("[  FAILED  ]")]
    return failed[0] if failed else "(the tests broke off)"


def put(edit, text):
    """Writes the text into the edit's file of the copy, so that what depends on it is compiled with the next build."""
    path = COPY / edit.file
    before = path.stat()
    path.write_text(text)
    if word := USED_AS.get(path.name):
        os.utime(path, ns=(before.st_atime_ns, before.st_mtime_ns))
        for source in (source for folder in ("src", "tests", "tools") for source in (COPY / folder).rglob("*.cpp")):
            if word in source.read_text():
                os.utime(source)


def catcher(edit):
    """What notices the edit, or None."""
    right = (COPY / edit.file).read_text()
    put(edit, right.replace(edit.old, edit.new))
    try:
        if compile_tests(CCACHE_DISABLE="1").returncode != 0:  # what is compiled once need not be kept
            return "(the compiler)"
        return first_failure()
    finally:
        put(edit, right)


def key(edit):
    return json.dumps([edit.file, edit.old, edit.new])


def main():
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("== stopped"))  # and the edited file is put right
    words = [word for word in sys.argv[1:] if word != "--anew"]
    if "--anew" in sys.argv:
        RESULTS.unlink(missing_ok=True)
    edits = read_edits()
    check(edits)
    edits = [edit for edit in spread(edits) if not words or any(word in f"{edit}" for word in words)]
    known = dict(line.split("\t") for line in RESULTS.read_text().splitlines()) if RESULTS.exists() else {}
    build_copy()
    if found := first_failure():
        fail(f"{found} fails without any edit")
    survivors = []
    with RESULTS.open("a") as results:
        for edit in edits:
            caught = known.get(key(edit)) or catcher(edit)
            print(f"{edit.file.removeprefix('src/engine/'):24} {edit.rule:60} {caught or 'SURVIVED'}", flush=True)
            if not caught:
                survivors.append(edit)
            elif key(edit) not in known:
                print(key(edit), caught, sep="\t", file=results, flush=True)
    for edit in survivors:
        print(f"not caught: {edit.rule}: {edit.excuse or 'not explained'}")
    caught = len(edits) - len(survivors)
    print(f"== {caught} of {len(edits)} wrong rules caught ({100 * caught / max(1, len(edits)):.1f} %)")
    if caught < ENOUGH * len(edits) or not all(edit.excuse for edit in survivors):
        sys.exit(1)


if __name__ == "__main__":
    main()
