#!/usr/bin/env bash
# The engine's work as counts of instructions: what a small amount and twice as much of it take, under
# callgrind, and the difference divided by the steps in it, so that starting up does not count. The limits
# are what was counted when the work was last made cheaper.
#
#   bench/instructions.sh PROGRAM        where PROGRAM is tarnival-engine-work
set -euo pipefail
program=$1
status=0

# counted <work> <amount>: steps and instructions.
counted() {
    local log steps
    log=$(mktemp)
    steps=$(valgrind --tool=callgrind --callgrind-out-file=/dev/null --log-file="$log" "$program" "$1" "$2")
    echo "$steps $(awk '/Collected/ { print $NF }' "$log")"
    rm -f "$log"
}

# figure <title> <work> <amount> <limit>
figure() {
    local a b c d each
    read -r a b < <(counted "$2" "$3")
    read -r c d < <(counted "$2" $((2 * $3)))
    each=$(((d - b) / (c - a)))
    printf '  %-58s %12d %-6s limit %s' "$1" "$each" instr "$4"
    if ((each > $4 * 5 / 4)); then
        printf '  MISSED'
        status=1
    fi
    echo
}

figure "a game of 104 cards shuffled and dealt" deals 50 135000
figure "random play, a MoveCard" moves 20 6300
figure "a rules page" pages 1 240000
exit "$status"
