# shellcheck shell=bash disable=SC2154 # names from lib.sh and lib-wine.sh
# What Wine's prefixes hold: the settings of the one that all others are copied from, and of each copy. Sourced after
# lib-wine.sh.

# A font as the registry keeps it, 11 pixels high at 96 dots per inch: logfont WEIGHT FACE.
logfont() {
    local text='f5,ff,ff,ff,00,00,00,00,00,00,00,00,00,00,00,00' i
    printf -v text '%s,%02x,%02x,00,00,00,00,00,00,00,00,00,22' "$text" $(($1 % 256)) $(($1 / 256))
    for ((i = 0; i < 32; ++i)); do
        printf -v text '%s,%02x,00' "$text" "'${2:i:1}"
    done
    printf 'hex:%s' "$text"
}

# Every measure of windows. Wine takes most of them from the fonts that it finds while it makes its first prefix, and
# where it finds none it keeps what comes out: menu bars of 2 138 869 749 pixels cover the windows. Pixels at 96 dots per
# inch, which Wine scales for the others.
window_metrics() {
    local name
    printf '[HKEY_CURRENT_USER\\Control Panel\\Desktop\\WindowMetrics]\n'
    printf '"%s"="%s"\n' BorderWidth 1 PaddedBorderWidth 0 CaptionWidth 18 CaptionHeight 18 SmCaptionWidth 15 \
        SmCaptionHeight 15 MenuWidth 18 MenuHeight 18 ScrollWidth 17 ScrollHeight 17 IconSpacing -1125 \
        IconVerticalSpacing -1125 IconTitleWrap 1 MinWidth 154 MinHorzGap 0 MinVertGap 0 MinArrange 0
    printf '"CaptionFont"=%s\n' "$(logfont 700 'MS Shell Dlg')"
    for name in SmCaption Menu Status Message Icon; do
        printf '"%sFont"=%s\n' "$name" "$(logfont 400 'MS Shell Dlg')"
    done
}

template_settings() {
    printf 'REGEDIT4\n\n'
    window_metrics
    # A program that crashes ends at once; a window about it would wait for somebody to close it.
    printf '\n[HKEY_CURRENT_USER\\Software\\Wine\\WineDbg]\n"ShowCrashDialog"=dword:00000000\n'
}

prefix_settings() {
    local dpi=$1 desktop=$2 hex
    printf -v hex '%08x' "$dpi"
    printf 'REGEDIT4\n\n'
    printf '[%s]\n"LogPixels"=dword:%s\n\n' \
        'HKEY_CURRENT_USER\Control Panel\Desktop' "$hex" \
        'HKEY_CURRENT_USER\Software\Wine\Fonts' "$hex" \
        'HKEY_CURRENT_CONFIG\Software\Fonts' "$hex"
    [[ -z $desktop ]] ||
        printf '[HKEY_CURRENT_USER\\Software\\Wine\\Explorer]\n"Desktop"="varno"\n
[HKEY_CURRENT_USER\\Software\\Wine\\Explorer\\Desktops]\n"varno"="%s"\n' "$desktop"
}

# Wine's own libraries are by far most of a prefix and never change, so a copy shares them where the file system can.
copy_template() {
    local system32=drive_c/windows/system32 to=$1
    mkdir -p -- "$to/$system32"
    cp -al -- "$wine_template/$system32/." "$to/$system32/" 2>/dev/null ||
        cp -a -- "$wine_template/$system32/." "$to/$system32/"
    (cd -- "$wine_template" && tar --exclude="./$system32" -cf - .) | tar -xf - -C "$to"
}

# make_prefix FOLDER DPI DESKTOP: a copy of the template, unless it is there.
make_prefix() {
    local to=$1 settings prefixes
    prefixes=$(dirname -- "$1")
    mkdir -p -- "$prefixes"
    exec 7>"$prefixes/lock"
    flock 7
    if [[ ! -d $to ]]; then
        rm -rf --one-file-system -- "$to.new"
        copy_template "$to.new"
        settings=$to.new/settings.reg
        prefix_settings "$2" "$3" >"$settings"
        DISPLAY='' WINEPREFIX=$to.new in_world wine regedit /S "$(windows_path "$settings")"
        WINEPREFIX=$to.new in_world wineserver -w
        mv -- "$to.new" "$to"
    fi
    exec 7>&-
}

stop_prefix() {
    # -k fails where no server runs, which is as good.
    ! WINEPREFIX=$1 in_world wineserver -k 2>/dev/null || WINEPREFIX=$1 in_world wineserver -w
}
