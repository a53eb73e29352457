#!/usr/bin/env bash
# Makes sure a private Wine prefix of this build exists and prints its folder.
#
#   tools/wine-prefix.sh desktop   for programs on the user's own display
#   tools/wine-prefix.sh slot-1    for programs on a virtual display; any name will do
#
# The first call sets Wine up once (about 15 seconds); every further prefix is a cheap copy of that one, which shares
# Wine's unchanging files by hard links. Calls at the same time wait for each other. A prefix gets its name only when it
# is complete, and is made anew when the settings have changed since.
set -euo pipefail
# shellcheck source=lib.sh
source "$(dirname "$0")/lib.sh"

# What prefixes are made from; each remembers it in a file of its own.
settings_stamp() {
    cat "$quor_root"/tools/wine-prefix.sh "$quor_root"/tools/*.reg | cksum
}

is_current() {
    [[ $(cat "$quor_wine_home/$1/quor-settings" 2>/dev/null) == "$stamp" ]]
}

fail() {
    die "$1; is the disk full? Nothing of it is kept for the next try (details: ${quor_wine_home#"$quor_root"/}/setup.log)"
}

# Runs a Wine program in a prefix, without display and apart from the caller's streams.
wine_quietly() {
    local prefix=$1
    shift
    env -u DISPLAY WINEPREFIX="$prefix" timeout 300 "$(wine_loader)" "$@" \
        </dev/null >>"$quor_wine_home/setup.log" 2>&1 9>&-
}

stop_server() {
    WINEPREFIX=$1 wineserver -k 9>&- || true
    WINEPREFIX=$1 wineserver -w 9>&-
}

import_settings() {
    wine_quietly "$1" regedit /S "$(windows_path "$quor_root/tools/$2")" || fail "Wine does not take the settings of $2"
}

# Title bars and scroll bars draw their symbols with Marlett. The Wine of Debian 12 does not look where Debian keeps its
# fonts, so it shows the letters 0, 1 and r instead, unless the font is in the prefix itself. The other fonts stay where
# they are: texts are as wide on a machine that has them as on one that has not.
add_symbol_font() {
    local folder=$1/drive_c/windows/Fonts font
    for font in /usr/share/wine/fonts/marlett.ttf /opt/wine-*/share/wine/fonts/marlett.ttf; do
        if [[ -f $font ]]; then
            mkdir -p "$folder"
            cp "$font" "$folder/"
            return
        fi
    done
}

# Puts a finished prefix into its place.
publish() {
    local name=$1
    echo "$stamp" >"$quor_wine_home/$name.new/quor-settings"
    if [[ -d $quor_wine_home/$name ]]; then
        stop_server "$quor_wine_home/$name"
        rm -rf "${quor_wine_home:?}/$name"
    fi
    mv "$quor_wine_home/$name.new" "$quor_wine_home/$name"
}

create_desktop_prefix() {
    local fresh=$quor_wine_home/desktop.new
    ! is_current desktop || return 0
    say "setting up Wine in ${quor_wine_home#"$quor_root"/} (once)" >&2
    rm -rf "$fresh"
    wine_quietly "$fresh" wineboot -i || fail "Wine's own set-up failed"
    import_settings "$fresh" wine-settings.reg
    add_symbol_font "$fresh"
    stop_server "$fresh"
    # Wine reports success when it could not write all of its files, too.
    [[ -s $fresh/system.reg && -s $fresh/drive_c/windows/system32/kernel32.dll ]] || fail "Wine's own set-up is incomplete"
    publish desktop
}

# The registry files change with every run and are copied; Wine's own modules are shared.
create_slot_prefix() {
    local fresh=$quor_wine_home/$1.new
    ! is_current "$1" || return 0
    rm -rf "$fresh"
    # Not every file system has hard links.
    cp -al "$quor_wine_home/desktop" "$fresh" 2>/dev/null || { rm -rf "$fresh" && cp -a "$quor_wine_home/desktop" "$fresh"; }
    local file
    for file in "$fresh"/*.reg; do
        cp --remove-destination "$quor_wine_home/desktop/${file##*/}" "$file"
    done
    rm "$fresh/quor-settings"
    import_settings "$fresh" wine-unmanaged.reg
    stop_server "$fresh"
    publish "$1"
}

main() {
    local name=$1 stamp
    stamp=$(settings_stamp)
    if ! is_current "$name"; then
        mkdir -p "$quor_wine_home" 2>/dev/null || die "cannot write to $quor_wine_home"
        wine_loader >/dev/null || die "Wine is missing; tools/setup.sh installs it"
        set_wine_environment
        exec 9>"$quor_wine_home/setup.lock"
        flock 9
        create_desktop_prefix
        [[ $name == desktop ]] || create_slot_prefix "$name"
    fi
    echo "$quor_wine_home/$name"
}

refuse_options "$@"
[[ $# == 1 ]] || die "which prefix? desktop or slot-N"
main "$1"
