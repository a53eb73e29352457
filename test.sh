#!/usr/bin/env bash
# Builds both variants (plain and checked) and runs every test in both; ends with the summary of the test runner.
#
#   ./test.sh          all tests
#   ./test.sh NAME     those whose name matches the regular expression NAME, for example grid or checked.framework
set -euo pipefail
export quor_name=test
# shellcheck source=tools/lib.sh
source "$(dirname "$0")/tools/lib.sh"

# One list over the tests of both build trees, so that there is one run and one summary.
write_test_list() {
    mkdir -p "$quor_build/tests"
    printf 'subdirs("%s" "%s")\n' "$quor_build/mingw-release" "$quor_build/mingw-checked" \
        >"$quor_build/tests/CTestTestfile.cmake"
}

main() {
    "$quor_root/tools/setup.sh"
    "$quor_root/tools/build.sh" mingw-release
    "$quor_root/tools/build.sh" mingw-checked
    "$quor_root/tools/wine-prefix.sh" desktop >/dev/null
    write_test_list
    say "running the tests"
    cd "$quor_build/tests"
    exec ctest --output-on-failure --no-tests=error --parallel "$(nproc)" ${1:+--tests-regex "$1"}
}

main "$@"
