#!/usr/bin/env bash
# Soaks the real program: runs it on a private X display (Xvfb with openbox) for a given time,
# restarting it whenever it exits, and plays it like a careless player: random clicks anywhere
# in whatever window is on top, random keys (access keys, Enter, Escape, Tab, Alt+F4, F2), close
# boxes, minimising and maximising the main menu, and now and then a signal (SIGTERM, SIGHUP,
# SIGINT, sometimes two at once). Run with --help for the options.
#
# It counts:
#   crashes    runs that ended with a non-zero status the soak did not cause
#   hangs      moments when no window of the program took input for 5 s (input is checked by
#              pressing Shift and watching the window's _NET_WM_USER_TIME, which the toolkit
#              updates only while its event loop runs), or a signal that did not end the run
#              within 15 s
#   malformed  data files that are anything but one well-formed record after a run
# and exits with status 1 when any of the three is not zero.
set -uo pipefail

usage() {
    cat <<'EOF'
Usage: tools/soak/soak.sh [options]

Runs the real program on a private Xvfb display with openbox for a given time, restarting it
whenever it exits, while clicking, typing, closing, minimising, maximising and signalling it at
random. Reports minutes, actions, runs, crashes, hangs and malformed data files; exits 1 when
there was any crash, hang or malformed file.

Options:
  --minutes N     how long to play (default 30; fractions such as 0.5 are fine)
  --program PATH  the program (default: build/bin/marivale-poker of this repository); its folder
                  must hold the card pictures and the bell, which are linked into a private
                  working folder
  --display :N    the X display to create (default :77); it must be free
  --seed N        seed of the random choices (default: the current time), to replay a soak
  --out DIR       where the working folder, logs and report go (default: a new folder in /tmp)
  --help          this text

Example, the Release and the sanitizer builds at once, in the background:
  nohup tools/soak/soak.sh --minutes 30 --program build/bin/marivale-poker --display :81 \
      --out /tmp/soak-release >/tmp/soak-release.log 2>&1 &
  nohup tools/soak/soak.sh --minutes 10 --program build-asan/bin/marivale-poker --display :82 \
      --out /tmp/soak-asan >/tmp/soak-asan.log 2>&1 &
EOF
}

repo="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
minutes=30
program="$repo/build/bin/marivale-poker"
display=":77"
seed="$(date +%s)"
out=""
while (($#)); do
    case "$1" in
    --minutes) minutes="$2"; shift 2 ;;
    --program) program="$2"; shift 2 ;;
    --display) display="$2"; shift 2 ;;
    --seed) seed="$2"; shift 2 ;;
    --out) out="$2"; shift 2 ;;
    --help | -h) usage; exit 0 ;;
    *) echo "unknown option: $1 (try --help)" >&2; exit 2 ;;
    esac
done
for tool in Xvfb openbox xdotool xprop xwininfo; do
    command -v "$tool" >/dev/null || { echo "soak: $tool is missing (tools/install-deps.sh)" >&2; exit 2; }
done
program="$(cd "$(dirname "$program")" && pwd)/$(basename "$program")"
[ -x "$program" ] || { echo "soak: no program at $program" >&2; exit 2; }
[ -n "$out" ] || out="$(mktemp -d /tmp/marivale-soak.XXXXXX)"
mkdir -p "$out/logs"
out="$(cd "$out" && pwd)"
logs="$out/logs"

log() { echo "[soak $(date +%H:%M:%S)] $*" | tee -a "$out/events.log" >&2; }

# The desktop, its folders and the working folder live in the output folder and stay there.
# shellcheck source-path=SCRIPTDIR source=../desktop/session.sh
source "$repo/tools/desktop/session.sh"
MARIVALE_PROGRAM="$program" MARIVALE_DISPLAY="$display" MARIVALE_DESKTOP_DIR="$out" \
    MARIVALE_LOG_DIR="$logs" MARIVALE_SCREEN=1024x768 MARIVALE_WM=1 desktop_start ||
    { echo "soak: Xvfb did not start on $display" >&2; exit 2; }
work="$DESKTOP_TMP/work"
RANDOM=$((seed % 32768))

actions=0
runs=0
crashes=0
hangs=0
malformed=0
run_log=""
caused=""        # set when the soak itself ended the run (after a hang)
last_input=$SECONDS
signals=0
probes=0
declare -A seen=()   # how many actions each window title was on top for
grace=0          # seconds a starting run may take before its first window counts as a hang
record_re=$'^-?[0-9]+(\\.[0-9]+)?(E[+-][0-9]+)?\r\n$'
# The letters of the captions' access keys, each once more than the other letters.
access_keys=(a b c d e f g h i j k l m n o p q r s t u v w x y z c d h j k l n o p r s t u x)
plain_keys=(Return Return Escape Tab shift+Tab space F2 F2 alt+F4 alt+F4 Up Down Left Right 1 5)

