// SPDX-License-Identifier: GPL-2.0-or-later
// PDECommon: the operations that both views share, grouped by subject. Each group is defined in the folder of its
// subject. Functions return a status for a failure, also when memory runs out, and write a line to the diagnostic log.
#pragma once

#include "platform/ClassNames.h"

#include "common/PDEControlItem.h"
#include "platform/PrintSettings.h"

#include <QStringList>
#include <cups/ppd.h>

class PDECommon
{
public:
    // ---- Control table (controls/ControlTable.cpp) ----

    // Copies the rows of `count` tables, in order and without their end records, into a new table with one end record.
    // The rows share the choice lists. Rows are counted up to the record of kind 1032, not up to a null control. Null
    // when memory runs out.
    static std::unique_ptr<PDEControlItem[]> commonControlTableCompound(const PDEControlTable *tables, int32_t count);
    // Converts a control value to constraint units: a pop-up's index counts from 1, and 0 means no selection. Other
    // values stay as they are.
    static int32_t commonConvertToCSTValue(const PDEControlItem *item, int32_t convalue);
    // Converts constraint units to a control value. A pop-up value below 1 becomes 0. Other values stay as they are.
    static int32_t commonConvertFromCSTValue(const PDEControlItem *item, int32_t convalue);
    // Appends the PPD keyword of every bound row in table order, with duplicates. Returns noErr, paramErr for a null
    // array, or memFullErr.
    static int32_t commonAddPPDArray(QStringList *array, PDEControlTable table);
    // Sets titles and rebuilds the pop-up menus of a table from the PPD.
    static void commonBuildPDEItem(PDEControlTable table, ppd_file_t *ppdfile);
    // Puts the PPD's default choice into every bound control.
    static void commonDefaultFromPPDInfo(PDEControlTable table);

    // ---- PPD access (controls/PpdAccess.cpp, controls/PpdMenus.cpp) ----

    // Stores a new choice list of the option in *array. Returns noErr, kPMKeyNotFound (array unchanged) when the PPD
    // lacks the keyword, or kPMGeneralError when the list cannot be made.
    static int32_t commonGetPPDArrayForUIOption(ppd_file_t *ppd, const char *key,
                                                std::shared_ptr<const PPDChoiceArray> *array);
    // Appends the option's choices to *array and counts them in *count. Always returns noErr.
    static int32_t commonGetUIListFromPPD(ppd_file_t *ppd, const char *key, PPDChoiceArray *array, uint16_t *count);
    // True if this choice would conflict with the marked choices. The PPD's marks are the same afterwards.
    static bool commonIsPPDChoiceConflicted(ppd_file_t *ppd, const char *option, const char *choice);
    // Index of the entry with exactly this option and choice, or -1.
    static int32_t commonFindPPDKeyPairsMatch(const PPDChoiceArray *array, const QString &option,
                                              const QString &choice);
    // Replaces the pop-up's items by the option's choices. Changes nothing when the PPD lacks the option.
    static void commonReBuildMenuFromPPD(ppd_file_t *ppd, const PDEControlItem *item);
    // Sets the control's own title to the localized text of its key.
    static void commonSetControlTitleFromLocalizeString(const PDEControlItem *item);
    // Has no visible effect.
    static void commonSetControlTitleFromPPD(const PDEControlItem *item, ppd_file_t *ppdfile);
    // Control value of the option's default choice: index of a pop-up item or -1, 0 or 1 for a check box.
    static int32_t commonGetDefualtValueFromPPDWithSInt32(const PDEControlItem *item);
    // Index of the row's current value in its choice list (check box) or menu (pop-up), or -1.
    static int32_t commonGetControlValueFromPPDWithSInt32(const PDEControlItem *item);
    // Display text of the row's current value, or a null string when it has none.
    static QString commonGetControlValueFromPPDWithNSString(const PDEControlItem *item);
    // Encoding of the PPD's texts according to its LanguageEncoding. The first function returns object-layer numbers,
    // the second one CF numbers.
    static uint32_t commonGetEncodingFromPPD(const ppd_file_t *ppd);
    static uint32_t commonGetCFStringEncodingFromPPD(const ppd_file_t *ppd);
    // Key of the dictionary in which this plug-in keeps its values: always "QL70".
    static QString commonGetPPDProductName(PMPrintSettings settings);
    // Identifier of the session's current printer, or a null string when it has none.
    static QString commonGetPrintQueueName(PMPrintSession session);

    // ---- Ticket binding (controls/TicketBinding.cpp) ----

