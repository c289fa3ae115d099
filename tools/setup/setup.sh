# What play, check and .ci/run share: installing packages, configuring, building.
# Sourced by bash with -euo pipefail; it goes to the root of the checkout.
# shellcheck shell=bash

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
cd "$root" || exit 1
mkdir -p build

# The compiler cache stays in the checkout: nothing is written to the user's home.
export CCACHE_DIR=$root/build/ccache CCACHE_BASEDIR=$root CCACHE_MAXSIZE=2G
# What it asks for to keep what was compiled with a precompiled header.
export CCACHE_SLOPPINESS=pch_defines,time_macros

say() { printf '== %s\n' "$*"; }

fail() {
    printf '== %s\n' "$*" >&2
    exit 1
}

# packages_of <list>...: the packages of these lists, one a line.
packages_of() {
    awk -v lists=" $* " '$1 !~ /^#/ && index(lists, " " $1 " ") { print $2 }' \
        tools/setup/packages.txt
}

is_debian_12() {
    # shellcheck source=/dev/null
    (. /etc/os-release 2>/dev/null && [[ ${ID:-} == debian && ${VERSION_ID:-} == 12 ]])
}

# missing_packages <package>...: those that are not installed, one a line.
missing_packages() {
    local installed
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null |
        sed -n 's/^installed //p') || true
    comm -23 <(printf '%s\n' "$@" | sort -u) <(sort -u <<<"$installed")
}

apt_install() {
    local as_root=()
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            printf '%s\n' "Some packages are missing, and there is no sudo. As root, run" '' \
                "    apt-get update && apt-get install --no-install-recommends $*" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    say "Installing: $*"
    # env stands behind sudo, which would drop the variable. The time limit lets another
    # package manager finish first.
    "${as_root[@]}" apt-get -q update &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq install --yes \
            --no-install-recommends -o DPkg::Lock::Timeout=300 "$@"
}

package_state() { stat -c '%i %Y %s' /var/lib/dpkg/status 2>/dev/null || true; }

# ensure_packages <list>...: installs what is missing, or fails.
# A stamp keeps the packages asked for and the state of the package database, so that nothing
# is asked while neither has changed.
ensure_packages() {
    local stamp key wanted missing before
    stamp=build/.packages$(printf -- '-%s' "$@")
    mapfile -t wanted < <(packages_of "$@")
    key="${wanted[*]} $(package_state)"
    [[ -f $stamp && $(<"$stamp") == "$key" ]] && return

    if ! is_debian_12; then
        [[ ${TARNIVAL_PACKAGES:-} == present ]] && return
        printf '%s\n' "This is not Debian 12, so nothing is installed here. Needed are, by Debian's names:" \
            '' "$(printf '    %s\n' "${wanted[@]}")" '' \
            "When you have them, go on with" '' "    TARNIVAL_PACKAGES=present $0" >&2
        return 1
    fi
    mapfile -t missing < <(missing_packages "${wanted[@]}")
    if ((${#missing[@]} > 0)); then
        before=$(package_state)
        apt_install "${missing[@]}" || return 1
        # What the other lists asked for is still there.
        find build -maxdepth 1 -name '.packages-*' -exec sed -i "s/ $before\$/ $(package_state)/" {} +
    fi
    echo "${wanted[*]} $(package_state)" >"$stamp"
}

# configure <preset>: only where this preset is not yet configured as it would be now.
# Changed CMake files are noticed by the build itself.
configure() {
    local preset=$1 stamp=build/$1/.configured launcher key
    launcher=$(command -v ccache || true)
    key="$root $launcher $(sha256sum <CMakePresets.json)"
    [[ -f build/$preset/build.ninja && -f $stamp && $(<"$stamp") == "$key" ]] && return
    say "Configuring build/$preset"
    cmake --fresh --preset "$preset" -DCMAKE_CXX_COMPILER_LAUNCHER="$launcher"
    echo "$key" >"$stamp"
}

# build <preset>: configures and builds. A second run in the same checkout waits for the first.
build() {
    local preset=$1 lock
    exec {lock}>build/.lock
    if ! flock --nonblock "$lock"; then
        say "Waiting for another build in this folder"
        flock "$lock"
    fi
    configure "$preset"
    cmake --build --preset "$preset" --parallel "$(nproc)"
    exec {lock}>&-
}
