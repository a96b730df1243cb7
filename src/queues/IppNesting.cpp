// SPDX-License-Identifier: GPL-2.0-or-later
// Walks over the attributes of an IPP message (RFC 8010, 3.1).
#include "queues/IppNesting.h"

#include <QtEndian>
#include <cups/ipp.h>

namespace bv {

namespace {

constexpr qsizetype kHeader = 8; // version, status, request number
constexpr int kDeepest = 16;

// Steps over a text with its length in front. False when the message ends before.
bool skipText(const QByteArray &message, qsizetype &position)
{
    if (position + 2 > message.size())
        return false;
    position += 2 + qFromBigEndian<quint16>(message.constData() + position);
    return position <= message.size();
}

} // namespace

qsizetype readableIppSize(const QByteArray &message)
{
    int depth = 0;
    for (qsizetype position = kHeader; position < message.size();) {
        const auto tag = static_cast<quint8>(message[position++]);
        if (tag == IPP_TAG_END)
            return position;
        if (tag < IPP_TAG_UNSUPPORTED_VALUE) // begins a group
            continue;
        if (tag == IPP_TAG_EXTENSION || !skipText(message, position) || !skipText(message, position))
            return -1;
        if (tag == IPP_TAG_BEGIN_COLLECTION && ++depth > kDeepest)
            return -1;
        if (tag == IPP_TAG_END_COLLECTION)
            --depth;
    }
    return -1;
}

bool isReadableIpp(const QByteArray &message)
{
    return readableIppSize(message) >= 0;
}

} // namespace bv
