// SPDX-License-Identifier: GPL-2.0-or-later
// Requests and answers as JSON.
#include "portal/DialogRequest.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <array>
#include <cmath>

namespace bv {

namespace {

constexpr qsizetype kMostEntries = 1000;
constexpr qsizetype kLongestText = 4096;

QJsonObject fromJob(const AgreedJob &job)
{
    QJsonObject options;
    for (const auto &[keyword, value] : job.options)
        options.insert(keyword, value);
    return {{QStringLiteral("queue"), job.queue}, {QStringLiteral("options"), options}};
}

AgreedJob toJob(const QJsonObject &object)
{
    AgreedJob job{object.value(u"queue").toString(), {}};
    const QJsonObject options = object.value(u"options").toObject();
    for (auto option = options.begin(); option != options.end(); ++option)
        job.options[option.key()] = option.value().toString();
    return job;
}

QByteArray line(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<QJsonObject> object(const QByteArray &line)
{
    const QJsonDocument document = QJsonDocument::fromJson(line);
    return document.isObject() ? std::optional<QJsonObject>(document.object()) : std::nullopt;
}

// The line has no others than finite ones.
bool isNumber(const QVariant &value)
{
    constexpr std::array<QMetaType::Type, 6> kNumbers = {QMetaType::Double, QMetaType::Float,    QMetaType::Int,
                                                         QMetaType::UInt,   QMetaType::LongLong, QMetaType::ULongLong};
    return std::isfinite(value.toDouble()) &&
           std::any_of(kNumbers.begin(), kNumbers.end(), [&value](auto type) { return value.typeId() == type; });
}

} // namespace

QVariantMap plainEntries(const QVariantMap &entries, bool withNumbers)
{
    QVariantMap plain;
    for (auto entry = entries.begin(); entry != entries.end() && plain.size() < kMostEntries; ++entry) {
        if (entry.key().size() > kLongestText)
            continue;
        if (entry.value().typeId() == QMetaType::QString && entry.value().toString().size() <= kLongestText)
            plain.insert(entry.key(), entry.value());
        else if (withNumbers && isNumber(entry.value()))
            plain.insert(entry.key(), entry.value().toDouble());
    }
    return plain;
}

QByteArray DialogRequest::toLine() const
{
    QJsonObject all{{QStringLiteral("hasDocument"), hasDocument},
                    {QStringLiteral("mayHandOver"), mayHandOver},
                    {QStringLiteral("parent"), parent},
                    {QStringLiteral("title"), title},
                    {QStringLiteral("acceptLabel"), acceptLabel},
                    {QStringLiteral("isModal"), isModal},
                    {QStringLiteral("settings"), QJsonObject::fromVariantMap(settings)},
                    {QStringLiteral("pageSetup"), QJsonObject::fromVariantMap(pageSetup)}};
    if (job)
        all.insert(QStringLiteral("job"), fromJob(*job));
    return line(all);
}

std::optional<DialogRequest> DialogRequest::fromLine(const QByteArray &line)
{
    const std::optional<QJsonObject> all = object(line);
    if (!all)
        return std::nullopt;
    DialogRequest request;
    request.hasDocument = all->value(u"hasDocument").toBool();
    request.mayHandOver = all->value(u"mayHandOver").toBool();
    request.parent = all->value(u"parent").toString();
    request.title = all->value(u"title").toString();
    request.acceptLabel = all->value(u"acceptLabel").toString();
    request.isModal = all->value(u"isModal").toBool();
    request.settings = plainEntries(all->value(u"settings").toObject().toVariantMap(), false);
    request.pageSetup = plainEntries(all->value(u"pageSetup").toObject().toVariantMap(), true);
    if (all->contains(u"job"))
        request.job = toJob(all->value(u"job").toObject());
    return request;
}

QByteArray DialogAnswer::toLine() const
{
    return line({{QStringLiteral("response"), int(response)},
                 {QStringLiteral("isHandedOver"), isHandedOver},
                 {QStringLiteral("settings"), QJsonObject::fromVariantMap(settings)},
                 {QStringLiteral("pageSetup"), QJsonObject::fromVariantMap(pageSetup)},
                 {QStringLiteral("job"), fromJob(job)}});
}

std::optional<DialogAnswer> DialogAnswer::fromLine(const QByteArray &line)
{
    const std::optional<QJsonObject> all = object(line);
    const int response = all ? all->value(u"response").toInt(-1) : -1;
    if (response < int(Response::Done) || response > int(Response::Failed))
        return std::nullopt;
    DialogAnswer answer;
    answer.response = Response(response);
    answer.isHandedOver = all->value(u"isHandedOver").toBool();
    answer.settings = plainEntries(all->value(u"settings").toObject().toVariantMap(), false);
    answer.pageSetup = plainEntries(all->value(u"pageSetup").toObject().toVariantMap(), true);
    answer.job = toJob(all->value(u"job").toObject());
    return answer;
}

} // namespace bv
