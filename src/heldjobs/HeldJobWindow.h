// SPDX-License-Identifier: GPL-2.0-or-later
// The print dialog on a held job: says which job it is, shows copies of its documents, and can cancel it.
#pragma once

#include "heldjobs/HeldJob.h"
#include "queues/BackgroundCall.h"
#include "queues/SessionRequest.h"

#include <QObject>
#include <QTemporaryDir>
#include <memory>

class QComboBox;
class QLabel;
class QPushButton;

namespace bv {

class PanelLoader;
class PrintDialog;

// Changes a dialog that was made with a HeldJobSink of this job and has not been shown. It belongs to the dialog.
class HeldJobWindow : public QObject
{
    Q_OBJECT

public:
    HeldJobWindow(PrintDialog &dialog, HeldJob job);

private:
    void placeJob();
    void placeButtons();
    void takeCopies(const Result<QStringList> &copies);
    void cancelJob();

    PrintDialog &m_dialog;
    HeldJob m_job;
    QLabel *m_note;
    QComboBox *m_documents;
    QPushButton *m_cancelJob;
    std::shared_ptr<QTemporaryDir> m_folder = std::make_shared<QTemporaryDir>();
    BackgroundCall<Result<QStringList>> m_fetching;
    BackgroundCall<QString> m_canceling;
};

// Opens the dialog on the job that the request names, runs it, and returns the program's exit status. Waits for the
// print server, up to CallControl::kUsualLimit, before there is a window.
int runHeldJobDialog(const SessionRequest &request, const QString &job, const QString &screenshot, PanelLoader &loader);

} // namespace bv
