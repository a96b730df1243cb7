// SPDX-License-Identifier: GPL-2.0-or-later
// The sentences, and when they are shown.
#include "dialog/ListFailures.h"

#include "queues/PanelLoader.h"
#include "widgets/MessageBar.h"

namespace bv {

ListFailures::ListFailures(PanelLoader &loader, MessageBar *message) : m_loader(loader), m_message(message)
{
    m_loader.setLogObserver(this);
}

ListFailures::~ListFailures()
{
    m_loader.setLogObserver(nullptr);
}

void ListFailures::logged(LogSubject subject)
{
    const QString remedy = tr("Make room on the disk, or ask your administrator whether you may still write the lists");
    const QString sentence =
        subject == LogSubject::ListsNotWritten
            ? tr("Your changes to the profiles were not saved: their list could not be written. %1; then make the "
                 "changes again.")
                  .arg(remedy)
            : tr("What the printer says of its profiles was not saved: their list could not be written. The "
                 "profiles are shown as they were. %1; then open this window again.")
                  .arg(remedy);
    // A window of the panel is still open when the line is written, and the bar lies behind it.
    QMetaObject::invokeMethod(
        this, [this, sentence] { m_message->say(MessageBar::Kind::Problem, sentence); }, Qt::QueuedConnection);
}

} // namespace bv
