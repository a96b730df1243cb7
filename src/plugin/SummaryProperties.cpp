// SPDX-License-Identifier: GPL-2.0-or-later
// Names, groups and reasons of the summary's items.
#include "plugin/SummaryProperties.h"

#include "colorrules/GreyedReasons.h"
#include "platform/Bundle.h"
#include "platform/HostProtocol.h"

#include <QGroupBox>
#include <QTabWidget>

namespace bv {

namespace {

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

} // namespace

void nameSummaryControls(PDEControlTable table, const QWidget *view)
{
    for (const PDEControlItem *row = table; row && row->kind != kPDEControlEnd; ++row) {
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

} // namespace bv
