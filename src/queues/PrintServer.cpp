// SPDX-License-Identifier: GPL-2.0-or-later
// The print server through libcups (cupsGetDests2, cupsGetPPD3, httpConnect2).
#include "queues/PrintServer.h"

#include <QCoreApplication>
#include <unistd.h>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("PrintServer", text);
}

// The list from cupsGetDests2, freed with this object.
struct Destinations
{
    cups_dest_t *first = nullptr;
    int count = 0;

    Destinations() = default;
    Destinations(const Destinations &) = delete;
    Destinations &operator=(const Destinations &) = delete;
    ~Destinations() { cupsFreeDests(count, first); }
};

QString option(const cups_dest_t &destination, const char *name)
{
    return QString::fromUtf8(cupsGetOption(name, destination.num_options, destination.options));
}

PrintQueue queueOf(const cups_dest_t &destination)
{
    PrintQueue queue;
    queue.name = QString::fromUtf8(destination.name);
    queue.description = option(destination, "printer-info");
    queue.location = option(destination, "printer-location");
    if (const QString uri = option(destination, "device-uri"); !uri.isEmpty())
        queue.deviceUri = uri;
    queue.isDefault = destination.is_default != 0;
    queue.isStopped = option(destination, "printer-state").toInt() == IPP_PSTATE_STOPPED;
    queue.acceptsJobs = option(destination, "printer-is-accepting-jobs") != u"false";
    queue.stateMessage = option(destination, "printer-state-message");
    return queue;
}

} // namespace

QString queueTitle(const PrintQueue &queue)
{
    return queue.description.isEmpty() ? queue.name : queue.description;
}

Result<HttpConnection> PrintServer::connect()
{
    http_t *http =
        httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, kConnectMilliseconds, nullptr);
    if (!http)
        return Result<HttpConnection>::failure(
            tr("The print server %1 does not answer; check that it is running.").arg(QString::fromUtf8(cupsServer())));
    return HttpConnection(http);
}

Result<std::vector<PrintQueue>> PrintServer::queues()
{
    using Queues = Result<std::vector<PrintQueue>>;
    Result<HttpConnection> http = connect();
    if (!http)
        return Queues::failure(http.error());
    Destinations found;
    found.count = cupsGetDests2(http.value().get(), &found.first);
    std::vector<PrintQueue> queues;
    for (int i = 0; i < found.count; ++i) {
        // An instance is a set of the user's options for a queue, not a queue.
        if (!found.first[i].instance)
            queues.push_back(queueOf(found.first[i]));
        else if (found.first[i].is_default)
            for (PrintQueue &queue : queues)
                queue.isDefault = queue.isDefault || queue.name == QString::fromUtf8(found.first[i].name);
    }
    return queues;
}

Result<PrintQueue> PrintServer::queue(const QString &name)
{
    using Queue = Result<PrintQueue>;
    Result<std::vector<PrintQueue>> all = queues();
    if (!all)
        return Queue::failure(all.error());
    for (PrintQueue &queue : all.value())
        if (name.isEmpty() ? queue.isDefault : queue.name == name)
            return std::move(queue);
    return Queue::failure(name.isEmpty() ? tr("There is no default print queue; name one with --queue.")
                                         : tr("The print server has no queue %1.").arg(name));
}

Result<PpdFile> PrintServer::ppd(const QString &queue)
{
    using Ppd = Result<PpdFile>;
    Result<HttpConnection> http = connect();
    if (!http)
        return Ppd::failure(http.error());
    time_t modified = 0;
    char path[1024] = "";
    const http_status_t status =
        cupsGetPPD3(http.value().get(), queue.toUtf8().constData(), &modified, path, sizeof path);
    if (status != HTTP_STATUS_OK) {
        // Even a refused request may leave an empty temporary file.
        if (*path)
            unlink(path);
        return Ppd::failure(status == HTTP_STATUS_NOT_FOUND
                                ? tr("The queue %1 has no PPD.").arg(queue)
                                : tr("The PPD of the queue %1 cannot be had: %2.")
                                      .arg(queue, QString::fromUtf8(cupsLastErrorString())));
    }
    // People know the queue, not the temporary file.
    Result<PpdFile> ppd = PpdFile::open(QString::fromUtf8(path), tr("of the queue %1").arg(queue));
    unlink(path);
    return ppd;
}

} // namespace bv
