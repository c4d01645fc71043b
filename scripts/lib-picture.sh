# shellcheck shell=bash
# Pictures of a display, and whether anything is on them.

# Through standard output, as ImageMagick reads more than a path out of a file name.
photograph() { import -window root png:- >"$1"; }

# shows_something PICTURE WIDTHxHEIGHT+X+Y: whether that part of a picture is there and has more than one colour.
shows_something() {
    local colours
    colours=$(convert - -crop "$2" +repage -format '%k' info: <"$1" 2>/dev/null) || return 1
    [[ $colours =~ ^[0-9]+$ ]] && ((colours > 1))
}
