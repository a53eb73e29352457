#!/usr/bin/env bash
# Runs a Windows program under Wine and returns its exit code.
#
#   tools/run-under-wine.sh PROGRAM.exe [ARGUMENTS...]
#
# By default each run has a virtual display and a Wine session (prefix and server) for itself, so that programs which
# need the cursor, the focus or the clipboard may run at the same time. QUOR_USE_DISPLAY=1 runs on the display named by
# DISPLAY instead. QUOR_WINEDEBUG sets Wine's debug channels (default: all off). QUOR_PROGRAM_CORE and QUOR_DISPLAY_CORE
# pin the program (with the Wine server) and the X server to one processor core each; without them all three of a run
# with a display of its own share one core.
set -euo pipefail
# shellcheck source=lib.sh
source "$(dirname "$0")/lib.sh"

# Command prefixes; empty where no core is given.
on_program_core=(${QUOR_PROGRAM_CORE:+taskset -c "$QUOR_PROGRAM_CORE"})
on_display_core=(${QUOR_DISPLAY_CORE:+taskset -c "$QUOR_DISPLAY_CORE"})

# Program and servers answer each other at every step: where waking another core takes long, that costs more than
# they gain from running side by side (the tests of the grid: up to six times as long). Runs at the same time have
# different sessions, and so different cores.
share_one_core() {
    local core=$((${session#slot-} % $(nproc)))
    if [[ -z ${QUOR_PROGRAM_CORE:-}${QUOR_DISPLAY_CORE:-} ]] && taskset -c "$core" true 2>/dev/null; then
        on_program_core=(taskset -c "$core")
        on_display_core=(taskset -c "$core")
    fi
}

# Takes the first free session and keeps it locked through descriptor 9, which no child inherits.
take_session() {
    local number
    mkdir -p "$quor_wine_home"
    for number in {1..64}; do
        exec 9>"$quor_wine_home/slot-$number.lock"
        if flock -n 9; then
            session=slot-$number
            return
        fi
    done
    die "64 programs are running already"
}

# A run that was killed leaves its X server behind; its number is in a file.
end_stale_display() {
    local pid
    pid=$(cat "$quor_wine_home/$session.xvfb" 2>/dev/null) || return 0
    [[ $(cat "/proc/$pid/comm" 2>/dev/null) != Xvfb ]] || kill "$pid" || true
}

# Starts an X server on a display number that it finds itself. Without -noreset it would begin anew, and cut off who is
# connecting, whenever its last client leaves: a program of Wine that looks at the screen and ends does that.
start_display() {
    local attempt number pipe
    for attempt in 1 2 3; do
        exec {pipe}< <(exec "${on_display_core[@]}" Xvfb -displayfd 3 -screen 0 "$quor_screen" \
            -noreset -nolisten tcp 3>&1 >/dev/null 2>"$quor_wine_home/$session.xvfb.log" 9>&-)
        xvfb=$!
        if read -r -t 30 number <&"$pipe"; then
            exec {pipe}<&-
            echo "$xvfb" >"$quor_wine_home/$session.xvfb"
            export DISPLAY=:$number
            return
        fi
        exec {pipe}<&-
        kill "$xvfb" 2>/dev/null || true
    done
    die "Xvfb does not start (attempt $attempt): $(tail -n 3 "$quor_wine_home/$session.xvfb.log")"
}

end_session() {
    wineserver -k 9>&- 2>/dev/null || true
    [[ -z ${xvfb:-} ]] || kill "$xvfb" 2>/dev/null || true
    rm -f "$quor_wine_home/$session.xvfb"
}

run_on_own_display() {
    take_session
    share_one_core
    WINEPREFIX=$("$quor_root/tools/wine-prefix.sh" "$session" 9>&-)
    export WINEPREFIX
    end_stale_display
    wineserver -k 9>&- 2>/dev/null || true
    trap end_session EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM
    start_display
    run_program "$@"
}

run_on_given_display() {
    WINEPREFIX=$("$quor_root/tools/wine-prefix.sh" desktop)
    export WINEPREFIX
    run_program "$@"
}

# In the background and waited for, so that a signal ends the wait and the session is cleaned up.
run_program() {
    local code=0
    # The Wine server is started by the program and inherits its core.
    "${on_program_core[@]}" "$(wine_loader)" "$@" </dev/null 9>&- &
    wait $! || code=$?
    exit "$code"
}

main() {
    set_wine_environment
    refuse_options "$@"
    [[ $# -gt 0 ]] || die "which program? (--help tells more)"
    [[ -f $1 ]] || die "no such program: $1"
    wine_loader >/dev/null || die "Wine is missing; tools/setup.sh installs it"
    # Wine looks for a relative path in its own folders first.
    set -- "$(realpath -- "$1")" "${@:2}"
    if [[ ${QUOR_USE_DISPLAY:-0} == 1 ]]; then
        run_on_given_display "$@"
    else
        run_on_own_display "$@"
    fi
}

main "$@"
