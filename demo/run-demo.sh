#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Shows the program on a private desk of three displays: it starts with a curve stored for each,
# somebody drags a slider of its panel, and another program reads back what the displays' ramps
# were and are. build/demo/ then has a screenshot, the ramps, and a drawing of them. No display of
# this machine is touched.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/packages.sh
source scripts/packages.sh
# shellcheck source=demo/private-desk.sh
source demo/private-desk.sh

tonquil=build/bin/tonquil
output=build/demo
curves=demo/three-displays.tonquil-screens

print_table() {
    local index
    for index in "${!connectors[@]}"; do
        printf '\n%s (%s)\n' "${names[index]}" "${connectors[index]}"
        awk -f demo/ramp-table.awk "$output/${connectors[index]}.was.tsv" \
            "$output/${connectors[index]}.now.tsv"
    done
}

draw() {
    local index
    for index in "${!connectors[@]}"; do
        printf 'title\t%s\n' "${names[index]}"
        sed 's/^/was\t/' "$output/${connectors[index]}.was.tsv"
        sed 's/^/now\t/' "$output/${connectors[index]}.now.tsv"
    done | awk -f demo/curves-svg.awk >"$output/curves.svg"
}

# differs CONNECTOR LABEL: whether its ramp is another one now than it was then.
differs() {
    ! cmp -s "$output/$1.$2.tsv" "$output/$1.now.tsv"
}

are_corrected() {
    local connector
    read_ramps "$output" now
    for connector in "${connectors[@]}"; do
        differs "$connector" was || return 1
    done
}

only_the_first_was_edited() {
    read_ramps "$output" now
    differs DUMMY0 started && ! differs DUMMY1 started && ! differs DUMMY2 started
}

# Drags the slider of the shown tab's master to the right with the pointer. It is the row below
# the tabs; its middle third is the slider whatever the font is.
drag_master_slider() {
    local x y=$((panel_y + 76))
    xdotool mousemove $((panel_x + panel_width * 2 / 5)) "$y" mousedown 1
    for ((x = panel_width * 2 / 5; x <= panel_width / 2; x += 2)); do
        xdotool mousemove $((panel_x + x)) "$y"
    done
}

if [[ ! -x $tonquil || ! -x $tools/rampread ]]; then
    fail "it is not built yet; ./run --build does it."
fi
install_packages "${packages_for_x_server[@]}" "${packages_for_desk[@]}"
rm -rf "$output"
mkdir -p "$output"
start_desk
echo "A private desk with three displays:"
build/bin/tonquilctl displays
read_ramps "$output" was

use_preferences "$curves"
in_background "$tonquil"
wait_until "the panel does not appear." find_panel
wait_until "the stored curves do not reach the displays." are_corrected
read_ramps "$output" started
measure_panel
drag_master_slider
wait_until "the drag does not reach the display under the panel, and it alone." \
    only_the_first_was_edited
import -window root "$output/desk.png"
xdotool mouseup 1
read_ramps "$output" now
convert "$output/desk.png" -crop "${panel_width}x$panel_height+$panel_x+$panel_y" +repage \
    "$output/panel.png"

echo
echo "The program has put the curve of each display on it, and a drag in its panel has changed the"
echo "first. The ramps as another program (rampread) reads them back, from 0 to 65535:"
print_table
draw
"$tonquil" --quit
echo
echo "In $output: desk.png and panel.png (screenshots), curves.svg, and the ramps as they were"
echo "before the program started, when it had, and after the drag."
