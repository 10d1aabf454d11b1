#!/usr/bin/env bash
# The real program on a real X server with a window manager (Xvfb and openbox), driven through
# its access keys as a player would: the menu, help, and each board with its help, its Strategy
# window and, on Jacks or Better, Double Up. Every window is photographed and its colours are
# checked at sample points. Every check is made or the test fails; a window that does not open
# ends the test at once, as every later key would go astray.
# Exits 77 (skipped) only when the desktop tools are missing, and never in CI (CI set), where
# tools/install-deps.sh has installed them: there a missing tool is a failure.
set -uo pipefail
# shellcheck source-path=SCRIPTDIR source=../../tools/desktop/session.sh
source "$(dirname "$0")/../../tools/desktop/session.sh"

for tool in Xvfb openbox xdotool import convert identify xdpyinfo xprop xwininfo; do
    command -v "$tool" >/dev/null && continue
    if [ -n "${CI:-}" ] && [ "$CI" != false ] && [ "$CI" != 0 ]; then
        echo "FAIL: $tool is not installed; tools/install-deps.sh installs it"
        exit 1
    fi
    echo "SKIP: $tool is not installed"
    exit 77
done
SHOTS="${MARIVALE_SHOTS:-$PWD/desktop-shots}"
rm -rf "$SHOTS"
mkdir -p "$SHOTS"
FAILURES=0

fail() {
    echo "FAIL: $*"
    FAILURES=$((FAILURES + 1))
}

# Fails and ends the test now, saying whether the program still runs and how it ended.
fail_now() {
    fail "$*"
    if app_running; then
        local id titles=""
        for id in $(app_shown_windows); do
            titles+="${titles:+, }'$(window_title "$id")'"
        done
        echo "the program still runs and shows: ${titles:-no window}"
    elif [ -n "$APP_PID" ]; then
        app_wait 1
        echo "the program has ended with status ${APP_STATUS:-?}; its output:"
        tail -n 20 "$DESKTOP_LOGS/app.log"
    fi
    echo "$FAILURES check(s) failed; pictures in $SHOTS"
    exit 1
}

# Prints the colour at each point "x,y" of the PNG $1 as rrggbb, one a line, from one run of
# convert.
colours_at() {
    local file="$1" format="" xy
    shift
    for xy in "$@"; do
        format+="%[fx:int(255*p{$xy}.r)],%[fx:int(255*p{$xy}.g)],%[fx:int(255*p{$xy}.b)]\n"
    done
    convert "$file" -format "$format" info: | awk -F, '{ printf "%02x%02x%02x\n", $1, $2, $3 }'
}

