# shellcheck shell=bash disable=SC2154 # names from lib.sh
# Building, and the work folder that the program is started in. Sourced after lib.sh.

# build_preset PRESET OPTIONS TARGETS: configures one of the presets of CMakePresets.json and builds targets of it; the
# last two are names of arrays, and no target stands for all. Two builds in the same folders would break each other, so
# ./run waits for ./test here.
build_preset() {
    mkdir -p -- "$project/build"
    exec 8>"$project/build/lock"
    flock 8
    local status=0
    build_preset_alone "$@" 8>&- || status=$?
    exec 8>&-
    return "$status"
}

build_preset_alone() {
    local preset=$1 folder=$project/build/$1
    local -n build_options=$2 build_targets=$3
    # CMake refuses the cache of a checkout that has been moved.
    if [[ -f $folder/CMakeCache.txt ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$project" "$folder/CMakeCache.txt"; then
        rm -rf --one-file-system -- "$folder"
    fi
    say "Building: $preset"
    progress "configuring"
    (cd -- "$project" && logged "configure-$preset" cmake --preset "$preset" "${build_options[@]}") || return 1
    watched "build-$preset" ninja_progress cmake --build "$folder" ${build_targets:+--target "${build_targets[@]}"}
}

# Ninja's lines begin with "[12/84] ".
ninja_progress() {
    local line
    while IFS= read -r line; do
        [[ ! $line =~ ^\[([0-9]+)/([0-9]+)\] ]] || progress "building ${BASH_REMATCH[1]} of ${BASH_REMATCH[2]}"
    done
}

# What a build folder was configured with stands, as a change would build everything anew: an option of CMake with the
# folder's value, or this one where it has none.
kept_or() {
    local cached
    cached=$(sed -n "s/^$2:[A-Z]*=//p" "$project/build/$1/CMakeCache.txt" 2>/dev/null || true)
    printf -- '-D%s=%s' "$2" "${cached:-$3}"
}

# The path of a program that was built for Windows.
windows_program() {
    local path
    path=$(find "$project/build/windows" -name "$1" -type f -print -quit)
    [[ -n $path ]] || fail "the build left no $1"
    printf '%s' "$path"
}

# Puts a file in place in one step: a copy may be running.
refresh() {
    cp -- "$1" "$2.new"
    mv -f -- "$2.new" "$2"
}

# Windows takes HUS1.IND and hus1.ind for the same file.
has_file() { [[ -n $(find "$1" -maxdepth 1 -iname "$2" -print -quit) ]]; }

# Makes or refreshes a folder that varno.exe can be started in. Programs are replaced; the cases and the default case
# that already lie there are the user's own and stay as they are.
prepare_work_folder() {
    local folder=$1 file name program
    mkdir -p -- "$folder"
    for name in varno.exe varnowb.exe; do
        program=$(windows_program "$name")
        refresh "$program" "$folder/$name"
    done
    refresh_help "$folder"
    for file in "$project"/samples/*.IND "$project"/samples/varno.def; do
        name=${file##*/}
        [[ -f $file ]] || fail "samples/$name is missing"
        has_file "$folder" "$name" || cp -- "$file" "$folder/$name"
    done
    write_varno_ini "$folder"
}

# The program looks for Varno.HLP, and for its HTML twin in a folder named help, in the work folder and beside itself.
refresh_help() {
    local built=$project/build/windows/help name
    for name in Varno.HLP Varno.cnt; do
        [[ -f $built/$name ]] || fail "the build left no $name"
        refresh "$built/$name" "$1/$name"
    done
    mkdir -p -- "$1/help"
    cp -R -- "$built/html/." "$1/help/"
}

# The quotation marks keep a folder with a comma whole; the program reads single bytes.
write_varno_ini() {
    printf '"%s"\r\n' "$(windows_path "$1")" | iconv -f UTF-8 -t WINDOWS-1252 >"$1/varno.ini.new" ||
        fail "the folder's name has letters that Windows-1252 lacks: $1"
    mv -f -- "$1/varno.ini.new" "$1/varno.ini"
}
