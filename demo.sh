#!/usr/bin/env bash
# Builds and opens the gallery. Without a display it takes a picture of every page instead, into out/gallery.
#
#   ./demo.sh             the gallery with its own data
#   ./demo.sh FILE.csv    the gallery with that table
#
# QUOR_HEADLESS=1 takes the pictures even when there is a display.
set -euo pipefail
export quor_name=demo
# shellcheck source=tools/lib.sh
source "$(dirname "$0")/tools/lib.sh"

gallery=$quor_build/mingw-release/bin/gallery.exe
pictures=$quor_root/out/gallery

open_gallery() {
    say "opening the gallery on display $DISPLAY"
    QUOR_USE_DISPLAY=1 exec "$quor_root/tools/run-under-wine.sh" "$gallery" "$@"
}

# The gallery writes bitmaps; what readers want are PNG files.
convert_pictures() {
    local bitmap
    for bitmap in "$pictures"/*.bmp; do
        [[ -e $bitmap ]] || continue
        convert "$bitmap" "${bitmap%.bmp}.png"
        rm "$bitmap"
    done
}

take_pictures() {
    local picture found=0
    rm -rf "$pictures"
    mkdir -p "$pictures"
    say "no display: taking pictures of the gallery's pages"
    "$quor_root/tools/run-under-wine.sh" "$gallery" "$@" /pictures "$(windows_path "$pictures")"
    convert_pictures
    for picture in "$pictures"/*.png; do
        [[ -e $picture ]] || break
        say "wrote ${picture#"$quor_root"/}"
        found=1
    done
    [[ $found == 1 ]] || die "the gallery wrote no pictures"
}

main() {
    local arguments=()
    refuse_options "$@"
    [[ $# -le 1 ]] || die "one FILE.csv only (--help tells more)"
    if [[ $# == 1 ]]; then
        [[ -e $1 ]] || die "there is no file $1"
        [[ -f $1 && -r $1 ]] || die "cannot read $1"
        arguments=("$(windows_path "$1")")
    fi
    "$quor_root/tools/setup.sh"
    "$quor_root/tools/build.sh" mingw-release gallery
    "$quor_root/tools/wine-prefix.sh" desktop >/dev/null
    if [[ ${QUOR_HEADLESS:-0} != 1 ]] && have_display; then
        open_gallery "${arguments[@]}"
    else
        take_pictures "${arguments[@]}"
    fi
}

main "$@"
