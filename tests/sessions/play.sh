#!/usr/bin/env bash
# play.sh PROGRAM FILE.session: plays the session, and shows where its output differs from FILE.expected, if it does.
# Its pictures are painted and thrown away.
set -euo pipefail
pictures=$(mktemp -d)
trap 'rm -rf "$pictures"' EXIT
"$1" play "$2" --pictures "$pictures" | diff -u "${2%.session}.expected" -
