// SPDX-License-Identifier: GPL-2.0-or-later
// PDECommon: writes control values into the print settings and reads them back.
#include "common/PDECommon.h"

#include "common/AsciiText.h"
#include "platform/Log.h"
#include "platform/NoThrow.h"

#include <QCheckBox>
#include <QComboBox>
#include <utility>

namespace {

// Number of the row's choices as a signed 16-bit number.
int32_t choiceCount(const PDEControlItem &row)
{
    return row.ppdChoices ? int16_t(row.ppdChoices->size()) : 0;
}

// Stores the PPD choice under its option's keyword. A row without a selection (-1) stores no choice.
void storeChoice(const PDEControlItem &row, int32_t entry, const bv::PrintDictionaryRef &queue)
{
    if (entry >= 0) {
        const PPDChoiceEntry &choice = (*row.ppdChoices)[size_t(entry)];
        queue->setValue(choice[0], bv::PrintValue(choice[2]));
    }
    PDECommon::commonSetTicketAddedProfileFlag(&row, queue, QStringLiteral("False"));
}

void storeProfile(const PDEControlItem &row, int32_t selected, const bv::PrintDictionaryRef &queue)
{
    PDECommon::commonSetTicketAddedProfile(&row, queue, int16_t(selected + 1 - choiceCount(row)));
    PDECommon::commonSetTicketAddedProfileFlag(&row, queue, QStringLiteral("True"));
}

bool namesProfile(const PDEControlItem &row, const bv::PrintDictionaryRef &queue)
{
    if (row.profileKind < 1 || row.profileKind > 3)
        return false;
    const bv::PrintValue flag = PDECommon::commonGetTicketAddedProfileFlag(&row, queue);
    return flag.string() && *flag.string() == QLatin1String("True");
}

// The value that the queue dictionary holds for a row. If the keyword is not ASCII or the stored value is not a string,
// the result is `carried`, the value of the previous row. This is intended: tickets of older versions rely on it.
int32_t storedValue(const PDEControlItem &row, const bv::PrintDictionaryRef &queue, int32_t carried)
{
    if (namesProfile(row, queue)) {
        const int16_t position = PDECommon::commonGetTicketAddedProfile(&row, queue);
        return position < 1 ? PDECommon::commonGetDefualtValueFromPPDWithSInt32(&row) : choiceCount(row) + position - 1;
    }
    const auto key = asciiText(row.ppdKey);
    if (!key)
        return carried;
    if (!queue->contains(*key))
        return PDECommon::commonGetDefualtValueFromPPDWithSInt32(&row);
    const bv::PrintValue stored = queue->value(*key);
    return stored.string() ? PDECommon::commonGetTicketValueWithSInt32(&row, *key, stored) : carried;
}

} // namespace

int32_t PDECommon::commonSyncTicketFromPane(PMPrintSettings settings, PMPrintSession session, PDEControlTable table)
{
    const bv::PrintDictionaryRef queue = commonGetModelDictionary(settings, session);
    if (!queue)
        return noErr;
    return bv::withoutThrowing(memFullErr, [&] {
        for (int16_t i = 0; table && table[i].control; ++i) {
            const PDEControlItem &row = table[i];
            if (row.ppdKey[0] == '\0')
                continue;
            const int32_t selected = commonGetControlValueFromPPDWithSInt32(&row);
            if (selected < choiceCount(row))
                storeChoice(row, selected, queue);
            else
                storeProfile(row, selected, queue);
        }
        return commonCFDictionaryMapToTicket(settings, queue);
    });
}

int32_t PDECommon::commonSyncPaneFromTicket(PMPrintSettings settings, PMPrintSession session, PDEControlTable table)
{
    const bv::PrintDictionaryRef queue = commonGetModelDictionary(settings, session);
    if (!queue)
        return noErr;
    return bv::withoutThrowing(memFullErr, [&] {
        int32_t carried = -1; // value of the previous row, see storedValue
        for (int16_t i = 0; table && table[i].control; ++i) {
            if (table[i].ppdKey[0] == '\0')
                continue;
            carried = storedValue(table[i], queue, carried);
            if (carried != -1)
                commonSetControlValueWithSInt32(&table[i], carried);
        }
        return commonCFDictionaryMapToTicket(settings, queue);
    });
}

