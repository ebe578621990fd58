#!/usr/bin/env bash
# window_test.sh DEMO: runs the demo in a real window on a virtual display of 1280x1024 like a user, and
# checks only its picture, the pointer, its settings and its exit status. It runs twice: in full screen, ended
# by its menu, and in a window, which is resized and then closed.
set -euo pipefail

demo=$1
here=$(dirname "${BASH_SOURCE[0]}")
source "$here/window.sh"
settings=$home/.config/TGX/Harbour/settings.txt

start() { run "$demo"; }

settings_are() {
    [[ $(tr '\n' ' ' <"$settings") == "$1 " ]] || fail "expected the settings $1, found $(tr '\n' ' ' <"$settings")"
}

# Coordinates are those of the demo's screen of 1024x768, which is centred in the window and as large as
# possible.

# shown_in WIDTH HEIGHT [X Y]: sets the size of the window and its position on the display.
shown_in() {
    if (($1 * 768 <= $2 * 1024)); then
        shown_width=$1
    else
        shown_width=$(($2 * 1024 / 768))
    fi
    left=$((${3:-0} + ($1 - shown_width) / 2))
    top=$((${4:-0} + ($2 - shown_width * 768 / 1024) / 2))
}
# Convert coordinates of the screen to those of the display, rounded.
across() { echo $((left + ($1 * shown_width + 512) / 1024)); }
down() { echo $((top + ($1 * shown_width + 512) / 1024)); }

# on_display COMMAND X Y WIDTH HEIGHT: runs picture or still for a part of the demo's screen.
on_display() {
    local x y
    x=$(across "$2")
    y=$(down "$3")
    "$here/x11.py" "$1" "$x" "$y" $(($(across $(($2 + $4))) - x)) $(($(down $(($3 + $5))) - y))
}
picture() { on_display picture "$@"; }
still() { on_display still "$@"; }
title=(36 20 600 64) # of every screen: not animated, and different on each screen
shows() { [[ $(picture "${title[@]}") == "$1" ]]; }
shows_no_more() { ! shows "$1"; }

click_at() { xdotool mousemove "$(across "$1")" "$(down "$2")" click 1; }
# pointer_on X Y WIDTH HEIGHT: whether the pointer is on this box.
pointer_on() {
    local X Y
    eval "$(xdotool getmouselocation --shell | grep -E '^[XY]=')"
    ((X >= $(across "$1") && X < $(across $(($1 + $3))) && Y >= $(down "$2") && Y < $(down $(($2 + $4)))))
}

# Each screen moves the pointer to a button when it opens, so the pointer's position shows that it has opened.
to_company=(736 250 240 44)
to_chart=(736 304 240 44)
to_fleet=(736 358 240 44)
to_cargo=(736 412 240 44)
to_market=(736 466 240 44)
to_newgame=(736 520 240 44)
to_options=(736 574 240 44)
quit=(736 628 240 44)
menu=(720 184 272 508)
back=(752 36 240 44)
name_field=(60 208 504 36)
ship_field=(60 284 504 36)

# only_inside X Y WIDTH HEIGHT: checks that clicks just outside a button do nothing and a click inside its
# corner works.
only_inside() {
    local x=$1 y=$2 right=$(($1 + $3)) bottom=$(($2 + $4)) before
    before=$(picture "${title[@]}")
    click_at $((x - 4)) $((y + 20))
    click_at $((right + 4)) $((y + 20))
    click_at $((x + 99)) $((bottom + 3))
    click_at $((x + 99)) $((y - 4))
    sleep 1
    if shows_no_more "$before" || ! pointer_on $((x + 95)) $((y - 8)) 8 8; then
        fail "a click outside a button activated it"
    fi
    click_at $((x + 6)) $((y + 6))
    soon shows_no_more "$before" || fail "a click inside a button's corner did not activate it"
}

# Full screen, ended by the menu

start
shown_in 1280 1024
soon size_is 1280 1024 || fail "the window does not fill the display"
soon pointer_on "${to_company[@]}" || fail "the first screen did not open"
echo "ok: the window appears"

# A click on the background moves the pointer into the window and changes nothing.
still "${menu[@]}" >/dev/null || fail "the title's windows do not stop moving"
before=$(picture "${title[@]}")
click_at 10 140
sleep 1
shows "$before" || fail "a click on the background changed the screen"
echo "ok: a click on the background does nothing"

