#!/usr/bin/env bash
# Makes sure a private Wine prefix of this build exists and prints its folder.
#
#   tools/wine-prefix.sh desktop   for programs on the user's own display
#   tools/wine-prefix.sh slot-1    for programs on a virtual display; any name will do
#
# The first call sets Wine up once (about 15 seconds); every further prefix is a cheap copy of that one, which shares
# Wine's unchanging files by hard links. Calls at the same time wait for each other.
set -euo pipefail
# shellcheck source=lib.sh
source "$(dirname "$0")/lib.sh"

# Runs a Wine program in a prefix, without display and apart from the caller's streams.
wine_quietly() {
    local prefix=$1
    shift
    env -u DISPLAY WINEPREFIX="$prefix" "$(wine_loader)" "$@" </dev/null >>"$quor_wine_home/setup.log" 2>&1 9>&-
}

stop_server() {
    WINEPREFIX=$1 wineserver -k 9>&- || true
    WINEPREFIX=$1 wineserver -w 9>&-
}

import_settings() {
    wine_quietly "$1" regedit /S "$(windows_path "$quor_root/tools/$2")"
}

create_desktop_prefix() {
    local target=$quor_wine_home/desktop fresh=$quor_wine_home/desktop.new
    [[ ! -d $target ]] || return 0
    say "setting up Wine in build/wine (once)" >&2
    rm -rf "$fresh"
    wine_quietly "$fresh" wineboot -i
    import_settings "$fresh" wine-settings.reg
    stop_server "$fresh"
    mv "$fresh" "$target"
}

# The registry files change with every run and are copied; Wine's own modules are shared.
create_slot_prefix() {
    local target=$quor_wine_home/$1 fresh=$quor_wine_home/$1.new
    [[ ! -d $target ]] || return 0
    rm -rf "$fresh"
    # Not every file system has hard links.
    cp -al "$quor_wine_home/desktop" "$fresh" 2>/dev/null || { rm -rf "$fresh" && cp -a "$quor_wine_home/desktop" "$fresh"; }
    local file
    for file in "$fresh"/*.reg; do
        cp --remove-destination "$quor_wine_home/desktop/${file##*/}" "$file"
    done
    import_settings "$fresh" wine-unmanaged.reg
    stop_server "$fresh"
    mv "$fresh" "$target"
}

main() {
    local name=$1
    if [[ ! -d $quor_wine_home/$name ]]; then
        mkdir -p "$quor_wine_home"
        set_wine_environment
        exec 9>"$quor_wine_home/setup.lock"
        flock 9
        create_desktop_prefix
        [[ $name == desktop ]] || create_slot_prefix "$name"
    fi
    echo "$quor_wine_home/$name"
}

main "${1:?which prefix? desktop or slot-N}"
