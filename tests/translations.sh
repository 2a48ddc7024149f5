#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Holds the translations to the texts of the sources: none is missing, unfinished or for a text that
# is gone, and each has the same places for arguments and the same file patterns as its text.
#
#   tests/translations.sh [ROOT]
set -euo pipefail
root=$(cd "${1:-$(dirname "$0")/..}" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cp "$root"/translations/tonquil_*.ts "$scratch"
"$root/scripts/update-translations.sh" "$scratch"
python3 - "$scratch"/tonquil_*.ts <<'PYTHON'
import pathlib
import re
import sys
import xml.etree.ElementTree as tree

PLACE = re.compile(r"%\d\$@|%@|%\d|\*[.\w-]*")
faults = 0
for file in map(pathlib.Path, sys.argv[1:]):
    count = 0
    for message in tree.parse(file).getroot().iter("message"):
        count += 1
        text = message.findtext("source")
        translation = message.find("translation")
        kind = translation.get("type")
        translated = translation.text or ""
        fault = None
        if kind in ("vanished", "obsolete"):
            fault = "is translated, but no source has it any more"
        elif kind == "unfinished" or not translated.strip():
            fault = "has no finished translation"
        # A text may name an argument more often than once, or in another order.
        elif set(PLACE.findall(text)) != set(PLACE.findall(translated)):
            fault = "and its translation differ in arguments or file patterns"
        elif text.endswith(("\u2026", ":", "(*)")) and text[-1] != translated[-1]:
            fault = "and its translation end differently"
        if fault:
            faults += 1
            print(f'{file.name}: "{text}" {fault}.')
    if count == 0:
        faults += 1
        print(f"{file.name} is empty.")
if faults:
    print("scripts/update-translations.sh adds what is missing, with --tidy drops what is gone.")
sys.exit(faults > 0)
PYTHON
