// SPDX-License-Identifier: GPL-2.0-or-later
// The line below the panes that says which check box switched settings off, with a button that turns the box off.
#pragma once

#include "platform/ClassNames.h"

#include "common/PDEControlItem.h"

#include <QPointer>
#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;

// Keeps its height while there is nothing to say, so that the panes never move.
class SwitchedOffNote : public QWidget
{
    Q_OBJECT

public:
    explicit SwitchedOffNote(QWidget *parent);

    // Looks for such a box in the table of both panes, which may be null.
    void update(PDEControlTable table);

signals:
    // The user turned the box off by the button.
    void turnedOff();

private:
    void turnOff();

    QLabel *m_text;
    QPushButton *m_turnOff;
    QPointer<QCheckBox> m_box;
};
