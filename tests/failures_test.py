#!/usr/bin/env python3
"""Every way in which a transfer of z7xfer fails: the exit status, the last line, the reason, and that the PC file and the
host member are what they were.

    failures_test.py Z7XFER BROKEN_PROVIDERS
"""
import os
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile

Refused, LocalFile, BadData, Failed, Usage, Cancelled = 3, 4, 5, 1, 2, 130

receive, send = ["receive", "QGPL/CUST", "old.csv"], ["send", "c.csv", "QGPL/CUST"]
described = ["--description", "c.fdf", "--answer", "replace"]
ibm = ["--set", "RouterKind=ibm", "--set", "TransportType=ibm"]

# Name, arguments, status, what stands in the last line, what stands anywhere.
Cases = [
    ("host, receive", ["receive", "QGPL/NONE", "old.csv"], Refused, "failed before any record, old.csv",
     ["0x3000 HostMessage, said by the host", "HSF1011"]),
    ("host, send", ["send", "c.csv", "NOLIB/X"] + described, Refused, "failed before any record", ["HSF1010"]),
    ("provider missing", receive + ["--providers", "BROKEN/nothing"], Failed, "failed before any record, old.csv",
     ["transport type 9 (emulator) call for ZEHNTFW.DLL", "ZEHNTFW.DLL is not in the folder"]),
    ("provider missing, send", send + described + ["--providers", "BROKEN/nothing"], Failed, "failed before any record", []),
    ("provider no library", receive + ["--providers", "BROKEN/text_providers"], Failed, "failed before any record",
     ["text_providers/ZEHNTFW.DLL cannot be loaded"]),
    ("router missing", receive + ibm + ["--providers", "BROKEN/nothing"], Failed, "failed before any record",
     ["call for E32APPC.DLL and E32TFW.DLL", "E32APPC.DLL is not in the folder", "E32TFW.DLL is not in the folder"]),
    ("entry missing", receive + ["--providers", "BROKEN/without_delete"], Failed, "failed before any record", ["ZEHNTFW.DLL has no entry deleteZEHNTFWCLIENT"]),
    ("PC file, receive", ["receive", "QGPL/CUST", "no/folder/x.csv"], LocalFile, "failed before any record", []),
    ("PC file, full disk", ["receive", "QGPL/CUST", "/dev/full"], LocalFile, "of 10 records are in /dev/full", []),
    ("PC file, send", ["send", "nowhere.csv", "QGPL/CUST"] + described, LocalFile, "failed before any record", []),
    ("data, receive", ["receive", "TESTLIB/STOCK", "old.csv"], BadData, "failed",
     ["record 2, field QTY: bytes 40 40 40", "0x3100 HostMessageInstead", "--ignore-decimal-errors"]),
    ("data, checked", ["send", "bad.csv", "QGPL/CUST"] + described, BadData, "not sent", ["ecord 3"]),
    ("data, send", ["send", "bad.csv", "QGPL/CUST", "--no-check"] + described, BadData, "the host kept none of them",
     ["Record 3"]),
    ("settings", receive + ["--decimal", ","], Usage, "failed before any record", []),
    ("not confirmed", send + ["--description", "c.fdf"], Cancelled, "cancelled: not confirmed", []),
    ("cancel, receive", ["receive", "USER/BIG", "old.csv"], Cancelled, "cancelled", []),
    ("cancel, check", ["send", "big.csv", "QGPL/CUST"] + described, Cancelled, "cancelled", []),
    ("cancel, send", ["send", "big.csv", "QGPL/CUST", "--no-check"] + described, Cancelled, "cancelled", []),
]


def bytes_of(name):
    with open(name, "rb") as file:
        return file.read()


def write(name, contents):
    with open(name, "wb") as file:
        file.write(contents)


def catches_interrupts(process):
    """Whether the program has a handler for them yet; true also when it has ended."""
    try:
        with open(f"/proc/{process.pid}/status", encoding="ascii") as status:
            masks = [line.split()[1] for line in status if line.startswith("SigCgt:")]
    except OSError:
        return True
    return bool(masks) and int(masks[0], 16) >> (signal.SIGINT - 1) & 1 == 1


def run(program, arguments, interrupted=False):
    """Gives the exit status and what was said on standard error."""
    process = subprocess.Popen([program] + arguments, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                               stderr=subprocess.PIPE, text=True, errors="replace")
    while interrupted and process.poll() is None and not catches_interrupts(process):
        pass
    if interrupted:
        process.send_signal(signal.SIGINT)
    _, errors = process.communicate()
    return process.returncode, errors


def prepare(program):
    """A host, and PC files of its records."""
    shutil.copy(os.path.join(os.path.dirname(program), "sample.db"), "my.db")
    host = sqlite3.connect("my.db")
    host.execute("create table big(number integer, name varchar(20))")
    host.execute("with recursive n(i) as (select 1 union all select i + 1 from n where i < 400000) "
                 "insert into big select i, 'name ' || i from n")
    host.commit()
    host.close()
    run(program, ["receive", "QGPL/CUST", "c.csv", "--describe", "*.fdf", "--host-data", "my.db"])
    sound = bytes_of("c.csv")
    write("bad.csv", sound.replace(b"100003", b"1x0003"))
    shutil.copy("c.fdf", "bad.fdf")
    write("big.csv", sound * 40000)
    return sound


def faults_of(program, case, sound):
    name, arguments, status, last, texts = case
    old = b"what was there\r\n"
    write("old.csv", old)
    ended, errors = run(program, arguments + ["--host-data", "my.db"], name.startswith("cancel"))
    lines = errors.splitlines() or [""]
    if ended != status:
        yield f"status {ended}, not {status}"
    if last not in lines[-1]:
        yield f"the last line has no '{last}'"
    for text in texts:
        if text not in errors:
            yield f"no '{text}'"
    kept = bytes_of("old.csv")
    # A receive that ends behind its first record keeps whole records.
    if kept != old and not (name in ("data, receive", "cancel, receive") and kept.endswith(b"\r\n")):
        yield "the PC file has changed"
    run(program, ["receive", "QGPL/CUST", "now.csv", "--host-data", "my.db"])
    if bytes_of("now.csv") != sound:
        yield "the host member has changed"
    os.remove("now.csv")


def main():
    program, broken = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])
    for name in ("DISPLAY", "WAYLAND_DISPLAY"):
        os.environ.pop(name, None)
    folder = tempfile.mkdtemp()
    os.chdir(folder)
    failed = 0
    try:
        sound = prepare(program)
        for case in Cases:
            case = (case[0], [word.replace("BROKEN", broken) for word in case[1]], *case[2:])
            faults = list(faults_of(program, case, sound))
            if faults:
                failed += 1
                print(case[0] + ": " + "; ".join(faults))
                print(run(program, case[1] + ["--host-data", "my.db"], case[0].startswith("cancel")))
    finally:
        shutil.rmtree(folder)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
