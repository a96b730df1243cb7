// SPDX-License-Identifier: GPL-2.0-or-later
// Asks the print server, or reads the PPD.
#include "commandline/Completion.h"

#include "commandline/WantedChoices.h"
#include "jobs/JobAttributes.h"
#include "presets/PresetStore.h"
#include "queues/BackgroundCall.h"
#include "queues/Complaint.h"
#include "queues/JobOnlyKeys.h"
#include "queues/PpdChoice.h"
#include "queues/PrintServer.h"
#include "queues/UserDefaults.h"

#include <QRegularExpression>
#include <array>

namespace bv {

namespace {

constexpr std::chrono::seconds kLimit{2};

using Words = Result<QStringList>;

// Standard options whose values people can guess from no PPD.
struct StandardRow
{
    const char *name;
    const char *values;   // between blanks
    const char *likeThis; // or the choices of this option of the PPD
};
constexpr std::array<StandardRow, 3> kStandard = {{
    {"media", "", "PageSize"},
    {"print-color-mode", "color monochrome", ""},
    {"sides", "one-sided two-sided-long-edge two-sided-short-edge", ""},
}};

Words queueWords(CallControl &control)
{
    const Result<std::vector<PrintQueue>> queues = PrintServer::queues(control);
    if (!queues)
        return Words::failure(queues.error());
    QStringList words;
    for (const PrintQueue &queue : queues.value()) {
        words << queue.name;
        for (const QString &instance : UserDefaults().instances(queue.name))
            words << QueueInstance{queue.name, instance}.name();
    }
    return words;
}

Words presetWords(const SessionRequest &session, CallControl &control)
{
    QString queue = session.queueWithoutServer();
    if (session.usesServer())
        queue = QueueInstance::fromName(session.queue).queue;
    if (queue.isEmpty()) {
        const Result<PrintQueue> usual = PrintServer::queue({}, control);
        if (!usual)
            return Words::failure(usual.error());
        queue = usual.value().name;
    }
    return PresetStore().names(queue);
}

Result<PpdText> ppdText(const SessionRequest &session, CallControl &control)
{
    if (!session.usesServer())
        return PpdText::read(session.ppd);
    const Result<PrintQueue> queue = PrintServer::queue(QueueInstance::fromName(session.queue).queue, control);
    return queue ? PrintServer::ppd(queue.value().name, control) : Result<PpdText>::failure(queue.error());
}

QStringList keywords(ppd_file_t *ppd)
{
    QStringList words;
    for (const GroupedOption &one : jobChoices(ppd))
        words << QString::fromUtf8(one.option->keyword);
    for (const StandardRow &row : kStandard)
        words << QLatin1String(row.name);
    words << QLatin1String(kCopiesKey) << QLatin1String(kPageRangesKey);
    words << jobAttributeNames();
    for (QString &word : words)
        word += u'=';
    return words;
}

QStringList choicesOf(const QString &keyword, ppd_file_t *ppd)
{
    QString asked = keyword;
    for (const StandardRow &row : kStandard) {
        if (keyword != QLatin1String(row.name))
            continue;
        if (*row.values != '\0')
            return QString::fromLatin1(row.values).split(u' ');
        asked = QLatin1String(row.likeThis);
    }
    QStringList words;
    const ppd_option_t *option = findOption(ppd, asked);
    for (int i = 0; option && i < option->num_choices; ++i)
        words << QString::fromUtf8(option->choices[i].choice);
    const JobAttribute *attribute = option ? nullptr : findJobAttribute(keyword);
    if (attribute && attribute->words)
        words = QString::fromLatin1(attribute->words).split(u' ').filter(QRegularExpression(QStringLiteral("^[^H]")));
    return words;
}

Words wordsFor(const QString &what, const SessionRequest &session, CallControl &control)
{
    if (what == u"queues")
        return queueWords(control);
    if (what == u"presets")
        return presetWords(session, control);
    const Result<PpdText> text = ppdText(session, control);
    if (!text)
        return Words::failure(text.error());
    const Result<PpdFile> ppd = PpdFile::open(text.value());
    if (!ppd)
        return Words::failure(ppd.error());
    return what.endsWith(u'=') ? choicesOf(what.chopped(1), ppd.value().handle()) : keywords(ppd.value().handle());
}

} // namespace

int complete(const QString &what, const SessionRequest &session)
{
    const Words words =
        callWithLimit<Words>([what, session](CallControl &control) { return wordsFor(what, session, control); },
                             Words::failure(QString()), kLimit);
    return words && tell(words.value().join(u'\n') + u'\n') ? 0 : 1;
}

} // namespace bv
