// SPDX-License-Identifier: GPL-2.0-or-later
// The steps from a request to its answer.
#include "commandline/DirectRun.h"

#include "commandline/OptionTexts.h"
#include "jobs/DocumentArguments.h"
#include "jobs/FolderSink.h"
#include "jobs/PdfPages.h"
#include "jobs/PrintServerSink.h"
#include "platform/TerminalText.h"
#include "queues/BackgroundCall.h"
#include "queues/Complaint.h"
#include "queues/JobOnlyKeys.h"
#include "queues/PanelLoader.h"

#include <QJsonDocument>
#include <cstdio>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("DirectRun", text);
}

int failed(const QString &sentence, int status = kDirectFailed)
{
    complain(sentence);
    return status;
}

int say(const QString &text)
{
    return tell(text) ? 0 : failed(tr("Standard output cannot be written."));
}

int say(const QJsonObject &object)
{
    const QByteArray json = QJsonDocument(object).toJson(QJsonDocument::Compact);
    return say(QString::fromStdString(printableJson(json.toStdString())) + u'\n');
}

// What a script prints must not depend on whether the printer answers just now, nor wait for it: the stored lists of
// profiles count.
class StoredListsOnly final : public PanelWait
{
public:
    End waitForInput(int, std::optional<std::chrono::steady_clock::time_point>) override { return End::GaveUp; }
    bool wantsDevice(std::string_view) override { return false; }
    void deviceAsked(std::string_view, bool, int64_t) override {}
};

class StoredLists
{
public:
    explicit StoredLists(PanelLoader &loader) : m_loader(loader) { m_loader.setPanelWait(&m_wait); }
    ~StoredLists() { m_loader.setPanelWait(nullptr); }
    StoredLists(const StoredLists &) = delete;
    StoredLists &operator=(const StoredLists &) = delete;

private:
    PanelLoader &m_loader;
    StoredListsOnly m_wait;
};

OptionWords wordsOf(const DirectRequest &request, OptionWords options)
{
    if (!request.copies.isEmpty())
        options.emplace_back(QLatin1String(kCopiesKey), request.copies);
    if (!request.pages.isEmpty())
        options.emplace_back(QLatin1String(kPageRangesKey), request.pages);
    return options;
}

// A room with the choices of the command line.
struct Chosen
{
    StartedRoom started;
    QSet<QString> given;
    JobOptions attributes;
    std::vector<Refusal> refusals;
};

Result<Chosen> choose(const DirectRequest &request, const OptionWords &words, PanelLoader &loader)
{
    using Outcome = Result<Chosen>;
    Result<StartedRoom> started = startRoom(request.session, request.preset, loader);
    if (!started)
        return Outcome::failure(started.error());
    Chosen chosen{std::move(started.value()), {}, {}, {}};
    QueueRoom &room = *chosen.started.room;
    for (const QString &misfit : chosen.started.misfits)
        complain(misfit);
    const Result<WantedChoices> wanted = wantedChoices(words, room.ppd(), paneOptions(room.pane()));
    if (!wanted)
        return Outcome::failure(wanted.error());
    const Result<std::vector<Refusal>> refusals = makeChoices(room, wanted.value().choices, request.force);
    if (!refusals)
        return Outcome::failure(refusals.error());
    chosen.refusals = refusals.value();
    for (Refusal &conflict : conflictsIn(room))
        chosen.refusals.push_back(std::move(conflict));
    for (const WantedChoice &one : wanted.value().choices)
        chosen.given.insert(one.keyword);
    chosen.attributes = wanted.value().attributes;
    chosen.attributes.merge(chosen.started.attributes);
    // One copy is what there is without saying so, as in the window.
    if (const auto copies = chosen.attributes.find(QLatin1String(kCopiesKey));
        copies != chosen.attributes.end() && copies->second == u"1")
        chosen.attributes.erase(copies);
    for (const Refusal &refusal : chosen.refusals)
        complain(refusal.words + QStringLiteral(": ") + refusal.sentence);
    return chosen;
}

