# shellcheck shell=bash
# A throw-away desktop for driving the real program: Xvfb with openbox, a private configuration,
# and a working folder holding the pictures and the bell. Source this file, then call
# desktop_start; desktop_stop (also run on exit) ends everything it started.
#
# Knobs, all optional, read by desktop_start:
#   MARIVALE_BIN         the program directory (default: build/bin of the repository)
#   MARIVALE_PROGRAM     the program itself (default: marivale-poker in MARIVALE_BIN); the pictures
#                        and the bell are taken from its folder
#   MARIVALE_DISPLAY     the display to create, e.g. :77; it must be free (default: any free one)
#   MARIVALE_DESKTOP_DIR the folder for configuration, home and working folder; it is kept
#                        afterwards (default: a new folder in /tmp, removed by desktop_stop)
#   MARIVALE_LOG_DIR     where the logs of the X server, openbox, the bus and the program go
#                        (default: the desktop folder)
#   MARIVALE_WM          0: no window manager (default 1: openbox)
#   MARIVALE_TITLE_PT    openbox title font size in points (default 8: a title bar of about 20 px)
#   MARIVALE_BORDER      openbox border width in pixels (default 1)
#   MARIVALE_NO_DECOR    1: windows get no title bar and no border at all
#   MARIVALE_FONT_PT     the desktop's default font size through the qt6ct platform theme
#   MARIVALE_FONT_FAMILY the desktop's default font family with qt6ct (default DejaVu Sans)
#   MARIVALE_SCREEN      the screen size (default 1280x1024)
#   MARIVALE_SESSION_BUS 0: no D-Bus session bus (default 1: a private one, as on a desktop)
# LANG and LC_ALL pass through to the program as the player's locale; ASAN_OPTIONS gains
# detect_leaks=0, as the toolkit keeps memory until the process ends.

DESKTOP_REPO="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
DESKTOP_PIDS=()
DESKTOP_TMP=""
DESKTOP_OWN_TMP=0
DESKTOP_LOGS=""
DESKTOP_MEDIA=""
APP_PID=""
APP_STATUS=""

desktop_log() { echo "[desktop] $*" >&2; }

# Runs "$@" until it succeeds, every 0.1 s, for at most $1 seconds.
desktop_retry() {
    local seconds="$1"
    shift
    local tries=$((seconds * 10))
    while ((tries-- > 0)); do
        if "$@" >/dev/null 2>&1; then
            return 0
        fi
        sleep 0.1
    done
    return 1
}

