// SPDX-License-Identifier: GPL-2.0-or-later
// Kind of connection and host of a queue, from ordinary and odd URIs.
#include "platform/ClassNames.h"

#include "discovery/DeviceAddress.h"

#include "common/PDECommon.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <netinet/in.h>

namespace {

using testing::Eq;
using testing::Optional;

bv::ServiceResolver noResolver()
{
    return [](const bv::ServiceName &) -> std::optional<std::vector<bv::AddressRecord>> {
        ADD_FAILURE() << "no service is to be resolved";
        return std::nullopt;
    };
}

bv::AddressRecord recordOf(std::initializer_list<int> bytes)
{
    bv::AddressRecord record;
    for (const int byte : bytes)
        record.push_back(static_cast<std::byte>(byte));
    return record;
}

TEST(DeviceAddress, ProtocolComesFromThePrefixAtTheVeryFront)
{
    const std::pair<const char *, int32_t> cases[] = {
        {"lpd://10.0.0.7:515/queue", 0},
        {"mdns://QL70._printer._tcp.local./", 1},
        {"dnssd://QL70._printer._tcp.local./", 1},
        {"pap://zone/printer", 2},
        {"usb://BREVANE/QL70", 3},
        {"ipp://host/lpd://x", -1},
        {"socket://10.0.0.7", -1},
        {"LPD://10.0.0.7", -1},
        {"lpd:/10.0.0.7", -1},
        {"", -1},
    };
    for (const auto &[uri, code] : cases)
        EXPECT_EQ(PDECommon::commoniGetProtocolByUrl(QString::fromUtf8(uri)), code) << uri;
    EXPECT_EQ(PDECommon::commoniGetProtocolByUrl(QString()), -1);
}

TEST(DeviceAddress, HostOfAnLpdQueue)
{
    const std::string long300(300, 'h');
    const std::pair<std::string, std::optional<std::string>> cases[] = {
        {"lpd://10.0.0.7:515/queue", "10.0.0.7"},
        {"lpd://printer?reserve=yes", "printer"},
        {"lpd://printer#x", "printer"},
        {"lpd://user@printer/q", "printer"},
        {"lpd://my%20printer/q", "my%20printer"}, // an LPD host is taken as it stands
        {"lpd://[fe80::1]:515/q", "[fe80"},       // cut at the first colon, wherever that is
        {"lpd:///q", std::nullopt},
        {"lpd://", std::nullopt},
        {"lpd://:515/q", std::nullopt},
        {"lpd://-Lfname/q", std::nullopt}, // must not become an option of the walk
        {"lpd://" + long300 + "/q", long300.substr(0, 254)},
        {"lpd://drück:515/q", "drück"},
        {"lpd://プリンタ/q", std::nullopt}, // not in Mac OS Roman
        {"lpd://" + std::string(253, 'a') + "éb/q", std::string(253, 'a') + "é"},
        {"usb://BREVANE/QL70", std::nullopt},
        {"ipp://printer/ipp", std::nullopt},
    };
    for (const auto &[uri, host] : cases)
        EXPECT_EQ(bv::walkHost(QString::fromStdString(uri), noResolver()), host) << uri;
}

TEST(DeviceAddress, ServiceOfABonjourQueue)
{
    struct Case
    {
        const char *uri;
        std::optional<std::string> service; // name|type|domain; nothing: no service is resolved
    };
    const Case cases[] = {
        {"dnssd://QL70._pdl-datastream._tcp.local./?uuid=1", "QL70|_pdl-datastream._tcp|local"},
        {"dnssd://QL%2070%20%28%C3%A9%29%20lab._printer._tcp.local./", "QL 70 (é) lab|_printer._tcp|local"},
        {"dnssd://QL%2e70._printer._tcp.local./", "QL.70|_printer._tcp|local"},
        {"dnssd://QL.70._printer._tcp.local./", "QL|70._printer|_tcp"}, // an unescaped dot shifts the components
        {"dnssd://QL70._printer._tcp.local.:9100/", "QL70|_printer._tcp|local"},
        {"dnssd://100%25._printer._tcp.example.com/", "100%|_printer._tcp|example"},
        {"dnssd://x._printer._t%63p.local./", "x|_printer._t%63p|local"}, // only the name is unescaped
        {"dnssd://._printer._tcp.local./", "|_printer._tcp|local"},
        {"dnssd://a.b.c./", "a|b.c|"},
        {"dnssd://QL70._printer._tcp/", std::nullopt},
        {"dnssd:///x", std::nullopt},
        {"dnssd://[fe80::1]/", std::nullopt},
        {"dnssd://x%zz._printer._tcp.local./", std::nullopt},
        {"dnssd://x%00y._printer._tcp.local./", std::nullopt},
        {"dnssd://x%ff._printer._tcp.local./", std::nullopt},
    };
    for (const Case &row : cases) {
        std::optional<std::string> asked;
        const auto host = bv::walkHost(QString::fromUtf8(row.uri), [&asked](const bv::ServiceName &service) {
            asked = service.name + '|' + service.type + '|' + service.domain;
            return std::optional<std::vector<bv::AddressRecord>>();
        });
        EXPECT_EQ(host, std::nullopt) << row.uri;
        EXPECT_EQ(asked, row.service) << row.uri;
    }
}

TEST(DeviceAddress, TheFirstAddressIsWrittenByItsBytes)
{
    const auto hostFor = [](std::vector<bv::AddressRecord> records) {
        return bv::walkHost(QStringLiteral("dnssd://QL70._printer._tcp.local./"),
                            [&records](const bv::ServiceName &) { return std::optional(records); });
    };
    const bv::AddressRecord ipv4 = recordOf({AF_INET, 0, 35, 140, 192, 0, 2, 255, 0, 0, 0, 0, 0, 0, 0, 0});
    EXPECT_THAT(hostFor({ipv4, recordOf({2, 0, 0, 0, 9, 9, 9, 9})}), Optional(Eq("192.0.2.255")));
    const bv::AddressRecord ipv6 = recordOf({AF_INET6, 0, 35, 140, 1, 2, 3, 4, 0xfe, 0x80, 0, 0});
    EXPECT_THAT(hostFor({ipv6}), Optional(Eq("1.2.3.4"))) << "bytes 4 to 7, whatever the family";
    EXPECT_EQ(hostFor({recordOf({2, 0, 0, 0, 9, 9, 9})}), std::nullopt);
    EXPECT_EQ(hostFor({}), std::nullopt);
}

TEST(DeviceAddress, WithoutADaemonNoServiceIsFound)
{
    setenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nowhere", 1);
    EXPECT_EQ(bv::walkHost(QStringLiteral("dnssd://QL70._printer._tcp.local./")), std::nullopt);
}

} // namespace
