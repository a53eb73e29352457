#!/usr/bin/env bash
# Builds one variant with Ninja, configuring it when it is new.
#
#   tools/build.sh PRESET [TARGETS...]      for example: tools/build.sh mingw-release gallery
#
# PRESET is mingw-release, mingw-checked, mingw-coverage (what coverage.sh needs), or native: the tests of tests/native, for
# this machine.
#
# QUOR_WERROR=1 makes warnings errors. A compiler cache (ccache) is used where there is one, unless CCACHE_DISABLE is set;
# what is compiled is the same with it and without.
set -euo pipefail
# shellcheck source=lib.sh
source "$(dirname "$0")/lib.sh"

# A compiler cache saves rebuilding what another checkout has built, but is never required.
choose_compiler_cache() {
    if [[ -n ${CCACHE_DISABLE:-} ]]; then
        export CMAKE_CXX_COMPILER_LAUNCHER=
    elif [[ -z ${CMAKE_CXX_COMPILER_LAUNCHER:-} ]] && command -v ccache >/dev/null; then
        export CMAKE_CXX_COMPILER_LAUNCHER=ccache
    fi
    # It does not keep what uses precompiled headers unless told that these may be trusted.
    export CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS:-pch_defines,time_macros}
}

configure() {
    [[ ! -f $tree/build.ninja ]] || return 0
    mkdir -p "$tree" || die "cannot write to $tree"
    say "configuring $preset"
    # What a failed attempt has found, or not found, does not count.
    rm -f "$tree/CMakeCache.txt"
    local what=(--preset "$preset")
    [[ $preset != native ]] || what=(-G Ninja -S tests/native)
    cmake "${what[@]}" -B "$tree" ${QUOR_WERROR:+-D "QUOR_WERROR=$QUOR_WERROR"} >"$tree/configure.log" 2>&1 || {
        cat "$tree/configure.log" >&2
        die "configuring $preset failed"
    }
}

build() {
    say "building $preset"
    if [[ -t 1 ]]; then
        ninja -C "$tree" "$@" || die "building $preset failed"
        return
    fi
    # Hundreds of progress lines help nobody who reads a log; what failed does, and what the compiler warns of.
    ninja -C "$tree" "$@" >"$tree/build.log" 2>&1 || {
        grep -v '^\[[0-9]*/[0-9]*\] ' "$tree/build.log" >&2
        die "building $preset failed"
    }
    grep 'warning:' "$tree/build.log" >&2 || true
}

main() {
    refuse_options "$@"
    local preset=${1:-} tree
    [[ $preset =~ ^(mingw-(release|checked|coverage)|native)$ ]] || die "which preset? --help tells"
    shift
    tree=$quor_build/$preset
    cd "$quor_root"
    choose_compiler_cache
    configure
    build "$@"
}

main "$@"
