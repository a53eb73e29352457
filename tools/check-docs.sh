#!/usr/bin/env bash
# Checks the documents: their code compiles against the installed package, their programs and the recipes run, their
# tables say what the sources say, links lead somewhere, words are spelled right, and the reference has no gap.
#
#   tools/check-docs.sh              everything; the reference is then in build/docs/reference/html
#   tools/check-docs.sh --texts      only what needs no compiler: tables, links, version, spelling; in seconds
#   tools/check-docs.sh --reference  only the reference, made by Doxygen from the public headers
#   tools/check-docs.sh --write      writes the tables that are made from the sources
#   tools/check-docs.sh --pictures   also takes a picture of each program, into build/docs/pictures
set -euo pipefail
# shellcheck source=lib.sh
source "$(dirname "$0")/lib.sh"

work=$quor_build/docs
prefix=$work/prefix
headers=$work/headers/include/QuorUiCtrl
tools=$quor_root/tools/docs

# script NAME ARGUMENTS...: runs a script of tools/docs and says what it says; ends when it finds a fault.
script() {
    local name=$1 output code=0
    shift
    output=$(PYTHONDONTWRITEBYTECODE=1 /usr/bin/python3 "$tools/$name.py" "$@" 2>&1) || code=$?
    while IFS= read -r line; do say "$line"; done <<<"$output"
    [[ $code == 0 ]] || exit 1
}

# The headers that the package brings, as hosts include them.
find_headers() {
    rm -rf "$work/headers"
    mkdir -p "$work"
    cmake -DQUOR_SOURCE_DIR="$quor_root" -DCMAKE_INSTALL_PREFIX="$work/headers" -P "$quor_root/cmake/InstallHeaders.cmake" \
        >"$work/headers.log" || { cat "$work/headers.log" >&2 && die "the public headers were not found"; }
    mapfile -t public < <(cd "$headers" && find . -name '*.h' -printf '%P\n' | sort)
}

check_texts() {
    script tables "$quor_root"
    script links "$quor_root"
    script version "$quor_root"
    git -C "$quor_root" apply --check docs/contributing/first-change.patch 2>/dev/null ||
        die "docs/contributing/first-change.patch no longer fits the sources"
    command -v hunspell >/dev/null || die "please run tools/setup.sh --checks"
    script spelling "$quor_root" "${public[@]}"
}

# A declaration without a comment is a warning, and so is a comment that Doxygen does not understand.
make_reference() {
    local warnings=$work/reference.log
    command -v doxygen >/dev/null || die "please run tools/setup.sh --checks"
    rm -rf "$work/reference"
    {
        cat "$tools/Doxyfile"
        echo "INPUT = \"$headers\""
        echo "STRIP_FROM_PATH = \"$headers\""
        echo "OUTPUT_DIRECTORY = \"$work/reference\""
        echo "WARN_LOGFILE = \"$warnings\""
        echo "FILTER_PATTERNS = \"*.h=/usr/bin/python3 $tools/reference.py\""
    } >"$work/Doxyfile"
    mkdir "$work/reference"
    PYTHONDONTWRITEBYTECODE=1 doxygen "$work/Doxyfile" >"$work/doxygen.log" 2>&1 ||
        { cat "$work/doxygen.log" >&2 && die "Doxygen failed"; }
    [[ ! -s $work/doxygen.log ]] || die "Doxygen: $(head -n 1 "$work/doxygen.log")"
    if [[ -s $warnings ]]; then
        sed "s|^$headers/||" "$warnings" >&2
        die "the reference has $(wc -l <"$warnings") warnings"
    fi
    [[ -s $work/reference/html/search/search.js ]] || die "the reference has no search"
    say "reference: ${#public[@]} headers, $(find "$work/reference/html" -name 'class*.html' ! -name '*-members.html' |
        wc -l) classes, no declaration without a comment, no warning"
}

install_package() {
    "$quor_root/tools/build.sh" mingw-release QuorUiCtrl QuorFxMain gallery
    rm -rf "$prefix"
    cmake --install "$quor_build/mingw-release" --strip --prefix "$prefix" >"$work/install.log" 2>&1 ||
        { cat "$work/install.log" >&2 && die "installing failed"; }
}

build_code() {
    local began=$SECONDS
    cmake -G Ninja -S "$work/code" -B "$work/code/build" --toolchain "$prefix/lib/cmake/QuorUiCtrl/mingw-w64.cmake" \
        >"$work/code.log" 2>&1 || { cat "$work/code.log" >&2 && die "the code of the documents is not configured"; }
    ninja -C "$work/code/build" >"$work/code.log" 2>&1 ||
        { grep -v '^\[' "$work/code.log" >&2; die "the code of the documents does not compile"; }
    say "code: compiles and links in $((SECONDS - began)) s"
}

# Waits for the window, closes it as a user does, and waits for the program, which is to end with 0.
run_program() {
    local name=$1 title=$2 program window code=0
    "$(wine_loader)" "$work/code/build/bin/$name.exe" </dev/null >"$work/$name.log" 2>&1 &
    program=$!
    window=$(timeout 120 xdotool search --sync --onlyvisible --name "^$title\$" | head -n 1) ||
        die "$name shows no window with the title $title"
    if [[ $pictures == 1 ]]; then
        import -silent -window "$window" "$work/pictures/$name.png"
    fi
    "$(wine_loader)" taskkill /IM "$name.exe" </dev/null >/dev/null 2>&1
    wait "$program" || code=$?
    [[ $code == 0 ]] || die "$name ended with $code"
}

run_programs() {
    local began=$SECONDS name title number=0
    command -v xdotool >/dev/null || die "please run tools/setup.sh --checks"
    set_wine_environment
    WINEPREFIX=$("$quor_root/tools/wine-prefix.sh" docs)
    export WINEPREFIX
    trap end_own_session EXIT
    start_own_display "$quor_screen"
    mkdir -p "$work/pictures"
    while read -r name title <&4; do
        run_program "$name" "$title"
        number=$((number + 1))
    done 4<"$work/code/programs"
    say "code: $number programs show their windows and end by themselves, in $((SECONDS - began)) s"
}

check_code() {
    script code "$quor_root" "$work/code" "${public[@]}"
    install_package
    build_code
    run_programs
}

main() {
    local pictures=0 began=$SECONDS
    case ${1:-} in
        --write) script tables "$quor_root" --write && exit ;;
        --texts) find_headers && check_texts && exit ;;
        --reference) find_headers && make_reference && exit ;;
        --pictures) pictures=1 && shift ;;
    esac
    refuse_options "$@"
    [[ $# == 0 ]] || die "takes no arguments"
    "$quor_root/tools/setup.sh"
    find_headers
    check_texts
    make_reference
    check_code
    say "the documents are good, checked in $((SECONDS - began)) s"
}

main "$@"
