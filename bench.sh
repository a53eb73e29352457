#!/usr/bin/env bash
# Builds and runs the benchmarks: prints a table and writes out/bench.csv.
#
# Arguments go to the benchmark program: names of workloads, or --growth for the short form that checks how times grow
# with sizes instead of the times themselves. The exit code is 2 when a line exceeds its limit by more than a quarter.
# Where the machine has two cores, the program and the Wine server share one and the X server has the other, which makes
# the times repeatable.
set -euo pipefail
export quor_name=bench
# shellcheck source=tools/lib.sh
source "$(dirname "$0")/tools/lib.sh"

main() {
    [[ ${1:-} != -h && ${1:-} != --help ]] || refuse_options "$1"
    "$quor_root/tools/setup.sh"
    "$quor_root/tools/build.sh" mingw-release bench
    "$quor_root/tools/wine-prefix.sh" desktop >/dev/null
    mkdir -p "$quor_root/out"
    say "running the benchmarks"
    if [[ $(nproc) -ge 2 ]]; then
        export QUOR_PROGRAM_CORE=0 QUOR_DISPLAY_CORE=1
    fi
    local code=0
    "$quor_root/tools/run-under-wine.sh" "$quor_build/mingw-release/bin/bench.exe" \
        --csv "$(windows_path "$quor_root/out/bench.csv")" "$@" || code=$?
    [[ $code != 0 && $code != 2 ]] || say "wrote out/bench.csv"
    return "$code"
}

main "$@"
