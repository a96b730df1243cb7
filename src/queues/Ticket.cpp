// SPDX-License-Identifier: GPL-2.0-or-later
// The ticket's dictionary, changed in place.
#include "queues/Ticket.h"

namespace bv {

namespace {

PrintValue deepCopy(const PrintValue &value)
{
    if (const PrintDictionaryRef nested = value.dictionary())
        return std::make_shared<PrintDictionary>(deepCopy(*nested));
    const PrintArray *elements = value.array();
    if (!elements)
        return value;
    PrintArray copies;
    copies.reserve(elements->size());
    for (const PrintValue &element : *elements)
        copies.push_back(deepCopy(element));
    return copies;
}

} // namespace

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

PrintDictionary deepCopy(const PrintDictionary &dictionary)
{
    PrintDictionary copy;
    for (const auto &[key, value] : dictionary.entries)
        copy.setValue(key, deepCopy(value));
    return copy;
}

} // namespace bv
