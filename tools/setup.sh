#!/usr/bin/env bash
# Installs what building and testing needs and this machine lacks, through apt. Does nothing when all is there.
#
#   tools/setup.sh            what ./demo.sh and ./test.sh need
#   tools/setup.sh --checks   what only the checks of .ci/run need, too
set -euo pipefail
# shellcheck source=lib.sh
source "$(dirname "$0")/lib.sh"

# Each line: the Debian package, then the commands or files of which any shows that it is there.
requirements() {
    cat <<'LIST'
g++ g++
g++-mingw-w64-x86-64-posix x86_64-w64-mingw32-g++-posix
wine wineserver
wine64 /usr/lib/wine/wine64 /usr/lib/x86_64-linux-gnu/wine/wine64 wine64
fonts-wine /usr/share/wine/fonts/marlett.ttf /opt/wine-stable/share/wine/fonts/marlett.ttf
xvfb Xvfb
ninja-build ninja
cmake cmake
googletest /usr/src/googletest/CMakeLists.txt
fonts-wqy-microhei /usr/share/fonts/truetype/wqy/wqy-microhei.ttc
imagemagick convert
LIST
}

check_requirements() {
    cat <<'LIST'
clang clang++
clang-format clang-format-14 clang-format
clang-tidy clang-tidy
python3-clang /usr/lib/python3/dist-packages/clang/__init__.py
shellcheck shellcheck
doxygen doxygen
hunspell hunspell
hunspell-en-gb /usr/share/hunspell/en_GB.dic
xdotool xdotool
LIST
}

is_there() {
    local evidence
    for evidence in "$@"; do
        if [[ -e $evidence ]] || command -v "$evidence" >/dev/null; then
            return 0
        fi
    done
    return 1
}

wanted() {
    requirements
    [[ $with_checks == 0 ]] || check_requirements
}

missing_packages() {
    local package evidence
    while read -r package evidence; do
        # shellcheck disable=SC2086 # A list of words.
        is_there $evidence || echo "$package"
    done < <(wanted)
}

# How to become root, without ever asking a question where nobody can answer it.
as_root() {
    if [[ $EUID -eq 0 ]]; then
        "$@"
    elif [[ -t 0 ]]; then
        sudo -- "$@"
    else
        sudo -n -- "$@"
    fi
}

require_installer() {
    command -v apt-get >/dev/null || die "no apt-get here; please install what these Debian packages hold: ${packages[*]}"
    [[ $EUID -eq 0 ]] || command -v sudo >/dev/null || die "not root and no sudo; please run as root: $by_hand"
    as_root true 2>/dev/null || die "sudo refuses; please run: sudo $by_hand"
}

apt() {
    as_root env DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 apt-get -qq "$@" </dev/null >>"$log" 2>&1
}

# The package lists of a fresh machine are empty or old, so a first failure only means that they need a refresh.
install_packages() {
    apt install -y --no-install-recommends "${packages[@]}" ||
        { apt update && apt install -y --no-install-recommends "${packages[@]}"; }
}

# The complaint of apt that names the cause: what it could not fetch, or else its last one.
cause() {
    grep -m 1 '^E: Failed to fetch' "$log" || grep -E '^(E|dpkg):' "$log" | tail -n 1
}

main() {
    local packages log by_hand with_checks=0
    [[ ${1:-} != --checks ]] || { with_checks=1 && shift; }
    refuse_options "$@"
    [[ $# == 0 ]] || die "what is '$1'? (--help lists what there is)"
    mapfile -t packages < <(missing_packages)
    [[ ${#packages[@]} -gt 0 ]] || return 0

    by_hand="apt-get install --no-install-recommends ${packages[*]}"
    require_installer
    say "installing ${packages[*]}"
    mkdir -p "$quor_build" || die "cannot write to $quor_build"
    log=$quor_build/install.log
    : >"$log"
    install_packages ||
        die "apt could not install (see ${log#"$quor_root"/}): $(cause); is there a network? By hand: sudo $by_hand"

    mapfile -t packages < <(missing_packages)
    [[ ${#packages[@]} -eq 0 ]] || die "still missing although apt installed it: ${packages[*]}"
}

main "$@"
