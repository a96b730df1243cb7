// The rules by which one setting makes another meaningless: a constant table, and the pass that applies it to a control
// table. The rules name controls by their rows' identifiers; a row that a table lacks leaves its rule without effect.
#pragma once

#include "common/PDEControlItem.h"

#include <cstdint>

// Codes of conditions, expressions, rules and actions, in one numbering.
enum CSTCode : int32_t {
    kCSTOpen = 1001,  // parentheses: defined, not evaluated
    kCSTClose = 1002, //
    kCSTAnd = 1003,
    kCSTOr = 1004,
    kCSTEqual = 1005,
    kCSTNotEqual = 1006,
    kCSTSet = 1007, // a rule's value action: set the target; as a condition's operator it never holds
    kCSTLess = 1009,
    kCSTGreater = 1010,
    kCSTLessEqual1 = 1011,
    kCSTLessEqual2 = 1012,
    kCSTGreaterEqual1 = 1013,
    kCSTGreaterEqual2 = 1014,
    kCSTEnd = 1017,      // end of an expression; as a rule's value action: no value change
    kCSTTableEnd = 1019, // type of the end record of the rule table
    VRCHG = 1022,        // the only rule type in use
    GROUT = 1027,        // target action: grey out
};

inline constexpr int kCSTMaxConditions = 20;
inline constexpr int kCSTMaxTokens = 40;

// Tests one control. `value` is in constraint units: a pop-up's item counts from 1, a check box is 0 or 1.
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

// The rules in the order in which they are applied, the end record last.
extern const CSTRule cstColorOption[];

// Applies all rules to the live controls of a table, in order.
void vColorPresetConstraints(PDEControlTable table);

// The four steps of a pass, for the rule at an index of cstColorOption.
uint8_t bMatchCondition(int32_t rule, PDEControlTable table); // 0 or 1
void vValueChange(int32_t rule, PDEControlTable table);
void vActOption(int32_t rule, PDEControlTable table);
void vActReverseOption(int32_t rule, PDEControlTable table);

namespace bv {

// The row with exactly this identifier; null when there is none.
const PDEControlItem *findControlRow(const char *identifier, PDEControlTable table);

// Whether a single condition holds for the table's controls.
bool conditionHolds(const CSTCondition &condition, PDEControlTable table);

// Evaluates a rule's conditions and expression: left to right, seeded with condition 0.
uint8_t matchRule(const CSTRule &rule, PDEControlTable table);

} // namespace bv
