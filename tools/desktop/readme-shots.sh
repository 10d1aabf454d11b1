#!/usr/bin/env bash
# Photographs the real program on a real X server with a window manager (Xvfb and openbox) for
# the README: the main menu, each board after a deal, paid hands, help opened from a board, the
# Strategy window, Treasure Hunt and Double Up. The deals are the program's own, so hands are
# played until one shows what a picture needs.
#
#   tools/desktop/readme-shots.sh [OUTDIR] [SHOT...]    (default OUTDIR: docs; default: all)
#
# To add a picture, write a function shot_<name> that leaves the window to photograph open and
# prints its title, and add <name> to SHOTS. Each shot starts with the main menu shown and
# Double Up switched off, and the program is started afresh for it. MARIVALE_BIN picks the build.
set -euo pipefail
source "$(dirname "$0")/session.sh"

OUT="$(realpath -m "${1:-$DESKTOP_REPO/docs}")"
shift || true
SHOTS=(main-menu board-tt-dealt board-dw-dealt board-wj-dealt board-jb-dealt board-tt-paid
    board-dw-paid help strategy strategy-chart statistics treasure-hunt double-up)
[ $# -eq 0 ] || SHOTS=("$@")

MENU="Marivale Poker"
# Client-area places of the board: the centre of card 0, the distance between cards, and the
# message line.
CARD_X=266
CARD_Y=237
CARD_STEP=80
MESSAGE_CROP="230x26+310+299"

# Opens a board by its key on the menu and buys credits; prints nothing.
open_board() {
    send_keys "$MENU" "$1"
    window_id "$2" 10 >/dev/null
    sleep 0.3
    send_keys "$2" alt+p
    sleep 0.3
}

# True when the board's message line shows text: a hand's name after a stand.
message_shown() {
    local shot="$DESKTOP_TMP/board.png"
    shoot_window "$1" "$shot" >/dev/null
    [ "$(convert "$shot" -crop "$MESSAGE_CROP" -format "%[fx:maxima.r+maxima.g+maxima.b > 0.5]" info:)" = 1 ]
}

# Deals and stands until a hand pays; at most $2 hands.
play_until_paid() {
    local board="$1" tries="$2"
    while ((tries-- > 0)); do
        send_keys "$board" alt+d
        sleep 0.2
        send_keys "$board" alt+s
        sleep 0.3
        if message_shown "$board"; then
            return 0
        fi
        ((tries % 40 != 0)) || send_keys "$board" alt+p
    done
    return 1
}

# Is card p (0..4) on the photographed board a Three with its bonus picture, or the joker?
bonus_card() {
    local shot="$1" p="$2" x
    x=$((CARD_X + p * CARD_STEP - 29))
    local colour
    colour="$(pixel_at "$shot" "$x" "$CARD_Y")"
    local r=$((16#${colour:0:2})) g=$((16#${colour:2:2})) b=$((16#${colour:4:2}))
    # The bonus Threes are cream; the joker's name runs down its left side in red.
    ((r > 240 && g > 235 && b > 195 && b < 240)) || ((r > 150 && g < 90 && b < 90))
}

# Treasure Trips: holds the Threes and the joker of each deal and draws, until the bonus comes.
play_until_treasure_hunt() {
    local board="Treasure Trips" tries="$1" p
    while ((tries-- > 0)); do
        ((tries % 40 != 0)) || send_keys "$board" alt+p
        send_keys "$board" alt+d
        sleep 0.3
        shoot_window "$board" "$DESKTOP_TMP/deal.png" >/dev/null
        for p in 0 1 2 3 4; do
            if bonus_card "$DESKTOP_TMP/deal.png" "$p"; then
                click_at "$board" $((CARD_X + p * CARD_STEP)) "$CARD_Y"
                sleep 0.1
            fi
        done
        send_keys "$board" alt+r
        if window_id "Treasure Hunt" 1 >/dev/null 2>&1; then
            return 0
        fi
    done
    return 1
}

shot_main-menu() { echo "$MENU"; }

dealt() {
    open_board "$1" "$2"
    send_keys "$2" alt+d
    sleep 0.4
    echo "$2"
}
shot_board-tt-dealt() { dealt alt+t "Treasure Trips"; }
shot_board-dw-dealt() { dealt alt+d "Deuces Wild"; }
shot_board-wj-dealt() { dealt alt+j "Wild Joker"; }
shot_board-jb-dealt() { dealt alt+k "Jacks or Better"; }

paid() {
    open_board "$1" "$2"
    play_until_paid "$2" 200 || desktop_log "no paying hand on $2"
    echo "$2"
}
shot_board-tt-paid() { paid alt+t "Treasure Trips"; }
shot_board-dw-paid() { paid alt+d "Deuces Wild"; }

shot_help() {
    open_board alt+k "Jacks or Better"
    send_keys "Jacks or Better" alt+h
    window_id "Marivale Poker Help" 10 >/dev/null
    echo "Marivale Poker Help"
}

shot_strategy() {
    open_board alt+k "Jacks or Better"
    send_keys "Jacks or Better" alt+d
    sleep 0.3
    send_keys "Jacks or Better" F2
    window_id "Strategy" 10 >/dev/null
    sleep 2 # the odds of the dealt hand are worked out in the background
    echo "Strategy"
}

# The Chart page, studying a hand typed into the field above the holds.
shot_strategy-chart() {
    open_board alt+k "Jacks or Better"
    send_keys "Jacks or Better" alt+d
    sleep 0.3
    send_keys "Jacks or Better" F2
    window_id "Strategy" 10 >/dev/null
    sleep 1
    click_at "Strategy" 150 20
    xdotool type --delay 40 "7h 8h 9h Jh 2c"
    xdotool key Return
    send_keys "Strategy" alt+a
    sleep 4 # the chart is worked out in the background
    echo "Strategy"
}

shot_statistics() {
    open_board alt+k "Jacks or Better"
    local hand
    for hand in 1 2 3 4 5 6 7 8 9 10 11 12; do
        send_keys "Jacks or Better" Return
        sleep 0.3
        send_keys "Jacks or Better" Return
        sleep 0.5
    done
    send_keys "Jacks or Better" F3
    window_id "Session Statistics" 10 >/dev/null
    sleep 3 # the game's odds and every hold's cost are worked out in the background
    echo "Session Statistics"
}

shot_treasure-hunt() {
    open_board alt+t "Treasure Trips"
    play_until_treasure_hunt 600 || desktop_log "no Treasure Hunt bonus came"
    echo "Treasure Hunt"
}

shot_double-up() {
    # Double Up on: a click on the menu's status bar.
    shoot_window "$MENU" "$DESKTOP_TMP/menu.png" >/dev/null
    click_at "$MENU" 20 $(($(identify -format "%h" "$DESKTOP_TMP/menu.png") - 6))
    sleep 0.3
    open_board alt+k "Jacks or Better"
    play_until_double_up "Jacks or Better" 200 || desktop_log "no paying hand for Double Up"
    echo "Double Up"
}

mkdir -p "$OUT"
# Room beside a board for the Strategy window, which opens to the board's right.
export MARIVALE_SCREEN="${MARIVALE_SCREEN:-3200x1400}"
desktop_start
for shot in "${SHOTS[@]}"; do
    app_start
    sleep 0.5
    window="$("shot_$shot" | tail -n1)"
    sleep 0.6
    if shoot_framed "$window" "$OUT/$shot.png"; then
        echo "$OUT/$shot.png"
    else
        desktop_log "no picture for $shot"
    fi
    kill "$APP_PID" 2>/dev/null || true
    app_stop
done
