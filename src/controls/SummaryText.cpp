// SPDX-License-Identifier: GPL-2.0-or-later
// PDECommon: the items of the panel's summary.
#include "common/PDECommon.h"

#include "platform/Bundle.h"
#include "platform/Log.h"
#include "platform/NoThrow.h"

namespace {

void addItem(const QString &name, const QString &value, bv::PrintDictionary *dictionary, bv::PrintArray *order)
{
    dictionary->setValue(name, bv::PrintValue(value));
    order->push_back(bv::PrintValue(name));
}

} // namespace

int32_t PDECommon::commonGetSummaryText(PDEControlTable table, bv::PrintDictionary *adddict, bv::PrintArray *addArray)
{
    if (!pluginBundle() || !table)
        return noErr;
    return bv::withoutThrowing(memFullErr, [&] {
        int32_t status = noErr;
        QString name; // intended: a row whose name key is not ASCII repeats the previous row's name
        for (int16_t row = 0; table[row].control; ++row) {
            if (!table[row].summaryName)
                continue;
            if (const QString own = bundleText(table[row].summaryName); !own.isNull())
                name = own;
            const QString value = commonGetControlValueFromPPDWithNSString(&table[row]);
            if (name.isNull() || value.isNull()) {
                bv::diagnosticLine(
                    bv::formatLog("summary: %s has no name or no value", {bv::LogArgument(table[row].summaryName)}));
                status = paramErr;
                continue;
            }
            addItem(name, value, adddict, addArray);
        }
        return status;
    });
}

int32_t PDECommon::commonGetSummaryTextQuickColor(const char *quickColor, const QString &itemName,
                                                  bv::PrintDictionary *adddict, bv::PrintArray *addArray)
{
    if (!pluginBundle())
        return noErr;
    const QString name = bundleText(quickColor);
    if (name.isNull())
        return paramErr;
    return bv::withoutThrowing(memFullErr, [&] {
        addItem(name, itemName, adddict, addArray);
        return noErr;
    });
}
