# shellcheck shell=bash disable=SC2154 # names from lib.sh
# What ./test --long does besides ./test. Sourced after lib-tests.sh.
#
# A step is a line of this table: its name, and a command, which is started in the project's folder. It goes well when its
# exit code is zero; what it measured it prints on lines that begin with "FIGURE: ", which are shown again at the end.
long_steps=(
    'killed-saves                scripts/long-kill-saves 200'
    'random-use                  scripts/long-soak 1800'
    'fuzzing                     scripts/long-fuzz 60'
    'lint                        scripts/long-lint'
    'fresh-debian-12             scripts/fresh-machine bookworm --ccache build/fresh-machine/ccache'
    'fresh-debian-12-bwrap       scripts/fresh-machine bookworm --bwrap --ccache build/fresh-machine/ccache'
    'fresh-debian-12-wine        scripts/fresh-machine bookworm --wine complete --ccache build/fresh-machine/ccache'
    'fresh-debian-12-half-a-wine scripts/fresh-machine bookworm --wine incomplete --ccache build/fresh-machine/ccache'
    'fresh-debian-13             scripts/fresh-machine trixie'
    'display-with-a-manager      scripts/try-window manager'
    'display-without-a-manager   scripts/try-window none'
)
long_figures=()

run_long_tests() {
    local step name command known=" "
    for step in "${long_steps[@]}"; do
        known+="${step%% *} "
    done
    for name in "${chosen_steps[@]}"; do
        [[ $known == *" $name "* ]] || fail "there is no step $name; there are:$known"
    done
    for step in "${long_steps[@]}"; do
        read -r name command <<<"$step"
        ((${#chosen_steps[@]} == 0)) || [[ " ${chosen_steps[*]} " == *" $name "* ]] || continue
        run_long_step "$name" "$command"
    done
    say "Figures of the long steps"
    ((${#long_figures[@]} == 0)) || printf '   %s\n' "${long_figures[@]}"
}

run_long_step() {
    local name=$1 log=$logs/long-$1.log status=0 figure words
    read -r -a words <<<"$2"
    say "Long step: $name ($2)"
    mkdir -p -- "$logs"
    (cd -- "$project" && "${words[@]}") </dev/null 2>&1 | tee -- "$log" || status=${PIPESTATUS[0]}
    while IFS= read -r figure; do
        long_figures+=("$name: ${figure#FIGURE: }")
    done < <(grep '^FIGURE: ' "$log" || true)
    if ((status == 0)); then
        passed=$((passed + 1))
    else
        note_failure "$name ended with exit code $status"
    fi
}