# With the keyboard only: the last tab stop of the title screen ends the demo.
for stop in to_company to_chart to_fleet to_cargo to_market to_newgame to_options quit; do
    xdotool key Tab
    declare -n box=$stop
    soon pointer_on "${box[@]}" || fail "Tab did not move the pointer to $stop"
done
echo "ok: Tab moves the pointer"
[[ ! -e $settings ]] || fail "the settings exist before the demo has ended, so the next check would prove nothing"
xdotool key Return
ended "choosing Quit in its menu"
settings_are "BitDepth=32 FullScreen=1 TopMost=1"
echo "ok: its menu ends it, and its settings are saved"

# In a window

echo "FullScreen=0" >"$settings"
start
soon size_is 1024 768 || fail "it ignores its settings: no window of the screen's size"
shown_in 1024 768 128 128 # in the middle of the display
soon pointer_on "${to_company[@]}" || fail "the first screen did not open"
xdotool windowmove "$window" 0 0
shown_in 1024 768
still "${menu[@]}" >/dev/null || fail "the title's windows do not stop moving"
front=$(still "${title[@]}") || fail "the title is not shown"
click_at 856 542
soon pointer_on "${name_field[@]}" || fail "a click on a button did not open its screen"
soon shows_no_more "$front" || fail "the new screen shows the same picture"
echo "ok: a click changes the screen"

# Types the text of the field above into an empty one and compares the two pixel by pixel.
inside() { picture $(($1 + 4)) $(($2 + 4)) $(($3 - 8)) $(($4 - 8)); }
fields_are_alike() { [[ $(inside "${name_field[@]}") == "$(inside "${ship_field[@]}")" ]]; }
field_shows() { [[ $(inside "${ship_field[@]}") == "$1" ]]; }
still "${ship_field[@]}" >/dev/null || fail "the form does not stop moving"
empty=$(inside "${ship_field[@]}")
! fields_are_alike || fail "the field to type into is not empty"
click_at 300 302
xdotool type --delay 150 "Marram & Daughters"
xdotool key --delay 150 Return # removes the caret
soon fields_are_alike || fail "the field does not show the typed text"
click_at 300 302
xdotool key --delay 150 End
for _ in {1..18}; do
    xdotool key --delay 150 BackSpace
done
xdotool key --delay 150 Return
soon field_shows "$empty" || fail "the field is not empty after erasing the text"
echo "ok: text can be typed into an edit box"

click_at 872 58
soon shows "$front" || fail "the back button does not lead to the first screen"
soon pointer_on "${to_newgame[@]}" || fail "the pointer did not return to the previous button"
still "${menu[@]}" >/dev/null || fail "the title's windows do not stop moving"
xdotool key Tab
soon pointer_on "${to_options[@]}" || fail "Tab did not move the pointer forward"
xdotool key shift+Tab
soon pointer_on "${to_newgame[@]}" || fail "Shift+Tab did not move the pointer back"
echo "ok: Tab and Shift+Tab move the pointer"

# resize WIDTH HEIGHT BAR_WIDTH BAR_HEIGHT: checks that the bar is black and the picture starts right after
# it.
bar_is_black() { [[ $("$here/x11.py" picture 0 0 "$1" "$2") == black ]]; }
resize() {
    xdotool windowsize "$window" "$1" "$2"
    shown_in "$1" "$2"
    soon bar_is_black "$3" "$4" || fail "resized to $1x$2: no black bar of $3x$4 at the top left"
    [[ $(picture 0 0 20 20) != black ]] ||
        fail "resized to $1x$2: the picture does not start right after the bar"
}
resize 1200 600 200 600
only_inside "${to_chart[@]}"
soon pointer_on "${back[@]}" || fail "in the wide window the click opened the wrong screen"
resize 600 900 600 225
only_inside "${back[@]}"
soon pointer_on "${to_chart[@]}" || fail "in the tall window the click on the back button failed"
echo "ok: clicks work in a resized window"

"$here/x11.py" close "$window"
ended "closing its window"
settings_are "BitDepth=32 FullScreen=0 TopMost=1"
echo "ok: closing the window ends it, and its settings are saved"
