// SPDX-License-Identifier: GPL-2.0-or-later
// PDECommon: operations on whole control tables.
#include "common/PDECommon.h"

#include "common/AsciiText.h"
#include "platform/Log.h"
#include "platform/NoThrow.h"

#include <algorithm>

namespace {

// Counts the rows up to the first end record. Other functions stop at the first row without a control. Joining does
// not: it copies such rows too, and this is intended.
int32_t rowsBeforeEndKind(PDEControlTable table)
{
    int32_t rows = 0;
    while (table[rows].kind != kPDEControlEnd)
        ++rows;
    return rows;
}

} // namespace

std::unique_ptr<PDEControlItem[]> PDECommon::commonControlTableCompound(const PDEControlTable *tables, int32_t count)
{
    int32_t total = 0;
    for (int32_t i = 0; i < count; ++i)
        total += tables[i] ? rowsBeforeEndKind(tables[i]) : 0;

    auto joined =
        bv::withoutThrowing(nullptr, [total] { return std::make_unique<PDEControlItem[]>(size_t(total) + 1); });
    if (!joined)
        return nullptr;
    PDEControlItem *next = joined.get();
    for (int32_t i = 0; i < count; ++i) {
        if (tables[i])
            next = std::copy_n(tables[i], rowsBeforeEndKind(tables[i]), next);
    }
    *next = endControlItem();
    return joined;
}

int32_t PDECommon::commonConvertToCSTValue(const PDEControlItem *item, int32_t convalue)
{
    if (!item || item->kind != kPDEControlPopUp)
        return convalue;
    return convalue >= 0 ? convalue + 1 : 0;
}

int32_t PDECommon::commonConvertFromCSTValue(const PDEControlItem *item, int32_t convalue)
{
    if (!item || item->kind != kPDEControlPopUp)
        return convalue;
    return convalue > 0 ? convalue - 1 : 0;
}

int32_t PDECommon::commonAddPPDArray(QStringList *array, PDEControlTable table)
{
    if (!array)
        return paramErr;
    return bv::withoutThrowing(memFullErr, [&] {
        int32_t status = noErr;
        for (int16_t row = 0; table && table[row].control; ++row) {
            if (table[row].ppdKey[0] == '\0')
                continue;
            if (const auto key = asciiText(table[row].ppdKey))
                array->append(*key);
            else
                status = paramErr;
        }
        if (status != noErr)
            bv::diagnosticLine("a control table has a keyword that is no ASCII");
        return status;
    });
}

void PDECommon::commonBuildPDEItem(PDEControlTable table, ppd_file_t *ppdfile)
{
    for (int16_t row = 0; table && table[row].control; ++row) {
        commonSetControlTitleFromLocalizeString(&table[row]);
        if (table[row].kind == kPDEControlPopUp)
            commonReBuildMenuFromPPD(ppdfile, &table[row]);
    }
}

void PDECommon::commonDefaultFromPPDInfo(PDEControlTable table)
{
    for (int16_t row = 0; table && table[row].control; ++row) {
        if (table[row].ppdKey[0] != '\0')
            commonSetControlValueWithSInt32(&table[row], commonGetDefualtValueFromPPDWithSInt32(&table[row]));
    }
}
