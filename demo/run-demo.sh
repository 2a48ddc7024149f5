#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Corrects three displays of a private X server, shows what their ramps were and are, and draws
# them into build/demo/curves.svg. It touches no display of this machine.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/packages.sh
source scripts/packages.sh

tonquilctl=build/bin/tonquilctl
tools=build/release/tests/tools
output=build/demo
curves=demo/three-displays.tonquil-screens

connectors=(DUMMY0 DUMMY1 DUMMY2)
names=("Study 24" "Atelier 27" "Workshop 19")

fail() {
    echo "The demo failed: $*" >&2
    exit 1
}

clean_up() {
    if [[ -n ${server-} ]]; then
        kill "$server" 2>/dev/null || true
        wait "$server" 2>/dev/null || true
    fi
    rm -rf "$scratch"
}

start_server() {
    local number
    mkfifo "$scratch/number"
    # The server is called past the wrapper that lets only people at the console start it. It ends
    # with this script, however that ends.
    setpriv --pdeathsig KILL /usr/lib/xorg/Xorg -displayfd 3 -noreset -novtswitch -sharevts \
        -nolisten tcp +extension RANDR -config "$PWD/demo/xorg.conf" -logfile "$scratch/xorg.log" \
        3>"$scratch/number" 2>"$scratch/xorg.err" &
    server=$!
    if ! read -r -t 30 number <"$scratch/number"; then
        cat "$scratch/xorg.err" >&2
        fail "the private X server does not start."
    fi
    export DISPLAY=:$number
}

# Two displays have a serial number, the third is told apart by its size.
plug_in_displays() {
    xrandr --addmode DUMMY1 1280x1024
    xrandr --output DUMMY1 --mode 1280x1024 --right-of DUMMY0
    xrandr --addmode DUMMY2 1024x768
    xrandr --output DUMMY2 --mode 1024x768 --right-of DUMMY1
    xrandr --output DUMMY0 --primary --set WIDTH_MM 520 --output DUMMY0 --set HEIGHT_MM 320
    xrandr --output DUMMY1 --set WIDTH_MM 600 --output DUMMY1 --set HEIGHT_MM 340
    xrandr --output DUMMY2 --set WIDTH_MM 380 --output DUMMY2 --set HEIGHT_MM 300
    # The driver takes up the sizes when it is asked what is connected.
    xrandr --query >/dev/null
    "$tools/setedid" DUMMY0 NOR 2401 1000241 "" "${names[0]}"
    "$tools/setedid" DUMMY1 LUM 2702 2000272 "" "${names[1]}"
    "$tools/setedid" DUMMY2 KES 1903 0 "" "${names[2]}"
}

# read_ramps was|now: one file for each display, an entry a line.
read_ramps() {
    local connector
    for connector in "${connectors[@]}"; do
        "$tools/rampread" --full "$connector" | tail -n +2 >"$output/$connector.$1.tsv"
    done
}

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

verify() {
    local first second
    for first in "${!connectors[@]}"; do
        if cmp -s "$output/${connectors[first]}.was.tsv" "$output/${connectors[first]}.now.tsv"; then
            fail "the ramp of ${names[first]} is what it was."
        fi
        for ((second = first + 1; second < ${#connectors[@]}; ++second)); do
            if cmp -s "$output/${connectors[first]}.now.tsv" \
                "$output/${connectors[second]}.now.tsv"; then
                fail "${names[first]} and ${names[second]} have the same ramp."
            fi
        done
    done
}

if [[ ! -x $tonquilctl || ! -x $tools/rampread ]]; then
    fail "it is not built yet; ./run --build does it."
fi
install_packages "${packages_for_x_server[@]}"
scratch=$(mktemp -d)
trap clean_up EXIT
mkdir -p "$output"
# Nothing of the person's own settings, and nothing left in them.
export XDG_CONFIG_HOME=$scratch/config XDG_STATE_HOME=$scratch/state XDG_DATA_HOME=$scratch/data
export XDG_CACHE_HOME=$scratch/cache XDG_RUNTIME_DIR=$scratch/runtime
mkdir -m 700 "$XDG_RUNTIME_DIR"
unset WAYLAND_DISPLAY XAUTHORITY

start_server
plug_in_displays
echo "A private X server runs with three displays:"
echo
"$tonquilctl" displays
read_ramps was
echo
echo "tonquilctl apply $curves"
"$tonquilctl" apply "$curves"
read_ramps now
echo
echo "The ramps as another program (rampread) reads them back, from 0 to 65535:"
print_table
verify
draw
echo
echo "Each ramp differs from what it was and from the others. Drawn in $output/curves.svg"
