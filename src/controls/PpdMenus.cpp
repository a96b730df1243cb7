// SPDX-License-Identifier: GPL-2.0-or-later
// PDECommon: fills pop-up menus, sets control titles, and reads current values as PPD choices.
#include "common/PDECommon.h"

#include "common/AsciiText.h"
#include "controls/PpdEncoding.h"
#include "platform/Bundle.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QTabWidget>

namespace {

// Labels of a tab view's items. Further items repeat the last label, so that an additional tab is never blank.
constexpr const char *kTabLabels[] = {"Image", "Text", "Graphics", "Simulation"};

void labelTabs(QTabWidget *tabs)
{
    constexpr int last = int(std::size(kTabLabels)) - 1;
    for (int i = 0; i < tabs->count(); ++i)
        tabs->setTabText(i, localizedString(kTabLabels[std::min(i, last)]));
}

// Index of the choice entry that a check box stands for; -1 when the PPD lacks that choice.
int32_t checkBoxEntry(const PDEControlItem *item)
{
    const auto *box = qobject_cast<const QCheckBox *>(item->control);
    const bool on = box && box->isChecked();
    const auto option = asciiText(item->ppdKey);
    if (!option)
        return -1;
    return PDECommon::commonFindPPDKeyPairsMatch(item->ppdChoices.get(), *option,
                                                 on ? QStringLiteral("True") : QStringLiteral("False"));
}

} // namespace

void PDECommon::commonReBuildMenuFromPPD(ppd_file_t *ppd, const PDEControlItem *item)
{
    auto *menu = qobject_cast<QComboBox *>(item->control);
    const ppd_option_t *option = ppd ? ppdFindOption(ppd, item->ppdKey) : nullptr;
    if (!menu || !option)
        return;
    const bv::PpdEncoding &encoding = bv::ppdEncoding(ppd->lang_encoding);
    menu->clear();
    for (int i = 0; i < option->num_choices; ++i) {
        const ppd_choice_t &choice = option->choices[i];
        const auto keyword = asciiText(choice.choice);
        menu->addItem(bv::decodePpdText(choice.text, encoding), keyword ? QVariant(*keyword) : QVariant());
    }
}

void PDECommon::commonSetControlTitleFromLocalizeString(const PDEControlItem *item)
{
    if (!item->title)
        return;
    const QString text = bundleText(item->title);
    if (text.isNull())
        return;
    switch (item->kind) {
    case kPDEControlText:
        if (auto *label = qobject_cast<QLabel *>(item->control))
            label->setText(text);
        break;
    case kPDEControlCheckBox:
    case kPDEControlButton:
        if (auto *button = qobject_cast<QAbstractButton *>(item->control))
            button->setText(text);
        break;
    case kPDEControlTabView:
        if (auto *tabs = qobject_cast<QTabWidget *>(item->control))
            labelTabs(tabs);
        break;
    default: // a pop-up's items come from the PPD
        break;
    }
}

void PDECommon::commonSetControlTitleFromPPD(const PDEControlItem *, ppd_file_t *)
{
    // Does nothing, and this is intended: titles come from the localised strings.
}

int32_t PDECommon::commonGetDefualtValueFromPPDWithSInt32(const PDEControlItem *item)
{
    if (!item || !item->ppdChoices || item->ppdChoices->empty())
        return 0;
    const QString &defaultChoice = item->ppdChoices->front()[1];
    return commonGetTicketValueWithSInt32(item, asciiText(item->ppdKey).value_or(QString()),
                                          bv::PrintValue(defaultChoice));
}

int32_t PDECommon::commonGetControlValueFromPPDWithSInt32(const PDEControlItem *item)
{
    switch (item->kind) {
    case kPDEControlCheckBox:
        return checkBoxEntry(item);
    case kPDEControlPopUp: {
        const auto *menu = qobject_cast<const QComboBox *>(item->control);
        return menu ? menu->currentIndex() : -1;
    }
    default:
        return 0;
    }
}

QString PDECommon::commonGetControlValueFromPPDWithNSString(const PDEControlItem *item)
{
    switch (item->kind) {
    case kPDEControlCheckBox: {
        const int32_t entry = checkBoxEntry(item);
        return entry < 0 ? QString() : (*item->ppdChoices)[size_t(entry)][3];
    }
    case kPDEControlPopUp: {
        const auto *menu = qobject_cast<const QComboBox *>(item->control);
        return menu && menu->currentIndex() >= 0 ? menu->currentText() : QString();
    }
    default:
        return {};
    }
}
