#!/usr/bin/env bash
# The installed program on a real X server: a day is marked by right click and given a hover text, the program is
# killed, started again and shows the mark; a second start on the same folder is refused, on another one it is not.
# Usage: planner_test.sh BUILD SOURCE
set -eu
export LC_ALL=C
build=$1 source=$2
. "$source/scripts/screen"

screen_folder=$(mktemp -d)
planner=$screen_folder/planner
program=''
clean_up() {
    local result=$?
    if [ $result != 0 ] && [ -n "${DISPLAY:-}" ]; then
        shot "$build/planner_test.png" && echo "what was on the screen: $build/planner_test.png" >&2
    fi
    [ -z "$program" ] || kill -9 "$program" 2>/dev/null || true
    stop_screen
    rm -rf "$screen_folder"
}
trap clean_up EXIT
fail() { echo "FAILED: $*" >&2; exit 1; }

install_planner() { cmake --install "$build" --prefix "$1" >/dev/null; }

# colour_of INDEX: a marker category's colour as #RRGGBB.
colour_of() {
    local value
    value=$(sed -n "$(($1 + 1))p" "$planner/Marker Colors.dat" | tr -d '\r' | sed 's/^[^:]*://; s/\*$//')
    printf '#%02X%02X%02X' $((value % 256)) $((value / 256 % 256)) $((value / 65536))
}

# pixels_of COLOUR: how many of them are on the screen.
pixels_of() {
    import -silent -window root png:- | convert png:- -format %c histogram:info:- |
        sed -n "s/^ *\([0-9]*\):.*$1.*/\1/p" | grep . || echo 0
}

# The day cells of the month as "left top right bottom": white fields of a cell's size and shape.
month_cells() {
    import -silent -window root png:- |
        convert png:- -fill black +opaque white -define connected-components:verbose=true \
                -define connected-components:area-threshold=2000 -connected-components 4 null: |
        sed -n 's/^ *[0-9]*: \([0-9]*\)x\([0-9]*\)+\([0-9]*\)+\([0-9]*\) .*/\1 \2 \3 \4/p' |
        awk '$1 > 70 && $1 < 180 && $1 / $2 > 1.05 && $1 / $2 < 1.45 { print $3, $4, $3 + $1, $4 + $2 }'
}
month_is_shown() { [ "$(month_cells | wc -l)" -ge 35 ]; }

# run_in FOLDER: starts the program of that folder from elsewhere, as $started.
run_in() {
    (cd / && exec "$1/tasmoro" 2>>"$screen_folder/planner.log") &
    started=$!
}

start_planner() {
    run_in "$planner"
    program=$started
    wait_for 30 window_named '^Tasmoro: '
    wait_for 30 year_is_shown
    xdotool windowactivate --sync "$(window_named '^Tasmoro: ')"
}
year_is_shown() { [ "$(colours_on_screen)" -gt 50 ]; }

# The first item of the Calendar View menu.
show_month() {
    xdotool key --clearmodifiers --delay 60 alt+v Return
    wait_for 20 month_is_shown
}

# point_of_day DAY: the middle of the day's cell in the current month, as "x y".
point_of_day() {
    local cell=$(($(date -d "$(date +%Y-%m-01)" +%w) + $1 - 1))
    month_cells | sort -n | awk -v column=$((cell % 7)) -v row=$((cell / 7)) '
        { if (!left || $1 < left) { left = $1; width = $3 - $1 } if (!top || $2 < top) { top = $2; height = $4 - $2 } }
        END { print int(left + (column + 0.5) * (width + 1)), int(top + (row + 0.8) * (height + 1)) }'
}

year=$(date +%Y) month=$(date +%m) day=17
install_planner "$planner"
other_mark=$(printf '%02d:03:02:%d-Stra\337e, 9:30 - don\x27t forget' $((12 - 10#$month)) 32896)
printf '%s' "$other_mark" >"$planner/${year}Marks.dat"
meeting=$(colour_of 9)

start_screen 1280x1024
start_planner
[ "$(pixels_of "$meeting")" = 0 ] || fail "the colour of the mark to come is on the screen already"

# Mark the day as the tenth category, and answer the question for its text.
show_month
read -r x y < <(point_of_day $day)
xdotool mousemove --sync "$x" "$y" click 3
sleep 0.3
xdotool key --clearmodifiers --delay 60 Down Down Right Down Down Down Down Down Down Down Down Down Return
wait_for 10 window_named 'Optional Hover Text for '
xdotool windowactivate --sync "$(window_named 'Optional Hover Text for ')"
xdotool type --delay 20 'Dentist 9:30 - bring card'
xdotool key Return
mark_is_saved() { grep -q -- '-Dentist 9:30 - bring card' "$planner/${year}Marks.dat"; }
wait_for 10 mark_is_saved
grep -qF -- "$other_mark" "$planner/${year}Marks.dat" || fail "the mark that was there before is gone"

# A second start is refused with a box, and ends when the box is answered.
planners_on_screen() { xdotool search --onlyvisible --name '^Tasmoro: ' | wc -l; }
run_in "$planner"
second=$started
wait_for 20 window_named '^Tasmoro$'
[ "$(planners_on_screen)" = 1 ] || fail "a second planner is open on one folder"
xdotool windowactivate --sync "$(window_named '^Tasmoro$')" key Return
wait "$second" || fail "the refused program ended with $?"

# A copy of the folder is another planner, also while the first is running.
cp -r "$planner" "$screen_folder/copy"
run_in "$screen_folder/copy"
second=$started
two_planners() { [ "$(planners_on_screen)" = 2 ]; }
wait_for 20 two_planners
kill "$second"
wait "$second" 2>/dev/null || true

# Killed and started again it shows the mark, in the year and in the month.
saved=$(cat "$planner/${year}Marks.dat")
kill -9 "$program"
wait "$program" 2>/dev/null || true
start_planner
[ "$(pixels_of "$meeting")" -gt 50 ] || fail "the year does not show the mark"
show_month
[ "$(pixels_of "$meeting")" -gt 20 ] || fail "the month does not show the mark"
[ "$(cat "$planner/${year}Marks.dat")" = "$saved" ] || fail "the marks file has changed by reading it"

# Asked to close, it ends in order.
wait_for 20 ended_when_asked "$program"
wait "$program" || fail "the program ended with $?"
program=''
[ ! -e "$planner/Error.log" ] || fail "errors were reported: $(cat "$planner/Error.log")"
