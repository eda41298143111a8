#!/usr/bin/env python3
"""Prints how src/ and include/ hang together: rooms, circles, and the floors of the folders from the ground up.

    tools/rooms.py            all of it
    tools/rooms.py --quiet    the counts and the offenders

A room is a header together with the source of the same name beside it; either may stand alone. Its arrows are what it
includes of the project. A folder inside another is a folder of its own. Ends with 1 when rooms or folders include one
another in a circle, when shared code knows an operating system, or when the library includes what stands beside it.
"""
import os
import re
import sys
from pathlib import Path

LIBRARY = ["src", "include"]
BESIDE = ["workbench", "tests", "bench", "fuzz", "examples"]
PLATFORMS = ["posix", "windows"]
CODE = [".h", ".cpp", ".c"]
# As the build has them.
INCLUDE_PATHS = LIBRARY + BESIDE + ["workbench/codepages", "workbench/cli", "."]

INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]', re.MULTILINE)
# A list of what is allowed: nobody can name all the headers of two operating systems. Names without ".h" are C++'s own.
PORTABLE = re.compile(
    r"(assert|ctype|errno|float|inttypes|limits|locale|math|setjmp|signal|stdalign|stdarg|stdbool|stddef|stdint|stdio"
    r"|stdlib|string|time|uchar|wchar|wctype|sqlite3|(gtest|sanitizer|unicode)/.*)\.h|[^.]*|CLI/CLI\.hpp")
SYSTEM_CONDITIONAL = re.compile(
    r"\s*#\s*(el)?if.*\b(_?WIN32|_WIN64|__MINGW\w+|__CYGWIN__|__linux__|__unix__|__APPLE__|_POSIX\w*)\b")

# What may ask: it is copied into trees where no build of this one can choose it.
MAY_ASK = [Path("include/Z7XFRPCS/calling_convention.h"), Path("examples/smallest_emulator.c")]


def code_below(folders):
    return sorted(path for folder in folders for path in Path(folder).rglob("*") if path.suffix in CODE)


def room_of(path):
    name = path.with_suffix("").as_posix() if path.suffix in CODE else path.as_posix()
    return name.removeprefix("src/")


def folder_of(room):
    return os.path.dirname(room) or "."


def find(name, includer):
    """The file beside the includer if there is one, or all that the include paths lead to."""
    for places in ([includer.parent], INCLUDE_PATHS):
        paths = [Path(os.path.normpath(Path(place) / name)) for place in places]
        if found := [path for path in paths if path.is_file()]:
            return found
    return []


def examine():
    """The arrows of each room, as {room: {room: "file:line"}}, and the breaches."""
    arrows, breaches = {}, []
    for path in code_below(LIBRARY + BESIDE):
        inside = path.parts[0] in LIBRARY
        shared = path not in MAY_ASK and not set(path.parts) & set(PLATFORMS)
        own = arrows.setdefault(room_of(path), {}) if inside else {}
        for number, line in enumerate(path.read_text(errors="replace").splitlines(), 1):
            where = f"{path}:{number}"
            if shared and SYSTEM_CONDITIONAL.match(line):
                breaches.append(f"{where} asks which operating system it is built for: {line.strip()}")
            if not (include := INCLUDE.match(line)):
                continue
            found = find(include[1], path)
            rooms = [room_of(target) for target in found if target.parts[0] in LIBRARY]
            if found and inside and not rooms:
                breaches.append(f"{where} includes what only stands beside the library: {include[1]}")
            if not found and shared and not PORTABLE.fullmatch(include[1]):
                breaches.append(f"{where} includes a header that not every system has: {include[1]}")
            for room in rooms:
                own.setdefault(room, where)
    # Files that are included and are no code: lists, which include nothing themselves.
    return {room: {} for targets in arrows.values() for room in targets} | arrows, breaches


def reach(graph, start):
    seen, open_ends = set(), [start]
    while open_ends:
        for target in graph[open_ends.pop()]:
            if target not in seen:
                seen.add(target)
                open_ends.append(target)
    return seen


def circles(graph):
    """The sets of more than one node, each of which leads to all others of its set."""
    reached = {node: reach(graph, node) for node in graph}
    sets = {frozenset(other for other in reached[node] if node in reached[other]) for node in graph}
    return sorted((sorted(nodes) for nodes in sets if len(nodes) > 1), key=lambda nodes: (-len(nodes), nodes))


def folder_graph(arrows):
    graph = {folder_of(room): {} for room in arrows}
    for room, targets in arrows.items():
        for target, where in targets.items():
            if folder_of(target) != folder_of(room):
                graph[folder_of(room)].setdefault(folder_of(target), f"{where} includes {target}")
    return graph


def height(graph, folder):
    return 1 + max((height(graph, below) for below in graph[folder]), default=0)


def print_floors(graph):
    width = max(map(len, graph))
    floor_of = {folder: height(graph, folder) for folder in graph}
    for folder in sorted(graph, key=lambda folder: (floor_of[folder], folder)):
        print(f"{floor_of[folder]:3}  {folder:{width}}  {' '.join(sorted(graph[folder])) or '-'}")


def main():
    if sys.argv[1:] not in ([], ["--quiet"]):
        print(__doc__.strip(), file=sys.stderr)
        return 2
    os.chdir(Path(__file__).resolve().parent.parent)
    arrows, breaches = examine()
    folders = folder_graph(arrows)
    pairs = [(a, b) for a in sorted(folders) for b in sorted(folders[a]) if a < b and a in folders[b]]
    room_circles, folder_circles = circles(arrows), circles(folders)
    print(f"{len(arrows)} rooms in {len(folders)} folders")
    for circle in room_circles:
        print(f"Circle of {len(circle)} rooms: {' '.join(circle)}")
    for a, b in pairs:
        print(f"{a} and {b} include each other:\n    {folders[a][b]}\n    {folders[b][a]}")
    for circle in folder_circles:
        print(f"Circle of {len(circle)} folders: {' '.join(circle)}")
    for breach in breaches:
        print(breach)
    if not folder_circles and "--quiet" not in sys.argv:
        print("Floors, from the ground up, and what each folder includes:")
        print_floors(folders)
    return 1 if room_circles or folder_circles or breaches else 0


if __name__ == "__main__":
    sys.exit(main())
