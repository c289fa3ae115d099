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

# shellcheck source=packages.sh
. tools/setup/packages.sh

# Warnings stop whoever changes the program, never one who builds it with a newer compiler: TARNIVAL_WERROR=ON, which
# .ci/run sets, makes them errors in every preset.
warnings_are_errors=${TARNIVAL_WERROR:-OFF}

# configure <preset>: only where this preset is not yet configured as it would be now.
# Changed CMake files are noticed by the build itself.
configure() {
    local preset=$1 stamp=build/$1/.configured launcher key
    launcher=$(command -v ccache || true)
    key="$root $launcher $warnings_are_errors $(sha256sum <CMakePresets.json)"
    [[ -f build/$preset/build.ninja && -f $stamp && $(<"$stamp") == "$key" ]] && return
    say "Configuring build/$preset"
    cmake --fresh --preset "$preset" -DCMAKE_CXX_COMPILER_LAUNCHER="$launcher" \
        -DTARNIVAL_WERROR="$warnings_are_errors"
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
