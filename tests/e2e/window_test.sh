#!/usr/bin/env bash
# window_test.sh DEMO: inside a virtual display, runs the demo in a real window as a person would: it comes up, takes a
# click and keys, and ends with status 0 by the last entry of its menu.
set -euo pipefail

demo=$1
log=$(mktemp)
home=$(mktemp -d)
pid=
cleanup() {
    if [[ -n $pid ]] && kill -0 "$pid" 2>/dev/null; then
        kill -9 "$pid"
    fi
    rm -rf "$log" "$home"
}
trap cleanup EXIT
fail() {
    echo "FAILED: $*" >&2
    sed 's/^/    /' "$log" >&2
    exit 1
}

# Settings of whoever runs the test are neither read nor written.
HOME=$home XDG_CONFIG_HOME=$home/.config SDL_VIDEODRIVER=x11 SDL_AUDIODRIVER=dummy "$demo" >"$log" 2>&1 &
pid=$!

# The window as it is now: SDL may replace its first one while it chooses how to draw.
find_window() { xdotool search --onlyvisible --pid "$pid" 2>/dev/null | head -1 || true; }

window=
for _ in $(seq 100); do
    kill -0 "$pid" 2>/dev/null || fail "the demo ended before it showed a window"
    before=$window
    window=$(find_window)
    # There, and still the same a moment later.
    [[ -z $window || $window != "$before" ]] || break
    sleep 0.3
done
[[ -n $window ]] || fail "no window came up"
echo "ok: the window is up"

# A click on the background brings the pointer into the window and changes nothing.
xdotool mousemove --window "$(find_window)" 10 10 click 1 || fail "the window is gone"
sleep 3 # the title's windows slide in
kill -0 "$pid" 2>/dev/null || fail "the demo did not outlive a click"
echo "ok: it takes a click"

# By keyboard alone: the fifth tab stop of the title screen ends the demo.
for key in Tab Tab Tab Tab Tab Return; do
    xdotool key --window "$(find_window)" "$key" || fail "the window is gone"
    sleep 0.4
done
for _ in $(seq 100); do
    kill -0 "$pid" 2>/dev/null || break
    sleep 0.1
done
kill -0 "$pid" 2>/dev/null && fail "the keys did not reach the demo: it still runs"
status=0
wait "$pid" || status=$?
pid=
((status == 0)) || fail "status $status on the way out"
! grep -qiE 'sanitizer|runtime error|^message:' "$log" || fail "the demo had something to report"
echo "ok: it ends by its own menu"
