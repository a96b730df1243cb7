// Where everything of the print dialog's window stands: printer on top, the job's settings and the summary at the
// side, the pane in the middle, the buttons below.
#pragma once

#include <QWidget>

class QBoxLayout;
class QDialog;
class QLabel;
class QPushButton;
class QStackedWidget;

namespace bv {

class DocumentList;
class JobRows;
class MessageBar;
class PaneArea;
class PpdOptionRows;
class QueueList;
class ReasonLabel;
class SummaryView;

class PrintDialogLayout : public QWidget
{
    Q_OBJECT

public:
    explicit PrintDialogLayout(QDialog *dialog);

    QueueList *queues = nullptr;
    MessageBar *message = nullptr;
    DocumentList *documents = nullptr;
    JobRows *job = nullptr;
    SummaryView *summary = nullptr;
    QPushButton *restore = nullptr;
    QPushButton *cancel = nullptr;
    QPushButton *print = nullptr;
    ReasonLabel *reason = nullptr;

    // Shows the rows and the pane of one queue; null rows: none, null pane: the sentence in its place. What was shown
    // before stays in the window, hidden, until its owner takes it out.
    void showQueue(PpdOptionRows *rows, QWidget *pane, const QString &paneName, const QString &sentence);
    // The sentence in the pane's place; empty while a pane is there.
    QString placeText() const;

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;

private:
    QWidget *makeSide();
    QWidget *makePlace();
    QWidget *makeSummary();
    QBoxLayout *makeButtons(QDialog *dialog);
    // Moves the summary below the job's settings or, where the window is wide, to the pane's other side.
    void placeSummary();
    void widenSide();
    void setTabOrders();
    void alignLabels(PpdOptionRows *rows);

    QBoxLayout *m_middle = nullptr;
    QBoxLayout *m_sideColumn = nullptr;
    QWidget *m_side = nullptr;
    QWidget *m_summaryBox = nullptr;
    PaneArea *m_settings = nullptr; // in it all of the side but the summary
    QStackedWidget *m_rows = nullptr;
    QStackedWidget *m_place = nullptr;
    QWidget *m_placeNote = nullptr;
    QLabel *m_placeText = nullptr;
    QLabel *m_paneTitle = nullptr;
    QWidget *m_noRows = nullptr;
    bool m_summaryAside = false;
};

} // namespace bv
