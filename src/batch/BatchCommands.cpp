// SPDX-License-Identifier: GPL-2.0-or-later
// The table of batch commands and what each does.
#include "batch/BatchCommands.h"

#include "batch/ControlActions.h"
#include "jobs/JobSink.h"
#include "jobs/PrintJob.h"
#include "presets/PresetUse.h"
#include "queues/BackgroundCall.h"
#include "queues/PanelLoader.h"
#include "queues/TicketJson.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLayout>
#include <QPixmap>
#include <QTabWidget>
#include <algorithm>
#include <iterator>
#include <limits>

namespace bv {

namespace {

// What must exist before a command can run.
enum class Needs { Nothing, Panel, View };

// Special values for argument counts:
constexpr int kRestOfLine = -1; // the rest of the line, unchanged, is one argument
constexpr int kNoEnd = std::numeric_limits<int>::max();

} // namespace

// A command: its syntax, how many arguments it takes, what it needs, whether its result is always null, and the
// function that runs it.
struct BatchCommands::Command
{
    const char *word;
    const char *arguments;
    int least;
    int most;
    Needs needs;
    bool answersNull;
    Outcome (BatchCommands::*run)(const QStringList &words);

    QString usage() const
    {
        return QStringLiteral("%1 %2").arg(QLatin1String(word), QLatin1String(arguments)).trimmed();
    }
};

// clang-format off
const BatchCommands::Command BatchCommands::kCommands[] = {
    {"panels",                "TYPE",                        1,           1, Needs::Nothing, false, &BatchCommands::panels},
    {"panelName",             "",                            0,           0, Needs::Panel,   false, &BatchCommands::panelName},
    {"panelKind",             "",                            0,           0, Needs::Panel,   false, &BatchCommands::panelKind},
    {"supportedPPDOptionKeys","",                            0,           0, Needs::Panel,   false, &BatchCommands::supportedPPDOptionKeys},
    {"panelView",             "",                            0,           0, Needs::Panel,   false, &BatchCommands::panelView},
    {"willShow",              "",                            0,           0, Needs::Panel,   true,  &BatchCommands::willShow},
    {"constraints",           "",                            0,           0, Needs::Panel,   true,  &BatchCommands::constraints},
    {"terminate",             "",                            0,           0, Needs::Panel,   true,  &BatchCommands::terminate},
    {"shouldHide",            "",                            0,           0, Needs::Panel,   false, &BatchCommands::shouldHide},
    {"restoreValues",         "",                            0,           0, Needs::Panel,   false, &BatchCommands::restoreValues},
    {"saveValues",            "",                            0,           0, Needs::Panel,   false, &BatchCommands::saveValues},
    {"shouldPrint",           "",                            0,           0, Needs::Panel,   false, &BatchCommands::shouldPrint},
    {"summaryInfo",           "",                            0,           0, Needs::Panel,   false, &BatchCommands::summaryInfo},
    {"controls",              "[modal]",                     0,           1, Needs::View,    false, &BatchCommands::controls},
    {"control",               "NAME",                        1,           1, Needs::View,    false, &BatchCommands::control},
    {"set",                   "NAME [ROW] VALUE",            2,           3, Needs::View,    true,  &BatchCommands::set},
    {"type",                  "NAME TEXT",                   2,           2, Needs::View,    true,  &BatchCommands::type},
    {"select",                "NAME ROW",                    2,           2, Needs::View,    true,  &BatchCommands::select},
    {"press",                 "NAME",                        1,           1, Needs::View,    true,  &BatchCommands::press},
    {"choose",                "PATH",                        1,           1, Needs::View,    true,  &BatchCommands::choose},
    {"ticket",                "",                            0,           0, Needs::Nothing, false, &BatchCommands::ticket},
    {"setTicket",             "JSON",              kRestOfLine, kRestOfLine, Needs::Nothing, true,  &BatchCommands::setTicket},
    {"presets",               "",                            0,           0, Needs::Nothing, false, &BatchCommands::presets},
    {"preset",                "NAME",                        1,           1, Needs::Panel,   false, &BatchCommands::preset},
    {"savePreset",            "NAME",                        1,           1, Needs::Panel,   true,  &BatchCommands::savePreset},
    {"screenshot",            "FILE",                        1,           1, Needs::View,    true,  &BatchCommands::screenshot},
    {"print",                 "FILE...",                     0,      kNoEnd, Needs::Panel,   false, &BatchCommands::print},
};
// clang-format on

namespace {

BatchCommands::Outcome result(const QJsonValue &value)
{
    return {value, {}};
}

BatchCommands::Outcome failure(const QString &sentence)
{
    return {QJsonValue::Null, sentence};
}

// Innermost layouts first, because an outer layout uses the sizes of the inner ones.
void settleLayouts(QWidget *widget)
{
    for (QObject *child : widget->children())
        if (auto *part = qobject_cast<QWidget *>(child); part && !part->isWindow())
            settleLayouts(part);
    if (QLayout *layout = widget->layout()) {
        layout->invalidate();
        layout->activate();
    }
}

BatchCommands::Outcome nothing(const QString &error = {})
{
    return {QJsonValue::Null, error};
}

// The outcome of a call that the panel may refuse with a text.
BatchCommands::Outcome answerOf(bool taken, const QString &error)
{
    return taken ? result(true) : failure(error.isEmpty() ? QStringLiteral("The panel refuses.") : error);
}

} // namespace

BatchCommands::BatchCommands(QueueSession &session, PanelLoader &loader, std::shared_ptr<const JobSink> sink,
                             DocumentArguments documents, PageCount pageCount)
    : m_session(session), m_loader(loader), m_sink(std::move(sink)), m_documents(std::move(documents)),
      m_pageCount(std::move(pageCount))
{}

BatchCommands::~BatchCommands() = default;

const BatchCommands::Command *BatchCommands::find(const QString &word)
{
    const auto *command = std::find_if(std::begin(kCommands), std::end(kCommands),
                                       [&](const Command &row) { return word == QLatin1String(row.word); });
    return command == std::end(kCommands) ? nullptr : command;
}

bool BatchCommands::answersNull(const QString &command)
{
    const Command *row = find(command);
    return row && row->answersNull;
}

QStringList BatchCommands::usages()
{
    QStringList all;
    for (const Command &row : kCommands)
        all.append(row.usage());
    return all;
}

BatchCommands::Outcome BatchCommands::run(const BatchLine &line)
{
    const Command *command = find(line.command);
    if (!command)
        return failure(QStringLiteral("There is no command %1.").arg(line.command));
    QStringList words{line.rest};
    if (command->least != kRestOfLine) {
        Result<QStringList> split = batchWords(line.rest);
        if (!split)
            return failure(split.error());
        words = split.value();
        if (words.size() < command->least || words.size() > command->most)
            return failure(QStringLiteral("The number of arguments is wrong: %1.").arg(command->usage()));
    }
    if (command->needs == Needs::View && !m_view)
        return failure(QStringLiteral("There is no view yet; panelView comes first."));
    if (command->needs == Needs::Panel && !m_panel) {
        m_panel = m_loader.printerPanel(&m_session);
        if (!m_panel)
            return failure(QStringLiteral("The plug-in has no panel for printers."));
    }
    return (this->*command->run)(words);
}

// Questions and orders to the panel.

BatchCommands::Outcome BatchCommands::panels(const QStringList &words)
{
    const std::optional<Panels> found = m_loader.panels(words[0], &m_session);
    return result(found ? QJsonValue(static_cast<int>(found->size())) : QJsonValue::Null);
}

BatchCommands::Outcome BatchCommands::panelName(const QStringList &)
{
    return result(m_panel->panelName());
}

BatchCommands::Outcome BatchCommands::panelKind(const QStringList &)
{
    return result(m_panel->panelKind());
}

BatchCommands::Outcome BatchCommands::supportedPPDOptionKeys(const QStringList &)
{
    return result(QJsonArray::fromStringList(m_panel->supportedPPDOptionKeys()));
}

BatchCommands::Outcome BatchCommands::panelView(const QStringList &)
{
    QWidget *view = m_panel->panelView();
    if (!view)
        return failure(QStringLiteral("The panel has no view."));
    if (m_view != view) {
        m_view = view;
        // In a batch the view is not shown, so it gets its size here.
        m_view->adjustSize();
    }
    return result(view->objectName());
}

BatchCommands::Outcome BatchCommands::willShow(const QStringList &)
{
    m_panel->willShow();
    return nothing();
}

BatchCommands::Outcome BatchCommands::constraints(const QStringList &)
{
    m_panel->constraints();
    return nothing();
}

BatchCommands::Outcome BatchCommands::terminate(const QStringList &)
{
    m_panel->terminate();
    return nothing();
}

BatchCommands::Outcome BatchCommands::shouldHide(const QStringList &)
{
    return result(m_panel->shouldHide());
}

BatchCommands::Outcome BatchCommands::restoreValues(const QStringList &)
{
    QString error;
    const bool taken = m_panel->restoreValuesAndReturnError(&error);
    return answerOf(taken, error);
}

BatchCommands::Outcome BatchCommands::saveValues(const QStringList &)
{
    QString error;
    const bool taken = m_panel->saveValuesAndReturnError(&error);
    return answerOf(taken, error);
}

BatchCommands::Outcome BatchCommands::shouldPrint(const QStringList &)
{
    return result(m_panel->shouldPrint());
}

BatchCommands::Outcome BatchCommands::summaryInfo(const QStringList &)
{
    return result(toJson(m_panel->summaryInfo()));
}

// Controls.

std::vector<ControlRoot> BatchCommands::roots() const
{
    std::vector<ControlRoot> found;
    const QWidget *viewWindow = m_view ? m_view->window() : nullptr;
    for (QWidget *window = QApplication::activeModalWidget(); window && window != viewWindow;
         window = window->parentWidget() ? window->parentWidget()->window() : nullptr)
        found.push_back({window, true});
    found.push_back({m_view, false});
    return found;
}

BatchCommands::Found BatchCommands::findEverywhere(const QString &name) const
{
    for (const ControlRoot &root : roots())
        if (QWidget *control = findControl(root, name))
            return {root, control};
    return {};
}

BatchCommands::Outcome BatchCommands::onControl(const QString &name,
                                                const std::function<QString(QWidget *)> &action) const
{
    const Found found = findEverywhere(name);
    if (!found.control)
        return failure(QStringLiteral("There is no control %1.").arg(name));
    if (found.root.widget != roots().front().widget)
        return failure(QStringLiteral("A modal window is open, and %1 does not stand in it.").arg(name));
    return nothing(action(found.control));
}

BatchCommands::Outcome BatchCommands::controls(const QStringList &words)
{
    if (words.isEmpty())
        return result(describeControls({m_view, false}));
    if (words[0] != u"modal")
        return failure(
            QStringLiteral("There is no window %1; the word for the open modal window is modal.").arg(words[0]));
    const ControlRoot top = roots().front();
    return top.isWindow ? result(describeControls(top)) : failure(QStringLiteral("No modal window is open."));
}

BatchCommands::Outcome BatchCommands::control(const QStringList &words)
{
    const Found found = findEverywhere(words[0]);
    return found.control ? result(describeControl(found.root, found.control))
                         : failure(QStringLiteral("There is no control %1.").arg(words[0]));
}

BatchCommands::Outcome BatchCommands::set(const QStringList &words)
{
    if (words.size() == 2)
        return onControl(words[0], [&](QWidget *control) { return setControl(control, words[1]); });
    // Three words: the check mark of a table's cell, "TABLE.COLUMN ROW VALUE".
    const qsizetype dot = words[0].lastIndexOf(u'.');
    if (dot < 0)
        return failure(QStringLiteral("A row goes with TABLE.COLUMN, and %1 names no column.").arg(words[0]));
    return onControl(words[0].left(dot),
                     [&](QWidget *table) { return setTableMark(table, words[0].mid(dot + 1), words[1], words[2]); });
}

BatchCommands::Outcome BatchCommands::type(const QStringList &words)
{
    return onControl(words[0], [&](QWidget *control) { return typeIntoControl(control, words[1]); });
}

BatchCommands::Outcome BatchCommands::select(const QStringList &words)
{
    return onControl(words[0], [&](QWidget *control) { return selectTableRow(control, words[1]); });
}

BatchCommands::Outcome BatchCommands::press(const QStringList &words)
{
    return onControl(words[0], pressControl);
}

BatchCommands::Outcome BatchCommands::choose(const QStringList &words)
{
    auto *panel = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
    return panel ? nothing(chooseFile(panel, words[0])) : failure(QStringLiteral("No file panel is open."));
}

BatchCommands::Outcome BatchCommands::screenshot(const QStringList &words)
{
    const ControlRoot root = roots().front();
    if (words[0].isEmpty())
        return failure(QStringLiteral("The picture has no name."));
    // The view is not shown in a window, so its layouts must be updated here.
    if (!root.isWindow) {
        settleLayouts(root.widget);
        root.widget->adjustSize();
    }
    // Unbuffered, because a failing last write of a buffer would go unnoticed.
    QFile file(words[0]);
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && root.widget->grab().save(&file, "PNG")
               ? nothing()
               : failure(QStringLiteral("The picture %1 cannot be written.").arg(words[0]));
}

// Ticket and job.

BatchCommands::Outcome BatchCommands::ticket(const QStringList &)
{
    return result(toJson(m_session.ticket().entries()));
}

BatchCommands::Outcome BatchCommands::setTicket(const QStringList &words)
{
    const Result<PrintDictionary> ticket = ticketFromJson(words[0].toUtf8());
    if (!ticket)
        return failure(ticket.error());
    m_session.ticket().replace(ticket.value());
    return nothing();
}

BatchCommands::Outcome BatchCommands::presets(const QStringList &)
{
    return result(QJsonArray::fromStringList(m_presets.names(m_session.queue())));
}

BatchCommands::Outcome BatchCommands::preset(const QStringList &words)
{
    const Result<Preset> preset = m_presets.load(m_session.queue(), words[0]);
    if (!preset)
        return failure(preset.error());
    const PresetOutcome outcome = useChoices(m_session, m_panel.get(), preset.value().options);
    return result(QJsonObject{{QStringLiteral("changed"), outcome.changed},
                              {QStringLiteral("unused"), QJsonArray::fromStringList(outcome.misfits)}});
}

BatchCommands::Outcome BatchCommands::savePreset(const QStringList &words)
{
    QString error;
    if (!m_panel->saveValuesAndReturnError(&error))
        return answerOf(false, error);
    return nothing(
        m_presets.store(m_session.queue(), {words[0].trimmed(), QString::fromUtf8(m_session.ppdFile()->nickname),
                                            presetOptions(m_session.ticket().entries())}));
}

BatchCommands::Outcome BatchCommands::print(const QStringList &words)
{
    const bool isHeld = !m_sink->takesDocuments();
    if (isHeld && !words.isEmpty())
        return failure(QStringLiteral("The job has its documents already; write print without any."));
    const Result<QStringList> documents = m_documents.paths(words);
    if (!documents)
        return failure(documents.error());
    QString problem = isHeld ? QString() : checkDocuments(documents.value());
    if (problem.isEmpty())
        problem = checkRange(ticketOptions(m_session.ticket().entries()), documents.value(), m_pageCount);
    if (!problem.isEmpty())
        return failure(problem);
    const Result<JobRequest> job = prepareJob(m_session, m_panel.get(), documents.value());
    if (!job)
        return failure(job.error());
    using Sent = Result<SentJob>;
    const Sent sent = callWithLimit<Sent>(
        [sink = m_sink, request = job.value()](CallControl &control) { return sink->submit(request, control); },
        Sent::failure(unconfirmedSentence()));
    if (!sent)
        return failure(sent.error());
    QJsonObject options;
    for (const auto &[keyword, value] : job.value().options)
        options.insert(keyword, value);
    const std::optional<int> id = sent.value().id;
    return result(QJsonObject{{QStringLiteral("job"), id ? QJsonValue(*id) : QJsonValue(QJsonValue::Null)},
                              {QStringLiteral("options"), options}});
}

} // namespace bv
