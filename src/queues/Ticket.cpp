// SPDX-License-Identifier: GPL-2.0-or-later
// The ticket's dictionary, changed in place.
#include "queues/Ticket.h"

namespace bv {

void Ticket::setValue(const QString &key, const PrintValue &value)
{
    // An absent key reads as "no value", so storing "no value" removes the key.
    if (value.isNone())
        m_entries->entries.erase(key);
    else
        m_entries->setValue(key, value);
}

void Ticket::clear()
{
    m_entries->entries.clear();
}

void Ticket::replace(const PrintDictionary &entries)
{
    m_entries->entries = entries.entries;
}

} // namespace bv
