#!/usr/bin/env bash
# The engine's work as counts of instructions: what a small amount and twice as much of it take, under
# callgrind, and the difference divided by the steps in it, so that starting up does not count.
#
#   bench/instructions.sh PROGRAM        where PROGRAM is tarnival-engine-work
set -euo pipefail
program=$1

# counted <work> <amount>: steps and instructions.
counted() {
    local log steps
    log=$(mktemp)
    steps=$(valgrind --tool=callgrind --callgrind-out-file=/dev/null --log-file="$log" "$program" "$1" "$2")
    echo "$steps $(awk '/Collected/ { print $NF }' "$log")"
    rm -f "$log"
}

# figure <name> <work> <amount>
figure() {
    local a b c d
    read -r a b < <(counted "$2" "$3")
    read -r c d < <(counted "$2" $((2 * $3)))
    printf '  %-62s %12d instructions\n' "$1" $(((d - b) / (c - a)))
}

figure "a game of 104 cards shuffled and dealt, counted" deals 50
figure "random play, a MoveCard, counted" moves 20
figure "a rules page, counted" pages 1
