// SPDX-License-Identifier: GPL-2.0-or-later
// Takes any text for the encoded path of a profile, as a ticket holds it. Every path must survive encoding; an encoded
// text that a ticket brings may only select the profile that has this path.
#include "Fuzzing.h"
#include "common/PDECommon.h"
#include "platform/RootPath.h"
#include "profiles/DevicePath.h"
#include "profiles/ProfileListFile.h"
#include "profiles/ProfilePaths.h"

using fuzz::require;

namespace {

constexpr std::string_view kFolder = "/ata1a/data/USfiles/Profiles/";
constexpr std::string_view kFiles[] = {"A.ICC", "B.ICC", "\xC3\xA4.ICC"};

void writeList()
{
    static ProfileLists lists;
    for (const std::string_view name : kFiles) {
        ProfileRecord &record = lists.rgb.records[lists.rgb.count++];
        record.InMenu = 4;
        record.Location = kLocationDisk;
        bv::setFieldText(record.FileName, name);
    }
    std::filesystem::create_directories(bv::mapRootPath(bv::kProfileFolder));
    fuzz::writeFile(bv::mapRootPath(bv::profilePaths().current),
                    bv::profileListXml(lists.rgb, lists.sim, lists.dst).value());
}

int16_t selected(const QString &text)
{
    PDEControlItem item;
    item.ppdKey = "BVSource";
    item.profileKind = 1;
    const auto dictionary = std::make_shared<bv::PrintDictionary>();
    dictionary->setValue(QStringLiteral("BVSourceCustomFilename"), bv::PrintValue(text));
    return PDECommon::commonGetTicketAddedProfile(&item, dictionary);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const fuzz::Scratch scratch;
    static const bool written = (writeList(), true);
    require(written);
    const std::string_view text = fuzz::textOf(data, size);
    const std::string encoded = bv::encodeDevicePath(text);
    require(encoded.size() == text.size() * 2 && bv::decodeDevicePath(encoded) == text);
    require(std::all_of(encoded.begin(), encoded.end(), [](char one) { return one >= '0' && one <= '?'; }));
    require(bv::decodeDevicePath(text).size() == (text.size() + 1) / 2);

    // The list is read anew for each text, so only for those that could be in it.
    for (const QString &entry : {QString::fromUtf8(text.data(), qsizetype(size)), QString::fromStdString(encoded)}) {
        if (entry.size() > 100 || entry.isEmpty())
            continue;
        const std::string decoded = bv::decodeDevicePath(entry.toStdString());
        if (!decoded.starts_with(kFolder.substr(0, 2)))
            continue;
        const int16_t number = selected(entry);
        require(number >= 0 && number <= int16_t(std::size(kFiles)));
        require(number == 0 || decoded.substr(0, decoded.find('\0')) ==
                                   std::string(kFolder).append(kFiles[static_cast<size_t>(number) - 1]));
    }
    return 0;
}
