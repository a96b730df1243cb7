#!/usr/bin/python3
# SPDX-License-Identifier: GPL-2.0-or-later
"""complete_in_shell.py SHELL FOLDER TYPED EXPECTED: types into an interactive bash or zsh with the completion in FOLDER,
and presses Tab until the terminal shows EXPECTED. Exit status 0: it did, 1: it never did."""
import os
import pty
import select
import sys
import time

PATIENCE = 30  # seconds
shell, folder, typed, expected = sys.argv[1:]
setup, arguments = {
    "bash": (f". '{folder}/bvprint.bash'", ["bash", "--norc", "--noprofile", "-i"]),
    "zsh": (f"fpath=('{folder}' $fpath); autoload -U compinit; compinit -D -u", ["zsh", "-f", "-i"]),
}[shell]
child, terminal = pty.fork()
if child == 0:
    os.environ.update(TERM="dumb", PS1="")
    os.execvp(arguments[0], arguments)


def wait_for(text, seconds):
    shown = ""
    end = time.monotonic() + seconds
    while text not in shown and time.monotonic() < end:
        if select.select([terminal], [], [], 0.1)[0]:
            shown += os.read(terminal, 65536).decode(errors="replace")
    return text in shown, shown


# The shell echoes the command as well, so what is waited for does not stand in it.
os.write(terminal, f"{setup}; PS1=''; echo is-rea''dy\n".encode())
good, shown = wait_for("is-ready", PATIENCE)
os.write(terminal, typed.encode())
for press in range(PATIENCE if good else 0):
    os.write(terminal, b"\t")
    good, more = wait_for(expected, 1)
    shown += more
    if good:
        break
if not good:
    print(shown)
os.close(terminal)
os.waitpid(child, 0)
sys.exit(0 if good else 1)
