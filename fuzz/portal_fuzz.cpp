// SPDX-License-Identifier: GPL-2.0-or-later
// Takes any bytes for what a program gives over the bus. One that begins with a brace is the line between the service
// and the process of a dialog; any other is two dictionaries, with a letter for the type of each value. The line must
// say the same when it is read again, the dialog must start with choices that the PPD has, and a job must come back to
// the program so that it leads to the same choices.
#include "QtFuzzing.h"
#include "jobs/PageRange.h"
#include "jobs/PrintJob.h"
#include "portal/DialogRequest.h"
#include "portal/ProgramSettings.h"
#include "queues/JobOnlyKeys.h"
#include "queues/PpdFile.h"

using fuzz::require;

namespace {

QVariant valueOf(char type, const QString &text)
{
    switch (type) {
    case 'd':
        return text.toDouble();
    case 'i':
        return text.toInt();
    case 't':
        return text.toULongLong();
    case 'b':
        return text == u"true";
    case 'y':
        return text.toUtf8();
    case 'a':
        return text.split(u',');
    case 'v':
        return QVariantMap{{text, text}};
    case 'n': // as many entries, to reach the limits
        return QString(std::min(text.toInt(), 10000), u'n');
    default:
        return text;
    }
}

// Lines like "s n-copies=2", up to an empty one. The bus carries only UTF-8, and no zero bytes.
QVariantMap dictionary(fuzz::Input &input)
{
    QVariantMap map;
    for (std::string_view line = input.line(); line.size() > 2; line = input.line()) {
        const QString text = fuzz::wordsOf(line.substr(2)).remove(QChar(0));
        map.insert(text.section(u'=', 0, 0), valueOf(line.front(), text.section(u'=', 1)));
    }
    return map;
}

bv::DialogRequest requestFrom(const uint8_t *data, size_t size)
{
    fuzz::Input input(data, size);
    bv::DialogRequest request;
    request.title = fuzz::wordsOf(input.line()).remove(QChar(0)).left(1000);
    request.parent = request.title;
    request.settings = bv::plainEntries(dictionary(input), false);
    request.pageSetup = bv::plainEntries(dictionary(input), true);
    return request;
}

// What the process of the dialog gets of it.
bv::DialogRequest overTheLine(const bv::DialogRequest &request)
{
    const QByteArray line = request.toLine();
    require(line.count('\n') == 1 && line.endsWith('\n'));
    const std::optional<bv::DialogRequest> read = bv::DialogRequest::fromLine(line);
    require(read && read->toLine() == line);
    require(read->settings == bv::plainEntries(read->settings, false));
    require(read->pageSetup == bv::plainEntries(read->pageSetup, true));
    return *read;
}

bool hasChoice(ppd_file_t *ppd, const QString &keyword, const QString &choice)
{
    ppd_option_t *option = ppdFindOption(ppd, keyword.toUtf8().constData());
    return option && ppdFindChoice(option, choice.toUtf8().constData());
}

void checkStart(const bv::DialogCaller &caller, ppd_file_t *ppd)
{
    require(caller.copies >= 1 && caller.copies <= 999);
    require(caller.pageRange.isEmpty() || bv::parsePageRange(caller.pageRange).isValid());
    for (const auto &[keyword, value] : caller.choices.entries) {
        require(value.string() && keyword != QLatin1String(bv::kCopiesKey) &&
                keyword != QLatin1String(bv::kPageRangesKey));
        if (ppdFindOption(ppd, keyword.toUtf8().constData()))
            require(hasChoice(ppd, keyword, *value.string()));
    }
}

// The user prints with what the dialog started with, and with those of the job's options that it could have.
bv::JobOptions jobOf(const bv::DialogCaller &caller, const std::optional<bv::AgreedJob> &wanted, ppd_file_t *ppd)
{
    bv::PrintDictionary ticket = caller.choices;
    if (wanted)
        for (const auto &[keyword, choice] : wanted->options)
            if (hasChoice(ppd, keyword, choice) && !keyword.contains(QChar(0)))
                ticket.setValue(QString::fromUtf8(ppdFindOption(ppd, keyword.toUtf8().constData())->keyword), choice);
    return bv::jobOptions(ticket, ppd, {{QLatin1String(bv::kCopiesKey), QStringLiteral("7")}});
}

void checkJob(const bv::DialogRequest &request, const bv::JobOptions &job, ppd_file_t *ppd)
{
    bv::DialogAnswer answer;
    answer.response = bv::DialogAnswer::Response::Done;
    answer.settings = bv::settingsFor(request.settings, QStringLiteral("QL70"), job, ppd);
    answer.pageSetup = bv::pageSetupFor(request.pageSetup, job, ppd);
    answer.job = {QStringLiteral("QL70"), job};
    const std::optional<bv::DialogAnswer> read = bv::DialogAnswer::fromLine(answer.toLine());
    require(read && read->toLine() == answer.toLine() && read->job.options == job);

    const bv::DialogCaller again = bv::callerFrom(read->settings, read->pageSetup, ppd);
    require(again.copies == 1 && again.pageRange.isEmpty());
    for (const auto &[keyword, choice] : job) {
        const bv::PrintValue value = again.choices.value(keyword);
        if (hasChoice(ppd, keyword, choice))
            require(value.string() && value.string()->compare(choice, Qt::CaseInsensitive) == 0);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const fuzz::Scratch scratch;
    static const bv::Result<bv::PpdFile> ppd = bv::PpdFile::open(QStringLiteral(BV_SOURCE_DIR "/resources/QL70.ppd"));
    require(bool(ppd));
    std::optional<bv::DialogRequest> request;
    if (size > 0 && *data == '{') {
        const QByteArray line(reinterpret_cast<const char *>(data), qsizetype(size));
        request = bv::DialogRequest::fromLine(line);
        if (const std::optional<bv::DialogAnswer> answer = bv::DialogAnswer::fromLine(line)) {
            const std::optional<bv::DialogAnswer> again = bv::DialogAnswer::fromLine(answer->toLine());
            require(again && again->toLine() == answer->toLine());
        }
    } else {
        request = requestFrom(data, size);
    }
    if (!request)
        return 0;
    const bv::DialogRequest read = overTheLine(*request);
    const bv::DialogCaller caller = bv::callerFrom(read.settings, read.pageSetup, ppd.value().handle());
    checkStart(caller, ppd.value().handle());
    require(bv::callerFrom(read.settings, read.pageSetup, nullptr).copies == caller.copies);
    checkJob(read, jobOf(caller, read.job, ppd.value().handle()), ppd.value().handle());
    return 0;
}
