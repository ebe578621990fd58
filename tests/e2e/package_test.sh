#!/usr/bin/env bash
# package_test.sh find_package|pkg_config|add_subdirectory SOURCE_DIR BUILD_DIR
#
# Uses the toolkit like a game, from a folder outside this repository, and prints the log of a failed step.
set -euo pipefail
export CMAKE_GENERATOR=Ninja # the default is make, which need not be installed

way=$1
source=$2
build=$3
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# run NAME COMMAND ...: runs a step and prints its output only if it fails.
run() {
    local name=$1
    shift
    if ! "$@" >"$work/log" 2>&1; then
        echo "FAILED: $name" >&2
        echo "  command: $*" >&2
        echo "  output:" >&2
        tail -60 "$work/log" | sed 's/^/    /' >&2
        exit 1
    fi
    echo "ok: $name"
}
# expect NAME COMMAND ...: checks that the command succeeds.
expect() {
    local name=$1
    shift
    if ! "$@"; then
        echo "FAILED: $name: $*" >&2
        exit 1
    fi
    echo "ok: $name"
}
is_png() { [[ $(head -c 8 "$1" | od -An -tx1 | tr -d ' \n') == 89504e470d0a1a0a ]]; }
# A picture with only one colour would be much smaller than this.
is_drawn() { is_png "$1" && (($(stat -c %s "$1") > 2000)); }
linked_into() { [[ $(LD_LIBRARY_PATH= ldd "$2") == *libtgx.so.+([0-9.])" => $1/"* ]]; }

prefix=$work/prefix
install_here() { run "install" cmake --install "$build" --prefix "$prefix"; }
mkdir -p "$work/data/UIG"

case $way in
find_package)
    install_here
    expect "no private header is installed" test -z "$(find "$prefix/include" -name 'sdl_*' -o -name '*_internal.h')"
    # The installed tree can be moved, so nothing in it may depend on its path.
    mv "$prefix" "$work/moved"
    prefix=$work/moved
    cp -r "$source/examples/first_screen" "$work/game"
    run "configure" cmake -S "$work/game" -B "$work/build" -D CMAKE_PREFIX_PATH="$prefix" -D CMAKE_BUILD_TYPE=Release
    run "build" cmake --build "$work/build" -j 2
    expect "the program uses the moved library" linked_into "$prefix" "$work/build/first_screen"
    run "play" "$work/build/first_screen_player" "$work/data" --script script.tgx --out "$work"
    expect "the screen is drawn" is_drawn "$work/screen.png"
    # The guide's project, with the pictures of the examples, as in the guide.
    cp -r "$source/examples/first_button" "$work/first_button"
    cp -r "$build"/examples/controls/data/{art,fonts} "$work/first_button"
    run "configure the guide's project" cmake -S "$work/first_button" -B "$work/first_button/build" \
        -D CMAKE_PREFIX_PATH="$prefix" -D CMAKE_BUILD_TYPE=Release
    run "build the guide's project" cmake --build "$work/first_button/build" -j 2
    run "test the guide's project" "$work/first_button/build/first_button_player" test "$work/first_button/tests" \
        --data "$work/first_button" --out "$work"
    # The small game, which has several source files and scripts.
    cp -r "$source/examples/small_game" "$work/small_game"
    mkdir "$work/small_game/UIG"
    cp -r "$build"/examples/controls/data/{art,fonts} "$work/small_game"
    cp "$build"/examples/controls/data/UIG/scroll1.bmp "$work/small_game/UIG"
    run "configure the small game" cmake -S "$work/small_game" -B "$work/small_game/build" -D CMAKE_PREFIX_PATH="$prefix"
    run "build the small game" cmake --build "$work/small_game/build" -j 2
    run "test the small game" "$work/small_game/build/small_game_player" test "$work/small_game/tests" \
        --data "$work/small_game" --out "$work"
    # A game with the devtools.
    mkdir "$work/watched"
    cat >"$work/watched/CMakeLists.txt" <<'CMAKE'
cmake_minimum_required(VERSION 3.22)
project(watched LANGUAGES CXX)
find_package(tgx REQUIRED)
add_executable(watched main.cpp)
target_link_libraries(watched PRIVATE tgx::devtools)
CMAKE
    cat >"$work/watched/main.cpp" <<'MAIN'
#include "devtools/devtools.h"
#include "platform/host/headless/headless_host.h"
#include "tgx/frame/mainwin.h"

int main()
{
    displayhost::use(std::make_unique<HeadlessHost>());
    AControlsApp app;
    AMainWin window(320, 200, 32);
    tgx::DevTools devTools(window);
    app.mainWin = &window;
    window.startup();
    window.runTick();
    window.runFrame();
    return 0;
}
MAIN
    run "configure a game with devtools" cmake -S "$work/watched" -B "$work/watched/build" \
        -D CMAKE_PREFIX_PATH="$prefix" -D CMAKE_BUILD_TYPE=Release
    run "build a game with devtools" cmake --build "$work/watched/build"
    run "run a game with devtools" "$work/watched/build/watched"
    ;;
pkg_config)
    install_here
    pc=$(dirname "$(find "$prefix" -name tgx.pc)")
    export PKG_CONFIG_PATH=$pc
    run "tool" "$(pkg-config --variable=tool tgx)" build "$here/consumer/script.tgs" -o "$work/data/UIG/script.tgx"
    expect "the tool compiles the same bytes" cmp "$here/consumer/script.tgx" "$work/data/UIG/script.tgx"
    read -ra flags <<<"$(pkg-config --cflags --libs tgx)"
    run "compile" c++ -std=c++20 "$here/consumer/main.cpp" -o "$work/consumer" "${flags[@]}" \
        "-Wl,-rpath,$(pkg-config --variable=libdir tgx)"
    run "run" "$work/consumer" "$work/data"
    ;;
add_subdirectory)
    run "configure" cmake -S "$here/consumer" -B "$work/build" -D TGX_SOURCE_DIR="$source" \
        -D CMAKE_BUILD_TYPE=None
    run "build" cmake --build "$work/build" -j 2 --target consumer
    run "run" "$work/build/consumer" "$work/data"
    ;;
*)
    echo "package_test.sh: unknown method \"$way\"" >&2
    exit 2
    ;;
esac
