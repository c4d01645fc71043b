# shellcheck shell=bash disable=SC2034,SC2154 # names for the scripts that source this file, names from lib.sh
# A printer of one's own: a CUPS with its own folders and socket, which needs no service manager and disturbs neither the
# machine's CUPS nor another run of these scripts. Sourced after lib.sh and lib-wine.sh.

# The folder is short-lived and its path short: a socket's may not be longer than 107 bytes. Wine's root shows /tmp.
printer_folders=/tmp/varno-print-

# Starts CUPS with an A4 PostScript printer and points to it: CUPS_SERVER for whoever prints, and VARNO_TEST_PRINTS, the
# folder (as a Windows program sees it) that the prints come out in; what lies there is told in print-backend.
take_own_printer() {
    local folder part
    # What was killed could not clean up after itself.
    find /tmp -maxdepth 1 -name "${printer_folders##*/}*" -user "$(id -u)" -mmin +1440 \
        -exec rm -rf --one-file-system -- {} +
    folder=$(mktemp -d "${printer_folders}XXXXXX")
    own_printer_folder=$folder
    # CUPS runs the filters of a job as a user of its own, who has to come in.
    chmod 711 -- "$folder"
    mkdir -m 755 -- "$folder"/{bin,bin/backend,etc,spool,cache,state,tmp,prints}
    for part in cgi-bin daemon filter driver monitor notifier; do
        ln -s -- "/usr/lib/cups/$part" "$folder/bin/$part"
    done
    # A backend that only its owner may run is run as root when CUPS is; it has to write into our folder.
    install -m 700 -- "$scripts/print-backend" "$folder/bin/backend/print"
    write_cups_settings "$folder"
    # A copy, as AppArmor lets the one in its place read the machine's own settings only.
    cp -- /usr/sbin/cupsd "$folder/cupsd"
    # It goes when this shell does, even when that is killed.
    setpriv --pdeathsig TERM "$folder/cupsd" -f -c "$folder/etc/cupsd.conf" -s "$folder/etc/cups-files.conf" \
        >"$folder/cupsd.log" 2>&1 </dev/null 8>&- 9>&- &
    own_printer=$!
    CUPS_SERVER=$folder/socket
    VARNO_TEST_PRINTS=$(windows_path "$folder/prints")
    export CUPS_SERVER VARNO_TEST_PRINTS
    # The words before a command that is to find no printer. Wine keeps those that it once found.
    without_printer=(
        env -u VARNO_TEST_PRINTS CUPS_SERVER="$folder/no-socket"
        VARNO_WINE_HOME="${VARNO_WINE_HOME:-$wine_home}/without-printer"
    )
    { wait_for_cups && add_printer "$folder/prints"; } || printer_failed
}

write_cups_settings() {
    local folder=$1
    cat >"$folder/etc/cups-files.conf" <<END
ServerRoot $folder/etc
RequestRoot $folder/spool
CacheDir $folder/cache
StateDir $folder/state
ServerBin $folder/bin
TempDir $folder/tmp
AccessLog $folder/access.log
ErrorLog $folder/error.log
PageLog $folder/page.log
SystemGroup root
END
    # Whoever reaches the socket may do everything.
    cat >"$folder/etc/cupsd.conf" <<END
Listen $folder/socket
LogLevel info
MaxLogSize 0
Browsing No
DefaultAuthType None
DefaultPaperSize A4
<Location />
Order allow,deny
Allow all
</Location>
<Policy default>
<Limit All>
Order deny,allow
</Limit>
</Policy>
END
}

wait_for_cups() {
    local tries
    for ((tries = 0; tries < 300; ++tries)); do
        [[ $(LC_ALL=C lpstat -r 2>/dev/null) != 'scheduler is running' ]] || return 0
        kill -0 "$own_printer" 2>/dev/null || return 1
        sleep 0.1
    done
    return 1
}

# The generic PostScript printer of CUPS leaves a margin that cannot be printed on, as real ones do.
add_printer() {
    lpadmin -p PDF -E -v "print:$1" -m drv:///sample.drv/generic.ppd -o PageSize=A4 2>/dev/null &&
        lpadmin -d PDF
}

printer_failed() {
    cat -- "$own_printer_folder"/{cupsd,error}.log >&2 2>/dev/null || true
    fail "CUPS could not be started, so nothing can be printed; what it said stands above"
}

drop_own_printer() {
    [[ -n ${own_printer_folder:-} ]] || return 0
    if [[ -n ${own_printer:-} ]]; then
        kill "$own_printer" 2>/dev/null || true
        wait "$own_printer" 2>/dev/null || true
    fi
    rm -rf --one-file-system -- "$own_printer_folder"
}
