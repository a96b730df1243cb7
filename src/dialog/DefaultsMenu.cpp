// SPDX-License-Identifier: GPL-2.0-or-later
// The menu's three entries.
#include "dialog/DefaultsMenu.h"

#include "platform/PlainTip.h"

#include <QInputDialog>
#include <QMenu>

namespace bv {

DefaultsMenu::DefaultsMenu(QWidget *parent) : QPushButton(tr("&My Defaults"), parent)
{
    setObjectName(QStringLiteral("myDefaults"));
    setAutoDefault(false);
    setPlainTip(this, tr("Use the present choices for other programs and later jobs as well"));
    auto *menu = new QMenu(this);
    const auto add = [this, menu](const QString &text, const char *name, void (DefaultsMenu::*slot)()) {
        QAction *action = menu->addAction(text);
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    add(tr("Use for &All My Printing"), "useForAll", &DefaultsMenu::storeForQueue);
    add(tr("Store under a &Name…"), "storeByName", &DefaultsMenu::storeByName);
    QAction *back = add(tr("&Take Back"), "takeBack", &DefaultsMenu::takeBack);
    connect(menu, &QMenu::aboutToShow, this, [this, back] { back->setEnabled(m_defaults.canTakeBack(m_target)); });
    setMenu(menu);
}

void DefaultsMenu::setTarget(const QueueInstance &target, const QString &title, Choices choices)
{
    m_target = target;
    m_title = title;
    m_choices = std::move(choices);
}

bool DefaultsMenu::store(const QueueInstance &of)
{
    const Result<UserDefaults::Options> options = m_choices();
    const QString problem = options ? m_defaults.store(of, options.value()) : options.error();
    if (!problem.isEmpty()) {
        emit failed(problem);
        return false;
    }
    m_target = of;
    return true;
}

void DefaultsMenu::storeForQueue()
{
    if (store({m_target.queue, {}}))
        emit done(tr("Your programs now print on “%1” with these choices, unless they choose otherwise.").arg(m_title));
}

void DefaultsMenu::storeByName()
{
    bool accepted = false;
    const QString name = QInputDialog::getText(this, tr("Store under a Name"), tr("&Name, for example “Draft”:"),
                                               QLineEdit::Normal, QString(), &accepted)
                             .trimmed();
    if (accepted && !name.isEmpty() && store({m_target.queue, name}))
        emit done(tr("These choices can now be used as “%1”, by this dialog and other programs.").arg(m_target.name()));
}

void DefaultsMenu::takeBack()
{
    const QString problem = m_defaults.takeBack(m_target);
    if (problem.isEmpty())
        emit done(tr("Your defaults of “%1” are again what they were. The choices shown here stay.").arg(m_title));
    else
        emit failed(problem);
}

} // namespace bv
