// SPDX-License-Identifier: GPL-2.0-or-later
// The layout of the print dialog's window: printer at the top, job settings and summary at the side, pane in the
// middle, buttons at the bottom.
#pragma once

#include <QPointer>
#include <QWidget>

class QBoxLayout;
class QDialog;
class QLabel;
class QPushButton;
class QStackedWidget;

namespace bv {

class ConflictBar;
class DefaultsMenu;
class DocumentList;
class JobRows;
class MessageBar;
class PagePreview;
class PaneArea;
class PpdOptionRows;
class PresetMenu;
class QueueList;
class ReasonLabel;
class SendingRow;
class SummaryView;
class WaitPanel;
class WhyGreyed;

class PrintDialogLayout : public QWidget
{
    Q_OBJECT

public:
    explicit PrintDialogLayout(QDialog *dialog);

    QueueList *queues = nullptr;
    PresetMenu *presets = nullptr;
    MessageBar *message = nullptr;
    DocumentList *documents = nullptr;
    JobRows *job = nullptr;
    PagePreview *preview = nullptr;
    SummaryView *summary = nullptr;
    QPushButton *restore = nullptr;
    DefaultsMenu *defaults = nullptr;
    QPushButton *cancel = nullptr;
    QPushButton *print = nullptr;
    ReasonLabel *reason = nullptr;
    SendingRow *sending = nullptr;
    ConflictBar *conflicts = nullptr;
    WaitPanel *wait = nullptr;
    WhyGreyed *why = nullptr;

    // Shows the rows and the pane of one queue. `rows` may be null. Shows the sentence instead of a null pane. The
    // widgets shown before stay in the window, hidden, until their owner removes them.
    void showQueue(PpdOptionRows *rows, QWidget *pane, const QString &paneName, const QString &sentence);
    // Shows the rows, and in place of the pane what is being waited for.
    void showWait(PpdOptionRows *rows, const QString &sentence);
    // Shows a quiet line above the pane; none when it is empty.
    void showPaneNote(const QString &note);
    // Shows whether input to printer, rows and preview is dropped. The focus comes back to them afterwards.
    void showDropped(bool isDropped);
    // The sentence shown instead of a pane. Empty while a pane is shown.
    QString placeText() const;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;
    bool event(QEvent *event) override;

private:
    QWidget *makeSide();
    QWidget *makePlace();
    QWidget *makeSummary();
    QWidget *makePreview();
    QBoxLayout *makeButtons(QDialog *dialog);
    // Puts the summary beside the pane in a wide window, else below the job's settings.
    void placeSummary();
    void widenSide();
    void placePreview();
    void placeDocuments();
    // The height at the side that is left for the preview while the list of documents shows its first rows only.
    int previewRoom() const;
    int previewNeed() const;
    void setTabOrders();
    QWidget *lastControl(const QWidget *owner, QWidget *otherwise) const;
    void alignLabels(PpdOptionRows *rows);
    // Keeps the room of rows that are not there yet, so that nothing moves when they come.
    void reserveRows();
    // Unfolds the preview if there is room for it and the user has not folded it, else folds it.
    void unfoldPreview();

    QBoxLayout *m_middle = nullptr;
    QBoxLayout *m_sideColumn = nullptr;
    QWidget *m_side = nullptr;
    QWidget *m_summaryBox = nullptr;
    PaneArea *m_settings = nullptr; // holds everything at the side but the summary
    QStackedWidget *m_rows = nullptr;
    QStackedWidget *m_place = nullptr;
    QLabel *m_paneTitle = nullptr;
    QLabel *m_paneNote = nullptr;
    QWidget *m_noRows = nullptr;
    QPointer<QWidget> m_focused; // before input was dropped
    bool m_summaryAside = false;
    bool m_previewPlaced = false;
    bool m_previewFoldedByUser = false;
    bool m_previewUnfoldedByUser = false;
};

} // namespace bv
