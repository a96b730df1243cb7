#!/usr/bin/python3
# SPDX-License-Identifier: GPL-2.0-or-later
"""hostile_print_server.py PPD [OPERATION=BEHAVIOR...]: a print server on the loopback address that misbehaves as told.

Prints its port, then a line for each request it got. What is not named on the command line works like a plain print
server with one queue, QL70. OPERATION is a row of OPERATIONS, or "any".
"""
import os
import pwd
import socket
import struct
import sys
import threading
import time

OPERATIONS = {0x4001: "default", 0x4002: "queues", 0x000B: "attributes", 0x0005: "create", 0x0006: "send", 0x0008: "cancel",
              0x0009: "job", 0x0014: "set", 0x000D: "release", 0x4027: "document"}
# Markup, and sequences that would steer a terminal or a widget.
NASTY = "<img src='/dev/zero'><b>x\x1b[2J\x1b]0;t\x07\x9b31m\u202e&amp;%1"
JOB = 7


def attribute(tag, name, value):
    return struct.pack(">BH", tag, len(name)) + name.encode() + struct.pack(">H", len(value)) + value


def text(tag, name, value):
    return attribute(tag, name, value.encode())


def queue(name, words):
    return (b"\x04" + text(0x42, "printer-name", name) + text(0x41, "printer-info", words)
            + text(0x41, "printer-location", words) + text(0x45, "device-uri", "file:///dev/null")
            + attribute(0x23, "printer-state", struct.pack(">i", 3)) + attribute(0x22, "printer-is-accepting-jobs", b"\x01")
            + text(0x41, "printer-state-message", words))


def body(operation, behavior):
    words = NASTY if behavior == "nasty" else ""
    if operation == "queues":
        names = ["QL70"] + ["Q%05d" % i for i in range({"some": 199, "many": 9999}.get(behavior, 0))]
        return b"".join(queue(name, words) for name in names)
    if operation == "default":
        return queue("QL70", words)
    if operation in ("create", "send"):
        return b"\x02" + attribute(0x21, "job-id", struct.pack(">i", JOB)) + attribute(0x23, "job-state", struct.pack(">i", 3))
    if operation == "job":
        return (b"\x02" + text(0x42, "job-originating-user-name", pwd.getpwuid(os.getuid()).pw_name)
                + text(0x45, "job-printer-uri", "ipp://localhost/printers/QL70")
                + attribute(0x23, "job-state", struct.pack(">i", 4))
                + attribute(0x21, "number-of-documents", struct.pack(">i", 1)))
    return queue("QL70", words) if operation == "attributes" else b""


def message(operation, behavior, number):
    status = {"refused": 0x0400, "missing": 0x0406}.get(behavior, 0)
    head = struct.pack(">BBHI", 2, 0, status, number + (behavior == "mixed-up"))
    head += b"\x01" + text(0x47, "attributes-charset", "utf-8") + text(0x48, "attributes-natural-language", "en")
    if behavior == "refused":
        head += text(0x41, "status-message", "No. " + NASTY)
    if behavior == "deep":
        return head + b"\x04" + attribute(0x34, "a", b"") + (attribute(0x4A, "", b"m") + attribute(0x34, "", b"")) * 200000
    if behavior == "endless":
        return None
    return head + body(operation, behavior) + b"\x03" + (b"%PDF-" if operation == "document" else b"")


class Connection:
    def __init__(self, link, ppd, behaviors):
        self.link, self.ppd, self.behaviors = link, ppd, behaviors
        self.file = link.makefile("rb")

    def serve(self):
        while True:
            request = self.file.readline()
            if not request:
                return
            fields = {}
            while (line := self.file.readline()) not in (b"\r\n", b""):
                name, _, value = line.decode().partition(":")
                fields[name.lower()] = value.strip()
            if fields.get("expect") == "100-continue":
                self.link.sendall(b"HTTP/1.1 100 Continue\r\n\r\n")
            document = request.startswith(b"GET")
            data = b"" if document else self.read_body(fields)
            operation = "ppd" if document else OPERATIONS.get(struct.unpack(">H", data[2:4])[0], "other")
            behavior = self.behaviors.get(operation, self.behaviors.get("any", ""))
            print(operation, len(data), flush=True)
            number = 0 if document else struct.unpack(">I", data[4:8])[0]
            answer = self.ppd if document else message(operation, behavior, number)
            if not self.answer(behavior, answer, "application/vnd.cups-ppd" if document else "application/ipp"):
                return

    def read_body(self, fields):
        if "content-length" in fields:
            return self.file.read(int(fields["content-length"]))
        print("chunks", flush=True)
        data = b""
        while (size := int(self.file.readline() or b"0", 16)) > 0:
            data += self.file.read(size)
            self.file.readline()
        self.file.readline()
        return data

    def answer(self, behavior, answer, kind):
        """Sends the answer as told. False: the connection is at its end."""
        if behavior == "closes":
            return False
        if behavior == "silent":
            time.sleep(3600)
        if behavior == "garbage":
            self.link.sendall(b"\x00\x16\xff garbage \r\n" * 50)
            return False
        if behavior in ("401", "403", "404", "500"):
            self.link.sendall(b"HTTP/1.1 %s Word\r\nWWW-Authenticate: Basic realm=\"x\"\r\nContent-Length: 4\r\n\r\nword" % behavior.encode())
            return True
        if behavior == "unreadable":
            answer = b"\x7f" * 300
        endless = answer is None or behavior == "huge"
        length = 1 << 40 if endless else len(answer)
        head = b"HTTP/1.1 200 OK\r\nContent-Type: %s\r\nContent-Length: %d\r\n\r\n" % (kind.encode(), length)
        if behavior == "dribbles":
            for byte in head + answer:
                self.link.sendall(bytes([byte]))
                time.sleep(1)
        self.link.sendall(head + (answer[: len(answer) // 2] if behavior == "cut" else answer or b""))
        while endless:
            self.link.sendall(b"*% a comment of a PPD\n" * 4000)
        return behavior != "cut"


def main():
    with open(sys.argv[1], "rb") as file:
        ppd = file.read()
    behaviors = dict(word.split("=") for word in sys.argv[2:])
    listener = socket.create_server(("127.0.0.1", 0))
    print("port", listener.getsockname()[1], flush=True)

    def serve(link):
        try:
            Connection(link, ppd, behaviors).serve()
        except (OSError, ValueError, struct.error):
            pass
        link.close()

    while True:
        threading.Thread(target=serve, args=(listener.accept()[0],), daemon=True).start()


main()
