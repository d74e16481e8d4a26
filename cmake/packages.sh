# Installs what packages.txt names. Sourced by the scripts at the top of the tree.
# shellcheck shell=bash

# install_packages USE...: installs the packages of these uses that are missing, as root or with sudo; where it
# can be neither it names them and fails. Says on standard error what it does.
install_packages() {
    command -v dpkg-query >/dev/null || return 0 # another system: what is missing shows in the build

    local architecture use uses=' ' wanted missing as_root=()
    architecture=$(dpkg --print-architecture)
    for use in "$@"; do uses+="$use $use-$architecture "; done
    wanted=$(awk -v uses="$uses" '!/^#/ && index(uses, " " $1 " ") { print $2 }' \
        "$(dirname "${BASH_SOURCE[0]}")/packages.txt" | sort)
    # dpkg-query fails when it does not know one of the names, and still answers for the others.
    # shellcheck disable=SC2086 # one name a word
    missing=$({ dpkg-query -W -f '${db:Status-Abbrev} ${Package}\n' $wanted 2>/dev/null || true; } |
        awk '$1 == "ii" { print $2 }' | sort | comm -13 - <(echo "$wanted") | paste -sd ' ')
    [[ -n $missing ]] || return 0

    if ((EUID != 0)); then
        if ! sudo -n true 2>/dev/null; then
            echo "Please install, as root: apt-get install --no-install-recommends $missing" >&2
            return 1
        fi
        as_root=(sudo -n)
    fi
    echo "Installing $missing" >&2
    local output
    # shellcheck disable=SC2086
    if ! output=$({ "${as_root[@]}" apt-get update -qq &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -qq --no-install-recommends $missing; } 2>&1); then
        echo "$output" >&2
        return 1
    fi
}
