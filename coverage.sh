#!/usr/bin/env bash
# Tells which lines and branches of the library and the framework the tests run, under Wine: a table with a line for
# each folder. Fails when a folder stays below its limit.
#
#   ./coverage.sh                builds what counts, runs all tests, prints the table; takes many minutes
#   ./coverage.sh --report       only the table, of the last run
#   ./coverage.sh --missing      the table, and each line and branch that no test runs, with the reason where there is one
#   ./coverage.sh --write-docs   the table goes into docs/RELIABILITY.md as well
#
# The reasons stand in tools/coverage/unrun.tsv. What is measured is not optimised, and the tests run one after another,
# because all of them write into the same counts.
set -euo pipefail
export quor_name=coverage
# shellcheck source=tools/lib.sh
source "$(dirname "$0")/tools/lib.sh"

run_tests() {
    "$quor_root/tools/setup.sh"
    "$quor_root/tools/build.sh" mingw-coverage
    "$quor_root/tools/wine-prefix.sh" desktop >/dev/null
    find "$quor_build/mingw-coverage" -name '*.gcda' -delete
    say "running the tests"
    ctest --test-dir "$quor_build/mingw-coverage" --output-on-failure --no-tests=error --quiet ||
        die "tests failed; see $quor_build/mingw-coverage/Testing/Temporary/LastTest.log"
}

main() {
    local -a wanted=()
    case ${1:-} in
        --report) ;;
        --missing | --write-docs) wanted=("$1") ;;
        '') run_tests ;;
        *) refuse_options "$1" && die "what is '$1'? (--help tells more)" ;;
    esac
    exec python3 -B "$quor_root/tools/coverage.py" "${wanted[@]}" "$quor_build/mingw-coverage"
}

main "$@"
