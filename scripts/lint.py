#!/usr/bin/env python3
# SPDX-FileCopyrightText: VornFrame contributors
# SPDX-License-Identifier: MIT
"""Runs clang-tidy or clazy over every own source file of a compile database, and fails on any finding.

A file that was found clean is remembered by the hash of all that the tool could see: its text with all
headers, the compiler's flags, the tool's version and its settings.
"""

import argparse
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
CACHE = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache") / "vornframe/lint"
OWN_FOLDERS = ("src", "tests", "examples", "benchmarks")
FINDING = re.compile(r": (warning|error|fatal error): ")

TOOLS = {
    "clang-tidy": ["clang-tidy", "--quiet"],
    "clazy": ["clazy-standalone", "-checks=level1",
              "-header-filter=/(include/VornFrame|(src|tests|examples)/[a-z0-9]+)/[A-Za-z_]+[.]h$"],
}


def is_own(file):
    relative = os.path.relpath(file, ROOT)
    return relative.split(os.sep)[0] in OWN_FOLDERS


def settings():
    """What the tools read besides the sources."""
    files = sorted([ROOT / ".clang-tidy", *ROOT.glob("*/.clang-tidy"), pathlib.Path(__file__)])
    return b"".join(file.read_bytes() for file in files)


def fingerprint(entry, salt):
    """The hash of what the tool sees of this file, wherever the tree lies; None if it cannot be preprocessed."""
    command = shlex.split(entry["command"])
    if "-o" in command:
        at = command.index("-o")
        del command[at:at + 2]
    text = subprocess.run([*command, "-E", "-P", "-CC"], cwd=entry["directory"], capture_output=True, check=False)
    if text.returncode != 0:
        return None
    flags = " ".join(command).replace(str(ROOT), "")
    return hashlib.sha256(salt + flags.encode() + text.stdout.replace(str(ROOT).encode(), b"")).hexdigest()


def lint(tool, build_dir, entry, salt):
    """The tool's findings about one file, empty when it is clean."""
    key = fingerprint(entry, salt)
    if key and (CACHE / key).exists():
        return ""
    run = subprocess.run([*TOOLS[tool], "-p", build_dir, entry["file"]], capture_output=True, text=True, check=False)
    output = run.stdout + run.stderr
    if run.returncode == 0 and not FINDING.search(output):
        if key:
            (CACHE / key).touch()
        return ""
    return output or f"{entry['file']}: {tool} ended with exit code {run.returncode}\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("tool", choices=TOOLS)
    parser.add_argument("build_dir", help="folder of compile_commands.json")
    arguments = parser.parse_args()

    database = json.loads((pathlib.Path(arguments.build_dir) / "compile_commands.json").read_text())
    entries = {entry["file"]: entry for entry in database if is_own(entry["file"])}
    version = subprocess.run([TOOLS[arguments.tool][0], "--version"], capture_output=True, check=True).stdout
    salt = arguments.tool.encode() + version + settings()
    CACHE.mkdir(parents=True, exist_ok=True)

    failed = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        tasks = [pool.submit(lint, arguments.tool, arguments.build_dir, entry, salt) for entry in entries.values()]
        for task in concurrent.futures.as_completed(tasks):
            if task.result():
                failed += 1
                print(task.result(), flush=True)
    print(f"{arguments.tool}: {len(entries)} files, {failed} with findings")
    return 1 if failed or not entries else 0


if __name__ == "__main__":
    sys.exit(main())
