# shellcheck shell=bash disable=SC2154 # names from lib.sh
# Runs GoogleTest programs and counts what they report. Sourced after lib.sh.

passed=0
failed=0

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

# run_tests LABEL SECONDS COMMAND...: runs a test program in a folder of its own and adds up its tests. A program that
# crashes, hangs or reports nothing is one more failure.
run_tests() {
    local label=$1 limit=$2 status=0 folder tests=0 failures=0
    shift 2
    folder=$project/build/test-results/$label
    rm -rf -- "$folder"
    mkdir -p -- "$folder"
    say "Tests: $label"
    (cd -- "$folder" && timeout --kill-after=10 "$limit" "$@" --gtest_brief=1 --gtest_output=xml:result.xml </dev/null) ||
        status=$?
    if [[ -s $folder/result.xml ]]; then
        read -r tests failures < <(count_report "$folder/result.xml")
    fi
    if ((tests == 0)); then
        note_failure "$label ran no tests (exit code $status)"
    elif ((status != 0 && failures == 0)); then
        note_failure "$label ended with exit code $status"
    fi
    passed=$((passed + tests - failures))
    failed=$((failed + failures))
    say "$label: $((tests - failures)) passed, $failures failed"
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
    printf '%d passed, %d failed\n' "$passed" "$failed"
    ((failed == 0)) || exit 1
}
