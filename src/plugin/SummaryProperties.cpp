// SPDX-License-Identifier: GPL-2.0-or-later
// Names, groups and reasons of the summary's items; options of the PPD and what overrules them.
#include "plugin/SummaryProperties.h"

#include "colorrules/GreyedReasons.h"
#include "colorrules/OptionConstraints.h"
#include "platform/Bundle.h"
#include "platform/HostProtocol.h"
#include "profiles/QuickColorPresets.h"

#include <QGroupBox>
#include <QTabWidget>
#include <algorithm>
#include <string_view>

namespace bv {

namespace {

// The control that leads to the options of the presets. It is greyed while a preset decides.
constexpr char kWayToPresetOptions[] = "GoToAdvancedOptionsButton";

QString groupOf(const QWidget *control, const QWidget *view)
{
    for (const QWidget *inner = control; inner && inner != view; inner = inner->parentWidget()) {
        const QWidget *outer = inner->parentWidget();
        if (const auto *box = qobject_cast<const QGroupBox *>(outer))
            return box->title();
        // The pages of a tab view stand in a stack.
        const auto *tabs = outer ? qobject_cast<const QTabWidget *>(outer->parentWidget()) : nullptr;
        if (tabs && tabs->indexOf(inner) >= 0)
            return tabs->tabText(tabs->indexOf(inner));
    }
    return localizedString("General settings");
}

// The keyword of an option's choice; empty if there is no such choice.
QString choiceKeyword(const PDEControlItem &row, int8_t index)
{
    const bool isThere = row.ppdChoices && index >= 0 && size_t(index) < row.ppdChoices->size();
    return isThere ? (*row.ppdChoices)[size_t(index)][2] : QString();
}

// The position of the choice that a preset selects for an option, or -1.
int8_t presetIndex(const PresetRow &preset, int16_t quickColor, int16_t eco)
{
    const std::span<const PresetRow *const> economy = economyRows(quickColor);
    return eco != 0 && std::find(economy.begin(), economy.end(), &preset) != economy.end()
               ? int8_t(0)
               : preset.index[size_t(quickColor)];
}

} // namespace

void nameSummaryControls(PDEControlTable table, const QWidget *view)
{
    for (const PDEControlItem *row = table; row && row->kind != kPDEControlEnd; ++row) {
        if (row->control && row->ppdKey[0] != '\0')
            row->control->setProperty(kOptionProperty, QString::fromLatin1(row->ppdKey));
        if (!row->control || !row->summaryName)
            continue;
        row->control->setProperty(kSummaryNameProperty, localizedString(row->summaryName));
        row->control->setProperty(kSummaryGroupProperty, groupOf(row->control, view));
    }
}

void explainSummaryControls(PDEControlTable table)
{
    for (const PDEControlItem *row = table; row && row->kind != kPDEControlEnd; ++row) {
        if (row->control && row->summaryName)
            row->control->setProperty(kSummaryOffProperty, greyedReason(*row, table));
    }
}

void tellOverruledOptions(PDEControlTable table, int16_t quickColor, int16_t eco)
{
    const bool isPreset = quickColor >= 0 && quickColor < kPresetCount;
    const std::span<const PresetRow> presets = quickColorPresets();
    const PDEControlItem *way = isPreset ? findControlRow(kWayToPresetOptions, table) : nullptr;
    const QString reason = way ? greyedReason(*way, table) : QString();
    for (const PDEControlItem *row = table; row && row->kind != kPDEControlEnd; ++row) {
        const auto preset = std::find_if(presets.begin(), presets.end(), [row](const PresetRow &one) {
            return std::string_view(one.option) == row->ppdKey;
        });
        if (!row->control || preset == presets.end())
            continue;
        const QString instead = isPreset ? choiceKeyword(*row, presetIndex(*preset, quickColor, eco)) : QString();
        row->control->setProperty(kOptionInsteadProperty, instead);
        row->control->setProperty(kOptionInsteadReasonProperty, instead.isEmpty() ? QString() : reason);
    }
}

} // namespace bv
