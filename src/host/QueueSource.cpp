// The two sources of queues.
#include "host/QueueSource.h"

#include <QCoreApplication>
#include <QDir>

namespace bv {

namespace {

class ServerSource final : public QueueSource
{
public:
    Result<std::vector<PrintQueue>> queues() override { return PrintServer::queues(); }
    Result<PpdFile> ppd(const QString &queue) const override { return PrintServer::ppd(queue); }
    JobSink &sink() override { return m_sink; }

private:
    PrintServerSink m_sink;
};

class PpdSource final : public QueueSource
{
public:
    PpdSource(const CommandLine &commandLine, const QString &outputFolder)
        : m_path(commandLine.ppd), m_hasPrinter(!commandLine.noPrinter), m_sink(outputFolder)
    {
        m_queue.name = commandLine.queueWithoutServer();
        if (!commandLine.deviceUri.isEmpty())
            m_queue.deviceUri = commandLine.deviceUri;
        m_queue.isDefault = true;
        m_queue.location = QCoreApplication::translate("QueueSource", "No print server: jobs are written to %1")
                               .arg(QDir::toNativeSeparators(outputFolder));
    }

    Result<std::vector<PrintQueue>> queues() override { return std::vector<PrintQueue>{m_queue}; }
    Result<PpdFile> ppd(const QString &) const override { return PpdFile::open(m_path); }
    bool hasPrinter() const override { return m_hasPrinter; }
    JobSink &sink() override { return m_sink; }
    QString sentNote() const override
    {
        return QCoreApplication::translate("QueueSource", "The job was written to %1.")
            .arg(QDir::toNativeSeparators(m_sink.lastJobFolder()));
    }

private:
    QString m_path;
    bool m_hasPrinter;
    PrintQueue m_queue;
    FolderSink m_sink;
};

} // namespace

std::unique_ptr<QueueSource> makeServerSource()
{
    return std::make_unique<ServerSource>();
}

Result<std::unique_ptr<QueueSource>> makePpdSource(const CommandLine &commandLine, const QString &outputFolder)
{
    using Made = Result<std::unique_ptr<QueueSource>>;
    if (const Result<PpdFile> ppd = PpdFile::open(commandLine.ppd); !ppd)
        return Made::failure(ppd.error());
    return Made(std::make_unique<PpdSource>(commandLine, outputFolder));
}

QString stateFolder()
{
    const QString set = qEnvironmentVariable("XDG_STATE_HOME");
    return QDir::isAbsolutePath(set) ? set : QDir::homePath() + QStringLiteral("/.local/state");
}

QString demoOutputFolder()
{
    const QString set = qEnvironmentVariable("BVPRINT_OUTPUT");
    return set.isEmpty() ? stateFolder() + QStringLiteral("/bvprint-jobs") : QDir(set).absolutePath();
}

} // namespace bv
