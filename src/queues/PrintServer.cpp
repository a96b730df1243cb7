// SPDX-License-Identifier: GPL-2.0-or-later
// Asks the print server by IPP (CUPS-Get-Printers, Get-Printer-Attributes) and fetches PPD files by HTTP.
#include "queues/PrintServer.h"

#include "queues/DefaultQueue.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <string_view>

namespace bv {

namespace {

using Queues = Result<std::vector<PrintQueue>>;

QString tr(const char *text)
{
    return QCoreApplication::translate("PrintServer", text);
}

QString text(ipp_attribute_t *attribute)
{
    const char *words = ippGetString(attribute, 0, nullptr);
    return QString::fromUtf8(words ? words : "");
}

QStringList allTexts(ipp_attribute_t *attribute)
{
    QStringList all;
    for (int i = 0; i < ippGetCount(attribute); ++i)
        all << QString::fromUtf8(ippGetString(attribute, i, nullptr));
    return all;
}

// An attribute of a queue that is asked for, and where its value goes.
struct QueueAttribute
{
    const char *name;
    ipp_tag_t tag; // of the value; a text may also carry a language
    void (*take)(PrintQueue &queue, ipp_attribute_t *value);
};

// clang-format off
constexpr std::array<QueueAttribute, 10> kAttributes = {{
    {"printer-name",              IPP_TAG_NAME,    [](PrintQueue &queue, ipp_attribute_t *value) { queue.name = text(value); }},
    {"printer-info",              IPP_TAG_TEXT,    [](PrintQueue &queue, ipp_attribute_t *value) { queue.description = text(value); }},
    {"printer-location",          IPP_TAG_TEXT,    [](PrintQueue &queue, ipp_attribute_t *value) { queue.location = text(value); }},
    {"device-uri",                IPP_TAG_URI,     [](PrintQueue &queue, ipp_attribute_t *value) { queue.deviceUri = text(value); }},
    {"printer-state",             IPP_TAG_ENUM,    [](PrintQueue &queue, ipp_attribute_t *value) { queue.isStopped = ippGetInteger(value, 0) == IPP_PSTATE_STOPPED; }},
    {"printer-is-accepting-jobs", IPP_TAG_BOOLEAN, [](PrintQueue &queue, ipp_attribute_t *value) { queue.acceptsJobs = ippGetBoolean(value, 0) != 0; }},
    {"printer-state-message",     IPP_TAG_TEXT,    [](PrintQueue &queue, ipp_attribute_t *value) { queue.stateMessage = text(value); }},
    {"printer-state-reasons",     IPP_TAG_KEYWORD, [](PrintQueue &queue, ipp_attribute_t *value) { queue.stateReasons = allTexts(value); }},
    {"printer-make-and-model",    IPP_TAG_TEXT,    [](PrintQueue &queue, ipp_attribute_t *value) { queue.makeAndModel = text(value); }},
    {"printer-type",              IPP_TAG_ENUM,    [](PrintQueue &queue, ipp_attribute_t *value) { queue.isClass = (ippGetInteger(value, 0) & CUPS_PRINTER_CLASS) != 0; }},
}};
// clang-format on

ipp_tag_t plainTag(ipp_attribute_t *attribute)
{
    const ipp_tag_t tag = ippGetValueTag(attribute);
    return tag == IPP_TAG_TEXTLANG ? IPP_TAG_TEXT : tag == IPP_TAG_NAMELANG ? IPP_TAG_NAME : tag;
}

// The queues of an answer. Each has a group of attributes.
std::vector<PrintQueue> queuesOf(ipp_t *message)
{
    std::vector<PrintQueue> queues;
    PrintQueue queue;
    const auto endQueue = [&] {
        if (!queue.name.isEmpty())
            queues.push_back(std::move(queue));
        queue = PrintQueue();
    };
    for (ipp_attribute_t *one = ippFirstAttribute(message); one; one = ippNextAttribute(message)) {
        const char *name = ippGetName(one);
        if (ippGetGroupTag(one) != IPP_TAG_PRINTER || !name) {
            endQueue();
            continue;
        }
        for (const QueueAttribute &row : kAttributes)
            if (row.tag == plainTag(one) && std::string_view(row.name) == name)
                row.take(queue, one);
    }
    endQueue();
    return queues;
}

Queues listQueues(ServerConnection &server)
{
    const IppMessage request(ippNewRequest(IPP_OP_CUPS_GET_PRINTERS));
    std::array<const char *, kAttributes.size()> names;
    std::transform(kAttributes.begin(), kAttributes.end(), names.begin(), [](const auto &row) { return row.name; });
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", int(names.size()), nullptr,
                  names.data());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    const ServerAnswer answer = server.ask(request);
    if (!answer.message)
        return Queues::failure(answer.problem);
    // A server without any queue says "not found".
    if (answer.status() == IPP_STATUS_ERROR_NOT_FOUND)
        return std::vector<PrintQueue>();
    if (answer.isRefusal())
        return Queues::failure(
            tr("The print server does not tell its printers: %1. Try again later.").arg(answer.words()));
    return queuesOf(answer.message.get());
}

// The first printer of a class; empty when the queue is no class.
QString firstMember(ServerConnection &server, const QString &queue)
{
    const IppMessage request = queueRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, "member-names");
    const ServerAnswer answer = server.ask(request);
    return answer.isGood() ? text(ippFindAttribute(answer.message.get(), "member-names", IPP_TAG_NAME)) : QString();
}

} // namespace

