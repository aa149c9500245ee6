#!/usr/bin/env python3
"""Runs a looping command and acts between two of its cycles.

Usage: between-cycles.py MARKER ACTION COMMAND [ARGUMENTS...]

The command's standard output goes through a pipe of one page, which this
script reads up to and including MARKER (the clock that ends a cycle, for
example "\\n\\n 00:20"; Python escapes are understood). It then runs ACTION
(a shell command, its output discarded) or, for the ACTION "SIGINT",
interrupts the command; then it reads the rest and writes all the command
wrote to its own standard output. The exit status is the command's.

Why this is exact: a cycle reads the adapter before it writes its text. A
cycle whose text is larger than the pipe cannot finish before its text is
read, so the command is held inside the cycle after MARKER's: the action
falls between that cycle's reading and the next one's. The cycle after
MARKER must therefore write more than 4096 bytes; when it wrote fewer the
script says so and fails.
"""

import fcntl
import os
import re
import signal
import subprocess
import sys

PIPE_BYTES = 4096
CLOCK = re.compile(rb"\n\n (?:\d+:)?\d\d:\d\d")


def read_through(fd, marker):
    seen = bytearray()
    while not seen.endswith(marker):
        byte = os.read(fd, 1)  # one at a time: nothing past the marker is taken
        if not byte:
            break
        seen += byte
    return bytes(seen)


def read_rest(fd):
    rest = bytearray()
    while True:
        chunk = os.read(fd, 65536)
        if not chunk:
            return bytes(rest)
        rest += chunk


def main():
    if len(sys.argv) < 4:
        sys.exit(__doc__)
    marker = sys.argv[1].encode().decode("unicode_escape").encode()
    action, command = sys.argv[2], sys.argv[3:]
    reader, writer = os.pipe()
    fcntl.fcntl(writer, fcntl.F_SETPIPE_SZ, PIPE_BYTES)
    proc = subprocess.Popen(command, stdout=writer)
    os.close(writer)
    head = read_through(reader, marker)
    if action == "SIGINT":
        proc.send_signal(signal.SIGINT)
    else:
        subprocess.run(action, shell=True, stdout=subprocess.DEVNULL, check=False)
    rest = read_rest(reader)
    status = proc.wait()
    sys.stdout.buffer.write(head + rest)
    sys.stdout.flush()
    clock = CLOCK.search(rest)
    if action != "SIGINT" and clock and clock.end() <= PIPE_BYTES:
        sys.exit("between-cycles.py: the cycle after the marker wrote only %d bytes; the action may have come late"
                 % clock.end())
    sys.exit(status if status >= 0 else 128 - status)


if __name__ == "__main__":
    main()
