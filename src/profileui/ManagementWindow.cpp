// SPDX-License-Identifier: GPL-2.0-or-later
// Texts, names and keys of the profile management window.
#include "profileui/ManagementWindow.h"

#include "platform/Bundle.h"
#include "platform/FocusInSight.h"
#include "profileui/ProfileTableModel.h"
#include "profileui/WindowHints.h"

#include <QKeyEvent>
#include <QScreen>

namespace bv {

ManagementWindow::ManagementWindow(QWidget *parent) : QDialog(parent), model(new ProfileTableModel(this))
{
    controls.setupUi(this);
    putTexts();
    nameControls();
    controls._profileMenu->addItems({localizedString("RGB"), localizedString("SIM"), localizedString("DST")});
    controls._profileTableView->setModel(model);
    // What is typed looks as it will look in the table.
    for (QWidget *field : std::initializer_list<QWidget *>{controls._fileNameEdit, controls._profileNameEdit})
        field->setFont(model->font());
    keepFocusInSight(controls.windowArea);
    hints = new WindowHints(this);
    setReturnConfirmsEntry(false);
    fitIntoScreen();
}

void ManagementWindow::fitIntoScreen()
{
    constexpr QSize kRoomy(640, 600);
    constexpr QSize kFrame(16, 48); // space for the window frame
    const QSize content = controls.windowContent->sizeHint() + QSize(style()->pixelMetric(QStyle::PM_ScrollBarExtent),
                                                                     controls._windowOK->sizeHint().height());
    const QSize wanted = kRoomy.expandedTo(content).expandedTo(sizeHint());
    resize(screen() ? wanted.boundedTo(screen()->availableSize() - kFrame) : wanted);
}

void ManagementWindow::putTexts()
{
    const Ui::ProfileManagement &c = controls;
    // clang-format off
    const std::pair<QAbstractButton *, const char *> buttons[] = {
        {c._addButton,    "Add"},
        {c._editButton,   "Edit"},
        {c._deleteButton, "Delete"},
        {c._browse,       "Browse..."},
        {c._localOK,      "Confirm Entry"},
        {c._localCancel,  "Discard Entry"},
        {c._windowOK,     "OK"},
        {c._windowCancel, "Cancel"},
    };
    const std::pair<QLabel *, const char *> labels[] = {
        {c.classText,        "Profile Class:"},
        {c.tableText,        "Profiles:"},
        {c._fileNameText,    "File Name:"},
        {c._profileNameText, "Profile Name:"},
        {c._locationText,    "Location:"},
    };
    // clang-format on
    for (const auto &[button, key] : buttons)
        button->setText(localizedString(key));
    for (const auto &[label, key] : labels)
        label->setText(localizedString(key));
    controls.editArea->setTitle(localizedString("Entry"));
}

void ManagementWindow::nameControls()
{
    // Accessible names are the visible labels without mnemonic and colon.
    const auto plain = [](QString text) {
        text.remove(u'&');
        return text.endsWith(u':') ? text.chopped(1).trimmed() : text;
    };
    for (const QLabel *label : findChildren<QLabel *>()) {
        if (label->buddy())
            label->buddy()->setAccessibleName(plain(label->text()));
    }
    for (QAbstractButton *button : findChildren<QPushButton *>())
        button->setAccessibleName(plain(button->text()));
}

void ManagementWindow::setReturnConfirmsEntry(bool entry)
{
    (entry ? controls._localOK : controls._windowOK)->setDefault(true);
}

void ManagementWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel))
        emit escapePressed();
    else
        QDialog::keyPressEvent(event);
}

} // namespace bv
