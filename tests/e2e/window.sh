# Sourced by the tests of real windows: a program that runs on the display, its one window, and what it writes.

log=$(mktemp)
home=$(mktemp -d)
program=
pid=
cleanup() {
    if [[ -n $pid ]] && kill -0 "$pid" 2>/dev/null; then
        kill -9 "$pid"
        wait "$pid" 2>/dev/null || true
    fi
    rm -rf "$log" "$home"
}
trap cleanup EXIT
fail() {
    echo "FAILED: $*" >&2
    echo "    pointer: $(xdotool getmouselocation 2>&1); $program wrote:" >&2
    sed 's/^/    /' "$log" >&2
    exit 1
}

# soon COMMAND...: whether it comes true; so long that a busy machine has time for it.
soon() {
    local end=$((SECONDS + 20))
    until "$@"; do
        [[ -z $pid ]] || kill -0 "$pid" 2>/dev/null || fail "$program ended by itself, before: $*"
        ((SECONDS < end)) || return 1
        sleep 0.1
    done
}

# The window as it is now: SDL may replace its first one while it chooses how to draw.
find_window() { xdotool search --onlyvisible --pid "$pid" 2>/dev/null | head -1 || true; }
window_stays() {
    window=$(find_window)
    sleep 0.3
    [[ -n $window && $window == "$(find_window)" ]]
}
size_is() { [[ $(xdotool getwindowgeometry --shell "$window") == *"WIDTH=$1"$'\n'"HEIGHT=$2"* ]]; }

# run PROGRAM ARGUMENT...: until its window is up. Settings of whoever runs the test are neither read nor written.
run() {
    program=$(basename "$1")
    HOME=$home XDG_CONFIG_HOME=$home/.config SDL_VIDEODRIVER=x11 SDL_AUDIODRIVER=dummy TGX_NO_MESSAGE_BOX=1 \
        "$@" >"$log" 2>&1 &
    pid=$!
    window=
    soon window_stays || fail "no window came up"
}
has_ended() { ! kill -0 "$pid" 2>/dev/null; }
# ended HOW: the program ends now, with status 0 and nothing to report.
ended() {
    local ending=$pid status=0 end=$((SECONDS + 20))
    until has_ended; do
        ((SECONDS < end)) || fail "it still runs, asked to end by $1"
        sleep 0.1
    done
    pid=
    wait "$ending" || status=$?
    ((status == 0)) || fail "status $status on the way out by $1"
    ! grep -qiE 'sanitizer|runtime error|^message:' "$log" || fail "$program had something to report"
}
