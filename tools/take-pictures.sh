#!/usr/bin/env bash
# Takes the pictures of the documents anew, into docs/pictures: the overview, the pages of the gallery, the style flags.
#
#   tools/take-pictures.sh            all
#   tools/take-pictures.sh gallery    the gallery's pages, and the overview, which is composed of parts of them
#   tools/take-pictures.sh styles     the style flags
#
# Those of the recipes are taken by hand, because each shows what somebody has done there.
set -euo pipefail
# shellcheck source=lib.sh
source "$(dirname "$0")/lib.sh"

gallery=$quor_root/out/gallery
pictures=$quor_root/docs/pictures
work=$quor_build/pictures

# The pages of the gallery that the documents show.
declare -A pages=([grid]=grid-list-open [tree-rows]=tree-rows-edit [tree-grid]=tree-grid-pasted [tree-drag]=tree-drag-item
    [properties]=properties-unfolded [list]=list-lines [sheet]=sheet-range [clipboard]=sheet-pasted
    [undo]=tree-undone)

# The parts of the overview, from the left to the right and down: the page, where its control shows most, what it is.
overview=(
    'grid-list-open     +322+81  TGGrid: tables that people fill in'
    'sheet-range        +156+81  Extensions: cursor, formats, check boxes'
    'tree-grid-pasted   +156+113 TGTreeGrid: groups and items with numbers'
    'tree-drag-item     +156+81  CTreeCtrlDrag: items are dragged'
    'properties-list    +412+48  CMFCPropertyGridCtrlEx: settings by title'
    'list-lines         +156+81  CGridListCtrl: a list, edited in place'
)

# Few colours keep the files small.
shrink() {
    convert "$1" -colors 256 -strip "PNG8:$2"
}

take_gallery_pictures() {
    local page
    QUOR_HEADLESS=1 "$quor_root/demo.sh"
    for page in "${!pages[@]}"; do
        shrink "$gallery/${pages[$page]}.png" "$pictures/$page.png"
    done
}

compose_overview() {
    local part page place text number=0
    for part in "${overview[@]}"; do
        read -r page place text <<<"$part"
        convert "$gallery/$page.png" -crop "384x250$place" +repage -bordercolor '#8a8a8a' -border 1 \
            -background white -fill '#202020' -font "$(caption_font)" -pointsize 15 -gravity southwest -splice 0x26 \
            -annotate +2+4 "$text" "$work/part$number.png"
        number=$((number + 1))
    done
    montage "$work"/part[0-5].png -background white -tile 3x -geometry +7+6 "$work/overview.png"
    shrink "$work/overview.png" "$pictures/overview.png"
    say "wrote docs/pictures/overview.png"
}

caption_font() {
    fc-match -f '%{file}' sans
}

# At the left without the flag, at the right with it.
take_style_pictures() {
    local prefix=$work/prefix bitmap name
    "$quor_root/tools/build.sh" mingw-release QuorUiCtrl QuorFxMain gallery
    cmake --install "$quor_build/mingw-release" --strip --prefix "$prefix" >"$work/log"
    cmake -G Ninja -S "$quor_root/tools/docs/samples" -B "$work/build" \
        --toolchain "$prefix/lib/cmake/QuorUiCtrl/mingw-w64.cmake" >"$work/log"
    ninja -C "$work/build" >"$work/log" || { cat "$work/log" >&2 && die "the program that takes them does not build"; }
    mkdir -p "$work/styles" "$pictures/styles"
    "$quor_root/tools/run-under-wine.sh" "$work/build/StylePictures.exe" "$(windows_path "$work/styles")"
    for bitmap in "$work"/styles/*-without.bmp; do
        name=$(basename "$bitmap" -without.bmp)
        convert "$bitmap" \( "${bitmap%-without.bmp}-with.bmp" -background white -gravity west -splice 16x0 \) +append \
            "$work/pair.png"
        shrink "$work/pair.png" "$pictures/styles/$name.png"
    done
    say "wrote $(find "$pictures/styles" -name '*.png' | wc -l) pictures of style flags"
}

main() {
    local part
    refuse_options "$@"
    "$quor_root/tools/setup.sh"
    [[ $# -gt 0 ]] || set -- gallery styles
    rm -rf "$work"
    mkdir -p "$work"
    for part; do
        case $part in
            gallery) take_gallery_pictures && compose_overview ;;
            styles) take_style_pictures ;;
            *) die "there is no part $part (--help lists what there is)" ;;
        esac
    done
}

main "$@"
