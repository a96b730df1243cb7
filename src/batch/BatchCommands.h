// SPDX-License-Identifier: GPL-2.0-or-later
// Carries out the commands of a batch on one panel and one session.
#pragma once

#include "batch/BatchLine.h"
#include "batch/ControlCatalog.h"
#include "jobs/DocumentArguments.h"
#include "jobs/PrintJob.h"
#include "presets/PresetStore.h"
#include "queues/QueueSession.h"

#include <QJsonValue>
#include <QPointer>
#include <functional>
#include <memory>

namespace bv {

class JobSink;
class PanelLoader;

// One panel serves all commands. It is requested before the first command that needs it, and receives only the calls
// that commands ask for. The session and the loader are borrowed and outlive this object.
class BatchCommands
{
public:
    BatchCommands(QueueSession &session, PanelLoader &loader, std::shared_ptr<const JobSink> sink,
                  DocumentArguments documents, PageCount pageCount = {});
    ~BatchCommands();
    BatchCommands(const BatchCommands &) = delete;
    BatchCommands &operator=(const BatchCommands &) = delete;

    // The outcome of a command.
    struct Outcome
    {
        QJsonValue result = QJsonValue::Null;
        QString error; // not empty: the command failed, and result is undefined
    };
    // Runs one command. line.command must not be empty.
    Outcome run(const BatchLine &line);

    // Whether the command's result is null whenever it succeeds.
    static bool answersNull(const QString &command);

    // The syntax of every command, with arguments in capitals: "set NAME [ROW] VALUE".
    static QStringList usages();

private:
    struct Command;
    static const Command kCommands[];
    static const Command *find(const QString &word);

    Outcome panels(const QStringList &words);
    Outcome panelName(const QStringList &words);
    Outcome panelKind(const QStringList &words);
    Outcome supportedPPDOptionKeys(const QStringList &words);
    Outcome panelView(const QStringList &words);
    Outcome willShow(const QStringList &words);
    Outcome constraints(const QStringList &words);
    Outcome terminate(const QStringList &words);
    Outcome shouldHide(const QStringList &words);
    Outcome restoreValues(const QStringList &words);
    Outcome saveValues(const QStringList &words);
    Outcome shouldPrint(const QStringList &words);
    Outcome summaryInfo(const QStringList &words);
    Outcome controls(const QStringList &words);
    Outcome control(const QStringList &words);
    Outcome set(const QStringList &words);
    Outcome type(const QStringList &words);
    Outcome select(const QStringList &words);
    Outcome press(const QStringList &words);
    Outcome choose(const QStringList &words);
    Outcome ticket(const QStringList &words);
    Outcome setTicket(const QStringList &words);
    Outcome presets(const QStringList &words);
    Outcome preset(const QStringList &words);
    Outcome savePreset(const QStringList &words);
    Outcome screenshot(const QStringList &words);
    Outcome print(const QStringList &words);

    // Where controls are searched, in order: the open modal windows, topmost first, then the view.
    std::vector<ControlRoot> roots() const;
    struct Found
    {
        ControlRoot root;
        QWidget *control = nullptr; // null: no control has that name
    };
    Found findEverywhere(const QString &name) const;
    // Finds a control that a user could reach now, in the open modal window or else in the view, and applies `action`
    // to it.
    Outcome onControl(const QString &name, const std::function<QString(QWidget *)> &action) const;

    QueueSession &m_session;
    PanelLoader &m_loader;
    std::shared_ptr<const JobSink> m_sink;
    DocumentArguments m_documents;
    PageCount m_pageCount;
    PresetStore m_presets;
    std::unique_ptr<PrintPanel> m_panel; // null until a command needs it
    QPointer<QWidget> m_view;            // owned by the panel; null until panelView
};

} // namespace bv
