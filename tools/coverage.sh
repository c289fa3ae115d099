#!/usr/bin/env bash
# Which lines of the engine no test reaches: builds with counters, runs the tests that need no window, and
# prints a line a file and then every line that was not reached.
set -euo pipefail
# shellcheck source=setup/setup.sh
. "$(dirname "$0")/setup/setup.sh"

ensure_packages play check
build coverage
find build/coverage -name '*.gcda' -delete
build/coverage/tarnival-tests >build/coverage/tests.log || fail "see build/coverage/tests.log"
python3 tools/setup/coverage.py build/coverage
