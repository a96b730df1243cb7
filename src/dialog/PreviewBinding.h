// SPDX-License-Identifier: GPL-2.0-or-later
// Has the preview follow the choices in the window: documents, pages, paper, gray.
#pragma once

#include "jobs/JobSink.h"
#include "pages/Sheet.h"

#include <QObject>
#include <cups/ppd.h>

namespace bv {

class PrintDialogLayout;
class QueueRoom;

class PreviewBinding : public QObject
{
    Q_OBJECT

public:
    // The parts must outlive the binding.
    explicit PreviewBinding(PrintDialogLayout &parts, QObject *parent = nullptr);

    // The first queue is shown, so drawing no longer delays it.
    void start();
    // Takes paper and gray from the room's choices. The room may be null or not ready; then the preview stays as it is.
    void follow(QueueRoom *room);

private:
    void followDocuments();
    void followPages();

    PrintDialogLayout &m_parts;
};

// The paper that these job options choose. The PPD's default where they choose none; A4 where the PPD has no sizes.
Sheet chosenSheet(const JobOptions &options, ppd_file_t *ppd);

// True if the job is printed in gray, as the standard attribute says that every pane's options are translated to.
bool isGray(const JobOptions &options);

} // namespace bv
