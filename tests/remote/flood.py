#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Sends a server what a hostile neighbour might, and sees whether it is well afterwards.

    flood.py HOST PORT DATAGRAMS PROCESS

PROCESS is the server's. It must not have grown by more than 4 MiB, have answered no more than its
limits say, and answer a scan within 2 s of the last hostile datagram.
"""
import random
import socket
import sys
import time


def resident_kib(process):
    with open(f"/proc/{process}/status", encoding="ascii") as status:
        return next(int(line.split()[1]) for line in status if line.startswith("VmRSS"))


def hostile_datagrams():
    rng = random.Random(1)
    tags = [b"Kantivel scan ", b"Kantivel sub ", b"Kantivel ann ", b"Kantivel state-update ", b""]
    payloads = [
        b"", b"{", b"[" * 20000, b'{"a":' * 9000, b'{"1-10-21036":{"gamma":[1e999]}}',
        b'{"x":{}}', b'{"1-10-21036":{"gamma":"text","content":[]}}', b'{"x":3,"y":[]}',
        b"{" + b",".join(b'"%d":{}' % i for i in range(4000)) + b"}", b"\x00" * 100,
        b"\xff\xfe" * 1000, b"\x1b[2J\r\nfaked line", "\u202e".encode() * 300, b"x" * 60000,
    ]
    for _ in range(400):
        payloads.append(rng.randbytes(rng.randrange(200)))
    # Small ones are most of it, so that the number can be large.
    weights = [1 if len(payload) > 1500 else 30 for payload in payloads]
    return [rng.choice(tags) + rng.choices(payloads, weights)[0] for _ in range(5000)]


def main():
    host, port, count, process = sys.argv[1], *map(int, sys.argv[2:5])
    sockets = [socket.socket(socket.AF_INET, socket.SOCK_DGRAM) for _ in range(300)]
    for each in sockets:
        each.setblocking(False)
    datagrams = hostile_datagrams()
    before = resident_kib(process)
    start = time.monotonic()
    for i in range(count):
        try:
            sockets[i % len(sockets)].sendto(datagrams[i % len(datagrams)], (host, port))
        except BlockingIOError:
            pass
    end = time.monotonic()

    honest = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
    honest.settimeout(0.5)
    # The system drops what comes while the server's buffer is full of the flood's last datagrams,
    # so an honest companion asks again, as any has to.
    for attempt in range(1, 5):
        honest.sendto(b"Kantivel scan ", (host, port))
        try:
            answer = honest.recv(65536)
            break
        except TimeoutError:
            pass
    else:
        sys.exit("No scan was answered within 2 s of the flood.")
    after = resident_kib(process)
    answers = 0
    for each in sockets:
        try:
            while each.recv(65536):
                answers += 1
        except BlockingIOError:
            pass
    seconds = time.monotonic() - start
    print(f"{count} datagrams in {end - start:.1f} s, {answers} answers; resident {before} KiB "
          f"before, {after} KiB after; scan {attempt} was answered")
    if not answer.startswith(b"Kantivel ann {"):
        sys.exit("The answer is no announce.")
    if after > before + 4096:
        sys.exit("The server has grown.")
    # One host's answers, and pushes to its 64 subscriptions.
    if answers > 100 + 20 * (seconds + 1) + 64 * (20 + 5 * (seconds + 1)):
        sys.exit("The server answers more than its limits say.")


main()
