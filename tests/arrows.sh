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

# What a folder may include besides itself. Nothing is inherited.
declare -A arrows=(
    [foundation]=""
    [values]="foundation"
    [files]="foundation"
    [plist]="foundation values"
    [model]="values"
    [screens]="foundation values model"
    [settings]="foundation values files plist"
    [remote]="foundation values"
    [platform/ramp]="model"
    [platform/edid]=""
    [platform/icc]="platform/ramp"
    [platform/simulated]="foundation values screens platform/ramp"
    [platform/x11]="foundation app hotkeys model screens platform/ramp platform/edid platform/icc"
    [platform/qt]="foundation"
    [platform/posix]="foundation files remote"
    [platform/dbus]="foundation files app"
    [platform/xdg]="foundation values files plist app"
    [platform/choice]="foundation files screens platform/simulated platform/x11"
    [platform/xkb]="foundation hotkeys"
    [platform/missing]="foundation app hotkeys screens"
    [ui]=""
    [targets]="ui"
    [hotkeys]="foundation"
    [hotkeys/field]="hotkeys ui"
    [app]="foundation values files plist model screens settings remote hotkeys"
    [app/panel]="app model screens ui"
    [app/targets]="app app/panel screens targets"
    [cli]="foundation values files model screens settings remote"
    [app/alerts]="app ui"
    [app/about]="foundation app/alerts app/panel ui"
    [app/language]=""
    [app/desktop]="foundation app app/about app/alerts app/panel app/preferences screens ui"
    [app/preferences]="foundation app app/alerts app/panel hotkeys hotkeys/field ui"
    [launcher]=""
)
# Where programs are composed: the only files that may know which platform is used.
composers=" cli/main.cpp app/main.cpp app/Program.h app/Program.cpp launcher/main.cpp "
# Where windows and the toolkit's own services are.
qt_folders=" ui targets app/panel app/targets app/alerts app/about platform/qt platform/dbus hotkeys/field app/preferences app/desktop app/language "

breaches=0
breach() {
    printf '%s: %s\n' "$1" "$2"
    breaches=$((breaches + 1))
}

# check FILE LINE INCLUDED: INCLUDED still has its quotes or angle brackets.
check() {
    local folder=${1%/*} place=$1:$2 included=$3
    if [[ $included == "<"* ]]; then
        if [[ $included =~ ^\<(Qt[A-Z][A-Za-z]*/|Qt\>|Q[A-Z]) && $qt_folders != *" $folder "* &&
            $composers != *" $1 "* ]]; then
            breach "$place" "$included: nothing outside of the user interface may include Qt"
        fi
        return
    fi
    included=${included//\"/}
    local target=${included%/*}
    if [[ $included != */* || /$included == */../* || /$included == */./* ]]; then
        breach "$place" "\"$included\": includes are written from the root"
    elif [[ $target == platform/choice && $folder != platform/choice ]]; then
        if [[ $composers != *" $1 "* ]]; then
            breach "$place" "\"$included\": only where a program is composed may platform/choice be included"
        fi
    elif [[ $1 == cli/main.cpp && $target == platform/posix ]]; then
        return
    elif [[ $folder == app && $composers == *" $1 "* && $target =~ ^(platform/|app/|hotkeys$|ui$) ]]; then
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
