# shellcheck shell=bash disable=SC2154 # lib.sh and packages.sh give the names
# Makes the Debian root that Wine runs in where the machine has no Wine of its own. Sourced after lib-wine.sh.

# "URI|file of sources that names it" of every mirror that the machine takes packages of a release from.
mirrors_of() {
    local name
    for name in Release Codename; do
        apt-get indextargets --format '$(REPO_URI)|$(SOURCESENTRY)' 'Created-By: Packages' 'Component: main' "$name: $1"
    done
}

# The first of the machine's mirrors that carries the root's release: one that it takes that release from, or one that
# it takes its own from, as a mirror carries more than one.
machine_mirror() {
    local own
    # shellcheck source=/dev/null
    own=$(source /etc/os-release && printf '%s' "${VERSION_CODENAME:-}")
    { mirrors_of "$wine_root_suite" && { [[ -z $own ]] || mirrors_of "$own"; }; } | grep -v '^cdrom:' | head -n 1
}

# What apt does not tell of a source: the keys that the machine trusts in the file that the source stands in, and whether
# it does without. The archive's own keys also cover the releases that the machine itself does not use. A key that stands
# in the file itself has no name to hand on.
source_options() {
    local file=$1 key keys=()
    while read -r key; do
        [[ ! -f $key ]] || keys+=("$key")
    done < <(
        grep -oiE 'signed-by[:=] *[^]#]*' "$file" | grep -oE '/[^], ]+' | sort -u
        printf '%s\n' /usr/share/keyrings/debian-archive-keyring.gpg
    )
    ((${#keys[@]} == 0)) || printf ' signed-by=%s' "$(IFS=, && printf '%s' "${keys[*]}")"
    ! grep -qiE '^[^#]*\btrusted[:=] *yes' "$file" || printf ' trusted=yes'
}

# The machine's proxies and the like, which hold for this download too, as lines of apt's configuration.
machine_apt_options() {
    apt-config dump --no-empty --format '%f "%v";%n' Acquire |
        grep -E '^Acquire::(https?|ftp|Retries|ForceIPv4|Check-Valid-Until|AllowInsecureRepositories)\b' || true
}

# The root is made under another name and renamed when it is complete, so that one that was interrupted is made again.
make_wine_root() {
    local uri='' entry='' options new=$wine_root.new apt_options
    need_packages "${wine_root_tools[@]}"
    [[ ! -d $wine_root ]] || return 0
    IFS='|' read -r uri entry < <(machine_mirror) || true
    [[ -n $uri ]] || fail "the apt sources of this machine name no mirror to take the 32-bit Wine from. Install one that" \
        "runs 32-bit programs, shows windows and prints (Debian: wine, wine32 and libcups2 of the architecture i386)"
    options="[arch=i386$(source_options "${entry%:*}")]"

    say "Making a root with 32-bit Wine of $wine_root_suite from $uri (800 MB, in $wine_root)"
    as_root rm -rf --one-file-system -- "$new"
    mkdir -p -- "$cache"
    apt_options=$(mktemp)
    machine_apt_options >"$apt_options"
    watched wine-root root_progress as_root mmdebstrap --verbose --architectures=i386 --variant=essential \
        --format=directory --aptopt="$apt_options" \
        --include="$(IFS=, && printf '%s' "${wine_root_packages[*]}")" \
        --dpkgopt=force-unsafe-io --dpkgopt='path-exclude=/usr/share/man/*' --dpkgopt='path-exclude=/usr/share/doc/*' \
        --dpkgopt='path-exclude=/usr/share/locale/*' \
        "$wine_root_suite" "$new" "deb $options $uri $wine_root_suite ${wine_root_components//,/ }" ||
        fail "the Wine root could not be made. Install a Wine that runs 32-bit programs instead (Debian: wine, wine32)"
    rm -f -- "$apt_options"
    as_root chown -R "$(id -u):$(id -g)" "$new"
    # Instead of Debian's script, which looks for the server in the machine's own /usr.
    ln -sf wineserver32 "$new/usr/lib/wine/wineserver"
    mv -- "$new" "$wine_root"
}

# mmdebstrap tells its steps on lines that begin with "I: ", and apt and dpkg what they fetch and unpack.
root_progress() {
    local line packages=0
    while IFS= read -r line; do
        case $line in
            'I: '*) progress "${line#I: }" ;;
            'Unpacking '*) progress "unpacking $((++packages)) of about 160 packages" ;;
            'Setting up '*) progress "setting up ${line#Setting up }" ;;
        esac
    done
}

# Whether the root can be shown to a program as its file system.
root_can_be_shown() {
    set_world root
    in_world true 2>/dev/null
}

link_wine_loader() {
    local loader=$wine_root/usr/lib/i386-linux-gnu/ld-linux.so.2
    # A link that is left from another root leads nowhere.
    [[ ! -e $wine_loader_link ]] || return 0
    say "No program may have a file system view of its own here, so $wine_loader_link is linked to the Wine root"
    as_root ln -sfn "$loader" "$wine_loader_link"
}