desktop_write_openbox_config() {
    local title_pt="${MARIVALE_TITLE_PT:-8}" border="${MARIVALE_BORDER:-1}"
    local theme_dir="$DESKTOP_TMP/data/themes/MarivaleTest/openbox-3"
    mkdir -p "$theme_dir"
    sed -e "/^border.width:/d" /usr/share/themes/Clearlooks/openbox-3/themerc >"$theme_dir/themerc"
    cp /usr/share/themes/Clearlooks/openbox-3/*.xbm "$theme_dir/" 2>/dev/null || true
    echo "border.width: $border" >>"$theme_dir/themerc"
    local decor=""
    if [ "${MARIVALE_NO_DECOR:-0}" = 1 ]; then
        decor='<application class="*"><decor>no</decor></application>'
    fi
    cat >"$DESKTOP_TMP/openbox-rc.xml" <<EOF
<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew><followMouse>no</followMouse></focus>
  <placement><policy>Smart</policy><center>yes</center></placement>
  <theme>
    <name>MarivaleTest</name>
    <titleLayout>NLIMC</titleLayout>
    <keepBorder>yes</keepBorder>
    <animateIconify>no</animateIconify>
    <font place="ActiveWindow"><name>DejaVu Sans</name><size>$title_pt</size><weight>bold</weight></font>
    <font place="InactiveWindow"><name>DejaVu Sans</name><size>$title_pt</size><weight>bold</weight></font>
  </theme>
  <desktops><number>1</number></desktops>
  <applications>$decor</applications>
</openbox_config>
EOF
}

desktop_write_qt6ct_config() {
    [ -n "${MARIVALE_FONT_PT:-}" ] || return 0
    local family="${MARIVALE_FONT_FAMILY:-DejaVu Sans}"
    mkdir -p "$XDG_CONFIG_HOME/qt6ct"
    # QFont::toString(): family, point size, pixel size, style hint, weight, italic, ...
    local font="\"$family,$MARIVALE_FONT_PT,-1,5,400,0,0,0,0,0,0,0,0,0,0,1\""
    cat >"$XDG_CONFIG_HOME/qt6ct/qt6ct.conf" <<EOF
[Appearance]
style=Fusion
custom_palette=false
standard_dialogs=default

[Fonts]
general=$font
fixed=$font
EOF
    export QT_QPA_PLATFORMTHEME=qt6ct
}

# Makes the folder $1 (under the desktop folder unless absolute) with the pictures and the bell
# linked in, as the launcher makes a working folder, and prints its path.
desktop_folder() {
    local folder="$1" file
    [[ $folder == /* ]] || folder="$DESKTOP_TMP/$folder"
    mkdir -p "$folder"
    for file in "$DESKTOP_MEDIA"/*.gif "$DESKTOP_MEDIA"/bell.wav; do
        if [ -e "$file" ]; then
            ln -sf "$file" "$folder/"
        fi
    done
    echo "$folder"
}

# Starts the X server on $1 and, unless switched off, openbox; true when both run. The server
# must not reset when its first client (the readiness check) leaves, or openbox can meet it
# mid-reset and find no display.
desktop_start_server() {
    local xvfb wm
    export DISPLAY="$1"
    Xvfb "$DISPLAY" -screen 0 "${MARIVALE_SCREEN:-1280x1024}x24" -nolisten tcp -noreset \
        >"$DESKTOP_LOGS/xvfb.log" 2>&1 &
    xvfb=$!
    if desktop_retry 10 xdpyinfo && kill -0 "$xvfb" 2>/dev/null; then
        if [ "${MARIVALE_WM:-1}" = 0 ]; then
            DESKTOP_PIDS+=("$xvfb")
            return 0
        fi
        openbox --sm-disable --config-file "$DESKTOP_TMP/openbox-rc.xml" \
            >"$DESKTOP_LOGS/openbox.log" 2>&1 &
        wm=$!
        if desktop_retry 10 sh -c 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "window id"'; then
            DESKTOP_PIDS+=("$xvfb" "$wm")
            return 0
        fi
        desktop_log "openbox did not start on $DISPLAY: $(head -c 300 "$DESKTOP_LOGS/openbox.log")"
        kill "$wm" 2>/dev/null || true
        wait "$wm" 2>/dev/null || true
    fi
    kill "$xvfb" 2>/dev/null || true
    wait "$xvfb" 2>/dev/null || true
    return 1
}

display_taken() { [ -e "/tmp/.X${1#:}-lock" ] || [ -e "/tmp/.X11-unix/X${1#:}" ]; }

# Starts Xvfb and openbox and prepares the working folder; exports DISPLAY and the folders.
desktop_start() {
    if [ -n "${MARIVALE_DESKTOP_DIR:-}" ]; then
        mkdir -p "$MARIVALE_DESKTOP_DIR"
        DESKTOP_TMP="$(cd "$MARIVALE_DESKTOP_DIR" && pwd)"
        DESKTOP_OWN_TMP=0
    else
        DESKTOP_TMP="$(mktemp -d /tmp/marivale-desktop.XXXXXX)"
        DESKTOP_OWN_TMP=1
    fi
    DESKTOP_LOGS="${MARIVALE_LOG_DIR:-$DESKTOP_TMP}"
    DESKTOP_MAIN_PID="$BASHPID"
    trap desktop_stop EXIT
    APP_BINARY="${MARIVALE_PROGRAM:-${MARIVALE_BIN:-$DESKTOP_REPO/build/bin}/marivale-poker}"
    DESKTOP_MEDIA="$(dirname "$APP_BINARY")"
    export XDG_CONFIG_HOME="$DESKTOP_TMP/config" XDG_DATA_HOME="$DESKTOP_TMP/data"
    export XDG_RUNTIME_DIR="$DESKTOP_TMP/runtime" HOME="$DESKTOP_TMP/home"
    mkdir -p "$XDG_CONFIG_HOME" "$XDG_DATA_HOME" "$HOME" "$XDG_RUNTIME_DIR" "$DESKTOP_LOGS"
    chmod 700 "$XDG_RUNTIME_DIR"
    unset WAYLAND_DISPLAY QT_QPA_PLATFORMTHEME QT_SCALE_FACTOR QT_SCREEN_SCALE_FACTORS
    export QT_QPA_PLATFORM=xcb ASAN_OPTIONS="detect_leaks=0${ASAN_OPTIONS:+:$ASAN_OPTIONS}"
    desktop_folder work >/dev/null
    [ -x "$APP_BINARY" ] || { desktop_log "no program at $APP_BINARY"; return 1; }
    [ "${MARIVALE_WM:-1}" = 0 ] || desktop_write_openbox_config
    desktop_write_qt6ct_config

    if [ -n "${MARIVALE_DISPLAY:-}" ]; then
        if display_taken "$MARIVALE_DISPLAY" || ! desktop_start_server "$MARIVALE_DISPLAY"; then
            desktop_log "no desktop could be started on $MARIVALE_DISPLAY"
            return 1
        fi
    else
        # A display number nobody uses (no lock file, no socket), from a random start so that
        # two desktops started at once rarely meet; a failed start moves on to the next number.
        local attempt number=$((140 + RANDOM % 100))
        for attempt in 1 2 3 4 5; do
            while display_taken ":$number"; do
                number=$((number + 1))
            done
            desktop_start_server ":$number" && break
            number=$((number + 1))
            [ "$attempt" -lt 5 ] || { desktop_log "no desktop could be started"; return 1; }
        done
    fi
    # A session bus, as every desktop has one; without it Qt waits for a bus it cannot find.
    if [ "${MARIVALE_SESSION_BUS:-1}" = 1 ] && command -v dbus-daemon >/dev/null; then
        rm -f "$XDG_RUNTIME_DIR/bus"
        dbus-daemon --session --nofork --nopidfile --address="unix:path=$XDG_RUNTIME_DIR/bus" \
            >"$DESKTOP_LOGS/dbus.log" 2>&1 &
        DESKTOP_PIDS+=($!)
        export DBUS_SESSION_BUS_ADDRESS="unix:path=$XDG_RUNTIME_DIR/bus"
        desktop_retry 5 test -S "$XDG_RUNTIME_DIR/bus" || desktop_log "no session bus"
    fi
    desktop_log "display $DISPLAY, folder $DESKTOP_TMP"
}

desktop_stop() {
    local pid
    # Subshells (command substitutions) run the exit trap too; only the main shell cleans up.
    [ "$BASHPID" = "$DESKTOP_MAIN_PID" ] || return 0
    if [ -n "$APP_PID" ]; then
        kill "$APP_PID" 2>/dev/null || true
        APP_PID=""
    fi
    for ((i = ${#DESKTOP_PIDS[@]} - 1; i >= 0; i--)); do
        pid="${DESKTOP_PIDS[$i]}"
        kill "$pid" 2>/dev/null || true
        wait "$pid" 2>/dev/null || true
    done
    DESKTOP_PIDS=()
    if [ -n "$DESKTOP_TMP" ] && [ "$DESKTOP_OWN_TMP" = 1 ] && [ -z "${MARIVALE_KEEP:-}" ]; then
        rm -rf "$DESKTOP_TMP"
    fi
    DESKTOP_TMP=""
}

# Starts the program in the folder $1 (default: the working folder) with its output going to the
# file $2 (default: app.log in the log folder), without waiting for it.
app_launch() {
    local folder="${1:-$DESKTOP_TMP/work}" log="${2:-$DESKTOP_LOGS/app.log}"
    (cd "$folder" && exec "$APP_BINARY") >"$log" 2>&1 &
    APP_PID=$!
}

# Starts the program in the working folder and waits for its main menu.
app_start() {
    app_launch "$DESKTOP_TMP/work" "$DESKTOP_LOGS/app.log"
    window_id "Marivale Poker" 15 >/dev/null
}

app_running() { [ -n "$APP_PID" ] && kill -0 "$APP_PID" 2>/dev/null; }

# Waits up to $1 seconds for the program to end; once it has, sets APP_STATUS to its exit status
# and forgets it. False when it is still running.
# shellcheck disable=SC2034  # APP_STATUS is read by the scripts that source this file
app_wait() {
    local tries=$((${1:-10} * 10))
    [ -n "$APP_PID" ] || return 0
    while kill -0 "$APP_PID" 2>/dev/null && ((tries-- > 0)); do
        sleep 0.1
    done
    kill -0 "$APP_PID" 2>/dev/null && return 1
    APP_STATUS=0
    wait "$APP_PID" 2>/dev/null || APP_STATUS=$?
    APP_PID=""
}

# Ends the program through its Exit button and waits for it; kills it after 10 s.
app_stop() {
    [ -n "$APP_PID" ] || return 0
    local tries=100
    while kill -0 "$APP_PID" 2>/dev/null && ((tries-- > 0)); do
        sleep 0.1
    done
    if kill -0 "$APP_PID" 2>/dev/null; then
        desktop_log "the program did not end; killing it"
        kill "$APP_PID" 2>/dev/null || true
    fi
    wait "$APP_PID" 2>/dev/null || true
    APP_PID=""
}

# Prints the id of the visible window titled exactly $1, waiting up to $2 seconds (default 10).
window_id() {
    local name="$1" seconds="${2:-10}" id=""
    local tries=$((seconds * 20))
    while ((tries-- > 0)); do
        id="$(xdotool search --onlyvisible --name "^${name}\$" 2>/dev/null | head -n1 || true)"
        if [ -n "$id" ]; then
            echo "$id"
            return 0
        fi
        sleep 0.05
    done
    desktop_log "no window '$name' after ${seconds}s"
    return 1
}

# True when no visible window is titled $1 (waits up to $2 seconds for it to go).
window_gone() {
    local name="$1" seconds="${2:-10}"
    local tries=$((seconds * 20))
    while ((tries-- > 0)); do
        xdotool search --onlyvisible --name "^${name}\$" >/dev/null 2>&1 || return 0
        sleep 0.05
    done
    return 1
}

# The program's top-level windows that the window manager holds, shown or not, bottom to top.
app_windows() {
    local list id
    list="$(xprop -root _NET_CLIENT_LIST_STACKING 2>/dev/null | sed -e 's/.*# //' -e 's/,/ /g')"
    for id in $list; do
        [[ $id == 0x* ]] || continue
        if xprop -id "$id" _NET_WM_PID 2>/dev/null | grep -q "= $APP_PID\$"; then
            echo "$id"
        fi
    done
}

# The program's shown windows, one id a line (with or without a window manager).
app_shown_windows() { xdotool search --onlyvisible --pid "$APP_PID" 2>/dev/null; }

window_shown() { xwininfo -id "$1" 2>/dev/null | grep -q "Map State: IsViewable"; }

window_title() { xprop -id "$1" WM_NAME 2>/dev/null | sed -n 's/.*= "\(.*\)"$/\1/p'; }

# The time of the last input the toolkit took in window $1; it changes only while the program's
# event loop runs.
window_user_time() { xprop -id "$1" _NET_WM_USER_TIME 2>/dev/null | awk '{ print $NF }'; }

# Sends a key chord (xdotool syntax, e.g. alt+d) to the window titled $1, after focusing it.
send_keys() {
    local id
    id="$(window_id "$1")" || return 1
    timeout 5 xdotool windowactivate --sync "$id" >/dev/null 2>&1 ||
        timeout 5 xdotool windowfocus --sync "$id" >/dev/null 2>&1 || true
    shift
    timeout 10 xdotool key --clearmodifiers "$@"
}

# Clicks at x,y of the client area of the window titled $1.
click_at() {
    local id
    id="$(window_id "$1")" || return 1
    timeout 10 xdotool mousemove --window "$id" "$2" "$3" click 1
}

# Saves the client area of the window titled $1 to the PNG file $2 (the frame excluded).
shoot_window() {
    local id
    id="$(window_id "$1")" || return 1
    timeout 20 import -window "$id" "$2"
}

# Saves window $1 with its window-manager frame (the frame window, found from the client) to $2.
shoot_framed() {
    local id frame
    id="$(window_id "$1")" || return 1
    frame="$(xwininfo -id "$id" -tree | sed -n 's/^ *Parent window id: \(0x[0-9a-f]*\).*/\1/p' || true)"
    timeout 20 import -window "${frame:-$id}" "$2"
}

