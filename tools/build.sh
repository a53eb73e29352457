#!/usr/bin/env bash
# Builds one variant with Ninja, configuring it when it is new.
#
#   tools/build.sh PRESET [TARGETS...]      for example: tools/build.sh mingw-release gallery
set -euo pipefail
# shellcheck source=lib.sh
source "$(dirname "$0")/lib.sh"

preset=${1:?which preset? mingw-release or mingw-checked}
shift
cd "$quor_root"

# A compiler cache saves rebuilding what another checkout has built, but is never required.
if [[ -z ${CMAKE_CXX_COMPILER_LAUNCHER:-} ]] && command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache
fi

if [[ ! -f build/$preset/build.ninja ]]; then
    mkdir -p "build/$preset"
    say "configuring $preset"
    cmake --preset "$preset" >"build/$preset/configure.log" 2>&1 || {
        cat "build/$preset/configure.log" >&2
        die "configuring $preset failed"
    }
fi

say "building $preset"
if [[ -t 1 ]]; then
    ninja -C "build/$preset" "$@"
else
    # Hundreds of progress lines help nobody who reads a log; what failed does.
    ninja -C "build/$preset" "$@" >"build/$preset/build.log" 2>&1 || {
        grep -v '^\[[0-9]*/[0-9]*\] ' "build/$preset/build.log" >&2
        die "building $preset failed"
    }
fi
