#!/bin/bash
# with_xvfb.sh COMMAND...: runs a command on a display of its own, which ends with it.
set -eu

# The display's number is read from the server itself, so that runs side by side do not meet. The parent's death
# ends the server even where this shell has no time to.
exec {number}< <(exec setpriv --pdeathsig TERM Xvfb -displayfd 3 -screen 0 2400x2100x24 -noreset -nolisten tcp \
                     3>&1 >/dev/null 2>&1)
server=$!
trap 'kill "$server" 2>/dev/null && wait "$server" || true' EXIT
if ! read -r -t 30 -u "$number" display; then
    echo "with_xvfb.sh: no display: Xvfb did not start" >&2
    exit 1
fi
DISPLAY=":$display" "$@"
