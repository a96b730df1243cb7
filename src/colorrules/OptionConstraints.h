// SPDX-License-Identifier: GPL-2.0-or-later
// Rules between options: a constant table says which settings make another setting meaningless, and a pass applies it
// to a control table. Rules name controls by the identifier of their row. If the table lacks the target's row, the rule
// has no effect.
#pragma once

#include "common/PDEControlItem.h"

#include <cstdint>

// Codes for conditions, expressions, rules and actions share one numbering.
enum CSTCode : int32_t {
    kCSTOpen = 1001,  // parentheses: defined but not evaluated
    kCSTClose = 1002, //
    kCSTAnd = 1003,
    kCSTOr = 1004,
    kCSTEqual = 1005,
    kCSTNotEqual = 1006,
    kCSTSet = 1007, // value action of a rule: set the target; as a condition's operator it is always false
    kCSTLess = 1009,
    kCSTGreater = 1010,
    kCSTLessEqual1 = 1011,
    kCSTLessEqual2 = 1012,
    kCSTGreaterEqual1 = 1013,
    kCSTGreaterEqual2 = 1014,
    kCSTEnd = 1017,      // end of an expression; as value action of a rule: keep the value
    kCSTTableEnd = 1019, // type of the end record of the rule table
    VRCHG = 1022,        // the only rule type in use
    GROUT = 1027,        // target action: grey out
};

inline constexpr int kCSTMaxConditions = 20;
inline constexpr int kCSTMaxTokens = 40;

// Tests one control. `value` is in constraint units: pop-up items count from 1, a check box is 0 or 1.
struct CSTCondition
{
    char key[64]; // identifier of the control's row
    int32_t value;
    int32_t operation;
};

struct CSTAction
{
    int32_t action;
    int32_t argument;
};

struct CSTRule
{
    int32_t type;
    int8_t conditionCount;
    const CSTCondition *conditions;
    const int32_t *expression;
    char target[136]; // identifier of the target's row
    int32_t value;    // in constraint units, for the value action kCSTSet
    int32_t valueAction;
    int8_t actionCount;
    const CSTAction *actions;
};

// The rules, in the order in which they are applied. The last record has the type kCSTTableEnd.
extern const CSTRule cstColorOption[];

// Applies all rules, in order, to the live controls of a table.
void vColorPresetConstraints(PDEControlTable table);

// The four steps of a pass. `rule` is an index into cstColorOption.
uint8_t bMatchCondition(int32_t rule, PDEControlTable table); // 0 or 1
void vValueChange(int32_t rule, PDEControlTable table);
void vActOption(int32_t rule, PDEControlTable table);
void vActReverseOption(int32_t rule, PDEControlTable table);

namespace bv {

// The row with exactly this identifier, or null.
const PDEControlItem *findControlRow(const char *identifier, PDEControlTable table);

// True if the condition holds for the controls of the table. False if the table lacks the control.
bool conditionHolds(const CSTCondition &condition, PDEControlTable table);

// Evaluates a rule's expression from left to right, starting with the value of condition 0. Returns 0 or 1.
uint8_t matchRule(const CSTRule &rule, PDEControlTable table);

} // namespace bv
