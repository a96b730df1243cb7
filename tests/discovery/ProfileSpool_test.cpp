// SPDX-License-Identifier: GPL-2.0-or-later
// Which values the spool stores, and where.
#include "discovery/ProfileSpool.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

std::vector<oid> cell(oid column, std::initializer_list<oid> index)
{
    std::vector<oid> name(bv::kProfileEntryOid.begin(), bv::kProfileEntryOid.end());
    name.push_back(column);
    name.insert(name.end(), index);
    return name;
}

// Spools a value as the library hands it out.
void spool(const std::vector<oid> &name, long number)
{
    netsnmp_variable_list variable{};
    variable.type = ASN_INTEGER;
    variable.val.integer = &number;
    variable.val_len = sizeof(number);
    vSpoolPlist(name.data(), name.size(), &variable, 0);
}

void spool(const std::vector<oid> &name, std::string text)
{
    netsnmp_variable_list variable{};
    variable.type = ASN_OCTET_STR;
    variable.val.string = reinterpret_cast<u_char *>(text.data());
    variable.val_len = text.size();
    vSpoolPlist(name.data(), name.size(), &variable, 0);
}

class ProfileSpool : public testing::Test
{
protected:
    ProfileSpool() { vSpoolPlist(nullptr, 0, nullptr, 1); }
    static const ProfileRecord &row(int number) { return PlistForSpool.records[number - 1]; }
    static std::string raw(const char (&field)[kProfileTextBytes]) { return {field, sizeof(field)}; }
};

TEST_F(ProfileSpool, ATextOf32BytesFillsTheFieldAndNothingMore)
{
    spool(cell(5, {1, 1}), 3L);
    spool(cell(3, {1, 1}), std::string(40, 'x'));
    spool(cell(4, {1, 1}), std::string(33, 'y'));
    EXPECT_EQ(raw(row(1).ProfileName), std::string(32, 'x'));
    EXPECT_EQ(raw(row(1).FileName), std::string(32, 'y'));
    EXPECT_EQ(row(1).Location, 0);
    EXPECT_EQ(row(1).ProfileClass, 3);
    spool(cell(4, {1, 1}), std::string("AB"));
    EXPECT_EQ(raw(row(1).FileName), "AB" + std::string(30, 'y')) << "a shorter text leaves the old tail";
    spool(cell(3, {1, 2}), std::string("D\0E", 3));
    EXPECT_EQ(raw(row(2).ProfileName), 'D' + std::string(31, '\0')) << "cut at a zero byte";
}

TEST_F(ProfileSpool, TheEighteenthSubIdentifierIsTheRow)
{
    spool(cell(1, {99, 500}), 1L);
    EXPECT_EQ(row(500).IndexOnDevice, 1) << "the first index is not looked at";
    spool(cell(1, {1, 2, 3}), 5L);
    EXPECT_EQ(row(2).IndexOnDevice, 5) << "nor is what stands behind the second";
    const ProfileList before = PlistForSpool;
    for (const std::vector<oid> &name : {cell(1, {}), cell(1, {1}), cell(1, {1, 0}), cell(1, {1, 501}),
                                         cell(1, {1, 0xffffffff}), cell(6, {1, 1}), cell(8, {1, 1}), cell(0, {1, 1})})
        spool(name, 9L);
    std::vector<oid> elsewhere = cell(1, {1, 1});
    elsewhere[6] = 39848;
    spool(elsewhere, 9L);
    EXPECT_EQ(std::memcmp(&before, &PlistForSpool, sizeof(before)), 0);
}

} // namespace
