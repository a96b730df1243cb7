// SPDX-License-Identifier: GPL-2.0-or-later
// Reads lists from the list file and corrects their counts after each read.
#include "profiles/ProfileListRead.h"

#include "platform/Log.h"
#include "platform/NoThrow.h"
#include "profiles/MenuState.h"
#include "profiles/ProfileListFile.h"
#include "profiles/ProfileOperations.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

// Reads the records of one class from an open list file.
class ClassReader
{
public:
    ClassReader(const bv::PropertyList &file, int32_t which)
    {
        if (which < kProfileRGB || which > kProfileDST)
            return;
        m_class = file.root().item(kProfileClassKeys[static_cast<size_t>(which)]);
        int32_t ignored = 0;
        m_complete = BVPListMappingGetSubDict(m_class, &m_fields, &ignored) == 0;
        if (file && !m_complete)
            bv::diagnosticLine("the list file lacks a class or one of its fields");
    }

    // Whether the file has the class and all its field dictionaries.
    bool complete() const { return m_complete; }

    void readInMenu(int slot, int32_t *out) { ReadDictionaryIntEntry(m_fields.inMenu, m_inMenu.at(slot), out); }

    // All fields but the state code.
    void readOthers(int slot, ProfileRecord *out)
    {
        ReadDictionaryIntEntry(m_fields.indexOnDevice, m_indexOnDevice.at(slot), &out->IndexOnDevice);
        ReadDictionaryIntEntry(m_fields.profileClass, m_profileClass.at(slot), &out->ProfileClass);
        ReadDictionaryStringEntry(m_fields.fileName, m_fileName.at(slot), out->FileName);
        ReadDictionaryStringEntry(m_fields.profileName, m_profileName.at(slot), out->ProfileName);
        ReadDictionaryIntEntry(m_fields.location, m_location.at(slot), &out->Location);
    }

    // Goes over the entries that are there, and looks nothing up.
    void readAllSlots(ProfileList *list)
    {
        readNumbers(m_fields.indexOnDevice, m_indexOnDevice, list, &ProfileRecord::IndexOnDevice);
        readNumbers(m_fields.inMenu, m_inMenu, list, &ProfileRecord::InMenu);
        readNumbers(m_fields.profileClass, m_profileClass, list, &ProfileRecord::ProfileClass);
        readNumbers(m_fields.location, m_location, list, &ProfileRecord::Location);
        readTexts(m_fields.fileName, m_fileName, list, &ProfileRecord::FileName);
        readTexts(m_fields.profileName, m_profileName, list, &ProfileRecord::ProfileName);
        finish(list);
    }

    // Reads the stored count and corrects it.
    void finish(ProfileList *list) const
    {
        ReadDictionaryIntEntry(m_class, kProfileCountKey, &list->count);
        BVPlistCheckWithInMenu_Dict(list);
    }

private:
    // Calls `take(record, value)` for each slot that the field has an entry for; the last one if there are several.
    template <typename Take>
    static void visitSlots(bv::PropertyListNode field, const bv::SlotKey &keys, ProfileList *list, Take take)
    {
        for (size_t i = 0; i < field.entryCount(); ++i) {
            const bool isLast = i + 1 == field.entryCount() || field.keyAt(i + 1) != field.keyAt(i);
            const std::optional<int> slot = keys.slotOf(field.keyAt(i));
            if (isLast && slot && *slot < kProfileSlots)
                take(list->records[*slot], field.valueAt(i));
        }
    }

    static void readNumbers(bv::PropertyListNode field, const bv::SlotKey &keys, ProfileList *list,
                            int32_t ProfileRecord::*number)
    {
        visitSlots(field, keys, list, [number](ProfileRecord &record, bv::PropertyListNode value) {
            record.*number = value.number().value_or(record.*number);
        });
    }

    static void readTexts(bv::PropertyListNode field, const bv::SlotKey &keys, ProfileList *list,
                          char (ProfileRecord::*text)[kProfileTextBytes])
    {
        visitSlots(field, keys, list, [text](ProfileRecord &record, bv::PropertyListNode value) {
            if (const auto read = value.text())
                bv::setFieldText(record.*text, *read);
        });
    }

    bv::PropertyListNode m_class;
    ProfileFieldDictionaries m_fields;
    bool m_complete = false;
    bv::SlotKey m_indexOnDevice{cIndexOnDeviceKey};
    bv::SlotKey m_inMenu{cInMenuKey};
    bv::SlotKey m_profileClass{cProfileClassKey};
    bv::SlotKey m_fileName{cFileNameKey};
    bv::SlotKey m_profileName{cProfileNameKey};
    bv::SlotKey m_location{cLocationKey};
};

} // namespace

int32_t bv::readLists(const PropertyList &file, ProfileList *rgb, ProfileList *sim, ProfileList *dst)
{
    std::array<ClassReader, 3> readers = {ClassReader(file, kProfileRGB), ClassReader(file, kProfileSIM),
                                          ClassReader(file, kProfileDST)};
    // Check all three classes first: on failure, no list may have changed.
    if (!std::all_of(readers.begin(), readers.end(), [](const ClassReader &reader) { return reader.complete(); }))
        return -1;
    readers[kProfileRGB].readAllSlots(rgb);
    readers[kProfileSIM].readAllSlots(sim);
    readers[kProfileDST].readAllSlots(dst);
    return 0;
}

int32_t BVPListReadProfile_All(ProfileList *rgb, ProfileList *sim, ProfileList *dst)
{
    return bv::withoutThrowing(-1, [&] { return bv::readLists(bv::readProfileListFile(), rgb, sim, dst); });
}

int32_t BVPListReadProfile_Dict(ProfileList *list, int32_t which)
{
    return bv::withoutThrowing(-1, [&] {
        const bv::PropertyList file = bv::readProfileListFile();
        ClassReader reader(file, which);
        if (!reader.complete())
            return -1;
        reader.readAllSlots(list);
        return 0;
    });
}

int32_t BVPListReadProfile_Dict_Pap(ProfileList *list, int32_t which)
{
    return bv::withoutThrowing(-1, [&] {
        const bv::PropertyList file = bv::readProfileListFile();
        ClassReader reader(file, which);
        if (!reader.complete())
            return -1;
        int out = 0;
        for (int slot = 0; slot < kProfileSlots; ++slot) {
            ProfileRecord &record = list->records[out];
            int32_t inMenu = record.InMenu;
            reader.readInMenu(slot, &inMenu);
            if (inMenu == bv::kOnPrinter)
                continue;
            record.InMenu = inMenu == bv::kOnPrinterInMenu ? bv::kOwnInMenu : inMenu;
            reader.readOthers(slot, &record);
            ++out;
        }
        reader.finish(list);
        return 0;
    });
}

void BVPlistCheckWithInMenu_Dict(ProfileList *list)
{
    const auto used = std::count_if(std::begin(list->records), std::end(list->records),
                                    [](const ProfileRecord &record) { return bv::isUsed(record.InMenu); });
    if (used == list->count)
        return;
    // Clears every record from the count on, even records in use after a gap. This is intended: code that walks a list
    // up to its count relies on no record being in use after it.
    std::fill(std::begin(list->records) + used, std::end(list->records), ProfileRecord{});
    list->count = static_cast<int32_t>(used);
}
