#!/usr/bin/env bash
# Measures, on a real X server with a window manager (Xvfb and openbox), how long the Practice
# window takes from an Enter key to its painted answer: a verdict after a submit, the next hand
# after a verdict. The window writes each time to MARIVALE_TIMING_LOG when that is set.
#
#   tools/desktop/drill-timing.sh [KEYS] [MODE]   (default 50 keys; MODE random, close or weak)
#
# Opens Jacks or Better, buys credits, opens Practice with F4, picks the mode, then sends the
# Enter keys one at a time, holding card 1 before every second one. Prints the median and the
# largest time in milliseconds. MARIVALE_BIN picks the build; MARIVALE_SHOTS names a folder for
# pictures of the window (a hand with holds, its verdict, the whole screen) taken afterwards.
set -euo pipefail
source "$(dirname "$0")/session.sh"

KEYS="${1:-50}"
MODE="${2:-random}"
desktop_start
export MARIVALE_TIMING_LOG="$DESKTOP_TMP/timing.log"
: >"$MARIVALE_TIMING_LOG"
app_start
send_keys "Marivale Poker" alt+k
window_id "Jacks or Better" 10 >/dev/null
sleep 0.5
send_keys "Jacks or Better" F4
window_id "Practice" 10 >/dev/null
# The first hand is dealt once the game's odds are worked out.
sleep 2
case "$MODE" in
close) send_keys "Practice" alt+f Down ;;
weak) send_keys "Practice" alt+f Down Down ;;
*) ;;
esac
sleep 0.5
for ((i = 0; i < KEYS; i++)); do
    if ((i % 2 == 0)); then
        send_keys "Practice" 1
    fi
    send_keys "Practice" Return
    sleep 0.15
done
sleep 0.5
if [ -n "${MARIVALE_SHOTS:-}" ]; then
    mkdir -p "$MARIVALE_SHOTS"
    send_keys "Practice" 2 3
    sleep 0.3
    shoot_framed "Practice" "$MARIVALE_SHOTS/practice-$MODE-held.png"
    send_keys "Practice" Return
    sleep 0.5
    shoot_framed "Practice" "$MARIVALE_SHOTS/practice-$MODE-verdict.png"
    timeout 20 import -window root "$MARIVALE_SHOTS/practice-$MODE-desktop.png"
fi
send_keys "Practice" Escape
window_gone "Practice" 5 || true
send_keys "Jacks or Better" alt+x
window_gone "Jacks or Better" 10 || true
send_keys "Marivale Poker" alt+x
app_stop
sort -g -k2 "$MARIVALE_TIMING_LOG" | awk -v keys="$KEYS" '/^enter / { t[++n] = $2 }
END {
    if (n == 0) { print "no times logged"; exit 1 }
    median = n % 2 ? t[(n + 1) / 2] : (t[n / 2] + t[n / 2 + 1]) / 2
    printf "keys sent %d, answers timed %d, median %.2f ms, max %.2f ms\n", keys, n, median, t[n]
}'
