# shellcheck shell=bash disable=SC2154 # names from lib.sh
# Runs GoogleTest programs and counts what they report. Sourced after lib.sh.

passed=0
failed=0
repeated=() # the tests that passed only when they were run again
most_repeated=5

# The number of tests and of those that failed in a GoogleTest report. A test that was skipped or disabled counts as failed and is named.
count_report() {
    awk '
        function endOfTest() {
            if (name != "") {
                ++tests
                if (bad) ++failures
            }
            name = ""
            bad = 0
        }
        # The text of a failure may hold anything.
        inText { inText = !/\]\]>/; next }
        /<!\[CDATA\[/ { inText = !/\]\]>/ }
        /^ *<testcase / {
            endOfTest()
            match($0, / name="[^"]*"/)
            name = substr($0, RSTART + 7, RLENGTH - 8)
            if ($0 !~ / result="completed"/) {
                bad = 1
                print "FAILED: " name " was not run" >"/dev/stderr"
            }
        }
        /^ *<failure / { bad = 1 }
        END {
            endOfTest()
            print tests + 0, failures + 0
        }' "$1"
}

# The names of the tests that failed in a GoogleTest report, as a filter takes them.
failed_tests() {
    awk '
        function part(key) {
            match($0, " " key "=\"[^\"]*\"")
            return substr($0, RSTART + length(key) + 3, RLENGTH - length(key) - 4)
        }
        inText { inText = !/\]\]>/; next }
        /<!\[CDATA\[/ { inText = !/\]\]>/ }
        /^ *<testcase / { name = part("classname") "." part("name") }
        /^ *<failure / && !(name in seen) { seen[name] = 1; printf "%s%s", separator, name; separator = ":" }' "$1"
}

# run_tests LABEL SECONDS COMMAND...: runs a test program in a folder of its own and adds up its tests. A program that
# crashes, hangs or reports nothing is one more failure.
run_tests() {
    local label=$1 limit=$2 status=0 tests=0 failures=0 report=$project/build/test-results/$1/result.xml
    shift 2
    say "Tests: $label"
    report_of "$report" "$limit" "$@" || status=$?
    if [[ -s $report ]]; then
        read -r tests failures < <(count_report "$report")
    fi
    # Of few tests only the first parts have some.
    if ((tests == 0 && (status != 0 || ${GTEST_SHARD_INDEX:-0} == 0))); then
        note_failure "$label ran no tests (exit code $status)"
    elif ((status != 0 && failures == 0)); then
        note_failure "$label ended with exit code $status"
    fi
    if [[ ${repeats:-no} == yes ]] && ((failures > 0 && failures <= most_repeated)); then
        repeat_failed "$label" "$limit" "$(failed_tests "$report")" "$@"
    fi
    passed=$((passed + tests - failures))
    failed=$((failed + failures))
    say "$label: $((tests - failures)) passed, $failures failed"
}

# report_of REPORT SECONDS COMMAND...
report_of() {
    local report=$1 limit=$2 folder=${1%/*}
    shift 2
    rm -rf -- "$folder"
    mkdir -p -- "$folder"
    # In the background, so that a signal to this shell is heard at once: see end_started.
    (cd -- "$folder" && exec timeout --kill-after=10 "$limit" "$@" --gtest_brief=1 --gtest_output=xml:result.xml </dev/null) &
    wait "$!"
}

# Real windows on a machine that others share: a click can be lost for reasons of the machine's. A few failed tests are
# run once more, alone; what passes then counts, and the end of the run names it, so that it is looked into.
repeat_failed() {
    local label=$1-again limit=$2 names=$3 again=0 name report
    shift 3
    report=$project/build/test-results/$label/result.xml
    say "Once more: $names"
    report_of "$report" "$limit" env -u GTEST_TOTAL_SHARDS -u GTEST_SHARD_INDEX "$@" --gtest_filter="$names" || true
    [[ -s $report ]] || return 0
    again=":$(failed_tests "$report"):"
    for name in ${names//:/ }; do
        if [[ $again != *":$name:"* ]] && grep -q " name=\"${name#*.}\".* result=\"completed\"" "$report"; then
            failures=$((failures - 1))
            repeated+=("$name")
        fi
    done
}

# in_shards NAME COUNT COMMAND...: runs COMMAND that many times at once, each with its share of the tests of every
# program that it runs, and adds up what they report.
in_shards() {
    local name=$1 count=$2 index shards=() counts
    shift 2
    mkdir -p -- "$logs"
    for ((index = 0; index < count; ++index)); do
        rm -f -- "$logs/$name-$index.sum"
        run_shard "$logs/$name-$index.sum" "$count" "$index" "$@" >"$logs/$name-$index.log" 2>&1 &
        shards+=("$!")
    done
    for ((index = 0; index < count; ++index)); do
        wait "${shards[index]}" || true
        cat -- "$logs/$name-$index.log"
        if [[ ! -s $logs/$name-$index.sum ]]; then
            note_failure "$name-$index did not come to its end"
            continue
        fi
        read -r -a counts <"$logs/$name-$index.sum"
        passed=$((passed + counts[0]))
        failed=$((failed + counts[1]))
        repeated+=("${counts[@]:2}")
    done
}

run_shard() {
    local sum=$1
    export GTEST_TOTAL_SHARDS=$2 GTEST_SHARD_INDEX=$3
    shift 3
    passed=0
    failed=0
    repeated=()
    trap 'end_started; exit 143' TERM
    trap 'drop_own_wine_home; drop_own_printer' EXIT
    "$@"
    echo "$passed $failed ${repeated[*]}" >"$sum"
}

# A program that was started in the background does not hear Ctrl+C.
end_started() {
    local jobs
    jobs=$(jobs -p)
    # shellcheck disable=SC2086 # one word for each
    [[ -z $jobs ]] || { kill $jobs 2>/dev/null && wait $jobs 2>/dev/null; } || true
}

# Something other than a test went wrong, which must not be lost in the sum.
note_failure() {
    printf 'FAILED: %s\n' "$1" >&2
    failed=$((failed + 1))
}

# close_tests STATUS: the closing line, whatever ended the run. Nothing tested is a failure too.
close_tests() {
    local status=$1
    if ((failed == 0 && (status != 0 || passed == 0))); then
        failed=1
    fi
    ((${#repeated[@]} == 0)) || say "Passed only when they were run again (what failed first stands above): ${repeated[*]}"
    printf '%d passed, %d failed\n' "$passed" "$failed"
    ((failed == 0)) || exit 1
}
