"""The set-up of packages on systems that offer different ones, told by stand-ins for apt and dpkg.

    setup.py CHECKOUT
"""

import os
import shutil
import subprocess
import sys
import tempfile

NEEDS = """
# a comment
play   g++>=12                      # a compiler
play   qt6-base-dev>=6.4
play   libqt6opengl6-dev|qt6-base-dev>=6.5
check  libgtest-dev
"""
OLDER = {"g++": "4:12.2.0-3", "qt6-base-dev": "6.4.2+dfsg-10", "libqt6opengl6-dev": "6.4.2+dfsg-10"}
NEWER = {"g++": "4:14.2.0-1", "qt6-base-dev": "6.8.2+dfsg-9"}
MERGED_TOO_EARLY = {"g++": "4:13.2.0-7", "qt6-base-dev": "6.4.2"}
OLD_QT = OLDER | {"qt6-base-dev": "6.2.4"}
HIGH_EPOCH = NEWER | {"g++": "14:9.3.0-1"}

# What is installed, what apt knows before and after its lists are renewed; then what is installed by it, where the
# set-up goes on, or a word of what is told where it stops.
ROWS = [
    ("the older names", {}, OLDER, OLDER, "g++ libqt6opengl6-dev qt6-base-dev", None),
    ("the newer names", {}, NEWER, NEWER, "g++ qt6-base-dev", None),
    ("lists that are not there yet", {}, {}, NEWER, "g++ qt6-base-dev", None),
    ("all is there: nobody is asked", NEWER, {}, {}, None, None),
    ("an older name that the newer version does not stand for", {"g++": "4:12.2.0-3", "qt6-base-dev": "6.4.2"},
     OLDER, OLDER, "libqt6opengl6-dev", None),
    ("an installed version that is too old", NEWER | {"g++": "4:11.4.0-1"}, NEWER, NEWER, "g++", None),
    ("the epoch is no part of the version", {}, HIGH_EPOCH, HIGH_EPOCH, None, "nothing for\n\n    g++ (12 or later)"),
    ("Qt is too old", {}, OLD_QT, OLD_QT, None, "nothing for\n\n    qt6-base-dev (6.4 or later)\n"),
    ("neither name in a sufficient version", {}, MERGED_TOO_EARLY, MERGED_TOO_EARLY, None,
     "    libqt6opengl6-dev or qt6-base-dev (6.5 or later)\n"),
    ("tools of apt on another system", None, NEWER, NEWER, None, "TARNIVAL_PACKAGES=present"),
]

STAND_INS = {
    "dpkg-query": """[[ -f installed ]] || exit 1
if [[ $4 == base-files ]]; then printf installed; else sed 's/^/installed /' installed; fi""",
    "apt-cache": """while read -r name version; do
    printf '%s:\\n  Installed: ?\\n  Candidate: %s\\n' "$name" "$version"
done <offered; printf 'libgtest-dev:\\n  Candidate: (none)\\n'""",
    "apt-get": """if [[ " $* " == *" update "* ]]; then echo renewed >>asked; cp renewed offered; exit; fi
for word in "$@"; do [[ -z $past ]] || echo "$word" >>asked; [[ $word != DPkg* ]] || past=yes; done""",
    "sudo": 'exec "$@"',
}


def write(path, text, mode=0o644):
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)
    os.chmod(path, mode)


def set_up(folder, installed, known, renewed):
    """Runs the set-up once: how it ended, and what apt was asked for."""
    def lines(packages):
        return "".join(f"{name} {version}\n" for name, version in packages.items())
    for name, packages in (("installed", installed), ("offered", known), ("renewed", renewed)):
        if packages is not None:
            write(os.path.join(folder, name), lines(packages))
    script = "set -euo pipefail; . tools/setup/setup.sh; ensure_packages play; echo goes on"
    environment = dict(os.environ, PATH=f"{folder}/bin:{os.environ['PATH']}", TARNIVAL_PACKAGES="")
    done = subprocess.run(["bash", "-c", script], cwd=os.path.join(folder, "checkout"), env=environment, text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    asked = os.path.join(folder, "asked")
    if not os.path.exists(asked):
        return done, []
    with open(asked, encoding="utf-8") as file:
        return done, file.read().split()


def main():
    failed = 0
    for title, installed, known, renewed, wanted, told in ROWS:
        with tempfile.TemporaryDirectory() as folder:
            setup = os.path.join(folder, "checkout", "tools", "setup")
            shutil.copytree(os.path.join(sys.argv[1], "tools", "setup"), setup)
            write(os.path.join(setup, "packages.txt"), NEEDS)
            os.mkdir(os.path.join(folder, "bin"))
            for name, text in STAND_INS.items():
                write(os.path.join(folder, "bin", name), f"#!/bin/bash\ncd {folder}\n{text}\n", 0o755)
            done, asked = set_up(folder, installed, known, renewed)
            goes_on = done.returncode == 0 and done.stdout.endswith("goes on\n")
            packages = " ".join(sorted(set(asked) - {"renewed"})) or None
            if (goes_on, packages) != (told is None, wanted) or (told or "") not in done.stdout or \
                    (told is None and not wanted and asked):
                failed += 1
                print(f"{title}: {'goes on' if goes_on else 'stops'}, asked for {asked}, told\n{done.stdout}")
    print(f"setup.py: {len(ROWS)} systems, {failed} of them wrongly set up")
    return failed != 0


if __name__ == "__main__":
    sys.exit(main())
