// SPDX-License-Identifier: GPL-2.0-or-later
// What the profile management window says without being asked: rules for names, reasons for greyed controls, and that
// an entry is not confirmed yet. The window shows no messages.
#pragma once

#include "platform/ClassNames.h"

#include <QList>
#include <QObject>
#include <QString>

class QLabel;
class QWidget;

namespace bv {

class ManagementWindow;

// What the hints depend on.
struct EntryState
{
    bool underWay = false;  // an entry is being added or edited
    bool discarded = false; // the last entry was given up
    bool onPrinter = false; // the printer had the selected profile when it was last asked
    QString problem;        // why the entry would not be taken; empty when it would
};

class WindowHints : public QObject
{
    Q_OBJECT

public:
    // Adds the standing hints to a window whose form is set up. The window owns the hints.
    explicit WindowHints(ManagementWindow *window);

    void show(const EntryState &state);
    // Whether the table has icons to explain.
    void explainIcon(bool shown);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // Why a control is greyed, or what to know before using it. Empty: nothing.
    QString hintFor(const QWidget *control) const;
    QList<QWidget *> explained() const;
    void explain(QWidget *control);
    void addLegend();
    void addNameRule();

    ManagementWindow *m_window;
    QLabel *m_iconPicture;
    QLabel *m_iconText;
    EntryState m_state;
};

} // namespace bv
