// SPDX-License-Identifier: GPL-2.0-or-later
// The form of the profile management window: its controls, their texts and names, and the keys Return and Escape.
#pragma once

#include "platform/ClassNames.h"

#include "ui_ProfileManagement.h"

#include <QDialog>

namespace bv {

class ProfileTableModel;
class WindowHints;

class ManagementWindow : public QDialog
{
    Q_OBJECT

public:
    explicit ManagementWindow(QWidget *parent = nullptr);

    // The form's controls by their outlet names, the model of its table, and its hints.
    Ui::ProfileManagement controls;
    ProfileTableModel *model = nullptr;
    WindowHints *hints = nullptr;

    // Sets which OK the Return key presses: the edit area's (true) or the window's. A focused button takes Return
    // itself.
    void setReturnConfirmsEntry(bool entry);

signals:
    // Escape was pressed. The window does not close by itself.
    void escapePressed();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void putTexts();
    void nameControls();
    // The content scrolls where the screen is smaller than it.
    void fitIntoScreen();
};

} // namespace bv
