#!/usr/bin/env python3
"""Holds every source file to .clang-format and .clang-tidy, by the compile commands of the native build.

    tools/lint.py             all of them
    tools/lint.py FILE ...    these

A source that clang-tidy found clean has a stamp in build/lint, with the hash of all that the verdict hangs on, and is
not looked at again until that changes. The first run takes about one and a half times as long as the native build.
"""
import functools
import hashlib
import json
import os
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from rooms import BESIDE, INCLUDE, LIBRARY, code_below, find

# Other versions format and judge otherwise.
CLANG_FORMAT = "clang-format-14"
CLANG_TIDY = "clang-tidy-14"
# The compiler's, about files that the linker is to optimise.
NOT_FOR_CLANG = ("-fno-fat-lto-objects",)
COMMANDS = Path("build/native/compile_commands.json")
CLEAN = Path("build/lint")
# Files of the sample host, which are sources there.
DATA = Path("workbench/as400/sample")


@functools.cache
def included(path):
    return {found for name in INCLUDE.findall(path.read_text(errors="replace")) for found in find(name, path)}


def with_headers(path):
    files, unread = {path}, [path]
    while unread:
        new = included(unread.pop()) - files
        files |= new
        unread += new
    return sorted(files)


def compile_flags():
    """By source; of several commands for one, as for a provider built in variants, the first."""
    flags = {}
    for entry in json.loads(COMMANDS.read_text()):
        source = Path(os.path.relpath(entry["file"]))
        words = shlex.split(entry["command"])
        flags.setdefault(source, [word for word in words[1 : words.index("-o")] if word not in NOT_FOR_CLANG])
    return flags


def common_to_all():
    version = subprocess.run([CLANG_TIDY, "--version"], check=True, capture_output=True).stdout
    settings = sorted(path for folder in LIBRARY + BESIDE for path in Path(folder).rglob(".clang-tidy"))
    return b"".join([version] + [path.read_bytes() for path in [Path(".clang-tidy"), Path(__file__)] + settings])


def is_clean(source, flags, common):
    hangs_on = hashlib.sha256(common + " ".join(flags).encode())
    for path in with_headers(source):
        hangs_on.update(str(path).encode() + path.read_bytes())
    stamp = CLEAN / f"{source}.clean"
    if stamp.is_file() and stamp.read_text() == hangs_on.hexdigest():
        return True
    run = subprocess.run([CLANG_TIDY, "--quiet", str(source), "--"] + flags, capture_output=True, text=True)
    if run.returncode != 0:
        print(f"{run.stdout}{run.stderr}", flush=True)
        return False
    stamp.parent.mkdir(parents=True, exist_ok=True)
    stamp.write_text(hangs_on.hexdigest())
    return True


def main():
    named = [Path(os.path.relpath(name, Path(__file__).resolve().parent.parent)) for name in sys.argv[1:]]
    os.chdir(Path(__file__).resolve().parent.parent)
    if not COMMANDS.is_file():
        print("The compile commands are missing: cmake --preset native", file=sys.stderr)
        return 2
    sources = named or [path for path in code_below(LIBRARY + BESIDE) if DATA not in path.parents]
    formatted = subprocess.run([CLANG_FORMAT, "--dry-run", "-Werror"] + sources).returncode == 0
    flags = compile_flags()
    units = [source for source in sources if source in flags]
    common = common_to_all()
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        clean = list(pool.map(lambda unit: is_clean(unit, flags[unit], common), units))
    print(f"Lint: {len(sources)} files, {len(units)} of them compiled natively, {clean.count(False)} with complaints")
    return 0 if formatted and all(clean) else 1


if __name__ == "__main__":
    sys.exit(main())
