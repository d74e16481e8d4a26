#!/usr/bin/env bash
# program_test.sh PROGRAM RESOURCES: what the program prints, writes and ends with, as a shell sees it. No display.
set -euo pipefail

program=$(realpath "$1")
resources=$(realpath "$2")
unset DISPLAY
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
failures=0

fail() {
    echo "$*" >&2
    failures=$((failures + 1))
}

# expect STATUS OUTPUT COMPLAINT COMMAND...: the command ends with the status, and what it prints matches the patterns.
expect() {
    local status=$1 output=$2 complaint=$3 got=0
    shift 3
    "$@" >out 2>err || got=$?
    [[ $got == "$status" ]] || fail "$*: status $got, not $status"
    # shellcheck disable=SC2053 # patterns
    [[ $(<out) == $output ]] || fail "$*: prints \"$(<out)\", not \"$output\""
    # shellcheck disable=SC2053
    [[ $(<err) == $complaint ]] || fail "$*: complains \"$(<err)\", not \"$complaint\""
}

to_full() { "$program" "$@" >/dev/full; }

# expect_picture FILE WIDTH HEIGHT: a PNG file of that many pixels.
expect_picture() {
    local size
    size=$(od -An -j16 -N8 -tu1 "$1" | awk '{ print (($1*256+$2)*256+$3)*256+$4, (($5*256+$6)*256+$7)*256+$8 }')
    [[ $(head -c 4 "$1" | tail -c 3) == PNG && $size == "$2 $3" ]] || fail "$1: $size pixels, not $2 $3"
}

expect 0 '*Usage: r7*' '' "$program" --help
expect 0 'r7 *' '' "$program" --version
expect 2 '' 'r7: *not expected*' "$program" panel
expect 3 '' 'r7: there is no display*' "$program"
expect 3 '' 'r7: there is no display*' env DISPLAY=:31999 "$program" --trace
expect 4 '' "*r7: $work/nowhere/QmR7View.xml: it is missing" "$program" --resources "$work/nowhere"
mkdir empty
echo '<panel class="QmR7View" width="9" height="9"></panel>' >empty/QmR7View.xml
expect 4 '' "*r7: $work/empty/QmR7View.xml: outlet * is missing" "$program" --resources "$work/empty"

# Sessions: all are checked before any is played; each finds a fresh panel.
echo 'scroll output_level 1' >one.session
printf 'show output_level\nwait\n' >wrong.session
echo 'press output_level' >held.session
expect 0 $'set 35 1.05\nset 35 1.05' '' "$program" play one.session one.session
expect 0 '' '' "$program" play held.session
expect 2 '' 'wrong.session:2: a word is missing: wait SECONDS' "$program" play one.session wrong.session
expect 2 '' 'missing.session: the file cannot be read' "$program" play one.session missing.session
expect 2 '' 'empty: the file cannot be read' "$program" play empty
expect 1 '' '*standard output cannot be written' to_full play one.session
expect 1 '' '*standard output cannot be written' to_full --version

# Pictures: relative to a folder or to the current one; of a view, or of everything.
printf 'frame panel output_level\npicture all.png\npicture one.png output_level\n' >pictures.session
expect 0 '*' '' "$program" play pictures.session --pictures empty
read -r width height < <(awk '$2 == "panel" { print $5, $6 }' out)
expect_picture empty/all.png "$width" "$height"
read -r knob_width knob_height < <(awk '$2 == "output_level" { print $5, $6 }' out)
expect_picture empty/one.png "$knob_width" "$knob_height"
printf 'scroll output_level 1\npicture no/where.png\nscroll output_level 1\n' >unwritable.session
expect 1 'set 35 1.05' 'unwritable.session:2: the picture no/where.png cannot be written' "$program" play unwritable.session

expect 0 '' '' "$program" snapshot double.png --scale 2
expect_picture double.png $((2 * width)) $((2 * height))
expect 1 '' 'r7: the picture no/where.png cannot be written' "$program" snapshot no/where.png

expect 0 '' '' "$program" text 'Painted text' text.png --width 300 --height-px 60
expect_picture text.png 300 60
expect 0 '' '' "$program" text '' empty.png --size 10
expect_picture empty.png 10 13
expect 1 '' 'r7: the picture no/where.png cannot be written' "$program" text words no/where.png

# Elsewhere, the program finds the resources that are installed with it.
mkdir -p there/bin
cp "$program" there/bin/r7
expect 4 '' "*r7: $work/there/share/r7/*" there/bin/r7 play one.session
mkdir there/share
cp -r "$resources" there/share/r7
rm there/share/r7/lightball.tiff
expect 4 '' "r7: $work/there/share/r7/lightball.tiff: *" there/bin/r7 text words text.png
expect 0 'set 35 1.05' '' there/bin/r7 play one.session

((failures == 0))
