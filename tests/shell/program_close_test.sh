#!/usr/bin/env bash
# The real program on a private X display, closed the ways a desktop closes it:
#  - SIGTERM, SIGHUP and SIGINT after "&Clear" on a total of -12.5: the program ends with status
#    0, the data file holds 0 and the placement is saved;
#  - started from a folder that has since been deleted: it starts, shows one message, and
#    "E&xit" ends it with status 0.
# Usage: program_close_test.sh PROGRAM. Exits 77 (skipped) without Xvfb or xdotool.
set -uo pipefail

program="$(cd "$(dirname "$1")" && pwd)/$(basename "$1")"
for tool in Xvfb xdotool xprop; do
    command -v "$tool" >/dev/null || { echo "skipped: $tool is not installed"; exit 77; }
done
tmp="$(mktemp -d /tmp/marivale-close-test.XXXXXX)"
xvfb_pid=""
wm_pid=""
app_pid=""
finish() {
    [ -n "$app_pid" ] && kill -KILL "$app_pid" 2>/dev/null
    [ -n "$wm_pid" ] && kill "$wm_pid" 2>/dev/null
    [ -n "$xvfb_pid" ] && kill "$xvfb_pid" 2>/dev/null
    wait 2>/dev/null
    rm -rf "$tmp"
}
trap finish EXIT
failures=0
fail() {
    echo "FAIL: $*"
    failures=$((failures + 1))
}

exec 3>"$tmp/display"
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp >"$tmp/xvfb.log" 2>&1 &
xvfb_pid=$!
for _ in $(seq 100); do [ -s "$tmp/display" ] && break; sleep 0.05; done
exec 3>&-
[ -s "$tmp/display" ] || { echo "skipped: Xvfb did not start"; exit 77; }
export DISPLAY=":$(cat "$tmp/display")"
export HOME="$tmp/home" XDG_CONFIG_HOME="$tmp/home/.config" XDG_RUNTIME_DIR="$tmp/runtime"
export ASAN_OPTIONS="detect_leaks=0"
unset QT_QPA_PLATFORM
mkdir -p "$XDG_CONFIG_HOME" "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"
if command -v openbox >/dev/null; then
    openbox >"$tmp/openbox.log" 2>&1 &
    wm_pid=$!
    sleep 0.5
fi

# A working folder with the pictures and the bell, as the launcher makes.
new_folder() {
    local folder="$tmp/$1" media
    mkdir -p "$folder"
    for media in "$(dirname "$program")"/*.gif "$(dirname "$program")"/*.wav; do
        [ -e "$media" ] && ln -sf "$media" "$folder/"
    done
    echo "$folder"
}

# The program's shown windows, one id a line.
windows() { xdotool search --onlyvisible --pid "$app_pid" 2>/dev/null; }

wait_for_windows() {
    local count="$1"
    for _ in $(seq 300); do
        [ "$(windows | wc -l)" -ge "$count" ] && return 0
        sleep 0.1
    done
    return 1
}

# Presses keys in a window and waits until the program has taken them: the toolkit stamps the
# window's _NET_WM_USER_TIME only while handling input.
press() {
    local window="$1" before after
    shift
    before="$(xprop -id "$window" _NET_WM_USER_TIME 2>/dev/null)"
    xdotool windowfocus --sync "$window" 2>/dev/null || xdotool windowfocus "$window"
    xdotool key "$@"
    for _ in $(seq 100); do
        after="$(xprop -id "$window" _NET_WM_USER_TIME 2>/dev/null)"
        [ "$after" != "$before" ] && { sleep 0.3; return 0; }
        sleep 0.05
    done
    sleep 1
}

# Waits up to 30 s for the program to end and sets status to its exit status.
wait_for_exit() {
    status="still running"
    for _ in $(seq 300); do
        kill -0 "$app_pid" 2>/dev/null || break
        sleep 0.1
    done
    kill -0 "$app_pid" 2>/dev/null && return
    wait "$app_pid"
    status=$?
    app_pid=""
}

for signal in TERM HUP INT; do
    folder="$(new_folder "signal-$signal")"
    printf -- '-12.5\r\n' >"$folder/mpdata.dat"
    rm -rf "$XDG_CONFIG_HOME/Vandrine"
    (cd "$folder" && exec "$program") >"$tmp/$signal.log" 2>&1 &
    app_pid=$!
    wait_for_windows 1 || { fail "SIG$signal: no window appeared"; continue; }
    menu="$(windows | head -1)"
    press "$menu" alt+c
    kill -"$signal" "$app_pid"
    wait_for_exit
    [ "$status" = 0 ] || fail "SIG$signal: the program ended with status $status"
    content="$(od -An -c "$folder/mpdata.dat" | tr -s ' ')"
    [ "$content" = " 0 \r \n" ] || fail "SIG$signal: the data file holds '$content', not 0"
    grep -q '^MainLeft=' "$XDG_CONFIG_HOME/Vandrine/Vandrine.conf" 2>/dev/null ||
        fail "SIG$signal: the placement was not saved"
    echo "SIG$signal: status $status, data file '$content'"
done

# Started from a folder that no longer exists.
folder="$(new_folder gone)"
(cd "$folder" && rm -rf "$folder" && exec "$program") >"$tmp/gone.log" 2>&1 &
app_pid=$!
wait_for_windows 2 || fail "deleted folder: the program did not show its menu and one message"
sleep 1
shown="$(windows | wc -l)"
[ "$shown" -eq 2 ] || fail "deleted folder: $shown windows instead of the menu and one message"
message=""
menu=""
for window in $(windows); do
    if xprop -id "$window" WM_TRANSIENT_FOR 2>/dev/null | grep -q "window id"; then
        message="$window"
    else
        menu="$window"
    fi
done
[ -n "$message" ] && press "$message" Return
[ "$(windows | wc -l)" -eq 1 ] || fail "deleted folder: the message did not close"
[ -n "$menu" ] && press "$menu" alt+x
wait_for_exit
[ "$status" = 0 ] || fail "deleted folder: Exit ended the program with status $status"
echo "deleted folder: $shown windows at the start, Exit status $status"

if ((failures)); then
    echo "--- program output ---"
    cat "$tmp"/*.log
    exit 1
fi
echo "all closes kept the total"
