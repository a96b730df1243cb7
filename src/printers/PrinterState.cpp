// SPDX-License-Identifier: GPL-2.0-or-later
// The words for states and for the reasons that print servers name.
#include "printers/PrinterState.h"

#include <QCoreApplication>
#include <array>

namespace bv {

namespace {

QString tr(const char *text, const char *what = nullptr)
{
    return QCoreApplication::translate("PrinterState", text, what);
}

// A reason by its keyword, without the suffix that says how bad it is.
struct ReasonWords
{
    const char *keyword;
    const char *words;
};

// clang-format off
constexpr std::array<ReasonWords, 27> kReasons = {{
    {"media-empty",              QT_TRANSLATE_NOOP("PrinterState", "out of paper: fill a tray")},
    {"media-needed",             QT_TRANSLATE_NOOP("PrinterState", "needs paper: fill a tray")},
    {"media-low",                QT_TRANSLATE_NOOP("PrinterState", "little paper left")},
    {"media-jam",                QT_TRANSLATE_NOOP("PrinterState", "paper jam: take out the paper that is stuck")},
    {"toner-empty",              QT_TRANSLATE_NOOP("PrinterState", "out of toner: change the cartridge")},
    {"toner-low",                QT_TRANSLATE_NOOP("PrinterState", "little toner left")},
    {"marker-supply-empty",      QT_TRANSLATE_NOOP("PrinterState", "out of toner or ink: change the cartridge")},
    {"marker-supply-low",        QT_TRANSLATE_NOOP("PrinterState", "little toner or ink left")},
    {"marker-waste-full",        QT_TRANSLATE_NOOP("PrinterState", "the container for waste toner is full: change it")},
    {"marker-waste-almost-full", QT_TRANSLATE_NOOP("PrinterState", "the container for waste toner is almost full")},
    {"developer-empty",          QT_TRANSLATE_NOOP("PrinterState", "the developer is used up: change it")},
    {"developer-low",            QT_TRANSLATE_NOOP("PrinterState", "the developer is almost used up")},
    {"opc-life-over",            QT_TRANSLATE_NOOP("PrinterState", "the drum is used up: change it")},
    {"opc-near-eol",             QT_TRANSLATE_NOOP("PrinterState", "the drum is almost used up")},
    {"fuser-over-temp",          QT_TRANSLATE_NOOP("PrinterState", "too hot: let it cool down")},
    {"door-open",                QT_TRANSLATE_NOOP("PrinterState", "a door is open: close it")},
    {"cover-open",               QT_TRANSLATE_NOOP("PrinterState", "a cover is open: close it")},
    {"interlock-open",           QT_TRANSLATE_NOOP("PrinterState", "a cover is open: close it")},
    {"input-tray-missing",       QT_TRANSLATE_NOOP("PrinterState", "a tray is missing: push it in")},
    {"output-tray-missing",      QT_TRANSLATE_NOOP("PrinterState", "the output tray is missing: put it in")},
    {"output-area-full",         QT_TRANSLATE_NOOP("PrinterState", "the output tray is full: empty it")},
    {"output-area-almost-full",  QT_TRANSLATE_NOOP("PrinterState", "the output tray is almost full")},
    {"spool-area-full",          QT_TRANSLATE_NOOP("PrinterState", "no room for more jobs: wait for others to be printed")},
    {"offline",                  QT_TRANSLATE_NOOP("PrinterState", "switched off or not connected: switch it on")},
    {"shutdown",                 QT_TRANSLATE_NOOP("PrinterState", "switched off: switch it on")},
    {"timed-out",                QT_TRANSLATE_NOOP("PrinterState", "does not answer: is it switched on and connected?")},
    {"cups-missing-filter",      QT_TRANSLATE_NOOP("PrinterState", "its driver is not complete: ask who looks after it")},
}};
// clang-format on

// The words for a reason; empty for one that says nothing to people.
QString wordsFor(QString reason)
{
    for (const QLatin1String suffix : {QLatin1String("-error"), QLatin1String("-warning"), QLatin1String("-report")})
        if (reason.endsWith(suffix))
            reason.chop(suffix.size());
    for (const ReasonWords &row : kReasons)
        if (reason == QLatin1String(row.keyword))
            return tr(row.words);
    return {};
}

QStringList reasonsOf(const PrintQueue &queue)
{
    QStringList words;
    for (const QString &reason : queue.stateReasons)
        if (const QString one = wordsFor(reason); !one.isEmpty() && !words.contains(one))
            words << one;
    return words;
}

} // namespace

PrinterState stateOf(const PrintQueue &queue)
{
    return !queue.acceptsJobs           ? PrinterState::Closed
           : queue.isStopped            ? PrinterState::Stopped
           : reasonsOf(queue).isEmpty() ? PrinterState::Ready
                                        : PrinterState::Attention;
}

QString printerTitle(const PrintQueue &queue)
{
    return queue.description.isEmpty() || queue.description == queue.name
               ? queue.name
               : tr("%1 (%2)", "description and name of a printer").arg(queue.description, queue.name);
}

QString printerNote(const PrintQueue &queue)
{
    QStringList parts;
    if (!queue.location.isEmpty())
        parts << queue.location;
    if (!queue.acceptsJobs)
        parts << tr("takes no jobs: choose another printer");
    // What the server says is the nearest to the cause, and the end of a note may be cut.
    if (!queue.stateMessage.isEmpty())
        parts << queue.stateMessage;
    if (queue.isStopped)
        parts << tr("stopped: jobs wait until somebody resumes it");
    parts << reasonsOf(queue);
    return parts.join(tr(" · "));
}

QString whyNoJobs(const PrintQueue &queue)
{
    if (queue.acceptsJobs)
        return {};
    return queue.stateMessage.isEmpty()
               ? tr("This printer takes no jobs at the moment. Choose another one, or ask who looks after it.")
               : tr("This printer takes no jobs at the moment (%1). Choose another one, or ask who looks after it.")
                     .arg(queue.stateMessage);
}

} // namespace bv
