// SPDX-License-Identifier: GPL-2.0-or-later
// A button with a menu that stores the present choices as the user's defaults, and takes them back.
#pragma once

#include "platform/Result.h"
#include "queues/UserDefaults.h"

#include <QPushButton>
#include <functional>

namespace bv {

class DefaultsMenu : public QPushButton
{
    Q_OBJECT

public:
    explicit DefaultsMenu(QWidget *parent);

    // Brings the present choices together. A failure is a sentence for the user.
    using Choices = std::function<Result<UserDefaults::Options>()>;
    // The queue or instance that the menu acts on, and its title on screen.
    void setTarget(const QueueInstance &target, const QString &title, Choices choices);

signals:
    // What was done, or why it was not, in a sentence for the user.
    void done(const QString &sentence);
    void failed(const QString &sentence);

private:
    bool store(const QueueInstance &of);
    void storeForQueue();
    void storeByName();
    void takeBack();

    UserDefaults m_defaults;
    QueueInstance m_target; // what was stored last is taken back
    QString m_title;
    Choices m_choices;
};

} // namespace bv
