// SPDX-License-Identifier: GPL-2.0-or-later
// Reading and writing tickets as JSON.
#include "queues/TicketJson.h"

#include "queues/InputFile.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace bv {

namespace {

constexpr qint64 kLargestTicket = qint64{1024} * 1024; // bytes; real ones have some thousand

// The converted value. On failure none, with a sentence in *error; `where` is the place it names.
PrintValue fromJson(const QJsonValue &value, const QString &where, QString *error);

std::optional<PrintDictionary> dictionaryFromJson(const QJsonObject &object, const QString &where, QString *error)
{
    PrintDictionary dictionary;
    for (auto member = object.begin(); member != object.end(); ++member) {
        PrintValue value = fromJson(member.value(), where + u'/' + member.key(), error);
        if (value.isNone())
            return std::nullopt;
        dictionary.setValue(member.key(), std::move(value));
    }
    return dictionary;
}

PrintValue arrayFromJson(const QJsonArray &elements, const QString &where, QString *error)
{
    PrintArray array;
    array.reserve(static_cast<size_t>(elements.size()));
    for (qsizetype i = 0; i < elements.size(); ++i) {
        PrintValue value = fromJson(elements.at(i), where + u'/' + QString::number(i), error);
        if (value.isNone())
            return {};
        array.push_back(std::move(value));
    }
    return array;
}

PrintValue fromJson(const QJsonValue &value, const QString &where, QString *error)
{
    switch (value.type()) {
    case QJsonValue::String:
        return value.toString();
    case QJsonValue::Bool:
        return PrintValue::boolean(value.toBool());
    case QJsonValue::Double: {
        // Whole numbers must stay integers, because only integers become job options.
        const QVariant number = value.toVariant();
        return number.typeId() == QMetaType::LongLong ? PrintValue::integer(number.toLongLong())
                                                      : PrintValue::real(number.toDouble());
    }
    case QJsonValue::Array:
        return arrayFromJson(value.toArray(), where, error);
    case QJsonValue::Object: {
        std::optional<PrintDictionary> dictionary = dictionaryFromJson(value.toObject(), where, error);
        return dictionary ? PrintValue(std::make_shared<PrintDictionary>(std::move(*dictionary))) : PrintValue();
    }
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        break;
    }
    *error = QStringLiteral("A ticket holds no null, but there is one at %1.").arg(where);
    return {};
}

} // namespace

Result<PrintDictionary> ticketFromJson(const QByteArray &json)
{
    using Ticket = Result<PrintDictionary>;
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error != QJsonParseError::NoError)
        return Ticket::failure(QStringLiteral("The ticket is no JSON: %1 at byte %2.")
                                   .arg(parseError.errorString())
                                   .arg(parseError.offset));
    if (!document.isObject())
        return Ticket::failure(QStringLiteral("A ticket is a JSON object."));
    QString error;
    std::optional<PrintDictionary> dictionary = dictionaryFromJson(document.object(), QString(), &error);
    if (!dictionary)
        return Ticket::failure(error);
    return std::move(*dictionary);
}

Result<PrintDictionary> ticketFromFile(const QString &path)
{
    const Result<QByteArray> json = readInputFile(path, QStringLiteral("The ticket %1").arg(path), kLargestTicket);
    if (!json)
        return Result<PrintDictionary>::failure(json.error());
    Result<PrintDictionary> ticket = ticketFromJson(json.value());
    if (!ticket)
        return Result<PrintDictionary>::failure(
            QStringLiteral("The ticket %1 cannot be used: %2").arg(path, ticket.error()));
    return ticket;
}

QJsonValue toJson(const PrintValue &value)
{
    if (const QString *text = value.string())
        return *text;
    if (const int64_t *number = value.integer())
        return qint64(*number);
    if (const double *number = value.real())
        return *number;
    if (const bool *truth = value.boolean())
        return *truth;
    if (const PrintArray *array = value.array()) {
        QJsonArray elements;
        for (const PrintValue &element : *array)
            elements.append(toJson(element));
        return elements;
    }
    if (const PrintDictionaryRef dictionary = value.dictionary())
        return toJson(*dictionary);
    return QJsonValue::Null;
}

QJsonObject toJson(const PrintDictionary &dictionary)
{
    QJsonObject object;
    for (const auto &[key, value] : dictionary.entries)
        object.insert(key, toJson(value));
    return object;
}

} // namespace bv