    // Writes the controls of a table into the ticket. Returns noErr, also when there is no queue dictionary, or
    // memFullErr.
    static int32_t commonSyncTicketFromPane(PMPrintSettings settings, PMPrintSession session, PDEControlTable table);
    // Sets the controls of a table from the ticket. Returns the same statuses.
    static int32_t commonSyncPaneFromTicket(PMPrintSettings settings, PMPrintSession session, PDEControlTable table);
    // The current queue's dictionary in the ticket, created on first use. Null when there is none and none can be
    // created.
    static bv::PrintDictionaryRef commonGetModelDictionary(PMPrintSettings settings, PMPrintSession session);
    // The value of a key if it is a dictionary, else null.
    static bv::PrintDictionaryRef commonCFDictionaryGetValueWithType(const bv::PrintDictionaryRef &dictionary,
                                                                     const QString &key);
    // Copies every entry of the dictionary to the ticket's top level. Returns noErr or memFullErr.
    static int32_t commonCFDictionaryMapToTicket(PMPrintSettings settings, const bv::PrintDictionaryRef &copyDict);
    // True if `object` holds a value of the same type as `type`.
    static bool commonCFTypeIsValid(const bv::PrintValue &object, const bv::PrintValue &type);
    // Control value of a row for a stored choice keyword.
    static int32_t commonGetTicketValueWithSInt32(const PDEControlItem *item, const QString &option,
                                                  const bv::PrintValue &choice);
    // Value of a row's control: 0 or 1 for a check box, the index for a pop-up, 0 for all others.
    static int32_t commonGetControlValueWithSInt32(const PDEControlItem *item);
    // Sets a row's control. A pop-up index beyond the last item is ignored, a negative one clears the selection.
    static void commonSetControlValueWithSInt32(const PDEControlItem *item, int32_t value);
    // Reads a number from the session's data as a handle. Returns kPMInvalidValue, and sets the handle to 0, when the
    // item is not a number of 32 bits.
    static int32_t commonGetTicket(PMPrintSession session, const QString &kind, int32_t *ticket);

    // ---- Summary (controls/SummaryText.cpp) ----

    // Adds the items of a table. Returns noErr, paramErr when a row has no value, or memFullErr.
    static int32_t commonGetSummaryText(PDEControlTable table, bv::PrintDictionary *adddict, bv::PrintArray *addArray);
    // Adds one item under the localized text of its name key. Returns noErr, paramErr for a missing key, or memFullErr.
    static int32_t commonGetSummaryTextQuickColor(const char *quickColor, const QString &itemName,
                                                  bv::PrintDictionary *adddict, bv::PrintArray *addArray);

    // ---- Profile menus and ticket entries (profiles/ProfileMenus.cpp, profiles/ProfileTicket.cpp) ----

    // Appends the stored profiles to the menus of a table's profile rows. Returns noErr, -1 when the list file cannot
    // be read, or paramErr when any row is not a profile row or the name of a storage is missing. After paramErr the
    // other rows and profiles are appended all the same.
    static int32_t commonAddMenuFromProfilePlist(PDEControlTable table);
    // Stores the n-th profile (from 1) of the row's class in the queue dictionary. Returns 0 or -1.
    static int32_t commonSetTicketAddedProfile(const PDEControlItem *item, const bv::PrintDictionaryRef &dict,
                                               int16_t select);
    // Position (from 1) of the profile that the queue dictionary names, 0 when none matches, -1 for a bad argument.
    static int16_t commonGetTicketAddedProfile(const PDEControlItem *item, const bv::PrintDictionaryRef &dict);
    // Sets the row's profile flag in the queue dictionary, but only for rows with a profile kind. Always returns 0.
    static int32_t commonSetTicketAddedProfileFlag(const PDEControlItem *item, const bv::PrintDictionaryRef &dict,
                                                   const QString &flag);
    // The row's profile flag. No value when it is not set or the row has no profile kind.
    static bv::PrintValue commonGetTicketAddedProfileFlag(const PDEControlItem *item,
                                                          const bv::PrintDictionaryRef &dict);

    // ---- Device address and refresh (discovery/DeviceAddress.cpp, discovery/ProfileRefresh.cpp) ----

    // Kind of connection of the session's printer; the numbers are in discovery/ProtocolCodes.h.
    static int32_t commoniGetProtocol(PMPrintSession session);
    // The same for a device URI. A null string gives the number for an unknown connection.
    static int32_t commoniGetProtocolByUrl(const QString &url);
    // Updates the stored profile list from the printer through the helper. Always returns 0.
    static int32_t commonGetProfilesFromMIB(PMPrintSession session);
};