# Prints the colour at x,y of a PNG as rrggbb.
pixel_at() {
    convert "$1" -format "%[fx:int(255*p{$2,$3}.r)],%[fx:int(255*p{$2,$3}.g)],%[fx:int(255*p{$2,$3}.b)]" info: |
        awk -F, '{ printf "%02x%02x%02x\n", $1, $2, $3 }'
}

# True when the colour at x,y of the PNG $1 is within 12 per channel of rrggbb $4.
colour_near() {
    local seen
    seen="$(pixel_at "$1" "$2" "$3")"
    local i a b
    for i in 0 2 4; do
        a=$((16#${seen:$i:2}))
        b=$((16#${4:$i:2}))
        if ((a - b > 12 || b - a > 12)); then
            return 1
        fi
    done
}

# True when a visible window titled $1 appears within $2 seconds of real time, however slowly
# each search runs on a busy machine.
window_appears() {
    local name="$1" now
    now="${EPOCHREALTIME//[!0-9]/}"
    local deadline=$((now + $2 * 1000000))
    while ! xdotool search --onlyvisible --name "^${name}\$" >/dev/null 2>&1; do
        now="${EPOCHREALTIME//[!0-9]/}"
        ((now < deadline)) || return 1
        sleep 0.05
    done
}

# Buys credits on the board titled $1 and plays at most $2 hands, standing on each deal, until
# one pays with Double Up switched on and the Double Up window opens. In phase 0 the board's
# "&Deal" takes Alt+D; after a paying stand the same key is "&Double      Up". A purchase ($20, the
# choice the board starts with) pays for 80 losing hands at the $0.25 game, so it buys one per 80
# hands.
# A window that comes after the wait is still found: it is modal, so the board ignores the
# keys sent meanwhile.
play_until_double_up() {
    local board="$1" tries="$2" purchases=$(($2 / 80 + 1))
    while ((purchases-- > 0)); do
        send_keys "$board" alt+p || return 1
    done
    sleep 0.3
    send_keys "$board" alt+d || return 1
    while ((tries-- > 0)); do
        send_keys "$board" alt+s || return 1
        sleep 0.3
        # Double Up after a paying stand, else the next deal.
        send_keys "$board" alt+d || return 1
        window_appears "Double Up" 1 && return 0
    done
    return 1
}
