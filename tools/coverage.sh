#!/usr/bin/env bash
# Which lines of the engine no test reaches: builds with counters, runs the tests of the engine and those of
# the windows over it, and prints a line a file and then every line that was not reached.
set -euo pipefail
# shellcheck source=setup/setup.sh
. "$(dirname "$0")/setup/setup.sh"

ensure_packages play check
build coverage
find build/coverage -name '*.gcda' -delete
for tests in tarnival-tests tarnival-window-tests; do
    QT_QPA_PLATFORM=offscreen "build/coverage/$tests" >"build/coverage/$tests.log" ||
        fail "see build/coverage/$tests.log"
done
python3 tools/setup/coverage.py build/coverage
