#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Completes command lines as bash would and compares what is offered.
#
#   tests/completion.sh TONQUILCTL
set -euo pipefail
program=$1
# shellcheck source=completions/tonquilctl.bash
source "$(dirname "$0")/../completions/tonquilctl.bash"
export TONQUIL_DISPLAY_SERVICE=simulated
unset TONQUIL_SIMULATED_DESK

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
touch "$folder/evening curve" "$folder/other"
cd "$folder"

failures=0
# expect OFFERED WORD...: completing the last word offers these, one behind the other.
expect() {
    local expected=$1 offered
    shift
    COMP_WORDS=("$program" "$@")
    COMP_CWORD=$#
    COMPREPLY=()
    _tonquilctl || true
    offered=$(IFS='|' && echo "${COMPREPLY[*]}")
    if [[ $offered != "$expected" ]]; then
        printf 'tonquilctl %s\n  offers   %s\n  expected %s\n' "$*" "$offered" "$expected"
        failures=$((failures + 1))
    fi
}

mapfile -t ids < <("$program" displays | cut -f 2,3 | tr '\t' '\n')
if ((${#ids[@]} < 4)); then
    echo "The simulated desk has too few displays to tell anything."
    exit 1
fi

expect "restore|read|remote" re
expect "" nonsense ""
# What is offered is what the command takes.
expect "--display|--hardware|--help" read -
expect "--json|--help" displays -
# Reference IDs and connectors, whichever way the option is written.
expect "$(IFS='|' && echo "${ids[*]}")" apply --display ""
expect "${ids[0]}" restore --display "${ids[0]:0:3}"
expect "${ids[0]}" restore --display = "${ids[0]:0:3}"
# A file, blanks and all, where one is taken and none is named yet.
expect "evening curve" apply eve
expect "evening curve" apply --display "${ids[0]}" eve
expect "other" table --curve "[]" --base oth
expect "" apply --curve "[]" eve
expect "evening curve" fit eve
expect "cal" export --format c
mkdir -p tonquil/presets
touch tonquil/presets/"night desk.tonquil"
XDG_CONFIG_HOME=$folder expect "night desk" apply --preset n
expect "" apply --preset "night desk" eve
expect "" apply other eve
expect "" read eve
# The remote commands; a file only after the host and the display.
expect "scan|set" remote s
expect "--timeout|--json|--address|--help" remote scan -
expect "grayscaleTargets" remote set host 1-2-3 --content g
expect "grayscaleTargets" remote set --content = g
expect "" remote set oth
expect "other" remote set host 1-2-3 oth
expect "" remote get host oth
# Where displays cannot be asked for, nothing is offered and nothing is printed.
TONQUIL_DISPLAY_SERVICE=nowhere expect "" apply --display "" 2> errors
if [[ -s errors ]]; then
    echo "Completion prints: $(< errors)"
    failures=$((failures + 1))
fi

((failures == 0))
