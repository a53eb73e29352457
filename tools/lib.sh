# Shared by the scripts of this folder and the root: places, messages, and which programs to use. Sourced, not run.
# shellcheck shell=bash

quor_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# QUOR_BUILD names another folder for everything that is built, Wine's settings included.
quor_build=${QUOR_BUILD:-$quor_root/build}
quor_wine_home=$quor_build/wine
quor_screen=1280x900x24

# Says what is being done, one line each.
say() {
    printf '%s: %s\n' "${quor_name:-$(basename "$0")}" "$*"
}

die() {
    printf '%s: %s\n' "${quor_name:-$(basename "$0")}" "$*" >&2
    exit 1
}

# The comment at the top of a script is its manual.
print_manual() {
    sed -n '2,/^[^#]/{s/^# \{0,1\}//p}' "$0"
}

# Answers --help; refuses what the script does not know. For scripts whose own options have been taken away.
refuse_options() {
    case ${1:-} in
        -h | --help) print_manual && exit 0 ;;
        -*) die "unknown option $1 (--help lists what there is)" ;;
    esac
}

# The Wine loader itself: the wine command of Debian is a script that may print hints about missing 32-bit support.
wine_loader() {
    local candidate
    for candidate in /usr/lib/wine/wine64 /usr/lib/x86_64-linux-gnu/wine/wine64; do
        if [[ -x $candidate ]]; then
            echo "$candidate"
            return
        fi
    done
    command -v wine64 || command -v wine || return 1
}

# What every Wine process of this project needs: quiet logs, no offers to install Mono or Gecko, no desktop menu entries.
set_wine_environment() {
    export WINEDEBUG=${QUOR_WINEDEBUG:--all}
    export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
    export WINEARCH=win64
    unset WINEPREFIX WINELOADER WINESERVER
}

# start_own_display SIZE: an X server of the script's own, as $DISPLAY. With "trap end_own_session EXIT" it goes with the script.
start_own_display() {
    local number pipe
    exec {pipe}< <(exec Xvfb -displayfd 3 -screen 0 "$1" -noreset -nolisten tcp 3>&1 >/dev/null 2>&1)
    quor_xvfb=$!
    read -r -t 30 number <&"$pipe" || die "Xvfb does not start"
    exec {pipe}<&-
    export DISPLAY=:$number
}

# Ends the X server of start_own_display and what runs in $WINEPREFIX.
end_own_session() {
    [[ -z ${WINEPREFIX:-} ]] || wineserver -k 2>/dev/null || true
    [[ -z ${quor_xvfb:-} ]] || kill "$quor_xvfb" 2>/dev/null || true
}

# The Windows path of an existing file or folder: Wine shows the root folder as drive Z.
windows_path() {
    local path
    path=$(realpath -m -- "$1")
    printf 'Z:%s\n' "${path//\//\\}"
}

# Whether the user has a display that answers.
have_display() {
    [[ -n ${DISPLAY:-} ]] && { ! command -v xdpyinfo >/dev/null || xdpyinfo >/dev/null 2>&1; } && display_socket_answers
}

# Without xdpyinfo the local socket of the display tells whether a server is there; remote displays are believed.
display_socket_answers() {
    local host=${DISPLAY%%:*} number=${DISPLAY##*:}
    number=${number%%.*}
    [[ -n $host && $host != unix ]] || [[ -S /tmp/.X11-unix/X$number ]]
}
