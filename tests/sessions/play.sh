#!/usr/bin/env bash
# play.sh PROGRAM FILE.session: plays the session, and shows where its output differs from FILE.expected, if it does.
set -euo pipefail
"$1" play "$2" | diff -u "${2%.session}.expected" -
