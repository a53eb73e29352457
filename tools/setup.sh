#!/usr/bin/env bash
# Installs what building and testing needs and this machine lacks, through apt. Does nothing when all is there.
set -euo pipefail
# shellcheck source=lib.sh
source "$(dirname "$0")/lib.sh"

# Each line: the Debian package, then the command or file that shows it is there.
requirements() {
    cat <<'LIST'
g++-mingw-w64-x86-64-posix x86_64-w64-mingw32-g++-posix
wine wine
wine64 /usr/lib/wine/wine64
xvfb Xvfb
ninja-build ninja
cmake cmake
googletest /usr/src/googletest/CMakeLists.txt
fonts-wqy-microhei /usr/share/fonts/truetype/wqy/wqy-microhei.ttc
imagemagick /usr/bin/convert
LIST
}

missing_packages() {
    local package evidence
    while read -r package evidence; do
        [[ -e $evidence ]] || command -v "$evidence" >/dev/null || echo "$package"
    done < <(requirements)
}

# How to become root, without ever asking a question where nobody can answer it.
as_root() {
    if [[ $EUID -eq 0 ]]; then
        "$@"
    elif [[ -t 0 ]]; then
        sudo "$@"
    else
        sudo -n "$@"
    fi
}

can_install() {
    command -v apt-get >/dev/null && { [[ $EUID -eq 0 ]] || command -v sudo >/dev/null; }
}

apt_install() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -qq -y --no-install-recommends "$@" </dev/null
}

main() {
    local packages log
    mapfile -t packages < <(missing_packages)
    [[ ${#packages[@]} -gt 0 ]] || return 0

    can_install || die "please install these packages: ${packages[*]}"
    say "installing ${packages[*]}"
    mkdir -p "$quor_build"
    log=$quor_build/install.log
    # The package lists of a fresh machine are empty or old, so a first failure only means they need a refresh.
    apt_install "${packages[@]}" >"$log" 2>&1 ||
        { as_root apt-get update -qq </dev/null >>"$log" 2>&1 && apt_install "${packages[@]}" >>"$log" 2>&1; } ||
        die "could not install; please install these packages: ${packages[*]} (details: $log)"

    mapfile -t packages < <(missing_packages)
    [[ ${#packages[@]} -eq 0 ]] || die "still missing after installation: ${packages[*]}"
}

main
