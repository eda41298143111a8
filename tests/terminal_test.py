#!/usr/bin/env python3
"""z7xfer at a terminal: what it asks and shows there, through a pseudo-terminal of 24 rows and 80 columns.

    terminal_test.py Z7XFER
"""
import fcntl
import os
import pty
import select
import shutil
import struct
import sys
import tempfile
import termios

Rows, Columns = 24, 80
SecondsToWait = 60


def converse(command, dialogue):
    """Runs a command at a terminal, types each text once the one before it is read. Gives status and what was shown."""
    child, terminal = pty.fork()
    if child == 0:
        fcntl.ioctl(0, termios.TIOCSWINSZ, struct.pack("HHHH", Rows, Columns, 0, 0))
        os.execvp(command[0], command)
    shown, seen = "", 0
    while True:
        if dialogue and dialogue[0][0] in shown[seen:]:
            awaited, typed = dialogue.pop(0)
            seen = shown.index(awaited, seen) + len(awaited)
            os.write(terminal, typed.encode())
            continue
        ready, _, _ = select.select([terminal], [], [], SecondsToWait)
        try:
            piece = os.read(terminal, 65536) if ready else b""
        except OSError:
            piece = b""
        if not piece:
            break
        shown += piece.decode(errors="replace").replace("\r\n", "\n")
    os.close(terminal)
    return os.waitstatus_to_exitcode(os.waitpid(child, 0)[1]), shown, dialogue


# Arguments, what is typed once something is shown, status, what is shown and what is not.
replace = ["send", "c.csv", "QGPL/CUST", "--description", "c.fdf", "--host-data", "my.db"]
changing = ["send", "long.csv", "QGPL/CUST(LONG)", "--create", "member"] + replace[3:]
receive = ["receive", "QGPL/CUST", "c.txt", "--set", "ExistingFileAction=0"]
question = "replace or no? [no] "
screen = ["receive", "WORLD/COUNTRY", "--output", "screen"]
wide = ["receive", "QGPL/CUST", "--output", "screen"]
page, done = "next page, ", "move, q: done"
Cases = [
    (replace, [(question, "r\n")], 0, ["already exists", "complete: 10 records"], []),
    (replace, [(question, "maybe\n"), (question, "Yes\n")], 0, ["complete: 10 records"], []),
    (replace, [(question, "\n")], 130, ["not confirmed"], []),
    (replace, [(question, "\x04")], 130, ["not confirmed"], []),
    (replace + ["--answer", "append"], [(question, "no\n")], 130, ["not confirmed"], []),
    (replace + ["--answer", "REPLACE"], [], 0, ["complete: 10 records"], [question]),
    (changing, [("send or no? [no] ", "\n")], 5, ["41 bytes, the field 25", "not sent"], ["complete"]),
    (changing, [("send or no? [no] ", "s\n")], 0, ["41 bytes, the field 25", "complete: 1 record"], []),
    (receive, [], 0, ["complete: 10 records"], ["?"]),
    (receive, [("replace, append or no? [no] ", "a\n")], 0, ["complete: 10 records"], []),
    (["demo"], [(page, " "), (done, "q")], 0, ["complete: 23 records", ("LAST  ", 2)], []),
    (screen, [(page, "\n"), (page, "q")], 0, ["closed after 42 records, the screen", ("CODE  ", 2)], ["complete"]),
    (screen, [(page, "\x03")], 130, ["cancelled after 21 records"], []),
    (wide, [(done, ">"), ("PHONE", "\x1b[D"), ("STREET", "\r")], 0, ["complete: 10 records"], ["next page"]),
    (receive + ["--answer", "yes"], [("replace, append or no? [no] ", "n\n")], 130, ["not confirmed"], []),
]


def main():
    program = os.path.abspath(sys.argv[1])
    for name in ("DISPLAY", "WAYLAND_DISPLAY"):
        os.environ.pop(name, None)
    folder = tempfile.mkdtemp()
    os.chdir(folder)
    os.environ["Z7X_DATA_FOLDER"] = folder
    failed = 0
    try:
        shutil.copy(os.path.join(os.path.dirname(program), "sample.db"), "my.db")
        converse([program, "receive", "QGPL/CUST", "c.csv", "--describe", "*.fdf"], [])
        with open("long.csv", "w") as file:
            file.write("7,A name that is much longer than its field,S,US,5,1,1.5,2,.5,F0F1\n")
        for arguments, dialogue, status, present, absent in Cases:
            ended, shown, left = converse([program] + arguments, list(dialogue))
            wrong = [f"{text!r} was not shown" for text in present if isinstance(text, str) and text not in shown]
            wrong += [f"{each[0]!r} was not shown {each[1]} times" for each in present
                      if isinstance(each, tuple) and shown.count(each[0]) != each[1]]
            wrong += [f"{text!r} was shown" for text in absent if text in shown]
            wrong += [f"{awaited!r} was not asked" for awaited, _ in left]
            if ended != status:
                wrong.append(f"status {ended}, not {status}")
            if wrong:
                failed += 1
                print(f"z7xfer {' '.join(arguments)}, {dialogue}: {'; '.join(wrong)}\n{shown}\n")
    finally:
        shutil.rmtree(folder)
    sys.exit(1 if failed else 0)


main()
