#!/usr/bin/env bash
# Measures, on a real X server with a window manager (Xvfb and openbox), how long the program
# takes to show its main menu after it is started, and how long each board takes to appear fully
# painted after its access key is pressed on the main menu.
#
#   tools/desktop/open-times.sh [RUNS]      (default 7 runs; MARIVALE_BIN picks the build)
#
# Each run starts the program afresh and opens each of the four boards once, so every figure is
# a first opening in its process. "Fully painted" means that sample points spread over the window
# (its corners, the pay table, the first and last card, the message line, a button) all show
# what they show once the window has settled; the points are read off a calibration run first.
# Prints every time and the median per window, in milliseconds.
set -euo pipefail
source "$(dirname "$0")/session.sh"

RUNS="${1:-7}"
desktop_start
PROBE="$DESKTOP_TMP/paint-probe"
c++ -std=c++20 -O2 -o "$PROBE" "$DESKTOP_REPO/tools/desktop/paint_probe.cpp" -lX11 -ldl

# The boards: access key on the menu, window caption.
BOARDS=("alt+d|Deuces Wild" "alt+k|Jacks or Better" "alt+j|Wild Joker" "alt+t|Treasure Trips")

# Builds a probe point list from a settled screenshot: "x:y:rrggbb,...".
points_from() {
    local shot="$1" list="" x y
    shift
    for xy in "$@"; do
        x="${xy%,*}"
        y="${xy#*,}"
        list+="${list:+,}$x:$y:$(pixel_at "$shot" "$x" "$y")"
    done
    echo "$list"
}

focus_menu() {
    timeout 5 xdotool windowactivate --sync "$(window_id "Marivale Poker")" >/dev/null 2>&1 || true
    sleep 0.3
}

close_board() {
    send_keys "$1" alt+x
    window_gone "$1" 10
    window_id "Marivale Poker" 10 >/dev/null
}

# Calibration: the settled look of the menu and of each board.
app_start
sleep 1
shoot_window "Marivale Poker" "$DESKTOP_TMP/menu.png"
read -r MW MH < <(identify -format "%w %h\n" "$DESKTOP_TMP/menu.png")
MENU_POINTS="$(points_from "$DESKTOP_TMP/menu.png" 4,4 150,40 223,48 $((MW - 4)),$((MH - 4)) 30,$((MH - 8)))"
declare -A BOARD_POINTS
for entry in "${BOARDS[@]}"; do
    key="${entry%%|*}"
    name="${entry#*|}"
    focus_menu
    send_keys "Marivale Poker" "$key"
    window_id "$name" 10 >/dev/null
    sleep 1
    shoot_window "$name" "$DESKTOP_TMP/board.png"
    read -r BW BH < <(identify -format "%w %h\n" "$DESKTOP_TMP/board.png")
    BOARD_POINTS[$name]="$(points_from "$DESKTOP_TMP/board.png" 4,4 $((BW - 4)),$((BH - 4)) \
        12,195 245,214 565,214 420,312 250,100)"
    close_board "$name"
done
send_keys "Marivale Poker" alt+x
app_stop

declare -A TIMES
for ((run = 1; run <= RUNS; run++)); do
    (cd "$DESKTOP_TMP/work" && MARIVALE_PROBE_TIMEOUT_MS=15000 \
        "$PROBE" launch "Marivale Poker" "$MENU_POINTS" -- "$APP_BINARY" \
        >"$DESKTOP_TMP/probe.out" 2>>"$DESKTOP_TMP/app.log") || true
    APP_PID="$(sed -n 2p "$DESKTOP_TMP/probe.out")"
    TIMES[menu]+=" $(sed -n 1p "$DESKTOP_TMP/probe.out")"
    for entry in "${BOARDS[@]}"; do
        key="${entry%%|*}"
        name="${entry#*|}"
        focus_menu
        "$PROBE" key "$key" "$name" "${BOARD_POINTS[$name]}" >"$DESKTOP_TMP/probe.out" || true
        t="$(head -n1 "$DESKTOP_TMP/probe.out")"
        TIMES[$name]+=" $t"
        sleep 0.3
        close_board "$name"
    done
    focus_menu
    send_keys "Marivale Poker" alt+x
    app_stop
done

median() { tr ' ' '\n' | sed '/^$/d' | sort -n | awk '{a[NR]=$1} END {print a[int((NR+1)/2)]}'; }
printf '%-16s %8s   %s\n' window median "times (ms)"
for name in menu "Deuces Wild" "Jacks or Better" "Wild Joker" "Treasure Trips"; do
    printf '%-16s %8s  %s\n' "$name" "$(median <<<"${TIMES[$name]}")" "${TIMES[$name]}"
done
ALL_BOARDS="${TIMES[Deuces Wild]} ${TIMES[Jacks or Better]} ${TIMES[Wild Joker]} ${TIMES[Treasure Trips]}"
printf '%-16s %8s\n' "all boards" "$(median <<<"$ALL_BOARDS")"