bv::PrintDictionaryRef PDECommon::commonGetModelDictionary(PMPrintSettings settings, PMPrintSession session)
{
    const QString product = commonGetPPDProductName(settings);
    const QString queue = commonGetPrintQueueName(session);
    bv::PrintValue entry;
    if (PMPrintSettingsGetValue(settings, product, &entry) == kPMKeyNotFound) {
        PMPrintSettingsSetValue(settings, product, std::make_shared<bv::PrintDictionary>());
        PMPrintSettingsGetValue(settings, product, &entry);
    }
    const bv::PrintDictionaryRef queues = entry.dictionary();
    if (!queues || queue.isNull()) {
        bv::diagnosticLine(queue.isNull() ? "no current printer: the controls and the ticket are not matched"
                                          : "the ticket's entry of this system is no dictionary and is left alone");
        return nullptr;
    }
    if (!queues->contains(queue))
        queues->setValue(queue, std::make_shared<bv::PrintDictionary>());
    return commonCFDictionaryGetValueWithType(queues, queue);
}

bv::PrintDictionaryRef PDECommon::commonCFDictionaryGetValueWithType(const bv::PrintDictionaryRef &dictionary,
                                                                     const QString &key)
{
    if (!dictionary)
        return nullptr;
    static const bv::PrintValue dictionaryType(std::make_shared<bv::PrintDictionary>());
    const bv::PrintValue value = dictionary->value(key);
    return commonCFTypeIsValid(value, dictionaryType) ? value.dictionary() : nullptr;
}

int32_t PDECommon::commonCFDictionaryMapToTicket(PMPrintSettings settings, const bv::PrintDictionaryRef &copyDict)
{
    if (!copyDict)
        return noErr;
    return bv::withoutThrowing(memFullErr, [&] {
        // Works on a copy, because storing an entry may replace the dictionary being walked.
        const bv::PrintEntries entries = copyDict->entries;
        for (const auto &[key, value] : entries)
            PMPrintSettingsSetValue(settings, key, value);
        return noErr;
    });
}

bool PDECommon::commonCFTypeIsValid(const bv::PrintValue &object, const bv::PrintValue &type)
{
    return !object.isNone() && object.hasTypeOf(type);
}

int32_t PDECommon::commonGetTicketValueWithSInt32(const PDEControlItem *item, const QString &option,
                                                  const bv::PrintValue &choice)
{
    const QString *text = choice.string();
    switch (item->kind) {
    case kPDEControlPopUp:
        return text ? commonFindPPDKeyPairsMatch(item->ppdChoices.get(), option, *text) : -1;
    case kPDEControlCheckBox:
        return text &&
               (*text == QLatin1String("True") || *text == QLatin1String("TRUE") || *text == QLatin1String("true"));
    case kPDEControlValueReset:
        if (auto *button = qobject_cast<QAbstractButton *>(item->control))
            button->setChecked(false);
        return 0;
    default:
        return 0;
    }
}

int32_t PDECommon::commonGetControlValueWithSInt32(const PDEControlItem *item)
{
    if (item->kind == kPDEControlCheckBox) {
        const auto *box = qobject_cast<const QCheckBox *>(item->control);
        return box && box->isChecked();
    }
    if (item->kind == kPDEControlPopUp) {
        const auto *menu = qobject_cast<const QComboBox *>(item->control);
        return menu ? menu->currentIndex() : -1;
    }
    return 0;
}

void PDECommon::commonSetControlValueWithSInt32(const PDEControlItem *item, int32_t value)
{
    if (item->kind == kPDEControlCheckBox) {
        if (auto *box = qobject_cast<QCheckBox *>(item->control))
            box->setChecked(value > 0);
    } else if (item->kind == kPDEControlPopUp) {
        auto *menu = qobject_cast<QComboBox *>(item->control);
        if (menu && value < menu->count())
            menu->setCurrentIndex(value);
    }
}

int32_t PDECommon::commonGetTicket(PMPrintSession session, const QString &kind, int32_t *ticket)
{
    *ticket = 0;
    bv::PrintValue item;
    const int32_t status = PMSessionGetDataFromSession(session, kind, &item);
    if (status != noErr)
        return status;
    if (!item.integer() || !std::in_range<int32_t>(*item.integer()))
        return kPMInvalidValue;
    *ticket = int32_t(*item.integer());
    return noErr;
}
