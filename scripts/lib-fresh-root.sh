# shellcheck shell=bash disable=SC2154 # names from lib.sh and fresh-machine
# The empty root of fresh-machine: made, entered, left and removed. Sourced after lib-wine-root.sh.

# The machine's mirror for the release, as one line of sources, with the keys that it is checked against.
release_source() {
    local uri entry
    IFS='|' read -r uri entry < <(wine_root_suite=$release machine_mirror) || true
    [[ -n $uri ]] || fail "the apt sources of this machine name no mirror that carries $release"
    printf 'deb [%s] %s %s main' "$(source_options "${entry%:*}" | sed 's/^ //')" "$uri" "$release"
}

make_root() {
    local apt_options
    say "Making a root of $release in $root"
    [[ ! -e $root ]] || drop_root
    apt_options=$(mktemp)
    machine_apt_options >"$apt_options"
    logged fresh-root as_root mmdebstrap --variant=apt --include="git${compiled:+,ccache}" --format=directory --aptopt="$apt_options" \
        "$release" "$root" "$(release_source)" || fail "the root could not be made"
    rm -f -- "$apt_options"
    # The keys' paths are the machine's; in the root its own keyring serves.
    as_root sed -i 's/^deb \[[^]]*\]/deb/' "$root/etc/apt/sources.list"
    as_root cp -L -- /etc/resolv.conf /etc/hosts "$root/etc/"
    as_root sh -c "rm -rf '$root/var/lib/apt/lists/'* '$root/var/cache/apt/archives/'*.deb"
    [[ -z $compiled ]] || mkdir -p -- "$compiled"
    as_root mkdir -p -- "$root/ccache"
    clone_project
    [[ $views != broken ]] || {
        printf '#!/bin/sh\nexit 1\n' | as_root tee "$root/usr/local/bin/bwrap" >/dev/null
        as_root chmod +x "$root/usr/local/bin/bwrap"
    }
}

# With the root's own git, out of one file, as a root may see nothing of the machine.
clone_project() {
    git -C "$project" bundle create --quiet "$folder/varno.bundle" HEAD
    as_root mv -- "$folder/varno.bundle" "$root/varno.bundle"
    as_root chroot "$root" git -c advice.detachedHead=false clone --quiet /varno.bundle /varno
    as_root rm -- "$root/varno.bundle"
}

# The machine's own environment is none of the root's business.
root_environment=(
    env -i HOME=/root USER=root LANG=C.UTF-8 PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin
)

enter_root() {
    [[ -z $compiled ]] || root_environment+=(CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_DIR=/ccache
        CCACHE_SLOPPINESS=pch_defines,time_macros)
    [[ $views != yes ]] || return 0
    [[ -z $compiled ]] || as_root mount --bind "$compiled" "$root/ccache"
    as_root mount -t proc proc "$root/proc"
    as_root mount -t tmpfs tmpfs "$root/dev/shm" 2>/dev/null || true
    as_root mount -t devpts -o newinstance,ptmxmode=666 devpts "$root/dev/pts" 2>/dev/null || true
}

# in_root COMMAND LINE. A root that is only changed into cannot show its programs a file system of their own, as it is
# not the file system that the kernel knows; one that is a whole view can.
in_root() {
    local shared=()
    if [[ $views == yes ]]; then
        [[ -z $compiled ]] || shared=(--bind "$compiled" /ccache)
        as_root bwrap --dev-bind "$root" / "${shared[@]}" --dev /dev --proc /proc --unshare-pid --die-with-parent --cap-add ALL \
            -- "${root_environment[@]}" bash -c "$1"
    else
        as_root chroot "$root" "${root_environment[@]}" bash -c "$1"
    fi
}

install_wine() {
    local recommended=()
    [[ $own_wine == complete ]] || recommended=(--no-install-recommends)
    say "Installing a Wine of the root's own, $own_wine"
    logged fresh-wine in_root "dpkg --add-architecture i386 && apt-get update --quiet &&
        DEBIAN_FRONTEND=noninteractive apt-get install --yes --quiet ${recommended[*]} wine wine32:i386" ||
        fail "the root's own Wine could not be installed"
}

# Ends what is left of our own processes in the root, and takes its mounts away.
leave_root() {
    local process place
    for process in /proc/[0-9]*; do
        [[ $(as_root readlink "$process/root" 2>/dev/null) != "$root" ]] || as_root kill -KILL "${process##*/}" || true
    done
    for place in ccache dev/pts dev/shm proc; do
        ! mountpoint -q "$root/$place" || as_root umount "$root/$place" || as_root umount -l "$root/$place"
    done
}

drop_root() {
    ! grep -q " $root/" /proc/mounts || fail "something is still mounted in $root"
    as_root rm -rf --one-file-system -- "$root"
}
