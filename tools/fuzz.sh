#!/usr/bin/env bash
# Uses the controls at random, for as long as you like: messages, public operations, and hosts that veto, change, begin
# anew and destroy. After each step rows, columns, trees, selections, editors and captures are checked against each other.
#
#   tools/fuzz.sh                              all controls, 100,000 steps each, in the checked variant
#   tools/fuzz.sh --steps 10000000             a long run
#   tools/fuzz.sh --variant plain ...          without assertions and guard allocator: faster, and what users get
#   tools/fuzz.sh --control drag-tree --seed 7 --steps 866      the same steps again
#   tools/fuzz.sh --native 600                 the collections, the rules and the clipboard formats, 600 seconds each, with
#                                              clang's fuzzer and sanitizers, without Wine
#
# Controls: grid, tree-rows, tree-grid, headers, editors, drag-tree, properties, list, select-all. --control may be given
# several times. The seed decides everything: nothing depends on time, mouse or keyboard. Steps are done in runs of
# --chunk N (20000), each a process of its own with the next seed.
#
# A crash, a failed assertion, a leak, a step of a minute and a state that contradicts itself are failures. A failure is
# shrunk to the few steps that it needs (not with --no-shrink), which are then printed with what they do and with what
# the platform's own control makes of them: a fault of the platform fails there too. --only 3,7-9 does just these steps,
# --talk says what they do, --bare uses the platform's own control, --compare-runs does all twice and compares the
# states.
set -euo pipefail
# shellcheck source=lib.sh
source "$(dirname "$0")/lib.sh"

native_targets=(List Owner Rules Cells)
native_tree=$quor_build/fuzz-native

run_in_wine() {
    local preset=mingw-checked
    [[ $variant == checked ]] || preset=mingw-release
    "$quor_root/tools/build.sh" "$preset" fuzz
    "$quor_root/tools/run-under-wine.sh" "$quor_build/$preset/bin/fuzz.exe" "$@"
}

build_target() {
    local sources=("$quor_root/tests/fuzz/native/$1Target.cpp")
    [[ $1 != Rules && $1 != Cells ]] || sources+=("$quor_root"/rules/*.cpp "$quor_root"/framework/src/propertyrules/*.cpp)
    clang++ -std=c++20 -g -O1 -Wall -Wextra -fsanitize=fuzzer,address,undefined -fno-sanitize-recover=all \
        -I"$quor_root" -I"$quor_root/framework/src" "${sources[@]}" -o "$native_tree/$1"
}

# What was interesting in an earlier run is where the next one begins.
run_natively() {
    local seconds=$1 target
    command -v clang++ >/dev/null || die "clang is missing; tools/setup.sh --checks installs it"
    for target in "${native_targets[@]}"; do
        mkdir -p "$native_tree/corpus/$target"
        say "building $target"
        build_target "$target" || die "$target does not build"
        say "running $target for $seconds s"
        "$native_tree/$target" -max_total_time="$seconds" -max_len=3000 -timeout=30 -print_final_stats=1 \
            -artifact_prefix="$native_tree/$target-" "$native_tree/corpus/$target" 2>"$native_tree/$target.log" ||
            { tail -n 60 "$native_tree/$target.log" >&2 && die "$target failed"; }
        grep -E '^Done|number_of_executed_units' "$native_tree/$target.log"
    done
}

main() {
    local variant=checked arguments=() has_steps=0
    while [[ $# -gt 0 ]]; do
        case $1 in
            -h | --help) print_manual && exit 0 ;;
            --native) run_natively "${2:-60}" && exit 0 ;;
            --variant) variant=${2:?checked or plain} && shift ;;
            --steps) has_steps=1 && arguments+=("$1") ;;
            *) arguments+=("$1") ;;
        esac
        shift
    done
    [[ $variant == checked || $variant == plain ]] || die "which variant? checked or plain"
    [[ $has_steps == 1 ]] || arguments+=(--steps 100000)
    run_in_wine "${arguments[@]}"
}

main "$@"
