#!/usr/bin/env bash
# Tries ./play, ./check and the Debian package as a new user would, in fresh systems of several releases, and prints
# a table.
#
#   tools/matrix.sh [release...]        as root; without a name: bookworm trixie testing
#
# A system is made with debootstrap in build/matrix (some 4 GB each) and stays there to be looked at; the next run
# makes it anew. MATRIX_USERS="player" leaves out the run as root. MATRIX_MIRROR and MATRIX_COMPONENTS name other
# sources than debootstrap's own, such as
#
#   MATRIX_MIRROR=http://archive.ubuntu.com/ubuntu MATRIX_COMPONENTS=main,universe tools/matrix.sh noble
set -euo pipefail
# shellcheck source=setup/setup.sh
. "$(dirname "$0")/setup/setup.sh"

mirror=${MATRIX_MIRROR:-}
components=${MATRIX_COMPONENTS:-main}
read -ra users <<<"${MATRIX_USERS:-player root}"
work=$root/build/matrix
table=()

# enter <system> <user> <command>...: runs a command line there, in the user's home. Mounts and processes are gone
# with it.
enter() {
    local system=$1 user=$2
    shift 2
    # shellcheck disable=SC2016 # the inner shell's own words
    unshare --mount --pid --fork --kill-child bash -c '
        system=$1 user=$2 line=$3
        mount -t proc proc "$system/proc"
        mount --rbind /dev "$system/dev"
        mount -t tmpfs tmpfs "$system/dev/shm"
        exec chroot "$system" env -i PATH=/usr/local/bin:/usr/bin:/bin:/usr/sbin:/sbin LC_ALL=C.UTF-8 TERM=dumb \
            setpriv --reuid="$user" --regid="$user" --init-groups --reset-env \
            bash -c "export CCACHE_NOHASHDIR=1 CCACHE_UMASK=000; cd && $line"' enter "$system" "$user" "$*"
}

# make_system <release> <folder>: a minimal system with a user who may become root.
make_system() {
    local release=$1 system=$2 script=/usr/share/debootstrap/scripts/$1
    [[ -e $script ]] || script=/usr/share/debootstrap/scripts/sid
    rm -rf "$system"
    mkdir -p "$system"
    debootstrap --variant=minbase --include=ca-certificates,sudo --components="$components" \
        "$release" "$system" "$mirror" "$script"
    cp /etc/resolv.conf "$system/etc/"
    printf '127.0.0.1 localhost %s\n' "$(uname -n)" >"$system/etc/hosts"
    # Nobody needs these systems after a power cut.
    echo force-unsafe-io >"$system/etc/dpkg/dpkg.cfg.d/matrix"
    chroot "$system" useradd --create-home --shell /bin/bash player
    echo 'player ALL=(ALL) NOPASSWD: ALL' >"$system/etc/sudoers.d/player"
}

# copy_checkout <system> <user> <home>: the files that git knows, as they lie here.
copy_checkout() {
    local target=$1$3/tarnival
    mkdir -p "$target"
    git ls-files -z --cached --others --exclude-standard --deduplicate |
        tar --create --null --files-from=- --ignore-failed-read --warning=no-failed-read | tar --extract --directory "$target"
    # What the first run has compiled, the second takes from there, and each may write there.
    mkdir -p "$target/build" "$1/var/cache/matrix"
    ln -s /var/cache/matrix "$target/build/ccache"
    chmod 1777 "$1/var/cache/matrix"
    chroot "$1" chown -R "$2:$2" "$3/tarnival"
}

# until_true <seconds> <command>...
until_true() {
    local end=$((SECONDS + $1))
    shift
    until "$@" >/dev/null 2>&1; do
        ((SECONDS < end)) || return 1
        sleep 0.2
    done
}

windows() { xdotool search --onlyvisible --name '^Tarnival' 2>/dev/null | wc -l; }
one_window() { (($(windows) >= 1)); }
two_windows() { (($(windows) >= 2)); }
is_gone() { ! kill -0 "$1"; }

# reach_selection <process> <picture>: from the splash on $DISPLAY to the selection of a game, which is pictured, and
# out by the keyboard.
reach_selection() {
    until_true 60 one_window || return 1
    xdotool key space
    until_true 60 two_windows || return 1
    sleep 1
    import -window root "$2" 2>/dev/null || true
    xdotool key Escape
    sleep 1
    xdotool key alt+F4
    until_true 30 is_gone "$1"
}

# try_play <system> <user>: ./play without a screen, watched on the virtual one that it makes.
try_play() {
    local log=$1.play-$2.log process status=0
    touch "$log.begun"
    enter "$1" "$2" "cd tarnival && ./play" >"$log" 2>&1 &
    process=$!
    # Until the program is built it is the build that takes its time.
    while ! grep -q 'No screen here' "$log"; do
        is_gone "$process" 2>/dev/null && return 1
        sleep 1
    done
    DISPLAY=$(sed -n 's/.*virtual one, \(:[0-9]*\)\.$/\1/p' "$log")
    XAUTHORITY=$(find "$1"/tmp/tmp.* -name cookie -newer "$log.begun")
    export DISPLAY XAUTHORITY
    reach_selection "$process" "$1.play-$2.png" || status=1
    kill "$process" 2>/dev/null || true
    wait "$process" || status=1
    return "$status"
}

