// SPDX-License-Identifier: GPL-2.0-or-later
// The ticket of a job: the dialog's implementation of the print settings.
#pragma once

#include "platform/PrintSettings.h"

namespace bv {

// Owns one dictionary for its whole life. It is changed in place, because panels keep a pointer to the ticket.
class Ticket final : public PrintSettings
{
public:
    PrintValue value(const QString &key) const override { return m_entries->value(key); }
    void setValue(const QString &key, const PrintValue &value) override;

    const PrintDictionary &entries() const { return *m_entries; }
    void clear();
    // Replaces all entries by those of another dictionary. Nested dictionaries are shared, not copied.
    void replace(const PrintDictionary &entries);

private:
    PrintDictionaryRef m_entries = std::make_shared<PrintDictionary>();
};

// A copy that shares no nested dictionary with the original, so that a later change of one leaves the other alone.
PrintDictionary deepCopy(const PrintDictionary &dictionary);

} // namespace bv
