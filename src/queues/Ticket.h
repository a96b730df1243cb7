// The ticket of a job: the dialog's implementation of the print settings.
#pragma once

#include "platform/PrintSettings.h"

namespace bv {

// Owns the dictionary for its whole life: panels keep a pointer to the ticket, so it is emptied and filled in place.
class Ticket final : public PrintSettings
{
public:
    PrintValue value(const QString &key) const override { return m_entries->value(key); }
    void setValue(const QString &key, const PrintValue &value) override;

    const PrintDictionary &entries() const { return *m_entries; }
    void clear();
    // Takes over the entries of another dictionary; nested dictionaries are shared with it.
    void replace(const PrintDictionary &entries);

private:
    PrintDictionaryRef m_entries = std::make_shared<PrintDictionary>();
};

} // namespace bv
