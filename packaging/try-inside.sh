#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# What packaging/try-deb does inside the fresh Debian, as its root. The packages are in /packages,
# the next version of them in /packages/newer.
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive
home=/home/person
desktop=(HOME="$home" XDG_RUNTIME_DIR=/run/user/1000 LC_ALL=C.UTF-8
    DBUS_SESSION_BUS_ADDRESS=unix:path=/run/user/1000/bus QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1)

say() {
    printf '\n== %s\n' "$*"
}

fail() {
    echo "FAILED: $*"
    tail -n 20 /tmp/log || true
    exit 1
}

# add PACKAGE...: with what is recommended, as apt does by default.
add() {
    apt-get -q install -y "$@" >/tmp/log 2>&1 || fail "apt-get install $*"
    grep -E '^[0-9]+ upgraded|newly installed' /tmp/log
}

person() {
    (cd "$home" && runuser -u person -- env -i PATH=/usr/bin:/bin "${desktop[@]}" "$@")
}

eventually() {
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

# What another program than ours sees on the hardware.
ramp() {
    person xrandr --verbose | awk '/Gamma:/ && !found++'
}

is_corrected() {
    [[ $(ramp) != "$straight" ]]
}

is_not_corrected() {
    [[ $(ramp) == "$straight" ]]
}

has_panel() {
    person xdotool search --onlyvisible --name '^Tonquil$'
}

running() {
    pgrep --exact --uid person tonquil
}

is_over() {
    ! running
}

start_desk() {
    add xserver-xorg-core xserver-xorg-video-dummy x11-xserver-utils openbox xdotool dbus \
        at-spi2-core python3-pyatspi libglib2.0-bin desktop-file-utils shared-mime-info procps \
        hicolor-icon-theme
    useradd --create-home --uid 1000 person
    mkdir -p /run/user
    install -d -m 700 -o person -g person /run/user/1000
    /usr/lib/xorg/Xorg -displayfd 3 -noreset -novtswitch -sharevts -nolisten tcp \
        +extension RANDR -config /packages/xorg.conf -logfile /tmp/xorg.log \
        3>/tmp/display 2>/tmp/log &
    eventually "the X server does not start" grep -q . /tmp/display
    desktop+=("DISPLAY=:$(cat /tmp/display)")
    person dbus-daemon --session --address=unix:path=/run/user/1000/bus --fork --nopidfile
    person openbox >/dev/null 2>&1 &
    straight=$(ramp)
}

# press NAME: clicks the box of the control that the accessibility bus knows by this name.
press() {
    local x y
    read -r x y < <(person /usr/bin/python3 - "$1" <<'PYTHON'
import pyatspi, sys
for program in pyatspi.Registry.getDesktop(0):
    found = pyatspi.findDescendant(program, lambda each: each.name == sys.argv[1])
    if found:
        place = found.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        print(place.x + place.height // 2, place.y + place.height // 2)
PYTHON
    ) && person xdotool mousemove "$x" "$y" click 1
}

try_tonquilctl() {
    say "tonquilctl on a server"
    add /packages/tonquilctl_*.deb
    tonquilctl --version
    TONQUIL_DISPLAY_SERVICE=simulated tonquilctl displays
    if dpkg-query -W -f '${Package}\n' | grep -i qt; then
        fail "tonquilctl brings a toolkit"
    fi
}

try_first_start() {
    say "tonquil, its first start"
    add /packages/tonquil_*.deb
    person tonquil --version
    person tonquil >/tmp/tonquil.log 2>&1 &
    eventually "the panel does not appear" has_panel
    echo "The panel is there. On the standard error: $(wc -l </tmp/tonquil.log) lines."
    cat /tmp/tonquil.log
}

try_file() {
    say "A settings file, by its MIME type"
    # The demo's first curve, as a file of one display.
    sed -n '/<key>1000241-/,/^        <.dict>/p' /packages/three-displays.tonquil-screens |
        { echo '<plist version="1.0">' && sed 1d && echo '</plist>'; } >"$home/evening.tonquil"
    person gio info -a standard::content-type evening.tonquil | tail -n 1
    person gio mime application/x-tonquil-settings
    is_corrected && fail "the display is corrected already"
    person gio open evening.tonquil
    eventually "the file does not reach the display" is_corrected
    echo "Before:$straight; now:$(ramp)"
}

try_login_item() {
    say "Start at login"
    person tonquil --preferences
    eventually "there are no preferences" \
        person xdotool search --onlyvisible --name '^Preferences'
    # The window manager may still be placing them.
    sleep 1
    eventually "the check box is not found" press "Start Tonquil at login"
    eventually "there is no autostart entry" test -f "$home/.config/autostart/tonquil.desktop"
    cat "$home/.config/autostart/tonquil.desktop"
    person tonquil --quit
    eventually "it does not end" is_over
    person gio launch "$home/.config/autostart/tonquil.desktop" >/tmp/tonquil.log 2>&1 &
    eventually "the autostart entry starts nothing" has_panel
}

try_upgrade() {
    say "An upgrade over the running program"
    local old
    old=$(running)
    add /packages/newer/*.deb
    dpkg-query -W tonquil tonquilctl
    [[ $(running) == "$old" ]] || fail "the old one ended"
    ls -l "/proc/$old/exe"
    person tonquil --off
    eventually "the old one does not do as it is told" is_not_corrected
    person tonquil --on
    eventually "the old one does not do as it is told" is_corrected
    person tonquil --quit
    eventually "the old one does not end" is_over
    person tonquil >/tmp/tonquil.log 2>&1 &
    eventually "the new one does not start" has_panel
    ls -l "/proc/$(running)/exe"
}

try_removal() {
    say "Removal under the running program"
    apt-get -q remove -y tonquil tonquilctl >/tmp/log 2>&1 || fail "removal"
    running >/dev/null || fail "it ended with its package"
    pkill --exact --uid person tonquil
    eventually "it does not end" is_over
    # What desktops do with the entry that is left in the home folder: nothing.
    test ! -e "$(sed -n 's/^TryExec=//p' "$home/.config/autostart/tonquil.desktop")"
    # They have no configuration files, so apt has forgotten them already.
    dpkg --purge tonquil tonquilctl >/tmp/log 2>&1 || fail "purge"
    apt-get -q autoremove -y --purge >/tmp/log 2>&1 || fail "autoremove"
    local left
    left=$({ find / -xdev \( -path /proc -o -path /packages -o -path "$home" -o -path /tmp \) -prune \
        -o -iname '*tonquil*' -print
        grep -rli tonquil /etc /usr/share/mime /usr/share/applications /usr/share/icons \
            /var/lib --exclude-dir=lists; } | grep -v '^/run/user/' || true)
    if [[ -n $left ]]; then
        fail "left behind: $left"
    fi
    echo "Nothing is left but what is the person's own:"
    find "$home" /run/user/1000 -iname '*tonquil*'
}

apt-get -q update >/tmp/log 2>&1 || fail "apt-get update"
try_tonquilctl
say "A desk: X server, window manager, buses"
start_desk
try_first_start
try_file
try_login_item
try_upgrade
try_removal
say "All of it works."
