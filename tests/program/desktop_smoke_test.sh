#!/usr/bin/env bash
# The real program on a real X server with a window manager (Xvfb and openbox), driven through
# its access keys as a player would: the menu, help, and each board with its help, its Strategy
# window and, on Jacks or Better, Double Up. Every window is photographed and its colours are
# checked at sample points. Exits 77 (skipped) when the desktop tools are missing.
set -uo pipefail
source "$(dirname "$0")/../../tools/desktop/session.sh"

for tool in Xvfb openbox xdotool import convert xdpyinfo xprop xwininfo; do
    command -v "$tool" >/dev/null || { echo "SKIP: $tool is not installed"; exit 77; }
done
SHOTS="${MARIVALE_SHOTS:-$PWD/desktop-shots}"
rm -rf "$SHOTS"
mkdir -p "$SHOTS"
FAILURES=0

fail() {
    echo "FAIL: $*"
    FAILURES=$((FAILURES + 1))
}

# expect WINDOW SHOT-NAME then pairs "x,y=rrggbb" with a label each: photographs the window's
# client area and checks the colours.
expect() {
    local window="$1" shot="$SHOTS/$2.png"
    shift 2
    if ! shoot_window "$window" "$shot"; then
        fail "no picture of '$window'"
        return
    fi
    local check xy colour label
    while (($# >= 2)); do
        check="$1"
        label="$2"
        shift 2
        xy="${check%=*}"
        colour="${check#*=}"
        if colour_near "$shot" "${xy%,*}" "${xy#*,}" "$colour"; then
            echo "ok: $window $label is #$colour"
        else
            fail "$window $label at $xy is #$(pixel_at "$shot" "${xy%,*}" "${xy#*,}"), not #$colour"
        fi
    done
}

# Opens a window by a key chord on another and waits for it; a missing window is a failure.
open_by_key() {
    local from="$1" key="$2" name="$3"
    send_keys "$from" "$key"
    window_id "$name" 10 >/dev/null || { fail "$key on '$from' did not open '$name'"; return 1; }
    sleep 0.4
}

close_by_key() {
    local window="$1" key="$2"
    send_keys "$window" "$key"
    window_gone "$window" 10 || fail "$key did not close '$window'"
}

# A tall title bar and thick borders, as on desktops with large title fonts: the menu must still
# show its whole design above its status bar.
export MARIVALE_TITLE_PT="${MARIVALE_TITLE_PT:-18}" MARIVALE_BORDER="${MARIVALE_BORDER:-8}"
desktop_start || { echo "SKIP: no desktop could be started"; exit 77; }
app_start || { fail "the main menu did not appear"; exit 1; }
sleep 0.5
expect "Marivale Poker" menu 4,4=008000 "window" 150,40=008000 "title" \
    136,155=008000 "total frame"

# The green runs down the left edge to below the bottom row of buttons (which ends 205 pixels
# down); only then does the status bar begin.
GREEN_ROWS="$(convert "$SHOTS/menu.png" -crop 1x400+4+0 txt:- | grep -ci '#008000')"
if ((GREEN_ROWS >= 207)); then
    echo "ok: the status bar begins below the buttons ($GREEN_ROWS green rows)"
else
    fail "the status bar covers the menu's buttons: only $GREEN_ROWS green rows"
fi

open_by_key "Marivale Poker" alt+h "Marivale Poker Help" &&
    expect "Marivale Poker Help" help-from-menu 4,4=ffffff "page" &&
    close_by_key "Marivale Poker Help" alt+o

# Double Up on: a click on the status bar.
read -r MENU_H < <(identify -format "%h\n" "$SHOTS/menu.png")
click_at "Marivale Poker" 20 $((MENU_H - 6))
sleep 0.3

# key|caption|board colour
BOARDS=("alt+t|Treasure Trips|000080" "alt+d|Deuces Wild|008000" "alt+j|Wild Joker|800000"
    "alt+k|Jacks or Better|008080")
for entry in "${BOARDS[@]}"; do
    IFS='|' read -r key name colour <<<"$entry"
    slug="$(tr ' A-Z' '-a-z' <<<"$name")"
    open_by_key "Marivale Poker" "$key" "$name" || continue
    expect "$name" "$slug" 4,4=$colour "window" 12,196=000000 "pay table" \
        420,312=000000 "message line" 300,440=$colour "statistics frame"
    if open_by_key "$name" alt+h "Marivale Poker Help"; then
        expect "Marivale Poker Help" "help-from-$slug" 4,4=ffffff "page" 450,200=ffffff "page"
        close_by_key "Marivale Poker Help" alt+o
    fi
    if open_by_key "$name" F2 "Strategy"; then
        shoot_window "Strategy" "$SHOTS/strategy-$slug.png"
        # Legible: a light page, not the board's colour.
        expect "Strategy" "strategy-$slug" 4,4=efefef "page"
    fi
    if [ "$name" = "Jacks or Better" ]; then
        if play_until_double_up "$name" 40; then
            expect "Double Up" double-up 4,4=ffff00 "window"
            send_keys "Double Up" alt+l
            sleep 0.4
            close_by_key "Double Up" alt+t
        else
            echo "SKIP: no paying hand in 40 deals, so Double Up was not opened"
        fi
    fi
    close_by_key "$name" alt+x
    window_id "Marivale Poker" 10 >/dev/null || fail "the menu did not come back after $name"
done

# A held Alt+X leaves the board, never the menu that comes back behind it: repeats click nothing.
if open_by_key "Marivale Poker" alt+d "Deuces Wild"; then
    xdotool keydown alt+x
    sleep 1.5
    xdotool keyup alt+x
    window_gone "Deuces Wild" 10 || fail "a held alt+x did not close the board"
    sleep 0.5
    if app_running && window_id "Marivale Poker" 5 >/dev/null; then
        echo "ok: a held alt+x closed the board and left the menu open"
    else
        fail "a held alt+x on a board closed the main menu too"
    fi
fi

close_by_key "Marivale Poker" alt+x
app_stop
[ -s "$DESKTOP_TMP/work/mpdata.dat" ] || fail "the total was not written to mpdata.dat"
if ((FAILURES > 0)); then
    echo "$FAILURES check(s) failed; pictures in $SHOTS"
    exit 1
fi
echo "all desktop checks passed; pictures in $SHOTS"
