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
        sleep 0.05
    done
}

die() {
    echo "$*" >&2
    exit 1
}

open_display() {
    rm -f "$work/display"
    Xvfb -displayfd 3 -screen 0 2400x1800x24 -noreset -nolisten tcp 3>"$work/display" 2>/dev/null &
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

height_is() { xwininfo -id "$window" | grep -q "Height: $1$" || die "the window is not $1 pixels high"; }

# A window manager may move it after it appeared.
stays() {
    local before
    before=$(xwininfo -id "$window" | grep Absolute)
    sleep 0.2
    [[ $(xwininfo -id "$window" | grep Absolute) == "$before" ]]
}

open_panel() { # OPTION
    timeout -k 5 60 "$program" --scale 1 "$1" >"$work/trace" 2>"$work/complaint" &
    panel=$!
    within 30 is_shown || die "the window does not appear: $(<"$work/complaint")"
    within 30 stays || die "the window does not stay where it is"
}

# expect_end STATUS HOW
expect_end() {
    local status=0
    wait "$panel" || status=$?
    panel=
    [[ $status == "$1" ]] || die "$2: status $status, not $1: $(<"$work/complaint")"
}

# The gestures: each on the display, and as a line of the session. X and Y are pixels from the window's top left.
session=$work/gestures.session
: >"$session"
declare -A left top_of width

find_frames() {
    echo "frame panel $*" >"$work/frames.session"
    local name x y w h panel_height
    while read -r _ name x y w h; do
        if [[ $name == panel ]]; then panel_height=$h; fi
        left[$name]=$x width[$name]=$w top_of[$name]=$((panel_height - y - h / 2))
    done < <("$program" play "$work/frames.session")
}

# press NAME OFFSET [right]: OFFSET points from the view's left edge, halfway up.
press() {
    local button=1
    if [[ ${3-} == right ]]; then button=3; fi
    xdotool mousemove --window "$window" $((left[$1] + $2)) "${top_of[$1]}" mousedown $button
    held=$button
    echo "press $1 at $2 10 ${3-}" >>"$session"
}

# press_in EDITOR HEIGHT X Y: a point of an open editor of that height, which lies over the panel's upper left corner.
press_in() {
    xdotool mousemove --window "$window" "$3" $(($2 - $4)) mousedown 1
    held=1
    echo "press $1 at $3 $4" >>"$session"
}

drag() {
    if [[ ${3-} == control ]]; then xdotool keydown ctrl; fi
    xdotool mousemove_relative -- "$1" "$2"
    if [[ ${3-} == control ]]; then xdotool keyup ctrl; fi
    echo "drag $*" >>"$session"
}

release() {
    xdotool mouseup "$held"
    echo release >>"$session"
}

scroll() {
    local button=4
    if (($2 < 0)); then button=5; fi
    xdotool mousemove --window "$window" $((left[$1] + width[$1] / 2)) "${top_of[$1]}" click $button
    echo "scroll $1 $2" >>"$session"
}

double_click() {
    xdotool mousemove --window "$window" $((left[$1] + width[$1] / 2)) "${top_of[$1]}" click --repeat 2 --delay 40 1
    printf 'click %s\nclick %s clicks 2\n' "$1" "$1" >>"$session"
}

# Where on the screen an editor opens depends on where the window is.
without_places() { sed 's/^\(overlay open [a-z_]*\) .*/\1/' "$1"; }

traced() { [[ $(wc -l <"$work/trace") -ge $1 ]]; }

open_display
open_panel --trace
height_is 624
find_frames delay_depth_knob output_level envelope_mode wave_shaper_one_a wave_shaper_one_display \
    pre_tone_control_display
press delay_depth_knob 40
drag 10 -15
drag 3 0 control
drag 1200 0 # out of the window, at the right
drag -1250 40
drag 5 0
release
press output_level 30 right
drag -100 0
drag 0 700 # out of it below
release
scroll wave_shaper_one_a 1
scroll wave_shaper_one_a -1
double_click output_level
press envelope_mode 10
release
press envelope_mode 46
drag 20 0
release

# A curve's end point, dragged in the editor over the panel while a knob below it is turned, then a tone control's band.
double_click wave_shaper_one_display
press_in zoomed_wave_shaper_display 400 367 297
drag -40 0
drag 0 12 control
release
press wave_shaper_one_a 40
drag 20 0
release
press_in zoomed_wave_shaper_display 400 535 25
release
double_click pre_tone_control_display
press_in pre_tone_control 360 377 195
drag 0 -10
drag 900 0 # out of the editor and of the window
release
press_in pre_tone_control 360 620 40
release
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
height_is 600
press delay_depth_knob 40
kill "$server"
expect_end 3 "the display is gone in mid-drag"
[[ $(<"$work/complaint") == "r7: the display was lost" ]] || die "the loss is told as \"$(<"$work/complaint")\""