QString queueTitle(const PrintQueue &queue)
{
    return queue.description.isEmpty() ? queue.name : queue.description;
}

Queues PrintServer::queues(CallControl &control)
{
    Result<ServerConnection> server = ServerConnection::open(control);
    if (!server)
        return Queues::failure(server.error());
    Queues queues = listQueues(server.value());
    if (!queues)
        return queues;
    QStringList names;
    for (const PrintQueue &queue : queues.value())
        names << queue.name;
    const QString chosen = defaultQueue(server.value(), names);
    for (PrintQueue &queue : queues.value())
        queue.isDefault = queue.name == chosen;
    return queues;
}

Result<PrintQueue> PrintServer::queue(const QString &name, CallControl &control)
{
    using Queue = Result<PrintQueue>;
    Queues all = queues(control);
    if (!all)
        return Queue::failure(all.error());
    for (PrintQueue &queue : all.value())
        if (name.isEmpty() ? queue.isDefault : queue.name == name)
            return std::move(queue);
    return Queue::failure(name.isEmpty() ? tr("There is no default printer; name one with --queue.")
                                         : tr("The print server has no printer %1.").arg(name));
}

Result<PpdText> PrintServer::ppd(const QString &queue, CallControl &control)
{
    using Ppd = Result<PpdText>;
    using Outcome = ServerConnection::Download::Outcome;
    Result<ServerConnection> server = ServerConnection::open(control);
    if (!server)
        return Ppd::failure(server.error());
    const auto fetch = [&](const QString &name) {
        return server.value().download("/printers/" + name.toUtf8() + ".ppd", PpdText::kMost);
    };
    ServerConnection::Download file = fetch(queue);
    if (file.outcome == Outcome::Missing) {
        // After an answer with an error the connection is not used any more.
        server = ServerConnection::open(control);
        const QString member = server ? firstMember(server.value(), queue) : QString();
        if (!member.isEmpty())
            file = fetch(member);
    }
    // People know the printer, not the file.
    const QString called = tr("The driver of the printer %1").arg(queue);
    switch (file.outcome) {
    case Outcome::Had:
        return PpdText::from(file.bytes, called);
    case Outcome::Missing:
        return Ppd::failure(
            tr("The printer %1 has no driver. Add it again in the system's printer settings, with its driver.")
                .arg(queue));
    case Outcome::TooLarge:
        return Ppd::failure(PpdText::tooLarge(called));
    case Outcome::Failed:
        break;
    }
    return Ppd::failure(tr("%1 cannot be had: %2").arg(called, file.problem));
}

} // namespace bv
