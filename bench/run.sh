#!/usr/bin/env bash
# All figures that the program has promised itself, as one table with their limits. Builds what it needs, and
# fails when a figure is missed by more than a quarter. Two minutes when it is built; let the machine rest meanwhile.
set -euo pipefail
# shellcheck source=tools/setup/setup.sh
. "$(dirname "$0")/../tools/setup/setup.sh"

ensure_packages play check bench
build bench
folder=build/bench
missed=0

# table <title> <command>...
table() {
    say "$1"
    "${@:2}" || missed=1
}

export QT_LOGGING_RULES='*=false'
table "the engine" "$folder/tarnival-bench"
table "the engine, counted in instructions" bench/instructions.sh "$folder/tarnival-engine-work"
table "the solver" "$folder/tarnival-solver-bench"
table "records" "$folder/tarnival-records-bench"
table "the dialogs of the records" xvfb-run -a -s "-screen 0 1280x900x24" "$folder/tarnival-dialogs-bench"
table "the look" xvfb-run -a -s "-screen 0 1280x900x24" "$folder/tarnival-look-bench"
table "the window" xvfb-run -a -s "-screen 0 1280x900x24" "$folder/tarnival-window-bench"
table "start-up" xvfb-run -a -s "-screen 0 1280x900x24" "$folder/tarnival-startup-bench"
((missed == 0)) || fail "a figure is missed by more than a quarter"
say "all figures kept"
