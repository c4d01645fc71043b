# shellcheck shell=bash disable=SC2154 # lib.sh and packages.sh give the names
# Makes the Debian root that Wine runs in where the machine has no Wine of its own. Sourced after lib-wine.sh.

# "URI|signed by|trusted" of the first of the machine's apt sources that carries the root's release, or nothing. Both
# of apt's formats are read: one line each, and paragraphs of fields.
machine_mirror() {
    local file files=()
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list /etc/apt/sources.list.d/*.sources; do
        [[ ! -f $file ]] || files+=("$file")
    done
    awk -v suite="$wine_root_suite" '
        function endOfSource() {
            if ((" " types " ") ~ / deb / && index(" " suites " ", " " suite " ") && enabled != "no" && uri != "" && !found) {
                print uri "|" signed "|" trusted
                found = 1
            }
            types = suites = uri = signed = trusted = enabled = ""
        }
        FNR == 1 { endOfSource() }
        /^[ \t]*#/ { next }
        FILENAME ~ /\.sources$/ {
            if ($0 ~ /^[ \t]*$/) endOfSource()
            name = tolower($1)
            value = $0
            sub(/^[^ \t]*[ \t]*/, "", value)
            if (name == "types:") types = value
            if (name == "uris:") uri = $2
            if (name == "suites:") suites = value
            if (name == "signed-by:") signed = value
            if (name == "trusted:") trusted = value
            if (name == "enabled:") enabled = value
            next
        }
        $1 == "deb" {
            line = $0
            options = ""
            if (match(line, /\[[^]]*\]/)) {
                options = substr(line, RSTART + 1, RLENGTH - 2)
                line = substr(line, 1, RSTART - 1) substr(line, RSTART + RLENGTH)
            }
            split(line, word, /[ \t]+/)
            count = split(options, option, /[ \t]+/)
            types = "deb"
            uri = word[2]
            suites = word[3]
            for (i = 1; i <= count; ++i) {
                if (option[i] ~ /^signed-by=/) signed = substr(option[i], 11)
                if (option[i] ~ /^trusted=/) trusted = substr(option[i], 9)
            }
            endOfSource()
        }
        END { endOfSource() }' "${files[@]}" /dev/null
}

# The machine's proxies and the like, which hold for this download too, as lines of apt's configuration.
machine_apt_options() {
    apt-config dump --no-empty --format '%f "%v";%n' Acquire |
        grep -E '^Acquire::(https?|ftp|Retries|ForceIPv4|Check-Valid-Until|AllowInsecureRepositories)\b' || true
}

# The root is made under another name and renamed when it is complete, so that one that was interrupted is made again.
make_wine_root() {
    local uri='' signed='' trusted='' options='' new=$wine_root.new apt_options
    need_packages "${wine_root_tools[@]}"
    [[ ! -d $wine_root ]] || return 0
    IFS='|' read -r uri signed trusted < <(machine_mirror) || true
    # A key that stands in the sources file itself has no name to hand on; apt's own keyrings serve then.
    [[ $signed != /* ]] || options+=" signed-by=$signed"
    [[ $trusted != yes ]] || options+=" trusted=yes"
    [[ -n $uri ]] || fail "the apt sources of this machine name no Debian mirror to take the 32-bit Wine from"

    say "Making a root with 32-bit Wine from $uri (800 MB, in $wine_root)"
    as_root rm -rf --one-file-system -- "$new"
    mkdir -p -- "$cache"
    apt_options=$(mktemp)
    machine_apt_options >"$apt_options"
    as_root mmdebstrap --architectures=i386 --variant=essential --format=directory --aptopt="$apt_options" \
        --include="$(IFS=, && printf '%s' "${wine_root_packages[*]}")" \
        --dpkgopt='path-exclude=/usr/share/man/*' --dpkgopt='path-exclude=/usr/share/doc/*' \
        --dpkgopt='path-exclude=/usr/share/locale/*' \
        "$wine_root_suite" "$new" "deb [arch=i386$options] $uri $wine_root_suite main" </dev/null ||
        fail "the Wine root could not be made. Install a Wine that runs 32-bit programs instead (Debian: wine, wine32)"
    rm -f -- "$apt_options"
    as_root chown -R "$(id -u):$(id -g)" "$new"
    # Instead of Debian's script, which looks for the server in the machine's own /usr.
    ln -sf wineserver32 "$new/usr/lib/wine/wineserver"
    mv -- "$new" "$wine_root"
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