# try_package <system> <clean system>: built there, installed here, started as the menu would, and removed.
try_package() {
    local system=$1 clean=$2 log=$1.package.log package program server process status=0
    enter "$system" player "cd tarnival && tools/package.sh" >"$log" 2>&1 || return 1
    package=$(ls "$system"/home/player/tarnival/build/package/*.deb)
    enter "$system" root "apt-get -qq install -y --no-install-recommends lintian" >>"$log" 2>&1 || return 1
    # Whatever it says counts.
    enter "$system" player "lintian -I --pedantic tarnival/build/package/*.deb" >"$system.lintian" 2>&1 || status=1
    [[ ! -s $system.lintian ]] || status=1

    cp "$package" "$clean/tmp/tarnival.deb"
    enter "$clean" root "apt-get -q update && apt-get -qq install -y --no-install-recommends /tmp/tarnival.deb" \
        >>"$log" 2>&1 || return 1
    program=$(sed -n 's/^Exec=//p' "$clean/usr/share/applications/tarnival.desktop")
    rm -f "$clean.display"
    Xvfb -displayfd 1 -screen 0 1280x900x24 -nolisten tcp >"$clean.display" 2>/dev/null &
    server=$!
    until_true 10 test -s "$clean.display"
    DISPLAY=:$(<"$clean.display")
    export DISPLAY
    unset XAUTHORITY
    openbox >/dev/null 2>&1 &
    sleep 1
    enter "$clean" player "DISPLAY=$DISPLAY '$program'" >>"$log" 2>&1 &
    process=$!
    reach_selection "$process" "$system.package.png" || status=1
    kill "$process" 2>/dev/null || true
    wait "$process" || status=1
    kill "$server"
    wait "$server" || true
    enter "$clean" root "apt-get -qq purge -y tarnival" >>"$log" 2>&1 || status=1
    # What is left may only be the player's own.
    find "$clean" -xdev \( -iname '*tarnival*' -o -iname '*kelmor*' \) -not -path "$clean/tmp/*" \
        -not -path "$clean/home/player/.config/*" -not -path "$clean/home/player/.local/share/*" >"$system.left"
    [[ ! -s $system.left ]] || status=1
    return "$status"
}

# try_release <release>
try_release() {
    local release=$1 system=$work/$1 clean=$work/$1-clean user play check tests from package=fails qt compiler
    say "$release: a fresh system"
    if ! make_system "$release" "$system" >"$system.log" 2>&1; then
        say "$release: cannot be had; $system.log tells why"
        table+=("| $release | not reached |")
        return 1
    fi
    rm -rf "$clean"
    cp -a "$system" "$clean"
    # Not one of the program's needs: it makes the second build of each preset quick.
    enter "$system" root "apt-get -q update && apt-get -qq install -y --no-install-recommends ccache" >>"$system.log" 2>&1
    copy_checkout "$system" player /home/player
    copy_checkout "$system" root /root
    for user in "${users[@]}"; do
        say "$release: ./play as $user"
        from=$SECONDS play=fails
        if try_play "$system" "$user"; then play=$((SECONDS - from)); fi
        say "$release: ./check as $user"
        from=$SECONDS check=fails
        if enter "$system" "$user" "cd tarnival && ./check" >"$system.check-$user.log" 2>&1; then
            check=$((SECONDS - from))
        fi
        tests=$(sed -n 's/^\([0-9]*% tests passed\), \([0-9]*\) tests failed out of \([0-9]*\)$/\2 of \3 failed/p' \
            "$system.check-$user.log")
        qt=$(chroot "$system" dpkg-query -W -f '${source:Upstream-Version}' qt6-base-dev) || qt=none
        compiler=$(chroot "$system" c++ --version | head -n 1) || compiler=none
        table+=("| $release | $qt | $compiler | $user | $play | $check | ${tests:-none} |")
    done
    say "$release: the package"
    if try_package "$system" "$clean"; then package=good; fi
    table+=("| $release | | | package | $package | | lintian: $(wc -l <"$system.lintian" 2>/dev/null) lines |")
}

((EUID == 0)) || fail "Only root can make a system: sudo $0 $*"
ensure_packages check matrix
mkdir -p "$work"
(($# > 0)) || set -- bookworm trixie testing
for release in "$@"; do try_release "$release" || true; done

printf '%s\n' '| release | Qt | compiler | as | ./play, s | ./check, s | tests |' '| --- | --- | --- | --- | --- | --- | --- |' "${table[@]}"
