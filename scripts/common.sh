# Sourced by the scripts beside it: the repository's root, the number of jobs, and how a step is announced.

ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
JOBS=$(nproc)

# step TEXT: a heading, bold on a terminal that takes colour.
step() {
    if [[ -t 1 && -z ${NO_COLOR:-} ]]; then
        printf '\n\033[1m== %s\033[0m\n' "$*"
    else
        printf '\n== %s\n' "$*"
    fi
}

# fail TEXT: the reason on stderr, and the end.
fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# configure_and_build PRESET [TARGET ...]: ninja itself counts the steps as it goes.
configure_and_build() {
    local preset=$1
    shift
    local targets=()
    if (($#)); then
        targets=(--target "$@")
    fi
    (cd "$ROOT" && cmake --preset "$preset" >"$ROOT/build/$preset.configure.log" 2>&1) || {
        cat "$ROOT/build/$preset.configure.log" >&2
        fail "configuring the preset $preset failed; its log stands above"
    }
    (cd "$ROOT" && cmake --build --preset "$preset" -j "$JOBS" "${targets[@]}")
}
mkdir -p "$ROOT/build"
