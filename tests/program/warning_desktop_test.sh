#!/usr/bin/env bash
# The warning before a costly hold on the real program (Xvfb with openbox, xdotool), reached by
# keys alone: Alt+W in Strategy switches it on, Enter deals, 1 to 5 hold all five cards, Enter
# leaves the board as it was with the warning shown in Strategy, and Enter again plays the hold.
# F5 frames the best hold first. The pictures of the hint and the warning go to MARIVALE_SHOTS.
# Exits 77 (skipped) when the desktop tools are missing, outside CI.
set -uo pipefail
# shellcheck source-path=SCRIPTDIR source=../../tools/desktop/session.sh
source "$(dirname "$0")/../../tools/desktop/session.sh"

for tool in Xvfb openbox xdotool import compare; do
    command -v "$tool" >/dev/null && continue
    if [ -n "${CI:-}" ] && [ "$CI" != false ] && [ "$CI" != 0 ]; then
        echo "FAIL: $tool is not installed; tools/install-deps.sh installs it"
        exit 1
    fi
    echo "SKIP: $tool is not installed"
    exit 77
done
SHOTS="${MARIVALE_SHOTS:-$PWD/warning-shots}"
BOARD="Jacks or Better"
mkdir -p "$SHOTS"

fail_now() {
    echo "FAIL: $*"
    exit 1
}

# Keys to whichever window has the focus, as a player types them.
press() { timeout 10 xdotool key --clearmodifiers "$@"; }

# The number of pixels that differ between two pictures.
differing() { compare -metric AE "$1" "$2" null: 2>&1 | awk '{ print int($1) }'; }

# Room for Strategy beside the board, so neither covers the other in the pictures.
export MARIVALE_SCREEN="${MARIVALE_SCREEN:-1920x1200}"
desktop_start || fail_now "no desktop could be started"
app_start || fail_now "the main menu did not appear"
send_keys "Marivale Poker" alt+k || fail_now "no menu to open $BOARD from"
BOARD_ID="$(window_id "$BOARD" 10)" || fail_now "alt+k did not open $BOARD"
xdotool windowmove --sync "$BOARD_ID" 0 0
sleep 0.5
send_keys "$BOARD" F2
window_id "Strategy" 10 >/dev/null || fail_now "F2 did not open Strategy"
sleep 0.5
send_keys "Strategy" alt+w
sleep 1 # the draw tables are built beside the window; holds play unwarned until they are
send_keys "$BOARD" F2
window_gone "Strategy" 10 || fail_now "F2 did not close Strategy"
send_keys "$BOARD" alt+p

# A stand on all five costs something on every deal but a pat hand: deal again until it warns.
WARNED=0
for hand in $(seq 1 20); do
    send_keys "$BOARD" Return
    sleep 0.4
    if ((hand == 1)); then
        press F5
        sleep 0.3
        shoot_window "$BOARD" "$SHOTS/hint.png" || fail_now "no picture of the hint"
    fi
    press 1 2 3 4 5
    sleep 0.3
    shoot_window "$BOARD" "$SHOTS/held.png"
    press Return
    sleep 0.6
    shoot_window "$BOARD" "$SHOTS/pressed.png"
    if window_id "Strategy" 1 >/dev/null && (($(differing "$SHOTS/held.png" "$SHOTS/pressed.png") == 0)); then
        WARNED=1
        break
    fi
done
((WARNED)) || fail_now "no warning after 20 costly holds"
echo "ok: Enter on a costly hold left the board as it was and opened Strategy (hand $hand)"
timeout 20 import -window root "$SHOTS/warning.png" || fail_now "no picture of the warning"
press Return
sleep 0.6
shoot_window "$BOARD" "$SHOTS/played.png"
if (($(differing "$SHOTS/pressed.png" "$SHOTS/played.png") > 0)); then
    echo "ok: Enter again played the hold"
else
    fail_now "Enter again did not play the hold"
fi
send_keys "$BOARD" alt+x
window_gone "$BOARD" 10 || fail_now "alt+x did not close $BOARD"
send_keys "Marivale Poker" alt+x
app_stop
echo "the warning was reached by keys alone; pictures in $SHOTS"
