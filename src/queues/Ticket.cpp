// The ticket's dictionary, changed in place.
#include "queues/Ticket.h"

namespace bv {

void Ticket::setValue(const QString &key, const PrintValue &value)
{
    // "No value" is what an absent key yields, so storing it takes the key away.
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
