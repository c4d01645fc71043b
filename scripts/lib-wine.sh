# shellcheck shell=bash disable=SC2034,SC2154 # names for the scripts that source this file, names from lib.sh
# Which Wine is used, and how a command is run in it. Sourced after lib.sh.
#
# A `wine` on the PATH that runs a 32-bit program comes first. Otherwise Wine lives in a Debian root of its own in the
# cache folder: the machine's apt cannot be asked for 32-bit packages without adding an architecture to it, which some
# mirrors do not carry. Where the machine lets no program have a file system view of its own (many containers), the
# programs of the root are run as they lie, which takes one link in the machine's /lib, to their loader.

wine_root_key=$(printf '%s\n' "$wine_root_suite" "${wine_root_packages[@]}" | sha256sum | cut -c1-12)
wine_root=$cache/wine-root-$wine_root_key
# Where 32-bit programs look for their loader.
wine_loader_link=/lib/ld-linux.so.2

# Holds the locales, the prefix that all others are copied from, and those copies. They are made anew when what makes
# or checks them has changed.
wine_home=$cache/wine-$(
    { printf '%s' "$wine_root_key" && cat -- "$scripts"/{wine-setup,lib-wine-prefix.sh,wine-check.cpp}; } |
        sha256sum | cut -c1-12
)
wine_template=$wine_home/template
wine_locales=(sv_SE.UTF-8 en_US.UTF-8)
# "root", "bare" (the root, run as it lies), or "host" and the version of the machine's own Wine. Written last of all by wine-setup.
wine_choice_file=$wine_home/choice

export WINEDEBUG=${WINEDEBUG:--all}
# No .NET and no browser engine, which would be downloaded; nothing is written into the desktop's own menus.
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=;winemenubuilder.exe=d}
# The locales are the project's own, so that the machine need not have them. Wine takes its number signs from them.
export LOCPATH=$wine_home/locale

host_wine_version() {
    command -v wine >/dev/null && command -v wineserver >/dev/null && wine --version 2>/dev/null
}

# set_world CHOICE: sets `world`, the words to put before one of Wine's commands.
set_world() {
    world=()
    case $1 in
        root) set_root_world ;;
        bare)
            world=(
                env PATH="$wine_root/usr/lib/wine:$PATH" LD_LIBRARY_PATH="$wine_root/usr/lib/i386-linux-gnu"
                FONTCONFIG_SYSROOT="$wine_root" I18NPATH="$wine_root/usr/share/i18n"
            )
            ;;
    esac
    # Root may write to files that are read-only; a program under test must meet them as everybody else does.
    if [[ $(id -u) == 0 ]] && setpriv --bounding-set=-dac_override true 2>/dev/null; then
        world=(setpriv --bounding-set=-dac_override "${world[@]}")
    fi
}

# The Wine root as the file system, with all of the machine's folders that the root has none of its own of. Every call
# shows the same folders, because files are opened by the Wine server, which the first program starts for all later ones.
set_root_world() {
    local folder target
    world=(
        bwrap
        --ro-bind "$wine_root/usr" /usr --ro-bind "$wine_root/etc" /etc --ro-bind "$wine_root/var" /var
        --symlink usr/bin /bin --symlink usr/sbin /sbin --symlink usr/lib /lib
        --dev-bind /dev /dev --bind /proc /proc --ro-bind /sys /sys
    )
    for folder in /*; do
        case $folder in
            /bin | /boot | /lib* | /sbin | /usr | /etc | /var | /dev | /proc | /sys) continue ;;
        esac
        if [[ -L $folder ]]; then
            world+=(--symlink "$(readlink -- "$folder")" "$folder")
        elif [[ -d $folder ]]; then
            world+=(--bind "$folder" "$folder")
        fi
    done
    for folder in "$project" "$cache" "$PWD"; do
        target=$(realpath -- "$folder")
        case $target in
            /boot/* | /lib*/* | /usr/* | /etc/* | /var/*) world+=(--bind "$target" "$target") ;;
        esac
    done
    world+=(--chdir "$(realpath -- "$PWD")" --)
}

# Runs a command under the locks of descriptors 7 and 9, which the Wine server, living on after its caller, must not
# inherit.
in_world() { "${world[@]}" "$@" </dev/null 7>&- 9>&-; }

wine_is_set_up() {
    local choice
    [[ -f $wine_choice_file ]] || return 1
    choice=$(cat -- "$wine_choice_file")
    case $choice in
        root) [[ -d $wine_root ]] && command -v bwrap >/dev/null ;;
        bare) [[ -d $wine_root && -e $wine_loader_link ]] ;;
        *) [[ $choice == "host $(host_wine_version)" ]] ;;
    esac
}

# The packages that setting up Wine takes besides, so that they come with the others: apt's own work takes longest.
wine_packages() {
    wine_is_set_up || {
        if host_wine_version >/dev/null; then
            printf '%s\n' "${host_wine_packages[@]}"
        else
            printf '%s\n' "${wine_root_tools[@]}"
        fi
    }
}

# Sets Wine up while something else is being done, building for one: neither needs the other. Where a password may be
# asked for it is done at once.
begin_wine_setup() {
    wine_setup=
    wine_is_set_up && return 0
    if [[ $(id -u) != 0 ]] && ! sudo -n true 2>/dev/null; then
        "$scripts/wine-setup"
        return
    fi
    mkdir -p -- "$logs"
    say "Setting up Wine meanwhile"
    "$scripts/wine-setup" >"$logs/wine-setup.log" 2>&1 </dev/null &
    wine_setup=$!
}

# Waits for the end of it and says what there is to say.
end_wine_setup() {
    local log=$logs/wine-setup.log status=0
    [[ -n $wine_setup ]] || return 0
    while kill -0 "$wine_setup" 2>/dev/null; do
        progress "Wine: $(tail -n 1 -- "$log" | sed 's/^[= ]*//')"
        sleep 0.2
    done
    end_progress
    wait "$wine_setup" || status=$?
    grep -E '^(==|FAILED)' -- "$log" || true
    ((status == 0)) || fail "Wine could not be set up; $log tells more"
}

# Gives the programs started from here on a folder of prefixes of their own, gone when the caller calls the second.
# It lies in the cache for the sake of the file system: Wine's libraries are shared with the template there.
take_own_wine_home() {
    mkdir -p -- "$wine_home"
    # What was killed could not clean up after itself.
    find "$wine_home" -maxdepth 1 -name 'run-*' -mmin +1440 -exec rm -rf --one-file-system -- {} +
    own_wine_home=$(mktemp -d "$wine_home/run-XXXXXX")
    export VARNO_WINE_HOME=$own_wine_home
}

drop_own_wine_home() {
    [[ -n ${own_wine_home:-} ]] || return 0
    "$scripts/wine" --stop || true
    rm -rf --one-file-system -- "$own_wine_home"
}

# A desktop of 1280 x 800 at 100 %, and as much larger as the scaling asks for.
desktop_size() { printf '%dx%d' $((1280 * $1 / 96)) $((800 * $1 / 96)); }
