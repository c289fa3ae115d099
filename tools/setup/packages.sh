# Installing what is missing, by what apt offers here: neither the system's name nor its version is asked for.
# Sourced by setup.sh.
# shellcheck shell=bash

# needs_of <list>...: what these lists of packages.txt need, one a line: names with a bar between those that stand
# for each other, each with its oldest version behind >= where that matters.
needs_of() {
    awk -v lists=" $* " '$1 !~ /^#/ && index(lists, " " $1 " ") { print $2 }' tools/setup/packages.txt
}

# names_of <need>...: the packages that are named there, one a line.
names_of() { printf '%s\n' "$@" | tr '|' '\n' | sed 's/>=.*//' | sort -u; }

# told_of <need>...: the same for a reader, one a line.
told_of() { printf '%s\n' "$@" | sed 's/>=\([^|]*\)/ (\1 or later)/g; s/|/ or /g'; }

# Whether apt manages the system: its tools alone may also lie on another one.
is_apt_system() {
    command -v apt-get >/dev/null &&
        [[ $(dpkg-query -W -f '${db:Status-Status}' base-files 2>/dev/null) == installed ]]
}

# is_sufficient <version> <oldest>: by the program's own numbers, without the distribution's epoch before them.
is_sufficient() { [[ -z $2 ]] || dpkg --compare-versions "${1#*:}" ge "$2"; }

missing=()     # packages to be installed
unavailable=() # needs that are not met and that apt offers nothing for

# choose_packages <need>...: fills the two lists above. Of the names of a need the first counts that is there, or
# that apt offers, in a sufficient version.
choose_packages() {
    local need names name version alternative oldest
    local -A installed=() offered=()
    mapfile -t names < <(names_of "$@")
    while read -r name version; do installed[$name]=$version; done < <(
        dpkg-query -W -f '${db:Status-Status} ${Package} ${Version}\n' "${names[@]}" 2>/dev/null |
            sed -n 's/^installed //p'
    )
    while read -r name version; do offered[$name]=$version; done < <(
        LC_ALL=C apt-cache policy "${names[@]}" 2>/dev/null |
            awk '/^[^ ]/ { name = $1; sub(/:$/, "", name) }
                 $1 == "Candidate:" && $2 != "(none)" { print name, $2 }'
    )
    missing=() unavailable=()
    for need in "$@"; do
        for alternative in ${need//|/ }; do
            name=${alternative%%>=*}
            oldest=${alternative:${#name}}
            oldest=${oldest#>=}
            version=${installed[$name]:-}
            [[ -n $version ]] && is_sufficient "$version" "$oldest" && continue 2
            version=${offered[$name]:-}
            if [[ -n $version ]] && is_sufficient "$version" "$oldest"; then
                [[ " ${missing[*]} " == *" $name "* ]] || missing+=("$name")
                continue 2
            fi
        done
        unavailable+=("$need")
    done
}

# as_root <command>...
as_root() {
    if ((EUID == 0)); then "$@"; else sudo "$@"; fi
}

# print_needs <need>...
print_needs() {
    printf '%s\n' "Needed are, by Debian's names," '' "$(told_of "$@" | sed 's/^/    /')" '' \
        "When you have them, go on with" '' "    TARNIVAL_PACKAGES=present $0" >&2
}

# install_missing <need>...: brings what choose_packages found missing, or says why it cannot.
install_missing() {
    if ((EUID != 0)) && ! command -v sudo >/dev/null; then
        {
            echo "Some packages are missing, and there is no sudo. As root, run"
            printf '\n    %s\n' "apt-get update"
            ((${#missing[@]} == 0)) || printf '    %s\n' "apt-get install --no-install-recommends ${missing[*]}"
            printf '\n%s\n' "and then this again."
        } >&2
        return 1
    fi
    # A list that cannot be renewed, such as that of a source that is gone, need not be one that matters.
    as_root apt-get -q update || say "Going on with the lists of packages that are here"
    choose_packages "$@"
    if ((${#unavailable[@]} > 0)); then
        printf '%s\n' "apt offers this system nothing for" '' "$(told_of "${unavailable[@]}" | sed 's/^/    /')" '' >&2
        print_needs "$@"
        return 1
    fi
    ((${#missing[@]} > 0)) || return 0
    say "Installing: ${missing[*]}"
    # env stands behind sudo, which would drop the variable. The time limit lets another package manager finish
    # first.
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq install --yes --no-install-recommends \
        -o DPkg::Lock::Timeout=300 "${missing[@]}"
}

package_state() { stat -c '%i %Y %s' /var/lib/dpkg/status 2>/dev/null || true; }

# ensure_packages <list>...: installs what is missing, or fails. Nothing is looked at where TARNIVAL_PACKAGES says
# that all is present.
# A stamp keeps the needs and the state of the package database, so that nothing is asked while neither has changed.
ensure_packages() {
    local stamp needs before
    [[ ${TARNIVAL_PACKAGES:-} == present ]] && return
    stamp=build/.packages$(printf -- '-%s' "$@")
    mapfile -t needs < <(needs_of "$@")
    [[ -f $stamp && $(<"$stamp") == "${needs[*]} $(package_state)" ]] && return

    if ! is_apt_system; then
        echo "apt does not manage this system, so nothing is installed here." >&2
        print_needs "${needs[@]}"
        return 1
    fi
    choose_packages "${needs[@]}"
    if ((${#missing[@]} + ${#unavailable[@]} > 0)); then
        before=$(package_state)
        install_missing "${needs[@]}" || return 1
        # What the other lists asked for is still there.
        find build -maxdepth 1 -name '.packages-*' -exec sed -i "s/ $before\$/ $(package_state)/" {} +
    fi
    echo "${needs[*]} $(package_state)" >"$stamp"
}
