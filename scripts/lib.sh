# shellcheck shell=bash disable=SC2034 # names for the scripts that source this file
# Shared by the project's scripts: where things lie, messages, progress, and the installing of packages.

project=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
scripts=$project/scripts
logs=$project/build/logs
# How long the last whole ./test took, for the table of ./bench.
test_seconds=$project/build/test-seconds
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

# How far the thing is that is being done. On a terminal it is one line that is written over; elsewhere, in a log, it
# would be a line a moment, so that one comes only now and then.
progress() {
    if [[ -t 1 ]]; then
        printf '\r   %s\e[K' "$1"
    elif ((SECONDS >= ${progress_due:-0})); then
        printf '   %s\n' "$1"
        progress_due=$((SECONDS + 10))
    fi
}

end_progress() { [[ ! -t 1 ]] || printf '\r\e[K'; }

# watched LOG FILTER COMMAND...: runs a command whose output goes to a log, through a filter that tells from its lines
# how far it is. When it fails, the end of the log is shown.
watched() {
    local log=$logs/$1.log filter=$2 status=0
    shift 2
    mkdir -p -- "$logs"
    "$@" 2>&1 </dev/null | tee -- "$log" | "$filter" || status=${PIPESTATUS[0]}
    end_progress
    ((status == 0)) || show_log "$log"
    return "$status"
}

# logged LOG COMMAND...: the same for a command that does not tell how far it is.
logged() {
    local log=$logs/$1.log status=0
    shift
    mkdir -p -- "$logs"
    "$@" >"$log" 2>&1 </dev/null || status=$?
    ((status == 0)) || show_log "$log"
    return "$status"
}

show_log() {
    printf 'The end of %s:\n' "$1" >&2
    # Ninja's steps that went well say nothing about the one that did not, nor do apt's percentages.
    grep -avE '^\[[0-9]+/[0-9]+\] |^(dl|pm)status:' -- "$1" | tail -n 150 | sed 's/^/    /' >&2
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

# apt reports "dlstatus:1:23.4:..." while it downloads and "pmstatus:PACKAGE:45.6:..." while it installs.
apt_progress() {
    local kind percent
    while IFS=: read -r kind _ percent _; do
        case $kind in
            dlstatus) progress "downloading: ${percent%.*} %" ;;
            pmstatus) progress "installing: ${percent%.*} %" ;;
        esac
    done
}

apt_install() {
    watched packages apt_progress as_root env DEBIAN_FRONTEND=noninteractive apt-get install --yes --quiet \
        --no-install-recommends -o DPkg::Lock::Timeout=600 -o APT::Status-Fd=1 "$@"
}

apt_update() {
    say "Updating apt's package index"
    logged package-index as_root apt-get update --quiet
}

# Installs those of the packages that are missing. Packages are asked for by name, not by the command they bring: a
# command of the same name may be something else.
need_packages() {
    local package missing=()
    command -v apt-get >/dev/null ||
        fail "this set-up knows Debian's apt-get only. Needed here are the counterparts of Debian's packages: $*"
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    ((${#missing[@]})) || return 0

    if [[ $(id -u) != 0 ]] && ! command -v sudo >/dev/null; then
        fail "packages are missing and there is no sudo. As root: apt-get install ${missing[*]}"
    fi
    compgen -G '/var/lib/apt/lists/*_Packages*' >/dev/null || apt_update || true
    say "Installing ${#missing[@]} packages and what they need: ${missing[*]}"
    # An index that is out of date shows as a failed install.
    apt_install "${missing[@]}" || {
        apt_update
        apt_install "${missing[@]}"
    } || fail "these packages could not be installed: ${missing[*]}"
}
