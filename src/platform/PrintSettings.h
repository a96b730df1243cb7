// SPDX-License-Identifier: GPL-2.0-or-later
// Print settings (the ticket) and print session as a panel sees them: pure interfaces that the dialog implements, and
// the printing system's calls on them under their own names. The dialog owns both; a panel borrows them.
#pragma once

#include "platform/PrintValue.h"
#include "platform/Status.h"

namespace bv {

// The ticket of the job: a key/value store.
class PrintSettings
{
public:
    virtual ~PrintSettings() = default;
    // The value of a top-level key; none when the key is absent. A dictionary is shared with the ticket, not copied.
    virtual PrintValue value(const QString &key) const = 0;
    // Stores a value under a top-level key and replaces an older one.
    virtual void setValue(const QString &key, const PrintValue &value) = 0;
};

// The printer that a session prints to.
class Printer
{
public:
    virtual ~Printer() = default;
    // The name of the print queue.
    virtual QString identifier() const = 0;
    // The queue's device URI as the print server gives it; nothing when it has none.
    virtual std::optional<QString> deviceUri() const = 0;
};

// The print session of the dialog.
class PrintSession
{
public:
    virtual ~PrintSession() = default;
    // The current printer, owned by the session; null when there is none.
    virtual const Printer *currentPrinter() const = 0;
    // A data item of the session; none when it has no such item.
    virtual PrintValue data(const QString &key) const = 0;
};

} // namespace bv

using PMPrintSettings = bv::PrintSettings *;
using PMPrintSession = bv::PrintSession *;
using PMPrinter = const bv::Printer *;

// Returns noErr and sets *value. Without the key: kPMKeyNotFound; without settings: kPMInvalidValue; *value is then
// none.
inline int32_t PMPrintSettingsGetValue(PMPrintSettings settings, const QString &key, bv::PrintValue *value)
{
    *value = settings ? settings->value(key) : bv::PrintValue();
    if (!settings)
        return kPMInvalidValue;
    return value->isNone() ? kPMKeyNotFound : noErr;
}

// Stores a value. Returns noErr, or kPMInvalidValue without settings; the key is never locked.
inline int32_t PMPrintSettingsSetValue(PMPrintSettings settings, const QString &key, const bv::PrintValue &value)
{
    if (!settings)
        return kPMInvalidValue;
    settings->setValue(key, value);
    return noErr;
}

// Returns noErr and sets *printer (owned by the session), or returns kPMGeneralError and sets it to null.
inline int32_t PMSessionGetCurrentPrinter(PMPrintSession session, PMPrinter *printer)
{
    *printer = session ? session->currentPrinter() : nullptr;
    return *printer ? noErr : kPMGeneralError;
}

// The printer's queue name; a null string without a printer.
inline QString PMPrinterGetID(PMPrinter printer)
{
    return printer ? printer->identifier() : QString();
}

// Returns noErr and sets *uri, or returns kPMGeneralError and sets it to a null string.
inline int32_t PMPrinterCopyDeviceURI(PMPrinter printer, QString *uri)
{
    const std::optional<QString> found = printer ? printer->deviceUri() : std::nullopt;
    *uri = found.value_or(QString());
    return found ? noErr : kPMGeneralError;
}

// Returns noErr and sets *value to the session's data item, or returns kPMKeyNotFound and sets it to none.
inline int32_t PMSessionGetDataFromSession(PMPrintSession session, const QString &key, bv::PrintValue *value)
{
    *value = session ? session->data(key) : bv::PrintValue();
    return value->isNone() ? kPMKeyNotFound : noErr;
}
