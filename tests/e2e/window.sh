# Sourced by the tests of real windows. Runs a program on the display, finds its window, and checks its
# output.

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

# soon COMMAND...: waits until the command succeeds, at most 20 seconds, for busy machines.
soon() {
    local end=$((SECONDS + 20))
    until "$@"; do
        [[ -z $pid ]] || kill -0 "$pid" 2>/dev/null || fail "$program ended by itself, before: $*"
        ((SECONDS < end)) || return 1
        sleep 0.1
    done
}

# Finds the current window. SDL may replace its first one while it chooses a renderer.
find_window() { xdotool search --onlyvisible --pid "$pid" 2>/dev/null | head -1 || true; }
window_stays() {
    window=$(find_window)
    sleep 0.3
    [[ -n $window && $window == "$(find_window)" ]]
}
size_is() { [[ $(xdotool getwindowgeometry --shell "$window") == *"WIDTH=$1"$'\n'"HEIGHT=$2"* ]]; }

# run PROGRAM ARGUMENT...: starts the program and waits for its window. The user's settings are neither read
# nor written.
run() {
    program=$(basename "$1")
    HOME=$home XDG_CONFIG_HOME=$home/.config SDL_VIDEODRIVER=x11 SDL_AUDIODRIVER=dummy TGX_NO_MESSAGE_BOX=1 \
        "$@" >"$log" 2>&1 &
    pid=$!
    window=
    soon window_stays || fail "no window appeared"
}
has_ended() { ! kill -0 "$pid" 2>/dev/null; }
# ended HOW: checks that the program ends with status 0 and without reporting anything.
ended() {
    local ending=$pid status=0 end=$((SECONDS + 20))
    until has_ended; do
        ((SECONDS < end)) || fail "$program still runs after $1"
        sleep 0.1
    done
    pid=
    wait "$ending" || status=$?
    ((status == 0)) || fail "$program ended with status $status after $1"
    ! grep -qiE 'sanitizer|runtime error|^message:' "$log" || fail "$program reported something"
}
