#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs clang-tidy over everything that a build folder compiles of ours.

    scripts/lint.py BUILD_FOLDER

Give it a folder built with CMAKE_UNITY_BUILD: the toolkit's headers are then parsed once for many
sources. A unit whose sources, headers, command and rules are the same as when it was last clean is
skipped; BUILD_FOLDER/lint remembers those by a hash of their contents.
"""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
# Units of a unity build include sources, which is what this check is against.
UNITY_CHECKS = "-bugprone-suspicious-include"
GENERATED = ("mocs_compilation", "qrc_", "/header_checks/")


def dependencies(build):
    """What each object was compiled from, as the build has recorded it."""
    listing = subprocess.run(["ninja", "-C", build, "-t", "deps"], check=True, text=True,
                             stdout=subprocess.PIPE).stdout
    files = {}
    for line in listing.splitlines():
        if line.startswith("    "):
            files[output].append((pathlib.Path(build) / line.strip()).resolve())
        elif line and not line.startswith("ninja:"):
            output = line.split(":")[0]
            files[output] = []
    return files


def fingerprint(unit, files):
    digest = hashlib.sha256(unit["command"].encode())
    for file in [ROOT / ".clang-tidy", *sorted(set(files))]:
        if file.is_relative_to(ROOT):
            digest.update(str(file).encode() + b"\0" + file.read_bytes())
    return digest.hexdigest()


def lint(build, unit, clean):
    result = subprocess.run(["clang-tidy", "-p", build, "--quiet", f"--checks={UNITY_CHECKS}",
                             unit["file"]], text=True, capture_output=True, check=False)
    if result.returncode != 0:
        return re.sub(r"\x1b\[[0-9;]*m", "", result.stdout)
    clean.touch()
    return ""


def main(build):
    memory = pathlib.Path(build) / "lint"
    memory.mkdir(exist_ok=True)
    files = dependencies(build)
    units = [unit for unit in json.loads((pathlib.Path(build) / "compile_commands.json").read_text())
             if not any(part in unit["file"] for part in GENERATED)]
    waiting = []
    for unit in units:
        output = unit["command"].split(" -o ")[1].split()[0]
        if output not in files:
            sys.exit(f"{unit['file']} has not been built; build {build} first.")
        clean = memory / fingerprint(unit, files[output])
        if not clean.exists():
            waiting.append((unit, clean))
    print(f"{len(units)} units, {len(waiting)} to lint", flush=True)
    findings = []
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for text in pool.map(lambda each: lint(build, *each), waiting):
            findings.append(text)
            unit = os.path.relpath(waiting[len(findings) - 1][0]["file"], ROOT)
            print(f"[{len(findings)}/{len(waiting)}] {unit}", flush=True)
    for text in filter(None, findings):
        print(text)
    return 1 if any(findings) else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
