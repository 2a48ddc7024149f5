#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Floods a server like a hostile neighbour, and checks that it is healthy afterwards.

    flood.py HOST PORT DATAGRAMS PROCESS

PROCESS is the server's process ID. The server must not grow by more than 4 MiB, and must answer a
scan within 2 s of the last hostile datagram.
"""
import random
import socket
import sys


def resident_kib(process):
    with open(f"/proc/{process}/status", encoding="ascii") as status:
        return next(int(line.split()[1]) for line in status if line.startswith("VmRSS"))


rng = random.Random(1)
tags = [b"Kantivel scan ", b"Kantivel sub ", b"Kantivel ann ", b"Kantivel state-update ", b""]
payloads = [
    b"", b"{", b"[" * 20000, b'{"a":' * 9000, b'{"1-10-21036":{"gamma":[1e999]}}',
    b'{"x":{}}', b'{"1-10-21036":{"gamma":"text","content":[]}}', b'{"x":3,"y":[]}',
    b"{" + b",".join(b'"%d":{}' % i for i in range(4000)) + b"}", b"\x00" * 100,
    b"\xff\xfe" * 1000, b"\x1b[2J\r\nfaked line", "\u202e".encode() * 300, b"x" * 60000,
] + [rng.randbytes(rng.randrange(200)) for _ in range(400)]
# Mostly small datagrams, so that their number can be large.
weights = [1 if len(payload) > 1500 else 30 for payload in payloads]
datagrams = [rng.choice(tags) + rng.choices(payloads, weights)[0] for _ in range(5000)]

host, port, count, process = sys.argv[1], *map(int, sys.argv[2:5])
sockets = [socket.socket(socket.AF_INET, socket.SOCK_DGRAM) for _ in range(300)]


def flood(size):
    for i in range(size):
        sockets[i % len(sockets)].sendto(datagrams[i % len(datagrams)], (host, port))


# An allocator keeps what it has once needed.
flood(2 * len(datagrams))
before = resident_kib(process)
flood(count)

honest = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
honest.settimeout(0.5)
# The system drops datagrams while the server's buffer is still full of the flood, so an honest
# companion retries, as every companion must.
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
print(f"Resident {before} KiB before, {after} KiB after; scan {attempt} was answered")
if not answer.startswith(b"Kantivel ann {") or after > before + 4096:
    sys.exit("The answer is no announce, or the server has grown.")
