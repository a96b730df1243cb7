// PDECommon: the operations that both views share, grouped by subject. Each group is defined in the folder that its
// subject belongs to. Failures are statuses, out of memory too, and each leaves a line in the diagnostic log.
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
    // The rows' choice lists are shared. Counts rows by kind 1032, not by control. Null when memory runs out.
    static std::unique_ptr<PDEControlItem[]> commonControlTableCompound(const PDEControlTable *tables, int32_t count);
    // Control value to constraint units: a pop-up's index counts from 1 and 0 means none; other values stay.
    static int32_t commonConvertToCSTValue(const PDEControlItem *item, int32_t convalue);
    // Constraint units to control value: below 1 a pop-up's value becomes 0; other values stay.
    static int32_t commonConvertFromCSTValue(const PDEControlItem *item, int32_t convalue);
    // Appends every bound PPD keyword in table order, duplicates too. noErr; paramErr for a null array; memFullErr.
    static int32_t commonAddPPDArray(QStringList *array, PDEControlTable table);
    // Sets titles and rebuilds the pop-up menus of a table from the PPD.
    static void commonBuildPDEItem(PDEControlTable table, ppd_file_t *ppdfile);
    // Puts the PPD's default choice into every bound control.
    static void commonDefaultFromPPDInfo(PDEControlTable table);

    // ---- PPD access (controls/PpdAccess.cpp, controls/PpdMenus.cpp) ----

    // A new choice list of the option in *array. noErr; kPMKeyNotFound (array untouched) when the PPD lacks the
    // keyword; kPMGeneralError when the list cannot be made.
    static int32_t commonGetPPDArrayForUIOption(ppd_file_t *ppd, const char *key,
                                                std::shared_ptr<const PPDChoiceArray> *array);
    // Appends the option's choices to *array and counts them in *count. Always noErr.
    static int32_t commonGetUIListFromPPD(ppd_file_t *ppd, const char *key, PPDChoiceArray *array, uint16_t *count);
    // Whether choosing the choice would put its option in conflict; the PPD's marks are left as they were found.
    static bool commonIsPPDChoiceConflicted(ppd_file_t *ppd, const char *option, const char *choice);
    // Index of the entry with exactly this option and choice; -1 when there is none.
    static int32_t commonFindPPDKeyPairsMatch(const PPDChoiceArray *array, const QString &option,
                                              const QString &choice);
    // Replaces the pop-up's items by the option's choices; unchanged when the PPD lacks the option.
    static void commonReBuildMenuFromPPD(ppd_file_t *ppd, const PDEControlItem *item);
    // Sets a control's own title from the localised text of its key.
    static void commonSetControlTitleFromLocalizeString(const PDEControlItem *item);
    // Kept without a visible effect.
    static void commonSetControlTitleFromPPD(const PDEControlItem *item, ppd_file_t *ppdfile);
    // Control value of the option's default choice: a pop-up's index or -1, a check box's 0 or 1.
    static int32_t commonGetDefualtValueFromPPDWithSInt32(const PDEControlItem *item);
    // Index of the row's current value in its choice list (check box) or menu (pop-up); -1 for none.
    static int32_t commonGetControlValueFromPPDWithSInt32(const PDEControlItem *item);
    // Display text of the row's current value; a null string when it has none.
    static QString commonGetControlValueFromPPDWithNSString(const PDEControlItem *item);
    // Encoding of the PPD's texts by its LanguageEncoding: object-layer numbers, and the CF numbers.
    static uint32_t commonGetEncodingFromPPD(const ppd_file_t *ppd);
    static uint32_t commonGetCFStringEncodingFromPPD(const ppd_file_t *ppd);
    // The key under which this system files its values: "QL70", whatever the settings.
    static QString commonGetPPDProductName(PMPrintSettings settings);
    // Identifier of the session's current printer; a null string when it has none.
    static QString commonGetPrintQueueName(PMPrintSession session);

    // ---- Ticket binding (controls/TicketBinding.cpp) ----

    // Writes the controls of a table into the ticket. noErr, also without a queue dictionary; memFullErr.
    static int32_t commonSyncTicketFromPane(PMPrintSettings settings, PMPrintSession session, PDEControlTable table);
    // Reads the ticket into the controls of a table; same statuses.
    static int32_t commonSyncPaneFromTicket(PMPrintSettings settings, PMPrintSession session, PDEControlTable table);
    // The current queue's dictionary in the ticket, made on first use; null when it cannot be had.
    static bv::PrintDictionaryRef commonGetModelDictionary(PMPrintSettings settings, PMPrintSession session);
    // The value of a key when it is a dictionary, else null.
    static bv::PrintDictionaryRef commonCFDictionaryGetValueWithType(const bv::PrintDictionaryRef &dictionary,
                                                                     const QString &key);
    // Copies every entry of the dictionary to the ticket's top level. noErr or memFullErr.
    static int32_t commonCFDictionaryMapToTicket(PMPrintSettings settings, const bv::PrintDictionaryRef &copyDict);
    // Whether a value is there and of the type of `type`, a value that stands for its type.
    static bool commonCFTypeIsValid(const bv::PrintValue &object, const bv::PrintValue &type);
    // Control value of a stored choice keyword for a row.
    static int32_t commonGetTicketValueWithSInt32(const PDEControlItem *item, const QString &option,
                                                  const bv::PrintValue &choice);
    // Value of a row's control: check box 0 or 1, pop-up index, else 0.
    static int32_t commonGetControlValueWithSInt32(const PDEControlItem *item);
    // Sets a row's control; a pop-up index beyond its items is ignored, a negative one clears the selection.
    static void commonSetControlValueWithSInt32(const PDEControlItem *item, int32_t value);
    // A number in the session's data, as a handle. kPMInvalidValue, and the handle 0, when the item is no number of 32
    // bits.
    static int32_t commonGetTicket(PMPrintSession session, const QString &kind, int32_t *ticket);

    // ---- Summary (controls/SummaryText.cpp) ----

    // Adds the items of a table. noErr; paramErr when some row has no value; memFullErr.
    static int32_t commonGetSummaryText(PDEControlTable table, bv::PrintDictionary *adddict, bv::PrintArray *addArray);
    // Adds one item under the localised text of its name key. noErr; paramErr without a key; memFullErr.
    static int32_t commonGetSummaryTextQuickColor(const char *quickColor, const QString &itemName,
                                                  bv::PrintDictionary *adddict, bv::PrintArray *addArray);

    // ---- Profile menus and ticket entries (profiles/ProfileMenus.cpp, profiles/ProfileTicket.cpp) ----

    // Appends the stored profiles to the menus of a table's profile rows. noErr; -1 when the list file cannot be read;
    // paramErr as soon as one row is no profile row or the name of a storage cannot be had: no later row takes that
    // back, and the other rows and profiles are appended all the same.
    static int32_t commonAddMenuFromProfilePlist(PDEControlTable table);
    // Records the n-th listed profile (from 1) of the row's class in the queue dictionary. 0 or -1.
    static int32_t commonSetTicketAddedProfile(const PDEControlItem *item, const bv::PrintDictionaryRef &dict,
                                               int16_t select);
    // Position (from 1) of the profile that the queue dictionary names; 0 when none matches, -1 for a bad argument.
    static int16_t commonGetTicketAddedProfile(const PDEControlItem *item, const bv::PrintDictionaryRef &dict);
    // Sets the row's profile flag in the queue dictionary; only for rows with a profile kind. Always 0.
    static int32_t commonSetTicketAddedProfileFlag(const PDEControlItem *item, const bv::PrintDictionaryRef &dict,
                                                   const QString &flag);
    // The row's profile flag; none when it is not set or the row has no profile kind.
    static bv::PrintValue commonGetTicketAddedProfileFlag(const PDEControlItem *item,
                                                          const bv::PrintDictionaryRef &dict);

    // ---- Device address and refresh (discovery/DeviceAddress.cpp, discovery/ProfileRefresh.cpp) ----

    // Kind of connection of the session's printer (discovery/ProtocolCodes.h).
    static int32_t commoniGetProtocol(PMPrintSession session);
    // The same for a device URI; unknown for a null string.
    static int32_t commoniGetProtocolByUrl(const QString &url);
    // Brings the stored profile list up to date from the printer through the helper. Always 0.
    static int32_t commonGetProfilesFromMIB(PMPrintSession session);
};
