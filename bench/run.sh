#!/usr/bin/env bash
# All figures that the program has promised itself, and then as one table with the limits of bench/limits.txt.
# Builds what it needs, and fails when a figure is above its limit. Three minutes when it is built; let the
# machine rest meanwhile, or give it a core of its own: taskset -c 1 chrt -r 10 bench/run.sh
#
#   bench/run.sh             all of them
#   bench/run.sh WORD...     those whose title has one of the words in it: bench/run.sh engine look
set -euo pipefail
# shellcheck source=tools/setup/setup.sh
. "$(dirname "$0")/../tools/setup/setup.sh"

ensure_packages play check bench
build bench
folder=build/bench
figures=$folder/figures.txt
: >"$figures"
words=("$@")

asked() {
    local word
    ((${#words[@]} > 0)) || return 0
    for word in "${words[@]}"; do [[ $1 != *"$word"* ]] || return 0; done
    return 1
}

# table <title> <command>...
table() {
    asked "$1" || return 0
    say "$1"
    "${@:2}" | tee -a "$figures"
}

# on_screen <command>...
on_screen() {
    xvfb-run -a -s "-screen 0 1280x900x24" "$@"
}

export QT_LOGGING_RULES='*=false'
table "the engine" "$folder/tarnival-bench"
table "the engine, counted in instructions" bench/instructions.sh "$folder/tarnival-engine-work"
table "the solver" "$folder/tarnival-solver-bench"
table "records" "$folder/tarnival-records-bench"
table "the dialogs of the records" on_screen "$folder/tarnival-dialogs-bench"
table "the look" on_screen "$folder/tarnival-look-bench"
table "the window" on_screen "$folder/tarnival-window-bench"
table "start-up" on_screen "$folder/tarnival-startup-bench"

say "the figures and their limits"
complete=()
((${#words[@]} > 0)) || complete=(--complete)
bench/limits.py "${complete[@]}" bench/limits.txt <"$figures" || fail "a figure is not kept"
say "all figures kept"
