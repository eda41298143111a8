#!/usr/bin/env python3
"""Packs a folder: zip_folder.py FOLDER FILE.zip

Only names and contents count. The usual tools also write down times, owners and the order in which the file system
happens to give the files, so that no two packages would be alike.
"""
import sys
import zipfile
from pathlib import Path

TIME = (2000, 1, 1, 0, 0, 0)
MADE_ON_DOS = 0


def main(folder, package):
    folder = Path(folder)
    with zipfile.ZipFile(package, "w", zipfile.ZIP_DEFLATED) as packed:
        for path in sorted(path for path in folder.rglob("*") if path.is_file()):
            entry = zipfile.ZipInfo((folder.name / path.relative_to(folder)).as_posix(), TIME)
            entry.create_system = MADE_ON_DOS
            packed.writestr(entry, path.read_bytes(), zipfile.ZIP_DEFLATED, 9)


if __name__ == "__main__":
    main(*sys.argv[1:])
