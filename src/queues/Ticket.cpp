// The ticket's dictionary, changed in place.
#include "queues/Ticket.h"

namespace bv {

namespace {

PrintValue deepCopyOf(const PrintValue &value)
{
    if (const PrintArray *array = value.array()) {
        PrintArray copy;
        copy.reserve(array->size());
        for (const PrintValue &element : *array)
            copy.push_back(deepCopyOf(element));
        return copy;
    }
    if (const PrintDictionaryRef dictionary = value.dictionary())
        return std::make_shared<PrintDictionary>(Ticket::deepCopy(*dictionary));
    return value;
}

} // namespace

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

PrintDictionary Ticket::deepCopy(const PrintDictionary &entries)
{
    PrintDictionary copy;
    for (const auto &[key, value] : entries.entries)
        copy.setValue(key, deepCopyOf(value));
    return copy;
}

} // namespace bv
