#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
    hanging.py DIRECTORY

Mounts a file system on the directory that accepts every call and never answers one, as a broken stick or a lost network share does.
Prints "mounted" and serves until it is ended; what waits then fails. Exit code 77 if this process may not mount.
"""
import ctypes
import os
import struct
import sys

# The number of the first request, which asks for the version of the protocol.
FIRST = 26
HEADER = struct.Struct("<IIQQIIII")
ANSWER = struct.Struct("<IiQ")
MAJOR, MINOR = 7, 31
NO_MOUNT = 77


def main():
    directory = os.path.abspath(sys.argv[1])
    try:
        device = os.open("/dev/fuse", os.O_RDWR)
    except OSError:
        sys.exit(NO_MOUNT)
    library = ctypes.CDLL(None, use_errno=True)
    options = f"fd={device},rootmode=40000,user_id={os.getuid()},group_id={os.getgid()}"
    if library.mount(b"hanging", os.fsencode(directory), b"fuse.hanging", 6, options.encode()) != 0:
        sys.exit(NO_MOUNT)
    said = False
    while True:
        request = os.read(device, 1 << 18)
        _, kind, unique, *_ = HEADER.unpack_from(request)
        if kind == FIRST:
            body = struct.pack("<IIIIHHIII", MAJOR, MINOR, 0, 0, 12, 10, 1 << 17, 1, 0).ljust(64, b"\0")
            os.write(device, ANSWER.pack(ANSWER.size + len(body), 0, unique) + body)
        if not said:
            print("mounted", flush=True)
            said = True


main()
