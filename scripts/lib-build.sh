# shellcheck shell=bash disable=SC2154 # names from lib.sh
# Building, and the work folder that the program is started in. Sourced after lib.sh.

# Configures and builds one of the presets of CMakePresets.json. Two builds in the same folders would break each other,
# so ./run waits for ./test here.
build_preset() {
    mkdir -p -- "$project/build"
    exec 8>"$project/build/lock"
    flock 8
    local status=0
    build_preset_alone "$1" 8>&- || status=$?
    exec 8>&-
    return "$status"
}

build_preset_alone() {
    local folder=$project/build/$1 log=$project/build/configure-$1.log
    say "Building: $1"
    # CMake refuses the cache of a checkout that has been moved.
    if [[ -f $folder/CMakeCache.txt ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$project" "$folder/CMakeCache.txt"; then
        rm -rf --one-file-system -- "$folder"
    fi
    if ! (cd -- "$project" && cmake --preset "$1") >"$log" 2>&1; then
        cat -- "$log"
        return 1
    fi
    cmake --build "$folder"
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