# Whether the data file is exactly one well-formed record.
check_data_file() {
    local file="$work/mpdata.dat" content
    if [ ! -f "$file" ]; then
        malformed=$((malformed + 1))
        log "MALFORMED after run $runs: there is no data file"
        return
    fi
    content="$(cat "$file"; printf x)"
    content="${content%x}"
    if ! [[ $content =~ $record_re ]]; then
        malformed=$((malformed + 1))
        cp "$file" "$logs/malformed-$runs.dat"
        log "MALFORMED after run $runs: $(od -c "$file" | head -3 | tr '\n' ' ')"
    fi
}

start_run() {
    runs=$((runs + 1))
    run_log="$logs/run-$runs.log"
    caused=""
    app_launch "$work" "$run_log"
    last_input=$SECONDS
    grace=20
}

# Collects an ended run: its status, then the data file it left.
end_run() {
    local status
    app_wait 10
    status="$APP_STATUS"
    if [ "$status" -ne 0 ] && [ -z "$caused" ]; then
        crashes=$((crashes + 1))
        cp "$run_log" "$logs/crash-$runs.log"
        log "CRASH in run $runs: status $status (log: $logs/crash-$runs.log)"
    fi
    [ "$status" -eq 0 ] && rm -f "$run_log"
    check_data_file
}

# The topmost window of the program that is shown; empty when none is.
top_window() {
    local id top=""
    for id in $(app_windows); do
        window_shown "$id" && top="$id"
    done
    echo "$top"
}

# The main menu, shown or minimised.
menu_window() {
    local id
    for id in $(app_windows); do
        if [ "$(window_title "$id")" = "Marivale Poker" ]; then
            echo "$id"
            return
        fi
    done
}

user_times() {
    local id
    for id in $(app_windows); do
        window_user_time "$id"
    done | tr '\n' ' '
}

# Left, top, width and height of a window's frame, title bar included, and the title bar's
# height. (xwininfo gives the client's true place on the screen; the frame adds its extents.)
frame_of() {
    local info cx cy cw ch extents left right top
    info="$(xwininfo -id "$1" 2>/dev/null)"
    cx="$(sed -n 's/.*Absolute upper-left X: *\(-\?[0-9]*\).*/\1/p' <<<"$info")"
    cy="$(sed -n 's/.*Absolute upper-left Y: *\(-\?[0-9]*\).*/\1/p' <<<"$info")"
    cw="$(sed -n 's/^ *Width: *\([0-9]*\).*/\1/p' <<<"$info")"
    ch="$(sed -n 's/^ *Height: *\([0-9]*\).*/\1/p' <<<"$info")"
    extents="$(xprop -id "$1" _NET_FRAME_EXTENTS 2>/dev/null | sed -e 's/.*= //' -e 's/,//g')"
    [[ $extents =~ ^[0-9]+\ [0-9]+\ [0-9]+\ [0-9]+$ ]] || extents="0 0 0 0"
    read -r left right top _ <<<"$extents"
    echo "$((${cx:-0} - left)) $((${cy:-0} - top)) $((${cw:-0} + left + right)) $((${ch:-0} + top)) $top"
}

# Presses Shift for the top window and waits up to 5 s for the toolkit to take it.
probe_input() {
    local top="$1" before after
    probes=$((probes + 1))
    before="$(user_times)"
    xdotool windowfocus "$top" 2>/dev/null
    xdotool key shift 2>/dev/null
    for _ in $(seq 50); do
        app_running || return 0
        [ -n "$(top_window)" ] || return 0
        after="$(user_times)"
        [ "$after" != "$before" ] && { last_input=$SECONDS; return 0; }
        sleep 0.1
    done
    hangs=$((hangs + 1))
    log "HANG in run $runs: the top window $top took no input for 5 s"
    import -window root "$logs/hang-$runs.png" 2>/dev/null
    caused=1
    kill -KILL "$APP_PID" 2>/dev/null
}

click_in() {
    local x y w h t
    read -r x y w h t <<<"$(frame_of "$1")"
    ((w > 4 && h > t + 4)) || return
    xdotool mousemove $((x + 2 + RANDOM % (w - 4))) $((y + t + RANDOM % (h - t - 2))) click 1 2>/dev/null
}