# True when the colours rrggbb $1 and $2 are within 12 of each other in every channel.
near() {
    local i a b
    for i in 0 2 4; do
        a=$((16#${1:$i:2}))
        b=$((16#${2:$i:2}))
        ((a - b <= 12 && b - a <= 12)) || return 1
    done
}

# expect WINDOW SHOT-NAME then pairs "x,y=rrggbb" with a label each: photographs the window's
# client area and checks the colours.
expect() {
    local window="$1" shot="$SHOTS/$2.png"
    shift 2
    shoot_window "$window" "$shot" || fail_now "no picture of '$window'"
    local points=() colours=() labels=() seen i
    while (($# >= 2)); do
        points+=("${1%=*}")
        colours+=("${1#*=}")
        labels+=("$2")
        shift 2
    done
    mapfile -t seen < <(colours_at "$shot" "${points[@]}")
    for i in "${!points[@]}"; do
        if near "${seen[$i]:-xxxxxx}" "${colours[$i]}"; then
            echo "ok: $window ${labels[$i]} is #${colours[$i]}"
        else
            fail "$window ${labels[$i]} at ${points[$i]} is #${seen[$i]:-?}, not #${colours[$i]}"
        fi
    done
}

# Opens a window by a key chord on another and waits for it; a missing window ends the test.
open_by_key() {
    local from="$1" key="$2" name="$3"
    send_keys "$from" "$key" || fail_now "no '$from' to send $key to"
    window_id "$name" 10 >/dev/null || fail_now "$key on '$from' did not open '$name'"
    sleep 0.4
}

close_by_key() {
    local window="$1" key="$2"
    send_keys "$window" "$key" || fail_now "no '$window' to send $key to"
    window_gone "$window" 10 || fail_now "$key did not close '$window'"
}

# The column where the text of the menu's status panel ends, in the menu's picture $1 whose
# status bar begins $2 rows down: the end of the first run of inked columns, a run that ends at
# a gap of more than 8 blank columns (words are closer, the next panel is further).
# "Status: DoubleUp Enabled" ends about 20 columns before "Status: DoubleUp Not Enabled".
status_text_end() {
    convert "$1" -crop "+0+$(($2 + 2))" +repage -colorspace gray -threshold 50% -scale "x1!" \
        -threshold 99% txt:- |
        awk -F'[,:]' 'BEGIN { last = -1; end = -1 }
            NR > 1 && end < 0 && /#000000/ {
                if (last >= 0 && $1 - last > 8) end = last; else last = $1 + 0
            }
            END { print (end >= 0 ? end : last) }'
}

# A tall title bar and thick borders, as on desktops with large title fonts: the menu must still
# show its whole design above its status bar.
export MARIVALE_TITLE_PT="${MARIVALE_TITLE_PT:-18}" MARIVALE_BORDER="${MARIVALE_BORDER:-8}"
desktop_start || fail_now "no desktop could be started"
app_start || fail_now "the main menu did not appear"
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

open_by_key "Marivale Poker" alt+h "Marivale Poker Help"
expect "Marivale Poker Help" help-from-menu 4,4=ffffff "page"
close_by_key "Marivale Poker Help" alt+o

# Double Up on: a click on the status bar, seen in its text.
read -r MENU_H < <(identify -format "%h\n" "$SHOTS/menu.png")
OFF_END="$(status_text_end "$SHOTS/menu.png" "$GREEN_ROWS")"
click_at "Marivale Poker" 20 $((MENU_H - 6)) || fail_now "no click on the menu's status bar"
DOUBLE_UP_ON=0
ON_END="?"
for _ in 1 2 3 4 5 6 7 8 9 10; do
    sleep 0.2
    shoot_window "Marivale Poker" "$SHOTS/menu-double-up.png" || continue
    ON_END="$(status_text_end "$SHOTS/menu-double-up.png" "$GREEN_ROWS")"
    if ((ON_END + 10 <= OFF_END)); then
        DOUBLE_UP_ON=1
        break
    fi
done
if ((DOUBLE_UP_ON)); then
    echo "ok: a click on the status bar switched Double Up on (its text ends at $ON_END, was $OFF_END)"
else
    fail "a click on the status bar did not switch Double Up on: its text ends at $ON_END, was $OFF_END"
fi

# key|caption|board colour
BOARDS=("alt+t|Treasure Trips|000080" "alt+d|Deuces Wild|008000" "alt+j|Wild Joker|800000"
    "alt+k|Jacks or Better|008080")
for entry in "${BOARDS[@]}"; do
    IFS='|' read -r key name colour <<<"$entry"
    slug="$(tr ' A-Z' '-a-z' <<<"$name")"
    open_by_key "Marivale Poker" "$key" "$name"
    expect "$name" "$slug" 4,4="$colour" "window" 12,196=000000 "pay table" \
        420,312=000000 "message line" 300,440="$colour" "statistics frame"
    open_by_key "$name" alt+h "Marivale Poker Help"
    expect "Marivale Poker Help" "help-from-$slug" 4,4=ffffff "page" 450,200=ffffff "page"
    close_by_key "Marivale Poker Help" alt+o
    open_by_key "$name" F2 "Strategy"
    # Legible: a light page, not the board's colour.
    expect "Strategy" "strategy-$slug" 4,4=efefef "page"
    if [ "$name" = "Jacks or Better" ]; then
        # Standing on up to 100 deals: 536100 of the 2598960 hands pay at least a pair of jacks,
        # so 100 hands without one come once in (2598960 / 2062860)^100, about 10^10, runs; a
        # paying hand comes after 5 deals on average.
        if ((!DOUBLE_UP_ON)); then
            fail "Double Up was not opened: it could not be switched on"
        elif play_until_double_up "$name" 100; then
            expect "Double Up" double-up 4,4=ffff00 "window"
            send_keys "Double Up" alt+l || fail_now "no 'Double Up' to send alt+l to"
            sleep 0.4
            close_by_key "Double Up" alt+t
        else
            fail_now "no Double Up window after 100 stood hands on $name"
        fi
    fi
    close_by_key "$name" alt+x
    window_id "Marivale Poker" 10 >/dev/null || fail_now "the menu did not come back after $name"
done

# A held Alt+X leaves the board, never the menu that comes back behind it: repeats click nothing.
open_by_key "Marivale Poker" alt+d "Deuces Wild"
xdotool keydown alt+x
sleep 1.5
xdotool keyup alt+x
window_gone "Deuces Wild" 10 || fail_now "a held alt+x did not close the board"
sleep 0.5
if app_running && window_id "Marivale Poker" 5 >/dev/null; then
    echo "ok: a held alt+x closed the board and left the menu open"
else
    fail_now "a held alt+x on a board closed the main menu too"
fi

close_by_key "Marivale Poker" alt+x
app_stop
[ -s "$DESKTOP_TMP/work/mpdata.dat" ] || fail "the total was not written to mpdata.dat"
if ((FAILURES > 0)); then
    echo "$FAILURES check(s) failed; pictures in $SHOTS"
    exit 1
fi
echo "all desktop checks passed; pictures in $SHOTS"
