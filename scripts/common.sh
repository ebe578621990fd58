# Sourced by the other scripts: the repository's root, the number of jobs, and functions for messages and
# builds.

ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
JOBS=$(nproc)

# step TEXT: prints a heading, bold on a terminal.
step() {
    if [[ -t 1 && -z ${NO_COLOR:-} ]]; then
        printf '\n\033[1m== %s\033[0m\n' "$*"
    else
        printf '\n== %s\n' "$*"
    fi
}

# fail TEXT: prints the reason to stderr and exits with status 1.
fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# configure_and_build PRESET [TARGET ...]: configures and builds a preset.
configure_and_build() {
    local preset=$1
    shift
    local targets=()
    if (($#)); then
        targets=(--target "$@")
    fi
    (cd "$ROOT" && cmake --preset "$preset" >"$ROOT/build/$preset.configure.log" 2>&1) || {
        cat "$ROOT/build/$preset.configure.log" >&2
        fail "configuring the preset $preset failed; see its log above"
    }
    (cd "$ROOT" && cmake --build --preset "$preset" -j "$JOBS" "${targets[@]}")
}
mkdir -p "$ROOT/build"
