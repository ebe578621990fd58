#!/usr/bin/env bash
# view_test.sh TGX: runs `tgx view` in a real window on a virtual display of 1280x1024, as an author does:
# changes, breaks and repairs a script in text form while it is shown, uses the keys of the devtools, and
# plays a recording back.
set -euo pipefail

tgx=$1
here=$(dirname "${BASH_SOURCE[0]}")
source "$here/window.sh"
work=$home/work
mkdir -p "$work/data/UIG" "$work/out"
menu=$work/data/UIG/menu.tgs

# save TEXT: writes the script of a screen with that label, a check box and an edit box.
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

# The window is in the middle of the display, unscaled.
left=$(((1280 - 640) / 2))
top=$(((1024 - 480) / 2))
on_screen() { "$here/x11.py" "$1" $((left + $2)) $((top + $3)) "$4" "$5"; }
label=(100 100 400 40)
panel=(0 0 300 60) # the messages of the devtools; the script draws nothing there
label_is() { [[ $(on_screen picture "${label[@]}") == "$1" ]]; }
label_is_no_more() { ! label_is "$1"; }
panel_is() { [[ $(on_screen picture "${panel[@]}") == "$1" ]]; }
panel_is_empty() { panel_is "$(on_screen picture 0 400 300 60)"; } # that part is always empty
panel_shows() { ! panel_is_empty; }
label_shows() { ! label_is "$(on_screen picture 0 400 400 40)"; }
has_written() { grep -qF "$1" "$log"; }
point_at() { xdotool mousemove $((left + $1)) $((top + $2)); }
is_there() { [[ -s $1 ]]; }

save "Before"
run "$tgx" view "$work/data" --script menu --out "$work/out"
soon size_is 640 480 || fail "the window does not have the screen's size"
soon label_shows || fail "the screen is not shown"
soon panel_is_empty || fail "the help does not disappear"
before=$(on_screen still "${label[@]}")
echo "ok: a script in text form is shown"

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
soon label_is_no_more "$before" || fail "the changed script is not shown"
soon panel_is_empty || fail "the notice does not disappear"
[[ $(on_screen still 100 300 200 40) == "$field" ]] || fail "the typed text was lost"
[[ $(on_screen still 100 200 200 40) == "$tick" ]] || fail "the check box lost its tick"
after=$(on_screen still "${label[@]}")
echo "ok: a changed script is shown, and the typed text is kept"

sed -i 's/TEXTWND/TEXTWMD/' "$menu"
soon has_written "menu.tgs:3:5: error: unknown keyword TEXTWMD; did you mean TEXTWND?" || fail "the error is not reported"
soon panel_shows || fail "the error is not shown"
label_is "$after" || fail "a faulty script replaced the screen"
save "Mended"
soon label_is_no_more "$after" || fail "the repaired script is not shown"
soon panel_is_empty || fail "the error does not disappear"
echo "ok: the error of a faulty script is reported, and the repaired script is shown"

point_at 150 220
around_tick=(90 190 220 60)
plain=$(on_screen still "${around_tick[@]}")
tick_is_plain() { [[ $(on_screen picture "${around_tick[@]}") == "$plain" ]]; }
tick_is_outlined() { ! tick_is_plain; }
xdotool key F12
soon tick_is_outlined || fail "the inspector is not shown"
xdotool key F12
xdotool key F12
soon tick_is_plain || fail "the inspector does not disappear"
xdotool key F10
soon is_there "$work/out/picture-1.png" || fail "no picture was written"
echo "ok: inspector and picture"

xdotool key F9
point_at 110 220
sleep 0.5
xdotool click 1
sleep 0.5
xdotool key F9
soon is_there "$work/out/recording-1.events" || fail "no recording was written"
grep -q '^click TICK$' "$work/out/recording-1.events" || fail "the recording has no click: $(<"$work/out/recording-1.events")"
"$tgx" build "$menu" -o "$work/data/UIG/menu.tgx"
echo 'expect selected TICK 1' >>"$work/out/recording-1.events"
"$tgx" test "$work/out" >>"$log" 2>&1 || fail "the recording cannot be played"
echo "ok: a recording can be played"

# Changing to full screen and back makes a new window.
fills_display() { window_stays && size_is 1280 1024; }
has_its_size() { window_stays && size_is 640 480; }
xdotool key F11
soon fills_display || fail "the window does not fill the display"
xdotool key F11
soon has_its_size || fail "the window does not return from full screen"
"$here/x11.py" close "$window"
ended "closing its window"
echo "ok: full screen and closing"
