// SPDX-License-Identifier: GPL-2.0-or-later
// A button that lists the greyed controls of a window with their reasons, since the keyboard cannot reach them.
#pragma once

#include <QPushButton>

class QListWidget;

namespace bv {

// Keeps its place while it has nothing to say.
class WhyGreyed : public QPushButton
{
    Q_OBJECT

public:
    // The area whose controls are listed is borrowed.
    explicit WhyGreyed(QWidget *area, QWidget *parent = nullptr);

    // Looks at the controls again. Call it after a change.
    void refresh();
    // A line for each greyed control in sight, "name: reason", from top to bottom.
    QStringList reasons() const;

private:
    void open();

    QWidget *m_area;
    QWidget *m_popUp;
    QListWidget *m_list;
};

} // namespace bv
