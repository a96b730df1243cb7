// SPDX-License-Identifier: GPL-2.0-or-later
// Texts for greyed-out controls, worded from the rule table.
#include "colorrules/GreyedReasons.h"

#include "colorrules/OptionConstraints.h"
#include "platform/Bundle.h"
#include "platform/PlainTip.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSet>
#include <algorithm>

namespace bv {

namespace {

QString nameOf(const PDEControlItem &row)
{
    return localizedString(row.summaryName ? row.summaryName : row.identifier);
}

// Title of a pop-up's item, counted from 1. Its number if there is no such item.
QString itemTitle(const PDEControlItem &row, int32_t item)
{
    const auto *menu = qobject_cast<const QComboBox *>(row.control);
    return menu && item >= 1 && item <= menu->count() ? menu->itemText(item - 1) : QString::number(item);
}

QString sentence(const CSTCondition &condition, const PDEControlItem &row)
{
    if (row.kind == kPDEControlCheckBox)
        return localizedString("Not available while %1 is on. Turn it off to use this setting.").arg(nameOf(row));
    if (condition.operation == kCSTNotEqual)
        return localizedString("Available only while %1 is set to %2. Choose that to use this setting.")
            .arg(nameOf(row), itemTitle(row, condition.value));
    return localizedString("Not available while %1 is set to %2. Choose another to use this setting.")
        .arg(nameOf(row), itemTitle(row, condition.value));
}

QString reasonFor(const CSTRule &rule, PDEControlTable table)
{
    QStringList sentences;
    for (int k = 0; k < rule.conditionCount; ++k) {
        const PDEControlItem *row = findControlRow(rule.conditions[k].key, table);
        if (row && conditionHolds(rule.conditions[k], table))
            sentences.append(sentence(rule.conditions[k], *row));
    }
    return sentences.join(QLatin1Char('\n'));
}

// Gives the labels of greyed controls the color of greyed text.
void greyLabels(PDEControlTable table)
{
    QSet<QWidget *> panes;
    for (const PDEControlItem *row = table; row && row->kind != kPDEControlEnd; ++row)
        if (row->control && row->control->parentWidget())
            panes.insert(row->control->parentWidget());
    for (const QWidget *pane : panes) {
        for (QLabel *label : pane->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly)) {
            if (!label->buddy())
                continue;
            QPalette own; // resolves to the pane's own colors
            if (!label->buddy()->isEnabled())
                own.setColor(QPalette::WindowText, pane->palette().color(QPalette::Disabled, QPalette::WindowText));
            if (label->testAttribute(Qt::WA_SetPalette) || own.resolveMask() != 0)
                label->setPalette(own);
        }
    }
}

// How many settings the box makes meaningless, by itself or with others.
int settingsGreyedBy(const PDEControlItem &box, PDEControlTable table)
{
    QSet<const PDEControlItem *> targets;
    for (const CSTRule *rule = cstColorOption; rule->type != kCSTTableEnd; ++rule) {
        const CSTCondition *end = rule->conditions + rule->conditionCount;
        const bool named = std::any_of(rule->conditions, end, [&](const CSTCondition &condition) {
            return std::string_view(condition.key) == box.identifier && conditionHolds(condition, table);
        });
        const PDEControlItem *target = findControlRow(rule->target, table);
        if (named && target && target->control && matchRule(*rule, table))
            targets.insert(target);
    }
    return int(targets.size());
}

} // namespace

QString greyedReason(const PDEControlItem &row, PDEControlTable table)
{
    // As with the controls themselves, the last rule for a target decides.
    QString reason;
    for (const CSTRule *rule = cstColorOption; rule->type != kCSTTableEnd; ++rule) {
        if (std::string_view(rule->target) == row.identifier)
            reason = matchRule(*rule, table) ? reasonFor(*rule, table) : QString();
    }
    return reason;
}

SwitchedOff switchedOffByBox(PDEControlTable table)
{
    for (const PDEControlItem *row = table; row && row->kind != kPDEControlEnd; ++row) {
        const auto *box = qobject_cast<const QCheckBox *>(row->control);
        if (!box || !box->isChecked())
            continue;
        if (const int settings = settingsGreyedBy(*row, table); settings > 0)
            return {row, settings};
    }
    return {};
}

void explainGreyedControls(PDEControlTable table)
{
    for (const CSTRule *rule = cstColorOption; rule->type != kCSTTableEnd; ++rule) {
        const PDEControlItem *row = findControlRow(rule->target, table);
        if (!row || !row->control)
            continue;
        const QString reason = matchRule(*rule, table) ? reasonFor(*rule, table) : QString();
        setPlainTip(row->control, reason);
        row->control->setAccessibleDescription(reason);
    }
    greyLabels(table);
}

void applyOptionRules(PDEControlTable table)
{
    vColorPresetConstraints(table);
    explainGreyedControls(table);
}

} // namespace bv
