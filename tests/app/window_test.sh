#!/usr/bin/env bash
# window_test.sh PROGRAM [WINDOW-MANAGER]: a user's hand on the window does what the same gestures do in a session; and
# how the window ends. On a display of its own.
set -euo pipefail

program=$1
manager=${2-}
work=$(mktemp -d)
server='' panel=''
trap 'kill $panel $server 2>/dev/null || true; rm -rf "$work"' EXIT

# within SECONDS COMMAND...: tries until the command succeeds.
within() {
    local end=$((SECONDS + $1))
    until "${@:2}"; do
        ((SECONDS < end)) || return 1
        sleep 0.01
    done
}

die() {
    echo "$*" >&2
    exit 1
}

# open_display [DEPTH]
open_display() {
    rm -f "$work/display"
    Xvfb -displayfd 3 -screen 0 "2400x1800x${1-24}" -noreset -nolisten tcp 3>"$work/display" 2>/dev/null &
    server=$!
    within 30 test -s "$work/display" || die "Xvfb does not start"
    DISPLAY=:$(<"$work/display")
    export DISPLAY
    [[ -n $manager ]] || return 0
    "$manager" >/dev/null 2>&1 &
    within 30 is_managed || die "$manager does not start"
}

is_managed() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

is_shown() { window=$(xdotool search --class '^r7$' 2>/dev/null | tail -n 1) && xwininfo -id "$window" | grep -q IsViewable; }

# A window manager may move it after it appeared.
stays() {
    local before
    before=$(xwininfo -id "$window" | grep Absolute)
    sleep 0.2
    [[ $(xwininfo -id "$window" | grep Absolute) == "$before" ]]
}

# start_panel OPTION
start_panel() {
    # In the foreground, for otherwise a signal to the panel would be sent twice.
    timeout --foreground -k 5 60 "$program" --scale 1 "$1" >"$work/trace" 2>"$work/complaint" &
    panel=$!
}

# open_panel OPTION
open_panel() {
    start_panel "$1"
    within 30 is_shown || die "the window does not appear: $(<"$work/complaint")"
    within 30 stays || die "the window does not stay where it is"
}

# is_described SIZE: to the window manager.
is_described() {
    diff -u - <(xprop -id "$window" WM_CLASS _NET_WM_NAME WM_NORMAL_HINTS) <<END || die "the window manager is told otherwise"
WM_CLASS(STRING) = "r7", "r7"
_NET_WM_NAME(UTF8_STRING) = "R7"
WM_NORMAL_HINTS(WM_SIZE_HINTS):
		program specified minimum size: $1
		program specified maximum size: $1
END
}

# expect_end STATUS HOW [COMPLAINT]
expect_end() {
    local status=0
    wait "$panel" || status=$?
    panel=
    [[ $status == "$1" && $(<"$work/complaint") == "${3-}" ]] || die "$2: status $status, not $1: $(<"$work/complaint")"
}

# Where each view that the session names begins in the window, from the left and from the top, and its size.
declare -A left bottom width height
find_frames() {
    local name x y w h names
    names=$(awk '/^(press|click|scroll)/ { print $2 }' "$session" | sort -u)
    echo "frame panel ${names//$'\n'/ }" >"$work/frames.session"
    while read -r _ name x y w h; do
        width[$name]=$w height[$name]=$h left[$name]=$x bottom[$name]=$((height[panel] - y))
        # An editor opens over the panel's upper left corner.
        if [[ $name == zoomed_* || $name == *_control ]]; then bottom[$name]=$h; fi
    done < <("$program" play "$work/frames.session")
}

# point_at NAME [X Y]: a point of the view, or its centre.
point_at() {
    local x=${2:-$((width[$1] / 2))} y=${3:-$((height[$1] / 2))}
    xdotool mousemove --window "$window" $((left[$1] + x)) $((bottom[$1] - 1 - y))
}

# A busy machine may take longer between two clicks than a double click lasts, and then nothing comes of them.
double_click() {
    local lines tries
    lines=$(wc -l <"$work/trace")
    point_at "$1"
    for tries in {1..5}; do
        xdotool click --repeat 2 --delay 40 1
        if within 3 traced $((lines + 1)); then return; fi
    done
    die "a double click does nothing: $1, $tries times"
}

# Performs a session on the display.
perform() {
    local word name at x y more held lines
    while read -r word name at x y more; do
        case $word in
        press)
            point_at "$name" "$x" "$y"
            if [[ $more == right ]]; then held=3; else held=1; fi
            xdotool mousedown $held
            ;;
        drag)
            lines=$(wc -l <"$work/trace")
            if [[ $x == control ]]; then xdotool keydown ctrl; fi
            xdotool mousemove_relative -- "$name" "$at"
            if [[ $x == control ]]; then xdotool keyup ctrl; fi
            within 10 traced $((lines + 1)) || die "a drag does nothing: $name $at"
            ;;
        release) xdotool mouseup "$held" ;;
        scroll) point_at "$name" && xdotool click $((at > 0 ? 4 : 5)) ;;
        click) [[ $at == clicks ]] || double_click "$name" ;;
        esac
    done <"$session"
}

# Where on the screen an editor opens depends on where the window is.
without_places() { sed 's/^\(overlay open [a-z_]*\) .*/\1/' "$1"; }

traced() { [[ $(wc -l <"$work/trace") -ge $1 ]]; }

session=$work/gestures.session
cat >"$session" <<END
press delay_depth_knob at 40 10
drag 10 -15
drag 3 0 control
drag 1200 0 # out of the window, at the right
drag -1250 40
drag 5 0
release
press output_level at 30 10 right
drag -100 0
drag 0 700 # out of it below
release
scroll wave_shaper_one_a 1
scroll wave_shaper_one_a -1
click output_level
click output_level clicks 2
press envelope_mode at 10 10
release
press envelope_mode at 46 10
release
press delay_cutoff_frequency_knob at 30 10
$(printf 'drag -20 0 control\n%.0s' {1..70}) # past the edge of the screen
drag 15 -9
release
# A curve's end point, dragged in the editor over the panel while a knob below it is turned.
click wave_shaper_one_display
click wave_shaper_one_display clicks 2
press zoomed_wave_shaper_display at 367 297
drag -40 0
drag 0 12 control
release
press wave_shaper_one_a at 40 10
drag 20 0
release
press zoomed_wave_shaper_display at 535 25
release
# A tone control's band, out of the editor and of the window.
click pre_tone_control_display
click pre_tone_control_display clicks 2
press pre_tone_control at 377 195
drag 0 -10
drag 900 0
release
press pre_tone_control at 620 40
release
END

open_display 8
start_panel --trace
expect_end 3 "pixels of 8 bits" "r7: the display has no pixels of 32 bits in this machine's order"
kill "$server"

open_display
open_panel --trace
find_frames
is_described "${width[panel]} by $((height[panel] + 24))" # with the line of status below
perform
"$program" play "$session" >"$work/expected"
within 10 traced "$(wc -l <"$work/expected")" || true
diff -u <(without_places "$work/expected") <(without_places "$work/trace") || die "the trace differs from the session's"

if [[ -n $manager ]]; then
    xdotool windowfocus --sync "$window" key alt+F4
    expect_end 0 "closed by the window manager"
else
    kill -TERM "$panel"
    expect_end 0 "ended by a signal"
fi

open_panel --no-status
is_described "${width[panel]} by ${height[panel]}"
point_at delay_depth_knob && xdotool mousedown 1 mousemove_relative 5 5
kill "$server"
expect_end 3 "the display is gone in mid-drag" "r7: the display was lost"
