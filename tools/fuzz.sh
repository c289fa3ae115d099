#!/usr/bin/env bash
# Builds the fuzzer's programs with clang and runs them, one after the other.
#
#   tools/fuzz.sh [SECONDS-EACH] [TARGET...]
#
# 600 seconds each and all targets unless told. What it finds is left in build/fuzz/found; a finding is
# mended and its input kept under tests/fuzz/corpora, which the tests replay. New inputs that reach more
# are gathered in build/fuzz/grown, from where few and small ones are worth keeping.
set -euo pipefail
# shellcheck source=setup/setup.sh
. "$(dirname "$0")/setup/setup.sh"

seconds=${1:-600}
shift || true
targets=("$@")
((${#targets[@]} > 0)) || targets=(score import favourites settings settingsfile home number lab)

ensure_packages play check fuzz
build fuzz
mkdir -p build/fuzz/found
for target in "${targets[@]}"; do
    mkdir -p "build/fuzz/grown/$target"
    say "$target for $seconds s"
    nice -n 15 "build/fuzz/fuzz-$target" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=2048 \
        -max_len=4096 -print_final_stats=1 -verbosity=1 -artifact_prefix="build/fuzz/found/$target-" \
        "build/fuzz/grown/$target" "tests/fuzz/corpora/$target" >"build/fuzz/$target.log" 2>&1 ||
        fail "a finding, see build/fuzz/found and build/fuzz/$target.log"
    grep '^stat::number_of_executed_units' "build/fuzz/$target.log"
done
say "clean"
