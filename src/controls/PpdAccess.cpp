// SPDX-License-Identifier: GPL-2.0-or-later
// PDECommon: choice lists from the PPD, conflict marks, encodings and identity.
#include "common/PDECommon.h"

#include "controls/PpdEncoding.h"
#include "platform/Log.h"
#include "platform/NoThrow.h"

#include <cups/array.h>

namespace {

// Takes back a trial marking. libcups also keeps marked choices in ppd->marked. If only the flag were cleared, the next
// marking would mark the choice again.
void unmark(ppd_file_t *ppd, const char *option, const char *choice)
{
    ppd_choice_t *found = ppdFindChoice(ppdFindOption(ppd, option), choice);
    if (!found)
        return;
    cupsArrayRemove(ppd->marked, found);
    found->marked = 0;
}

} // namespace

int32_t PDECommon::commonGetPPDArrayForUIOption(ppd_file_t *ppd, const char *key,
                                                std::shared_ptr<const PPDChoiceArray> *array)
{
    if (!ppd || !ppdFindOption(ppd, key)) {
        bv::diagnosticLine(bv::formatLog("the PPD has no option %s", {bv::LogArgument(key)}));
        return kPMKeyNotFound;
    }
    return bv::withoutThrowing(kPMGeneralError, [&] {
        auto list = std::make_shared<PPDChoiceArray>();
        uint16_t count = 0;
        commonGetUIListFromPPD(ppd, key, list.get(), &count);
        *array = std::move(list);
        return noErr;
    });
}

int32_t PDECommon::commonGetUIListFromPPD(ppd_file_t *ppd, const char *key, PPDChoiceArray *array, uint16_t *count)
{
    const bv::PpdEncoding &encoding = bv::ppdEncoding(ppd ? ppd->lang_encoding : nullptr);
    const ppd_option_t *option = ppd && array ? ppdFindOption(ppd, key) : nullptr;
    if (!option || option->num_choices < 1)
        return noErr;
    const QString keyword = bv::decodePpdText(option->keyword, encoding);
    const QString defaultChoice = bv::decodePpdText(option->defchoice, encoding);
    array->reserve(array->size() + size_t(option->num_choices));
    for (int i = 0; i < option->num_choices; ++i) {
        const ppd_choice_t &choice = option->choices[i];
        const bool conflict = commonIsPPDChoiceConflicted(ppd, option->keyword, choice.choice);
        array->push_back({keyword, defaultChoice, bv::decodePpdText(choice.choice, encoding),
                          bv::decodePpdText(choice.text, encoding),
                          conflict ? QStringLiteral("ConflictTrue") : QStringLiteral("ConflictFalse")});
        ++*count;
    }
    return noErr;
}

bool PDECommon::commonIsPPDChoiceConflicted(ppd_file_t *ppd, const char *option, const char *choice)
{
    const ppd_option_t *found = ppd ? ppdFindOption(ppd, option) : nullptr;
    if (!found)
        return false;
    if (ppdIsMarked(ppd, option, choice))
        return found->conflicted != 0;

    const ppd_choice_t *before = ppdFindMarkedChoice(ppd, option);
    ppdMarkOption(ppd, option, choice);
    const bool conflicted = found->conflicted != 0;
    if (before)
        ppdMarkOption(ppd, option, before->choice);
    else
        // The conflict flags of other options are left as the trial set them. This is intended: choice lists built
        // afterwards read them.
        unmark(ppd, option, choice);
    return conflicted;
}

int32_t PDECommon::commonFindPPDKeyPairsMatch(const PPDChoiceArray *array, const QString &option, const QString &choice)
{
    if (!array)
        return -1;
    for (size_t i = 0; i < array->size(); ++i) {
        if ((*array)[i][0] == option && (*array)[i][2] == choice)
            return int32_t(i);
    }
    return -1;
}

uint32_t PDECommon::commonGetEncodingFromPPD(const ppd_file_t *ppd)
{
    return bv::ppdEncoding(ppd ? ppd->lang_encoding : nullptr).objectEncoding;
}

uint32_t PDECommon::commonGetCFStringEncodingFromPPD(const ppd_file_t *ppd)
{
    return bv::ppdEncoding(ppd ? ppd->lang_encoding : nullptr).cfEncoding;
}

QString PDECommon::commonGetPPDProductName(PMPrintSettings)
{
    return QStringLiteral("QL70");
}

QString PDECommon::commonGetPrintQueueName(PMPrintSession session)
{
    PMPrinter printer = nullptr;
    if (PMSessionGetCurrentPrinter(session, &printer) != noErr)
        return {};
    return PMPrinterGetID(printer);
}
