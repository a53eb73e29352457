#!/usr/bin/env bash
# Builds the tests and runs them; ends with the summary of the test runner.
#
#   ./test.sh            all tests of the plain variant, and those that are built for this machine
#   ./test.sh --all      all tests, in the checked variant too: assertions, checked containers, traps, guarded memory
#   ./test.sh NAME       those whose name matches the regular expression NAME, for example grid
#   ./test.sh --all NAME likewise in both variants, for example checked.framework
set -euo pipefail
export quor_name=test
# shellcheck source=tools/lib.sh
source "$(dirname "$0")/tools/lib.sh"

# One list over the tests of all build trees, so that there is one run and one summary.
write_test_list() {
    mkdir -p "$quor_build/tests"
    printf 'subdirs("%s")\n' "${presets[@]/#/"$quor_build"/}" >"$quor_build/tests/CTestTestfile.cmake"
}

main() {
    local preset presets=(native mingw-release)
    if [[ ${1:-} == --all ]]; then
        presets+=(mingw-checked)
        shift
    fi
    refuse_options "$@"
    [[ $# -le 1 ]] || die "one NAME only (--help tells more)"

    "$quor_root/tools/setup.sh"
    for preset in "${presets[@]}"; do
        "$quor_root/tools/build.sh" "$preset"
    done
    "$quor_root/tools/wine-prefix.sh" desktop >/dev/null
    write_test_list
    say "running the tests"
    cd "$quor_build/tests"
    exec ctest --output-on-failure --no-tests=error --parallel "$(nproc)" ${1:+--tests-regex "$1"}
}

main "$@"
