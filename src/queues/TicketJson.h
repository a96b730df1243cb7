// Tickets and summaries as JSON (RFC 8259): strings, integers, numbers, booleans, arrays and objects.
#pragma once

#include "platform/PrintValue.h"
#include "platform/Result.h"

#include <QByteArray>
#include <QJsonObject>

namespace bv {

// The ticket in a JSON text, whose root is to be an object. A number that is whole becomes an integer. JSON null is
// no ticket value and refused wherever it stands.
Result<PrintDictionary> ticketFromJson(const QByteArray &json);

// The ticket in a JSON file.
Result<PrintDictionary> ticketFromFile(const QString &path);

QJsonValue toJson(const PrintValue &value);
QJsonObject toJson(const PrintDictionary &dictionary);

} // namespace bv
