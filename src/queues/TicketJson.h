// SPDX-License-Identifier: GPL-2.0-or-later
// Tickets and summaries as JSON (RFC 8259): strings, integers, numbers, booleans, arrays and objects.
#pragma once

#include "platform/PrintValue.h"
#include "platform/Result.h"

#include <QByteArray>
#include <QJsonObject>

namespace bv {

// Reads a ticket from a JSON text, whose root must be an object. A whole number becomes an integer. JSON null is not a
// ticket value and is refused at any place.
Result<PrintDictionary> ticketFromJson(const QByteArray &json);

// Reads a ticket from a regular JSON file of at most 1 MB.
Result<PrintDictionary> ticketFromFile(const QString &path);

QJsonValue toJson(const PrintValue &value);
QJsonObject toJson(const PrintDictionary &dictionary);

} // namespace bv
