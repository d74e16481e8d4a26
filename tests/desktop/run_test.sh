#!/usr/bin/env bash
# run_test.sh SOURCE: `run` without a terminal, as a desktop starts it: what fails is kept, and shown.
set -euo pipefail

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/tree" "$work/bin" "$work/elsewhere"
cp -r "$1/run" "$1/cmake" "$work/tree"
cd "$work/elsewhere"

command_that() { printf '#!/bin/sh\n%s\n' "$2" >"$work/bin/$1" && chmod +x "$work/bin/$1"; } # NAME DOES
command_that dpkg-query 'exit 1'
command_that sudo 'exec false'
command_that apt-get 'echo "E: the network is down"; exit 100'
command_that notify-send 'exit 1'
command_that zenity 'exit 1'
command_that kdialog 'exit 1'
command_that xmessage "echo \"\$2\" >$work/shown"

status=0
DISPLAY=:31999 PATH=$work/bin:$PATH setsid -w "$work/tree/run" </dev/null >"$work/out" 2>"$work/complaint" || status=$?
for ((i = 0; i < 100; ++i)); do [[ -s $work/shown ]] && break || sleep 0.05; done
for text in complaint shown tree/build/run.log; do
    grep -qE 'E: the network is down|Please install, as root' "$work/$text" ||
        { echo "$text: $(cat "$work/$text" 2>&1)" >&2; status=0; }
done
((status != 0))
