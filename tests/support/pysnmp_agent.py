#!/usr/bin/python3
# SPDX-License-Identifier: GPL-2.0-or-later
"""An SNMPv1 agent on pysnmp that serves a small profile table, and can send broken and forged replies.

Prints "ready PORT" when it listens on a free port of 127.0.0.1, and "asked COMMUNITY" for each request. The community
selects the behavior: "plain", or one of the modes below.
"""
import socket

from pyasn1.codec.ber import decoder, encoder
from pysnmp.carrier.asyncore.dgram import udp
from pysnmp.carrier.asyncore.dispatch import AsyncoreDispatcher
from pysnmp.proto import api

V1 = api.protoModules[api.protoVersion1]
ENTRY = (1, 3, 6, 1, 4, 1, 39847, 1, 1, 1, 1, 6, 13, 1, 1)
ROWS = [
    # index, location, profile name, file name, class, size, availability
    (11, 4, "Première".encode(), b"ONE.ICC", 1, 100, 1),
    (12, 5, b"Zwei", b"TWO.ICC", 2, 200, 1),
    (13, 4, b"Three", b"THREE.ICC", 3, 300, 0),
]

CELLS = sorted(
    (ENTRY + (column, 1, number), value)
    for number, row in enumerate(ROWS, 1)
    for column, value in enumerate(row, 1)
) + [((1, 3, 6, 1, 4, 1, 39847, 1, 1, 1, 1, 6, 13, 2, 0), b"behind the table")]
MIDDLE = len(CELLS) // 2


def bound_to(address):
    stranger = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
    stranger.bind((address, 0))
    return stranger


OTHER_PORT = bound_to("127.0.0.1")
OTHER_ADDRESS = bound_to("127.0.0.2")


def as_value(value, mode):
    if mode == "forged":
        value = b"FORGED.ICC" if isinstance(value, bytes) else 99
    if mode == "huge-texts" and isinstance(value, bytes):
        value = b"A" * 60000
    return V1.OctetString(value) if isinstance(value, bytes) else V1.Integer(value)


def bindings(request, mode):
    """The answer's variables, or None for noSuchName."""
    pdu = V1.apiMessage.getPDU(request)
    asked = tuple(V1.apiPDU.getVarBinds(pdu)[0][0])
    following = pdu.isSameTypeWith(V1.GetNextRequestPDU())
    for number, (name, value) in enumerate(CELLS):
        if name == asked and not following or name > asked and following:
            found = [(V1.ObjectIdentifier(name), as_value(value, mode))]
            if mode == "extra-variables" and following and number + 1 < len(CELLS):
                # Two cells in the answer to a request for one.
                found.append((V1.ObjectIdentifier(CELLS[number + 1][0]), as_value(CELLS[number + 1][1], mode)))
            if mode == "stray-variable" and number == MIDDLE:
                # A variable of another table before the cell.
                found.insert(0, (V1.ObjectIdentifier((1, 3, 6, 1, 2, 1, 1, 1, 0)), V1.OctetString(b"stray")))
            return found, number
    return None, len(CELLS)


def broken(message, number, mode):
    """The bytes to send for an answer."""
    if number < MIDDLE:
        return message
    if mode == "cut":
        return message[: len(message) // 2]
    if mode == "garbage":
        return b"\x30\x84\xff\xff\xff\xff" + bytes(range(200))
    if mode == "long-length":
        # The community claims to be longer than the message.
        return message[:6] + b"\x7f" + message[7:]
    if mode == "empty":
        return b""
    return message


def reply(request, mode):
    response = V1.apiMessage.getResponse(request)
    pdu = V1.apiMessage.getPDU(response)
    found, number = bindings(request, mode)
    if found is None:
        V1.apiPDU.setVarBinds(pdu, V1.apiPDU.getVarBinds(V1.apiMessage.getPDU(request)))
        V1.apiPDU.setErrorStatus(pdu, 2)
        V1.apiPDU.setErrorIndex(pdu, 1)
    else:
        V1.apiPDU.setVarBinds(pdu, found)
    if mode == "wrong-id" and number >= MIDDLE:
        V1.apiPDU.setRequestID(pdu, int(V1.apiPDU.getRequestID(pdu)) ^ 0x55)
    return broken(encoder.encode(response), number, mode)


def answer(dispatcher, domain, address, whole):
    while whole:
        request, whole = decoder.decode(whole, asn1Spec=V1.Message())
        mode = bytes(V1.apiMessage.getCommunity(request)).decode()
        print("asked", mode, flush=True)
        if mode == "forged":
            # Strangers answer first, with the right request id.
            OTHER_ADDRESS.sendto(reply(request, mode), address)
            OTHER_PORT.sendto(reply(request, mode), address)
            mode = "plain"
        if mode == "other-port":
            OTHER_PORT.sendto(reply(request, mode), address)
        else:
            dispatcher.sendMessage(reply(request, mode), domain, address)
    return whole


def main():
    dispatcher = AsyncoreDispatcher()
    dispatcher.registerRecvCbFun(answer)
    transport = udp.UdpSocketTransport().openServerMode(("127.0.0.1", 0))
    dispatcher.registerTransport(udp.domainName, transport)
    print("ready", transport.socket.getsockname()[1], flush=True)
    dispatcher.jobStarted(1)
    dispatcher.runDispatcher()


main()
