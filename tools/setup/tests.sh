# Running the tests of a build away from the user's home and screen, and seeing that nothing of
# them stays behind. Sourced by bash with -euo pipefail.
# shellcheck shell=bash

test_folder=

# Processes that a test run started and that are still there. They are known by a variable in
# their environment, which also finds those that have left their parent and session.
test_processes() {
    grep -lzxF "TARNIVAL_TEST_RUN=$test_folder" /proc/[0-9]*/environ 2>/dev/null |
        cut -d/ -f3 || true
}

end_test_run() {
    local process attempt
    [[ -n $test_folder ]] || return 0
    for process in $(test_processes); do kill "$process" 2>/dev/null || true; done
    for ((attempt = 0; attempt < 20; ++attempt)); do
        [[ -n $(test_processes) ]] || break
        sleep 0.1
    done
    for process in $(test_processes); do kill -KILL "$process" 2>/dev/null || true; done
    rm -rf "$test_folder"
    test_folder=
}

# A process that is just ending gets two seconds for it.
fail_on_stray_processes() {
    local attempt strays
    for ((attempt = 0; attempt < 20; ++attempt)); do
        strays=$(test_processes)
        [[ -n $strays ]] || return 0
        sleep 0.1
    done
    # shellcheck disable=SC2086 # one argument a process
    ps -o pid=,args= -p $strays >&2 || true
    printf '== %s\n' "The tests left these processes behind; they are being ended." >&2
    return 1
}

# run_tests <preset> <argument of ctest>...: the runner's summary is the last thing printed
# where all is well; the exit code is the runner's.
run_tests() {
    local preset=$1 status=0
    shift
    test_folder=$(mktemp -d "${TMPDIR:-/tmp}/tarnival-tests.XXXXXX")
    trap end_test_run EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM HUP
    mkdir "$test_folder"/{home,config,data,cache,tmp}
    mkdir -m 700 "$test_folder/run"

    # In the background, so that a signal to this script is answered while the tests run.
    env -u DISPLAY -u WAYLAND_DISPLAY -u XAUTHORITY -u DBUS_SESSION_BUS_ADDRESS -u SESSION_MANAGER \
        -u DESKTOP_SESSION -u XDG_CURRENT_DESKTOP -u QT_STYLE_OVERRIDE -u QT_QPA_PLATFORMTHEME \
        TARNIVAL_TEST_RUN="$test_folder" \
        HOME="$test_folder/home" \
        XDG_CONFIG_HOME="$test_folder/config" \
        XDG_DATA_HOME="$test_folder/data" \
        XDG_CACHE_HOME="$test_folder/cache" \
        XDG_RUNTIME_DIR="$test_folder/run" \
        TMPDIR="$test_folder/tmp" \
        LC_ALL=C.UTF-8 \
        QT_QPA_PLATFORM=offscreen \
        ctest --preset "$preset" --parallel "$(nproc)" "$@" &
    wait $! || status=$?
    fail_on_stray_processes || status=1
    end_test_run
    return "$status"
}
