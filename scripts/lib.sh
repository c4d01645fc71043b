# shellcheck shell=bash disable=SC2034 # names for the scripts that source this file
# Shared by the project's scripts: where things lie, messages, and the installing of packages.

project=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
scripts=$project/scripts
# Some build machines run without HOME.
: "${HOME:=$(getent passwd "$(id -u)" | cut -d: -f6)}"
export HOME
cache=${XDG_CACHE_HOME:-$HOME/.cache}/varno

# shellcheck source=scripts/packages.sh
source "$scripts/packages.sh"

say() { printf '== %s\n' "$*"; }

fail() {
    printf 'FAILED: %s\n' "$*" >&2
    exit 1
}

# A Unix path as Wine's drive Z: shows it.
windows_path() {
    local path
    path=$(realpath -m -- "$1")
    printf 'Z:%s' "${path//\//\\}"
}

as_root() {
    if [[ $(id -u) == 0 ]]; then
        "$@"
    else
        sudo -- "$@"
    fi
}

is_installed() {
    [[ $(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null) == installed ]]
}

apt_install() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install --yes --quiet --no-install-recommends \
        -o DPkg::Lock::Timeout=600 "$@" </dev/null
}

apt_update() {
    say "Updating apt's package index"
    as_root apt-get update --quiet </dev/null
}

# Installs those of the packages that are missing. Packages are asked for by name, not by the command they bring: a
# command of the same name may be something else.
need_packages() {
    local package missing=()
    command -v apt-get >/dev/null ||
        fail "this set-up knows Debian's apt-get only. Needed here are the counterparts of: $*"
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    ((${#missing[@]})) || return 0

    if [[ $(id -u) != 0 ]] && ! command -v sudo >/dev/null; then
        fail "packages are missing and there is no sudo. As root: apt-get install ${missing[*]}"
    fi
    say "Installing packages: ${missing[*]}"
    compgen -G '/var/lib/apt/lists/*_Packages*' >/dev/null || apt_update
    # An index that is out of date shows as a failed install.
    apt_install "${missing[@]}" || {
        apt_update
        apt_install "${missing[@]}"
    } || fail "these packages could not be installed: ${missing[*]}"
}
