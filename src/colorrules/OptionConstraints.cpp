// SPDX-License-Identifier: GPL-2.0-or-later
// Evaluates the rules and applies them to the live controls of a table.
#include "colorrules/OptionConstraints.h"

#include "common/PDECommon.h"

#include <QWidget>
#include <array>
#include <cstring>

namespace {

PDEControlItem *targetRow(int32_t rule, PDEControlTable table)
{
    return const_cast<PDEControlItem *>(bv::findControlRow(cstColorOption[rule].target, table));
}

void setTargetEnabled(int32_t rule, PDEControlTable table, bool enabled)
{
    const CSTRule &entry = cstColorOption[rule];
    for (int8_t i = 0; i < entry.actionCount; ++i) {
        const PDEControlItem *row = targetRow(rule, table);
        if (row && row->control && entry.actions[i].action == GROUT)
            row->control->setEnabled(enabled);
    }
}

} // namespace

namespace bv {

const PDEControlItem *findControlRow(const char *identifier, PDEControlTable table)
{
    if (!table || table[0].kind == kPDEControlEnd)
        return nullptr;
    for (int32_t row = 0;; ++row) {
        if (std::strcmp(table[row].identifier, identifier) == 0)
            return &table[row];
        if (table[row + 1].kind == kPDEControlEnd) // the end record itself is never compared
            return nullptr;
    }
}

bool conditionHolds(const CSTCondition &condition, PDEControlTable table)
{
    const PDEControlItem *row = findControlRow(condition.key, table);
    if (!row)
        return false;
    const int32_t value = PDECommon::commonConvertToCSTValue(row, PDECommon::commonGetControlValueWithSInt32(row));
    switch (condition.operation) {
    case kCSTEqual:
        return value == condition.value;
    case kCSTNotEqual:
        return value != condition.value;
    case kCSTLess:
        return value < condition.value;
    case kCSTGreater:
        return value > condition.value;
    case kCSTLessEqual1:
    case kCSTLessEqual2:
        return value <= condition.value;
    case kCSTGreaterEqual1:
    case kCSTGreaterEqual2:
        return value >= condition.value;
    default:
        return false;
    }
}

uint8_t matchRule(const CSTRule &rule, PDEControlTable table)
{
    std::array<bool, kCSTMaxConditions> results{};
    for (int k = 0; k < rule.conditionCount && k < kCSTMaxConditions; ++k)
        results[size_t(k)] = conditionHolds(rule.conditions[k], table);

    bool accumulator = rule.conditionCount > 0 && results[0];
    bool operand = false;
    for (int i = 0; i < kCSTMaxTokens && rule.expression[i] != kCSTEnd; ++i) {
        const int32_t token = rule.expression[i];
        if (token <= 999)
            operand = token >= 0 && token < kCSTMaxConditions && results[size_t(token)];
        else if (token == kCSTAnd)
            accumulator = accumulator && operand;
        else if (token == kCSTOr)
            accumulator = accumulator || operand;
    }
    return accumulator ? 1 : 0;
}

} // namespace bv

void vColorPresetConstraints(PDEControlTable table)
{
    for (int32_t rule = 0; cstColorOption[rule].type != kCSTTableEnd; ++rule) {
        if (bMatchCondition(rule, table) == 0) {
            vActReverseOption(rule, table);
        } else {
            vValueChange(rule, table);
            vActOption(rule, table);
        }
    }
}

uint8_t bMatchCondition(int32_t rule, PDEControlTable table)
{
    return bv::matchRule(cstColorOption[rule], table);
}

void vValueChange(int32_t rule, PDEControlTable table)
{
    const PDEControlItem *row = targetRow(rule, table);
    const CSTRule &entry = cstColorOption[rule];
    if (row && entry.valueAction == kCSTSet)
        PDECommon::commonSetControlValueWithSInt32(row, PDECommon::commonConvertFromCSTValue(row, entry.value));
}

void vActOption(int32_t rule, PDEControlTable table)
{
    setTargetEnabled(rule, table, false);
}

void vActReverseOption(int32_t rule, PDEControlTable table)
{
    setTargetEnabled(rule, table, true);
}
