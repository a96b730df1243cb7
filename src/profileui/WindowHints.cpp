// SPDX-License-Identifier: GPL-2.0-or-later
// Places and words of the hints.
#include "profileui/WindowHints.h"

#include "platform/Bundle.h"
#include "platform/PlainTip.h"
#include "profileui/ManagementWindow.h"
#include "profileui/ProfileTableModel.h"

#include <QEvent>
#include <QLabel>

namespace bv {

namespace {

// The edge of the icon in the table's cells.
constexpr int kIconPoints = 16;

} // namespace

WindowHints::WindowHints(ManagementWindow *window)
    : QObject(window), m_window(window), m_iconPicture(new QLabel(window)), m_iconText(new QLabel(window))
{
    const Ui::ProfileManagement &c = window->controls;
    c._fileNameEdit->setPlaceholderText(localizedString("NAME.ICC"));
    c._profileNameEdit->setPlaceholderText(localizedString("The name that the menus show"));
    c._profileTableView->setEmptyHint(localizedString("No profiles yet. Those of a network printer appear once it has "
                                                      "been asked; Add enters one by hand."));
    addLegend();
    addNameRule();
    for (QWidget *control : explained())
        control->installEventFilter(this);
}

void WindowHints::addLegend()
{
    const QImage &icon = m_window->model->icon();
    const qreal ratio = m_window->devicePixelRatioF();
    if (!icon.isNull()) {
        QPixmap picture = QPixmap::fromImage(
            icon.scaled(QSize(kIconPoints, kIconPoints) * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        picture.setDevicePixelRatio(ratio);
        m_iconPicture->setPixmap(picture);
    }
    m_iconText->setText(localizedString("On the printer"));
    m_window->controls.listButtons->addWidget(m_iconPicture);
    m_window->controls.listButtons->addWidget(m_iconText);
}

void WindowHints::addNameRule()
{
    auto *rule = new QLabel(localizedString("NameRule"), m_window->controls.editArea);
    rule->setTextFormat(Qt::PlainText);
    rule->setWordWrap(true);
    // The form leaves this row free, between fields and buttons.
    m_window->controls.editLayout->addWidget(rule, 3, 0, 1, 3);
    m_window->controls._fileNameEdit->setAccessibleDescription(rule->text());
    m_window->controls._profileNameEdit->setAccessibleDescription(rule->text());
}

void WindowHints::explainIcon(bool shown)
{
    m_iconPicture->setVisible(shown);
    m_iconText->setVisible(shown);
}

QString WindowHints::hintFor(const QWidget *control) const
{
    const Ui::ProfileManagement &c = m_window->controls;
    const bool greyed = !control->isEnabled();
    if (control == c._windowOK)
        return m_state.underWay
                   ? localizedString("The entry is not confirmed: OK leaves it out, Confirm Entry takes it in")
                   : QString();
    if (!greyed)
        return {};
    const bool ofList =
        control == c._profileMenu || control == c._addButton || control == c._editButton || control == c._deleteButton;
    if (ofList && m_state.underWay)
        return localizedString("Confirm or discard the entry first");
    if (ofList)
        return localizedString(m_state.onPrinter && control == c._deleteButton
                                   ? "A profile that is on the printer cannot be deleted"
                                   : "Select a profile first");
    if (!m_state.underWay)
        return localizedString("Press Add, or select a profile and press Edit");
    return localizedString(control == c._localOK ? "Type a file name first; it cannot begin with a dot"
                                                 : "The printer names this file; only the profile name can be changed");
}

void WindowHints::show(const EntryState &state)
{
    m_state = state;
    const Ui::ProfileManagement &c = m_window->controls;
    c.editArea->setTitle(state.underWay
                             ? state.problem.isEmpty() ? localizedString("Entry, not confirmed yet") : state.problem
                         : state.discarded ? localizedString("Entry, discarded")
                                           : localizedString("Entry"));
    for (QWidget *control : explained())
        explain(control);
}

QList<QWidget *> WindowHints::explained() const
{
    const Ui::ProfileManagement &c = m_window->controls;
    return {c._profileMenu,     c._addButton,    c._editButton, c._deleteButton, c._fileNameEdit, c._browse,
            c._profileNameEdit, c._locationMenu, c._localOK,    c._localCancel,  c._windowOK};
}

void WindowHints::explain(QWidget *control)
{
    const QString hint = hintFor(control);
    setPlainTip(control, hint);
    // The fields always describe the rule for names.
    if (!qobject_cast<QLineEdit *>(control))
        control->setAccessibleDescription(hint);
}

bool WindowHints::eventFilter(QObject *watched, QEvent *event)
{
    // Fields enable and disable buttons by themselves.
    if (event->type() == QEvent::EnabledChange)
        explain(static_cast<QWidget *>(watched));
    return QObject::eventFilter(watched, event);
}

} // namespace bv
