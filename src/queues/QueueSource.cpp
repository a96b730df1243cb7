// SPDX-License-Identifier: GPL-2.0-or-later
// The two sources of queues.
#include "queues/QueueSource.h"

namespace bv {

namespace {

class ServerSource final : public QueueSource
{
public:
    Result<std::vector<PrintQueue>> queues(CallControl &control) const override { return PrintServer::queues(control); }
    Result<PpdText> ppd(const QString &queue, CallControl &control) const override
    {
        return PrintServer::ppd(queue, control);
    }
};

class PpdSource final : public QueueSource
{
public:
    PpdSource(const SessionRequest &request, const QString &location)
        : m_path(request.ppd), m_hasPrinter(!request.noPrinter)
    {
        m_queue.name = request.queueWithoutServer();
        if (!request.deviceUri.isEmpty())
            m_queue.deviceUri = request.deviceUri;
        m_queue.isDefault = true;
        m_queue.location = location;
    }

    Result<std::vector<PrintQueue>> queues(CallControl &) const override { return std::vector<PrintQueue>{m_queue}; }
    Result<PpdText> ppd(const QString &, CallControl &) const override { return PpdText::read(m_path); }
    bool hasPrinter() const override { return m_hasPrinter; }

private:
    QString m_path;
    bool m_hasPrinter;
    PrintQueue m_queue;
};

} // namespace

std::shared_ptr<const QueueSource> makeServerSource()
{
    return std::make_shared<ServerSource>();
}

Result<std::shared_ptr<const QueueSource>> makePpdSource(const SessionRequest &request, const QString &location)
{
    using Made = Result<std::shared_ptr<const QueueSource>>;
    if (const Result<PpdFile> ppd = PpdFile::open(request.ppd); !ppd)
        return Made::failure(ppd.error());
    return Made(std::make_shared<PpdSource>(request, location));
}

} // namespace bv
