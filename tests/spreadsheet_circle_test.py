#!/usr/bin/python3
"""Host files through LibreOffice and back, as csv and DIF, with a decimal point and a decimal comma: received, changed in
a few cells, checked, sent, received again. Nothing but the cells may differ. What is chosen in LibreOffice is what
docs/pc_files.md tells a person to choose. Skipped without LibreOffice, or without its module for Debian's Python.

    spreadsheet_circle_test.py Z7XFER
"""
import contextlib
import os
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

Skipped, BadData = 77, 5

try:
    import uno
    from com.sun.star.beans import PropertyValue
    from com.sun.star.connection import NoConnectException
except ImportError:
    sys.exit(Skipped)
if shutil.which("soffice") is None:
    sys.exit(Skipped)
program = Path(sys.argv[1]).absolute()

# Of the host file: columns, counted from 1, of texts; and what is changed in the first record: the column, what goes into
# the cell, what stood in the PC file, and what is to stand there.
HostFile, TextColumns = "TESTLIB/TELLTALE", [1, 2, 6, 7]
Changes = [(2, 'Band, "Öse"', '"Hinge ""Flügel"", left"', '"Band, ""Öse"""'), (3, -1834.5, "1834.75", "-1834.5"),
           (4, 0.125, "12.5", ".125"), (6, "2000-02-29", "1999-12-31", "2000-02-29")]


def z7xfer(*arguments, status=0):
    outcome = subprocess.run([program, *arguments, "--host-data", "my.db"], capture_output=True, check=False)
    told = (outcome.stdout + outcome.stderr).decode()
    assert outcome.returncode == status, f"{arguments}: status {outcome.returncode}\n{told}"
    return told


@contextlib.contextmanager
def libreoffice(language):
    """Its desktop, in this language, otherwise as it comes."""
    address, profile = f"pipe,name=z7xfer{os.getpid()};urp;", Path(language).absolute().as_uri()
    process = subprocess.Popen(["soffice", "--headless", f"-env:UserInstallation={profile}", f"--accept={address}"],
                               env=dict(os.environ, LC_ALL=language + ".UTF-8"), stderr=subprocess.DEVNULL)
    here = uno.getComponentContext()
    resolver = here.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", here)
    desktop = None
    while desktop is None:
        assert process.poll() is None, "soffice does not start"
        time.sleep(0.1)
        with contextlib.suppress(NoConnectException):
            there = resolver.resolve(f"uno:{address}StarOffice.ComponentContext")
            desktop = there.ServiceManager.createInstanceWithContext("com.sun.star.frame.Desktop", there)
    try:
        yield desktop
    finally:
        desktop.terminate()
        process.wait()


def change(desktop, changes, row, form, options):
    """Opens the PC file, fills cells of its first record, and saves it in the form in which it was opened."""
    how = {"Hidden": True, "FilterName": form, "FilterOptions": options}
    document = desktop.loadComponentFromURL(Path("file").absolute().as_uri(), "_blank", 0,
                                            tuple(PropertyValue(name, 0, value, 0) for name, value in how.items()))
    assert document, "LibreOffice does not open the file: is its spreadsheet program there?"
    for column, value, *_ in changes:
        cell = document.Sheets[0][row, column - 1]
        setattr(cell, "String" if isinstance(value, str) else "Value", value)
    document.store()
    document.close(True)


def receive_and_change(desktop, changes, kind, language, decimal, separator):
    """What a send is to be given, and what was received."""
    pc = ["--type", kind, "--decimal", decimal, "--list-separator", separator]
    z7xfer("receive", HostFile, "file", "--describe", "file.fdf", "--force", *pc)
    received = Path("file").read_bytes()
    if kind == "csv":
        # Separator, quote, Windows-1252, from line 1, columns of texts, language; the boxes on quotes and special numbers.
        columns = "/".join(f"{column}/2" for column in TextColumns)
        change(desktop, changes, 0, "Text - txt - csv (StarCalc)", f"{ord(separator)},34,1,1,{columns},{language},false,false")
    else:
        change(desktop, changes, 1, "DIF", "1")
    return ["file", HostFile, "--description", "file.fdf", *pc], received


def circle(desktop, kind, language, decimal, separator):
    shutil.copy(program.with_name("sample.db"), "my.db")
    sending, expected = receive_and_change(desktop, Changes, kind, language, decimal, separator)
    for *_, old, new in Changes:
        old, new = (text.replace(".", decimal).encode("cp1252") for text in (old, new))
        assert expected.count(old) == 1, old
        expected = expected.replace(old, new)
    z7xfer("send", *sending, "--check")
    z7xfer("send", *sending, "--answer", "replace")
    z7xfer("receive", HostFile, "again", "--force", *sending[4:])
    again = Path("again").read_bytes()
    assert again == expected, f"{again.decode('cp1252')}\nis not\n{expected.decode('cp1252')}"
    print(f"{kind} with {decimal}: of {len(again)} bytes nothing changed but {len(Changes)} cells")


with tempfile.TemporaryDirectory() as folder:
    os.chdir(folder)
    with libreoffice("en_US") as office:
        for pc_file_type in ("csv", "dif"):
            circle(office, pc_file_type, 1033, ".", ",")
        # To LibreOffice a decimal comma is none here. It leaves cells empty, which the check finds.
        unread, _ = receive_and_change(office, [], "dif", 1033, ",", ";")
        assert "field PRICE is refused" in z7xfer("send", *unread, "--check", status=BadData)
    with libreoffice("de_DE") as office:
        for pc_file_type in ("csv", "dif"):
            circle(office, pc_file_type, 1031, ",", ";")