# Clicks a title-bar button, counted from the right: 0 close, 1 maximise, 2 minimise.
title_button() {
    local x y w h t
    read -r x y w h t <<<"$(frame_of "$1")"
    ((t > 0)) || return
    xdotool mousemove $((x + w - 10 - 16 * $2)) $((y + t / 2)) click 1 2>/dev/null
}

send_signal() {
    local names=(TERM HUP INT) name
    name="${names[RANDOM % 3]}"
    signals=$((signals + 1))
    kill -"$name" "$APP_PID" 2>/dev/null
    ((RANDOM % 4 == 0)) && kill -"${names[RANDOM % 3]}" "$APP_PID" 2>/dev/null
    for _ in $(seq 150); do
        app_running || return 0
        sleep 0.1
    done
    hangs=$((hangs + 1))
    log "HANG in run $runs: SIG$name did not end the program within 15 s"
    import -window root "$logs/hang-$runs.png" 2>/dev/null
    caused=1
    kill -KILL "$APP_PID" 2>/dev/null
}

act() {
    local top menu roll title
    top="$(top_window)"
    if [ -z "$top" ]; then
        menu="$(menu_window)"
        if [ -n "$menu" ]; then
            # Only the minimised menu is left: the player brings it back from the task bar.
            xdotool windowactivate "$menu" 2>/dev/null
            last_input=$SECONDS
        elif ((SECONDS - last_input > 5 + grace)) && app_running; then
            hangs=$((hangs + 1))
            log "HANG in run $runs: no window of the program for 5 s"
            caused=1
            kill -KILL "$APP_PID" 2>/dev/null
        fi
        sleep 0.1
        return
    fi
    actions=$((actions + 1))
    grace=0
    title="$(window_title "$top")"
    seen["${title:-?}"]=$((${seen["${title:-?}"]:-0} + 1))
    roll=$((RANDOM % 100))
    if ((roll < 45)); then
        click_in "$top"
    elif ((roll < 48)); then
        # The status bar, where a click switches Double Up on or off.
        if [ "$title" = "Marivale Poker" ]; then
            local x y w h t
            read -r x y w h t <<<"$(frame_of "$top")"
            xdotool mousemove $((x + 10 + RANDOM % 60)) $((y + h - 14)) click 1 2>/dev/null
        fi
    elif ((roll < 58)); then
        xdotool key "alt+${access_keys[RANDOM % ${#access_keys[@]}]}" 2>/dev/null
    elif ((roll < 78)); then
        xdotool key "${plain_keys[RANDOM % ${#plain_keys[@]}]}" 2>/dev/null
    elif ((roll < 84)); then
        title_button "$top" 0
    elif ((roll < 89)); then
        menu="$(menu_window)"
        [ -n "$menu" ] && window_shown "$menu" && xdotool windowminimize "$menu" 2>/dev/null
    elif ((roll < 94)); then
        menu="$(menu_window)"
        [ -n "$menu" ] && window_shown "$menu" && title_button "$menu" 1
    elif ((roll < 99)); then
        probe_input "$top"
    else
        send_signal
    fi
    ((actions % 10 == 0)) && app_running && probe_input "$top"
    sleep 0.0$((RANDOM % 10))
}

log "soak of $program for $minutes min on $display, seed $seed, output in $out"
end=$((SECONDS + $(awk -v m="$minutes" 'BEGIN { printf "%d", m * 60 }')))
start_run
while ((SECONDS < end)); do
    if ! app_running; then
        end_run
        start_run
        sleep 0.5
        continue
    fi
    act
done
if app_running; then
    kill -TERM "$APP_PID"
    for _ in $(seq 150); do app_running || break; sleep 0.1; done
    app_running && { caused=1; hangs=$((hangs + 1)); log "HANG: the last run did not close"; kill -KILL "$APP_PID"; }
fi
[ -n "$APP_PID" ] && end_run

played=$(awk -v s="$SECONDS" 'BEGIN { printf "%.1f", s / 60 }')
{
    echo "program:   $program"
    echo "seed:      $seed"
    echo "minutes:   $played"
    echo "actions:   $actions"
    echo "runs:      $runs"
    echo "crashes:   $crashes"
    echo "hangs:     $hangs"
    echo "malformed: $malformed"
    echo "signals sent: $signals; input probes: $probes"
    echo "windows on top (actions):"
    for title in "${!seen[@]}"; do
        printf '  %6d  %s\n' "${seen[$title]}" "$title"
    done | sort -rn
} | tee "$out/report.txt"
((crashes == 0 && hangs == 0 && malformed == 0))
