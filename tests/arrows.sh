#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Holds every #include to the arrows between the folders, and names each that follows none.
#
#   tests/arrows.sh [ROOT]
#
# The build already hides from a folder what it does not link to; but what it links to may link
# further, and only this table says which of that it may use by name.
set -euo pipefail
cd "${1:-$(dirname "$0")/..}"

# What a folder may include besides itself; "*" is everything. Nothing is inherited.
declare -A arrows=(
    [foundation]=""
    [values]="foundation"
    [files]="foundation"
    [plist]="foundation values"
    [model]="values"
    [colourfiles]="foundation model"
    [screens]="foundation values model"
    [settings]="foundation values files plist model colourfiles"
    [remote]="foundation values"
    [hotkeys]="foundation"
    [app/preferences]="values screens hotkeys"
    [app/correction]="foundation model screens app/preferences"
    [app/panel]="foundation model screens hotkeys app/preferences"
    [app/curves]="foundation values model screens app/preferences app/correction app/panel"
    [app/files]="foundation values files plist model colourfiles screens settings app/preferences app/curves app/panel"
    [app/desktop]="foundation values screens app/preferences"
    [app/remote]="foundation model screens remote app/desktop app/preferences app/curves"
    [app]="foundation screens remote hotkeys app/preferences app/correction app/panel app/curves app/files app/desktop app/remote"
    [ui/theme]=""
    [ui/style]="ui/theme"
    [ui]="ui/theme"
    [targets]="ui ui/theme"
    [hotkeys/field]="hotkeys ui ui/theme"
    [windows/language]=""
    [windows/front]="app/panel"
    [windows/menus]="foundation app/panel"
    [windows/panel]="foundation model screens app/desktop app/files app/panel ui ui/theme windows/front windows/menus"
    [windows/targets]="screens targets app/desktop app/panel app/preferences ui/theme windows/front windows/panel"
    [windows/alerts]="foundation app/desktop ui ui/theme"
    [windows/about]="foundation app/panel ui ui/theme windows/alerts windows/front windows/panel"
    [windows/preferences]="foundation hotkeys hotkeys/field app/desktop app/panel app/preferences ui ui/theme windows/alerts windows/front windows/panel"
    [windows/desktop]="foundation screens app app/desktop app/panel app/preferences ui ui/theme windows/about windows/alerts windows/menus windows/panel windows/preferences"
    [platform/folders]="foundation"
    [platform/ramp]="model"
    [platform/edid]="model"
    [platform/icc]="colourfiles platform/ramp"
    [platform/listing]="foundation files screens platform/edid"
    [platform/simulated]="foundation values screens platform/ramp"
    [platform/x11]="foundation"
    [platform/x11/displays]="foundation model screens platform/x11 platform/ramp platform/edid platform/icc"
    [platform/x11/desktop]="foundation app/correction app/panel platform/x11"
    [platform/x11/keys]="foundation hotkeys platform/x11"
    [platform/colord]="foundation files platform/ramp platform/icc platform/dbus"
    [platform/wayland]="foundation model screens platform/ramp platform/edid platform/listing platform/colord"
    [platform/kde]="foundation values colourfiles files plist model screens platform/edid platform/folders platform/icc platform/listing platform/ramp platform/wayland"
    [platform/mutter]="foundation model screens platform/ramp platform/edid platform/listing platform/dbus platform/colord"
    [platform/qt]="foundation"
    [platform/posix]="foundation files remote"
    [platform/dbus]="foundation app/correction"
    [platform/xdg]="foundation values files plist app/curves app/desktop app/preferences platform/folders"
    [platform/choice]="foundation files screens platform/dbus platform/folders platform/kde platform/mutter platform/simulated platform/wayland platform/x11/displays"
    [platform/xkb]="foundation hotkeys"
    [platform/portal]="foundation hotkeys platform/dbus platform/xkb"
    [platform/missing]="foundation screens hotkeys app/panel"
    [launcher]=""
    [cli]="foundation values files model colourfiles screens settings remote"
    [program]="*"
)
# Where programs are composed: the only files that may know which platform is used.
composers=" cli/main.cpp "
# Where windows and the toolkit's own services are.
qt_folders=" ui ui/style ui/theme targets hotkeys/field windows/language windows/front windows/menus windows/panel windows/targets windows/alerts windows/about windows/preferences windows/desktop platform/qt program "

breaches=0
breach() {
    printf '%s: %s\n' "$1" "$2"
    breaches=$((breaches + 1))
}

# check FILE LINE INCLUDED: INCLUDED still has its quotes or angle brackets.
check() {
    local folder=${1%/*} place=$1:$2 included=$3
    if [[ $included == "<"* ]]; then
        if [[ $included =~ ^\<(Qt[A-Z][A-Za-z]*/|Qt\>|Q[A-Z]) && $qt_folders != *" $folder "* ]]; then
            breach "$place" "$included: nothing outside of the user interface may include Qt"
        fi
        return
    fi
    included=${included//\"/}
    local target=${included%/*}
    if [[ $included != */* || /$included == */../* || /$included == */./* ]]; then
        breach "$place" "\"$included\": includes are written from the root"
    elif [[ ${arrows[$folder]} == "*" ]]; then
        return
    elif [[ $target == platform/choice && $folder != platform/choice ]]; then
        if [[ $composers != *" $1 "* ]]; then
            breach "$place" "\"$included\": only where a program is composed may platform/choice be included"
        fi
    elif [[ $1 == cli/main.cpp && $target =~ ^platform/(posix|folders)$ ]]; then
        return
    elif [[ $target != "$folder" && " ${arrows[$folder]} " != *" $target "* ]]; then
        breach "$place" "\"$included\": $folder may include ${arrows[$folder]:-only itself}"
    fi
}

files=0
while IFS= read -r file; do
    file=${file#./}
    if [[ -z ${arrows[${file%/*}]+listed} ]]; then
        breach "$file" "its folder is missing from the table in tests/arrows.sh"
        continue
    fi
    files=$((files + 1))
    while IFS=: read -r line included; do
        check "$file" "$line" "$included"
    done < <(sed -nE \
        '/^[[:space:]]*#[[:space:]]*include[[:space:]]/{=;s/^[^<"]*(["<][^">]*[">]).*/\1/p}' \
        "$file" | paste -d : - -)
done < <(find . \( -path './.*' -o -path ./build -o -path ./tests -o -path ./bench -o -path ./fuzz \
    -o -path ./demo \) -prune -o -type f \( -name '*.h' -o -name '*.cpp' \) -print | sort)

if ((files == 0)); then
    breach "$PWD" "there are no sources here"
fi
((breaches == 0))
