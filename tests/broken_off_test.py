#!/usr/bin/env python3
"""What transfers leave that break off in the middle, cancelled by a signal or on a disk that is full; and that one from
a pipe does not.

    broken_off_test.py Z7XFER
"""
import os
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import threading

program = os.path.abspath(sys.argv[1])
failed = []


def start(arguments, **options):
    command = [program, *arguments, "--host-data", "my.db"]
    return subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE, **options)


def transfer(*arguments, **options):
    """Status, standard output and the last line of the error output."""
    process = start(arguments, **options)
    output, errors = process.communicate()
    return process.returncode, output, errors.decode().splitlines()[-1]


def expect(what, holds, told):
    if not holds:
        failed.append(f"{what}: {told}")


def fill(pipe, record, filled):
    """Never ends while somebody reads, who so never waits; tells when more than a pipe holds has been read."""
    try:
        for count in range(1 << 24):
            pipe.write(record)
            if count * len(record) > 1 << 20:
                filled.set()
    except BrokenPipeError:
        filled.set()


def cancelled_send():
    transfer("receive", "QGPL/CUST", "c.dat", "--type", "none", "--describe", "*.fdf")
    before = transfer("receive", "QGPL/CUST", "-", "--type", "none")[1]
    os.mkfifo("pipe.dat")
    send = start(["send", "pipe.dat", "QGPL/CUST", "--description", "c.fdf", "--answer", "replace"])
    filled = threading.Event()
    threading.Thread(target=fill, args=(open("pipe.dat", "wb", buffering=0), before, filled), daemon=True).start()
    filled.wait()
    send.send_signal(signal.SIGINT)
    told = send.communicate()[1].decode()
    expect("last line", "cancelled after" in told and told.endswith("; the host kept none of them\n"), told)
    expect("status", send.returncode != 0, send.returncode)
    expect("member", transfer("receive", "QGPL/CUST", "-", "--type", "none")[1] == before, told)


def piped_send():
    transfer("receive", "WORLD/ZONE", "zone.csv", "--describe", "*.fdf")
    with subprocess.Popen(["cat", "zone.csv"], stdout=subprocess.PIPE) as cat:
        told = transfer("send", f"/dev/fd/{cat.stdout.fileno()}", "WORLD/ZONE(PIPED)", "--create", "member",
                        "--description", os.path.abspath("zone.fdf"), pass_fds=[cat.stdout.fileno()])
    back = transfer("receive", "WORLD/ZONE(PIPED)", "-")[1]
    expect("from a pipe", open("zone.csv", "rb").read() == back, told)


def full_disk():
    whole = {name: transfer("receive", name, "-")[1] for name in ("WORLD/ZONE", "WORLD/ZONE WORLD/COUNTRY")}
    old = b"o" * 12000
    # What is received, to where the disk is full, and what is in the file then: the first piece is all or nothing, of
    # what comes behind whole records stay.
    cases = [("WORLD/ZONE", "c.csv", 10000, [], old), ("WORLD/ZONE", "c.csv", 20000, ["--append"], old),
             ("WORLD/ZONE", "new.csv", 10000, [], None), ("WORLD/ZONE WORLD/COUNTRY", "c.csv", 150000, [], "pieces")]
    for source, name, limit, options, left in cases:
        with open("c.csv", "wb") as file:
            file.write(old)
        status, _, told = transfer("receive", source, name, *options, restore_signals=False,
                                   preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit)))
        found = open(name, "rb").read() if os.path.exists(name) else None
        if left == "pieces":
            holds = found.endswith(b"\n") and len(found) > 65536 - 1000 and whole[source].startswith(found)
        else:
            holds = found == left
        expect(f"{source} to {name} {options}", holds and status != 0, f"{told}, {found and len(found)} bytes")


with tempfile.TemporaryDirectory() as folder:
    os.chdir(folder)
    shutil.copy(os.path.join(os.path.dirname(program), "sample.db"), "my.db")
    cancelled_send()
    piped_send()
    full_disk()
sys.exit("\n".join(failed) or 0)
