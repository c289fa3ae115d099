# Finding a screen to show the program on, or making a virtual one.
# Sourced by bash with -euo pipefail.
# shellcheck shell=bash

# screen_kind: prints x11, wayland or none.
screen_kind() {
    local socket=${WAYLAND_DISPLAY:-}
    if [[ -n ${DISPLAY:-} ]] && timeout 5 xdpyinfo >/dev/null 2>&1; then
        echo x11
        return
    fi
    [[ -n $socket && $socket != /* ]] && socket=${XDG_RUNTIME_DIR:-}/$socket
    if [[ -n $socket && -S $socket ]]; then echo wayland; else echo none; fi
}

# wait_until <command>...: up to ten seconds; false where it never came true.
wait_until() {
    local attempt
    for ((attempt = 0; attempt < 100; ++attempt)); do
        "$@" >/dev/null 2>&1 && return
        sleep 0.1
    done
    return 1
}

children=()
screen_folder=

# start_child <log> <command>...: in the background. It also ends when this script is killed
# without a chance to clean up, and a session of its own keeps the terminal's Ctrl-C from it:
# the screen must not go before the program.
start_child() {
    local log=$1
    shift
    setpriv --pdeathsig TERM -- setsid "$@" >"$screen_folder/$log" 2>&1 &
    children+=($!)
}

# Ends the children, the last one first: the program before its screen.
stop_children() {
    local i
    for ((i = ${#children[@]} - 1; i >= 0; --i)); do
        kill "${children[i]}" 2>/dev/null || true
        wait "${children[i]}" 2>/dev/null || true
    done
    children=()
    [[ -z $screen_folder ]] || rm -rf "$screen_folder"
}

# give_up <what> <log>
give_up() {
    cat "$screen_folder/$2" >&2
    fail "$1 did not start; its output is above."
}

# password: eight signs, the most that a VNC server looks at, of 32 that no one takes for another.
password() {
    local signs=
    while ((${#signs} < 8)); do
        signs+=$(head -c 64 /dev/urandom | LC_ALL=C tr -dc 'abcdefghijkmnpqrstuvwxyz23456789')
    done
    printf '%s' "${signs:0:8}"
}

window_manager_answers() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }

# run_on_virtual_screen <program> <argument>...: the exit code is the program's.
# Everything that is started here has ended when the shell exits.
run_on_virtual_screen() {
    local status=0 cookie port secret
    # Nobody else may look into this folder: it holds the cookie and, until the VNC server has read it, the password.
    screen_folder=$(mktemp -d)
    trap stop_children EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM HUP

    # The cookie keeps other users of the machine off the screen. The server does not look at
    # the display number of its entry, which is not known before the server has started.
    # A command line is no place for it: everybody can read those.
    cookie=$(mcookie)
    export XAUTHORITY=$screen_folder/cookie
    xauth -q -f "$XAUTHORITY" source - <<<"add :0 . $cookie" 2>/dev/null
    start_child server Xvfb -displayfd 1 -screen 0 1280x900x24 -nolisten tcp -noreset -auth "$XAUTHORITY"
    wait_until grep -qx '[0-9]\+' "$screen_folder/server" || give_up "The virtual screen" server
    DISPLAY=:$(grep -x '[0-9]\+' "$screen_folder/server")
    export DISPLAY
    xauth -q -f "$XAUTHORITY" source - <<<"add $DISPLAY . $cookie"
    unset WAYLAND_DISPLAY
    # Without a login session there is no such folder, and Qt would complain.
    export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$screen_folder}

    start_child manager env XDG_CACHE_HOME="$screen_folder" openbox --sm-disable
    wait_until window_manager_answers || give_up "The window manager" manager

    # A viewer gets in with a password of this run. The server deletes the file as soon as it has read it.
    secret=$(password)
    echo "$secret" >"$screen_folder/password"
    start_child viewer x11vnc -norc -display "$DISPLAY" -localhost -no6 -autoport 5900 \
        -forever -shared -passwdfile "rm:$screen_folder/password" -quiet
    wait_until grep -q '^PORT=' "$screen_folder/viewer" || give_up "The VNC server" viewer
    port=$(sed -n 's/^PORT=//p' "$screen_folder/viewer")

    say "No screen here: the program runs on a virtual one, $DISPLAY."
    say "Point a VNC viewer on this machine to localhost:$port, password $secret. From another machine:"
    say "    ssh -L $port:localhost:$port ${USER:-$(id -un)}@$(uname -n)    then localhost:$port there"
    say "Close the program's window or press Ctrl-C here to end."

    # In the background, so that a signal to this script is answered while the program runs.
    setpriv --pdeathsig TERM -- "$@" &
    children+=($!)
    wait $! || status=$?
    return "$status"
}
