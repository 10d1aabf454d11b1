#!/usr/bin/env bash
# The real program on a private X display, closed the ways a desktop closes it:
#  - SIGTERM, SIGHUP and SIGINT after "&Clear" on a total of -12.5: the program ends with status
#    0, the data file holds 0 and the placement is saved;
#  - started from a folder that has since been deleted: it starts, shows one message, and
#    "E&xit" ends it with status 0.
# Usage: program_close_test.sh PROGRAM. Exits 77 (skipped) without Xvfb or xdotool.
set -uo pipefail
# shellcheck source-path=SCRIPTDIR source=../../tools/desktop/session.sh
source "$(dirname "$0")/../../tools/desktop/session.sh"

for tool in Xvfb xdotool xprop xdpyinfo; do
    command -v "$tool" >/dev/null || { echo "skipped: $tool is not installed"; exit 77; }
done
failures=0
fail() {
    echo "FAIL: $*"
    failures=$((failures + 1))
}

# Without openbox the program still runs, on the bare X server.
wm=1
command -v openbox >/dev/null || wm=0
MARIVALE_PROGRAM="$(cd "$(dirname "$1")" && pwd)/$(basename "$1")" MARIVALE_SCREEN=1024x768 \
    MARIVALE_WM="$wm" desktop_start || { echo "skipped: Xvfb did not start"; exit 77; }

wait_for_windows() {
    local count="$1"
    for _ in $(seq 300); do
        [ "$(app_shown_windows | wc -l)" -ge "$count" ] && return 0
        sleep 0.1
    done
    return 1
}

# Presses keys in a window and waits until the program has taken them: the toolkit stamps the
# window's _NET_WM_USER_TIME only while handling input.
press() {
    local window="$1" before after
    shift
    before="$(window_user_time "$window")"
    xdotool windowfocus --sync "$window" 2>/dev/null || xdotool windowfocus "$window"
    xdotool key "$@"
    for _ in $(seq 100); do
        after="$(window_user_time "$window")"
        [ "$after" != "$before" ] && { sleep 0.3; return 0; }
        sleep 0.05
    done
    sleep 1
}

# Waits up to 30 s for the program to end and sets status to its exit status.
wait_for_exit() {
    status="still running"
    app_wait 30 && status="$APP_STATUS"
}

for signal in TERM HUP INT; do
    folder="$(desktop_folder "signal-$signal")"
    printf -- '-12.5\r\n' >"$folder/mpdata.dat"
    rm -rf "$XDG_CONFIG_HOME/Vandrine"
    app_launch "$folder" "$DESKTOP_LOGS/$signal.log"
    wait_for_windows 1 || { fail "SIG$signal: no window appeared"; continue; }
    menu="$(app_shown_windows | head -1)"
    press "$menu" alt+c
    kill -"$signal" "$APP_PID"
    wait_for_exit
    [ "$status" = 0 ] || fail "SIG$signal: the program ended with status $status"
    content="$(od -An -c "$folder/mpdata.dat" | tr -s ' ')"
    [ "$content" = " 0 \r \n" ] || fail "SIG$signal: the data file holds '$content', not 0"
    grep -q '^MainLeft=' "$XDG_CONFIG_HOME/Vandrine/Vandrine.conf" 2>/dev/null ||
        fail "SIG$signal: the placement was not saved"
    echo "SIG$signal: status $status, data file '$content'"
done

# Started from a folder that no longer exists.
folder="$(desktop_folder gone)"
(cd "$folder" && rm -rf "$folder" && exec "$APP_BINARY") >"$DESKTOP_LOGS/gone.log" 2>&1 &
APP_PID=$!
wait_for_windows 2 || fail "deleted folder: the program did not show its menu and one message"
sleep 1
shown="$(app_shown_windows | wc -l)"
[ "$shown" -eq 2 ] || fail "deleted folder: $shown windows instead of the menu and one message"
message=""
menu=""
for window in $(app_shown_windows); do
    if xprop -id "$window" WM_TRANSIENT_FOR 2>/dev/null | grep -q "window id"; then
        message="$window"
    else
        menu="$window"
    fi
done
[ -n "$message" ] && press "$message" Return
[ "$(app_shown_windows | wc -l)" -eq 1 ] || fail "deleted folder: the message did not close"
[ -n "$menu" ] && press "$menu" alt+x
wait_for_exit
[ "$status" = 0 ] || fail "deleted folder: Exit ended the program with status $status"
echo "deleted folder: $shown windows at the start, Exit status $status"

if ((failures)); then
    echo "--- program output ---"
    cat "$DESKTOP_LOGS"/*.log
    exit 1
fi
echo "all closes kept the total"
