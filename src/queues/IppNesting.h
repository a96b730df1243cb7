// SPDX-License-Identifier: GPL-2.0-or-later
// Looks at the bytes of an IPP message before libcups reads them.
#pragma once

#include <QByteArray>

namespace bv {

// Whether the message is complete and its collections are not nested too deep. libcups reads nested collections by
// recursion without a limit (RFC 8010, 3.1.6).
bool isReadableIpp(const QByteArray &message);

// The size of the message that the bytes begin with; more may follow. -1 when it is not complete or not readable.
qsizetype readableIppSize(const QByteArray &bytes);

} // namespace bv
