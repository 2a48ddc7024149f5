# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# A private desk: an X server with three displays of different makes that exist only in memory, a
# window manager, and folders of its own for whatever a program keeps. To be sourced; what it
# starts ends with the script.

connectors=(DUMMY0 DUMMY1 DUMMY2)
names=("Study 24" "Atelier 27" "Workshop 19")
tools=build/release/tests/tools

fail() {
    echo "The demo failed: $*" >&2
    exit 1
}

# Starts a program that is killed with this script, however that ends.
in_background() {
    setpriv --pdeathsig KILL "$@" &
    background+=($!)
}

clean_up_desk() {
    local process
    for process in "${background[@]}"; do
        kill "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
    rm -rf "$scratch"
}

start_server() {
    local number
    mkfifo "$scratch/number"
    # Opening a pipe waits for its other end, so it must be done in the background as well. The
    # server is called past the wrapper that lets only people at the console start it.
    setpriv --pdeathsig KILL /usr/lib/xorg/Xorg -displayfd 3 -noreset -novtswitch -sharevts \
        -nolisten tcp +extension RANDR -config "$PWD/demo/xorg.conf" -logfile "$scratch/xorg.log" \
        3>"$scratch/number" 2>"$scratch/xorg.err" &
    background+=($!)
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

start_desk() {
    background=()
    scratch=$(mktemp -d)
    trap clean_up_desk EXIT
    # Nothing of the person's own settings, and nothing left in them.
    export XDG_CONFIG_HOME=$scratch/config XDG_STATE_HOME=$scratch/state
    export XDG_DATA_HOME=$scratch/data XDG_CACHE_HOME=$scratch/cache
    # Nor of what is installed, which the program may warn of.
    export XDG_DATA_DIRS=$scratch/none
    export XDG_RUNTIME_DIR=$scratch/runtime
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    unset WAYLAND_DISPLAY XAUTHORITY DBUS_SESSION_BUS_ADDRESS QT_QPA_PLATFORM
    start_server
    plug_in_displays
    # It needs its theme, which is installed.
    in_background env -u XDG_DATA_DIRS openbox --config-file /etc/xdg/openbox/rc.xml >/dev/null 2>&1
    wait_until "there is no window manager" xdotool get_num_desktops
    xsetroot -solid '#4a4a4a'
}

# wait_until WHAT COMMAND...: gives the command 20 seconds to succeed.
wait_until() {
    local what=$1 tries
    shift
    for ((tries = 0; tries < 200; ++tries)); do
        if "$@" >/dev/null 2>&1; then
            return
        fi
        sleep 0.1
    done
    fail "$what"
}

# read_ramps FOLDER LABEL: one file for each display, an entry a line, as another program reads
# them.
read_ramps() {
    local connector
    for connector in "${connectors[@]}"; do
        "$tools/rampread" --full "$connector" | tail -n +2 >"$1/$connector.$2.tsv"
    done
}

find_panel() {
    xdotool search --onlyvisible --name '^Tonquil$'
}

# Sets panel_x, panel_y, panel_width and panel_height, in pixels.
measure_panel() {
    # shellcheck disable=SC2034  # For the scripts that source this.
    read -r panel_x panel_y panel_width panel_height < <(
        xdotool getwindowgeometry --shell "$(find_panel | tail -n 1)" |
            awk -F = '{v[$1] = $2} END {print v["X"], v["Y"], v["WIDTH"], v["HEIGHT"]}'
    )
}

# use_preferences FILE: for the program's next start.
use_preferences() {
    mkdir -p "$XDG_CONFIG_HOME/tonquil"
    cp "$1" "$XDG_CONFIG_HOME/tonquil/preferences.plist"
}