Result<JobRequest> makeJob(QueueRoom &room, const QStringList &documents, const JobOptions &attributes)
{
    return room.leave() ? room.makeJob(documents, attributes)
                        : Result<JobRequest>::failure(tr("The choices are not complete yet."));
}

int sayPrinted(const DirectRequest &request, const JobRequest &job, const SentJob &sent)
{
    if (request.json)
        return say(QJsonObject{{QStringLiteral("job"), sent.id ? QJsonValue(*sent.id) : QJsonValue()},
                               {QStringLiteral("options"), optionsJson(job.options)}});
    if (sent.id)
        return say(tr("request id is %1-%2 (%3 file(s))")
                       .arg(job.queue, QString::number(*sent.id), QString::number(job.documents.size())) +
                   u'\n');
    QString text = tr("Nothing is sent without a print server. These would be the options of the job:") + u'\n';
    for (const auto &[keyword, value] : job.options)
        text += QStringLiteral("  ") + keyword + u'=' + value + u'\n';
    return say(text);
}

int print(const DirectRequest &request, const Chosen &chosen)
{
    DocumentArguments arguments;
    const Result<QStringList> documents = arguments.paths(request.documents);
    if (!documents)
        return failed(documents.error(), kDirectBadStart);
    QString problem = checkDocuments(documents.value());
    if (problem.isEmpty())
        problem = checkRange(chosen.attributes, documents.value(), pdfPages());
    if (!problem.isEmpty())
        return failed(problem, kDirectBadStart);
    Result<JobRequest> job = makeJob(*chosen.started.room, documents.value(), chosen.attributes);
    if (!job)
        return failed(job.error());
    if (!request.title.isEmpty())
        job.value().title = request.title;
    std::shared_ptr<const JobSink> sink = std::make_shared<FolderSink>();
    if (request.session.usesServer())
        sink = std::make_shared<PrintServerSink>();
    using Sent = Result<SentJob>;
    const Sent sent = callWithLimit<Sent>(
        [sink, request = job.value()](CallControl &control) { return sink->submit(request, control); },
        Sent::failure(unconfirmedSentence()));
    return sent ? sayPrinted(request, job.value(), sent.value()) : failed(sent.error());
}

int list(const DirectRequest &request, const Chosen &chosen)
{
    QueueRoom &room = *chosen.started.room;
    const std::vector<ListedOption> options = listOptions(chosen.started, chosen.given);
    const bool isSummary = request.task == DirectRequest::Task::Summary;
    if (!request.json)
        return say(isSummary ? summaryText(room.summaryRows(), options, chosen.attributes) : optionText(options));
    const Result<JobRequest> job = makeJob(room, {}, chosen.attributes);
    if (!job)
        return failed(job.error());
    QJsonObject answer{{QStringLiteral("queue"), room.queue().name},
                       {QStringLiteral("job"), optionsJson(job.value().options)},
                       {QStringLiteral("refused"), refusalJson(chosen.refusals)}};
    if (isSummary)
        answer.insert(QStringLiteral("summary"), summaryJson(room.summaryRows(), options));
    else
        answer.insert(QStringLiteral("options"), optionJson(options));
    return say(answer);
}

} // namespace

int runDirect(const DirectRequest &request, PanelLoader &loader)
{
    // Words that cannot be read are reported before a print server is asked.
    const Result<OptionWords> options = splitOptions(request.options);
    if (!options)
        return failed(options.error(), kDirectBadStart);
    const StoredLists storedLists(loader);
    const Result<Chosen> chosen = choose(request, wordsOf(request, options.value()), loader);
    if (!chosen)
        return failed(chosen.error(), kDirectBadStart);
    const bool isRefused = !chosen.value().refusals.empty() && !request.force;
    if (request.task == DirectRequest::Task::Print)
        return isRefused ? kDirectRefused : print(request, chosen.value());
    const int status = list(request, chosen.value());
    return status == 0 && isRefused ? kDirectRefused : status;
}

} // namespace bv
