#!/usr/bin/env bash
# view_test.sh TGX: `tgx view` in a real window, inside a virtual display of 1280x1024, as an author uses it: a script in
# text form is changed, broken and mended while it shows; the keys of the devtools; a recording that plays back.
set -euo pipefail

tgx=$1
here=$(dirname "${BASH_SOURCE[0]}")
source "$here/window.sh"
work=$home/work
mkdir -p "$work/data/UIG" "$work/out"
menu=$work/data/UIG/menu.tgs

# save TEXT: the script of a screen with that label, a button that nothing happens at, and a field.
save() {
    cat >"$menu.new" <<SCRIPT
SCREEN "MENU" 0 0 640 480 ""
BEGIN
    TEXTWND "LABEL" 100 100 400 40 "$1"
    CHECKBOX "TICK" 100 200 200 40 "Tick"
    EDITBOX "NAME" 100 300 200 40 ""
END
SCRIPT
    mv "$menu.new" "$menu"
}

# In the middle of the display, unscaled.
left=$(((1280 - 640) / 2))
top=$(((1024 - 480) / 2))
on_screen() { "$here/x11.py" "$1" $((left + $2)) $((top + $3)) "$4" "$5"; }
label=(100 100 400 40)
panel=(0 0 300 60) # where the devtools have their say; nothing of the script is there
label_is() { [[ $(on_screen picture "${label[@]}") == "$1" ]]; }
label_is_no_more() { ! label_is "$1"; }
panel_is() { [[ $(on_screen picture "${panel[@]}") == "$1" ]]; }
panel_is_empty() { panel_is "$(on_screen picture 0 400 300 60)"; } # there is never anything down there
panel_shows() { ! panel_is_empty; }
label_shows() { ! label_is "$(on_screen picture 0 400 400 40)"; }
has_written() { grep -qF "$1" "$log"; }
point_at() { xdotool mousemove $((left + $1)) $((top + $2)); }
is_there() { [[ -s $1 ]]; }

save "Before"
run "$tgx" view "$work/data" --script menu --out "$work/out"
soon size_is 640 480 || fail "the window does not have the screen's size"
soon label_shows || fail "the screen does not show"
soon panel_is_empty || fail "the help does not go"
before=$(on_screen still "${label[@]}")
echo "ok: a script in text form shows"

point_at 110 220
xdotool click 1
point_at 150 320
xdotool click 1
sleep 0.3
xdotool type --delay 150 "Ann"
xdotool key --delay 150 Return
point_at 500 400
field=$(on_screen still 100 300 200 40)
tick=$(on_screen still 100 200 200 40)
save "After"
soon label_is_no_more "$before" || fail "the changed script does not show"
soon panel_is_empty || fail "the notice does not go"
[[ $(on_screen still 100 300 200 40) == "$field" ]] || fail "what was typed is gone"
[[ $(on_screen still 100 200 200 40) == "$tick" ]] || fail "what was ticked is gone"
after=$(on_screen still "${label[@]}")
echo "ok: a changed script shows, and what was typed stays"

sed -i 's/TEXTWND/TEXTWMD/' "$menu"
soon has_written "menu.tgs:3:5: error: unknown keyword TEXTWMD; did you mean TEXTWND?" || fail "the fault is not told"
soon panel_shows || fail "the fault does not show"
label_is "$after" || fail "a faulty script took the screen away"
save "Mended"
soon label_is_no_more "$after" || fail "the mended script does not show"
soon panel_is_empty || fail "the fault does not go"
echo "ok: a faulty script is told, and its mending shows"

point_at 150 220
around_tick=(90 190 220 60)
plain=$(on_screen still "${around_tick[@]}")
tick_is_plain() { [[ $(on_screen picture "${around_tick[@]}") == "$plain" ]]; }
tick_is_outlined() { ! tick_is_plain; }
xdotool key F12
soon tick_is_outlined || fail "the inspector does not show"
xdotool key F12
xdotool key F12
soon tick_is_plain || fail "the inspector does not go"
xdotool key F10
soon is_there "$work/out/picture-1.png" || fail "no picture is written"
echo "ok: inspector and picture"

xdotool key F9
point_at 110 220
sleep 0.5
xdotool click 1
sleep 0.5
xdotool key F9
soon is_there "$work/out/recording-1.events" || fail "no recording is written"
grep -q '^click TICK$' "$work/out/recording-1.events" || fail "the recording has no click: $(<"$work/out/recording-1.events")"
"$tgx" build "$menu" -o "$work/data/UIG/menu.tgx"
echo 'expect selected TICK 1' >>"$work/out/recording-1.events"
"$tgx" test "$work/out" >>"$log" 2>&1 || fail "the recording does not play"
echo "ok: a recording plays back"

# It becomes another window of the display.
fills_display() { window_stays && size_is 1280 1024; }
has_its_size() { window_stays && size_is 640 480; }
xdotool key F11
soon fills_display || fail "it does not fill the display"
xdotool key F11
soon has_its_size || fail "it does not come back from the whole screen"
"$here/x11.py" close "$window"
ended "closing it"
echo "ok: whole screen, and the end"
