#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Brings the translations in line with the texts of the sources: new texts are added as unfinished,
# those that are gone are marked as obsolete, or dropped with --tidy.
#
#   scripts/update-translations.sh [--tidy] [FOLDER]
#
# FOLDER holds the tonquil_*.ts; by default translations/.
set -euo pipefail
options=(-silent -locations none -disable-heuristic similartext
    -source-language en -tr-function-alias "QT_TRANSLATE_NOOP+=TONQUIL_TEXT")
if [[ ${1-} == --tidy ]]; then
    options+=(-no-obsolete)
    shift
fi
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
folder=$(cd "${1:-$root/translations}" && pwd)
cd "$root"
for lupdate in "$(command -v lupdate-qt6)" /usr/lib/qt6/bin/lupdate /usr/lib/qt6/libexec/lupdate \
    "$(command -v lupdate)"; do
    if [[ -x $lupdate ]]; then
        break
    fi
done
"$lupdate" "${options[@]}" -I . app colourfiles files foundation hotkeys model platform plist program remote \
    screens settings targets ui windows -ts "$folder"/tonquil_*.ts
