// SPDX-License-Identifier: GPL-2.0-or-later
// Publishes Bonjour services with the Avahi daemon of this network namespace, resolves them, and walks a printer that
// one of them names. Run by in_bonjour_namespace.sh.
#include "platform/ClassNames.h"

#include "common/PDECommon.h"

#include "support/ListRoot.h"
#include "support/PaneFixture.h"
#include "support/ProgramUnderTest.h"

#include "discovery/DeviceAddress.h"
#include "platform/Bundle.h"
#include "platform/NetworkService.h"
#include "profiles/ProfileOperations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QUrl>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <fstream>

namespace {

using bvtest::ProgramUnderTest;
using testing::Eq;
using testing::Optional;

constexpr char kAddress[] = "10.99.0.1";

class Publisher
{
public:
    explicit Publisher(const std::string &name)
        : m_program({"avahi-publish", "-s", "--", name, "_pdl-datastream._tcp", "9100", "txtvers=1"})
    {
        EXPECT_TRUE(m_program.waitFor("Established")) << m_program.output();
    }

private:
    ProgramUnderTest m_program;
};

// A URI as the print server writes it: everything in the name except letters and digits is escaped, dots included.
QString uriOf(const std::string &name)
{
    QByteArray host = QUrl::toPercentEncoding(QString::fromStdString(name));
    host.replace('.', "%2E");
    return QStringLiteral("dnssd://%1._pdl-datastream._tcp.local./?uuid=1").arg(QString::fromLatin1(host));
}

// Puts a link to the resolver beside a plug-in, and lets the tests put something else there.
class Bonjour : public testing::Test
{
protected:
    void SetUp() override
    {
        static const QTemporaryDir folder; // the first bundle is the one that counts
        setPluginBundle({folder.filePath(QStringLiteral("bvco.so")), {}});
        std::filesystem::remove(bv::resolverPath());
        std::filesystem::create_symlink(BV_BUILD_DIR "/lib/bvco/QL70Resolve", bv::resolverPath());
    }

    const bvtest::ListRoot root;
};

TEST_F(Bonjour, ResolvesNamesOfEveryKind)
{
    for (const char *name : {"QL70", "QL 70 (é) lab", "QL70 rev. 1.2", "100% \"color\" / プリンタ", "-h"}) {
        const Publisher publisher(name);
        EXPECT_THAT(bv::walkHost(uriOf(name)), Optional(Eq(kAddress))) << name;
    }
}

// A daemon hangs for as long as this exists.
class Stopped
{
public:
    explicit Stopped(const char *variable) : m_process(std::atoi(std::getenv(variable))) { kill(m_process, SIGSTOP); }
    Stopped(const Stopped &) = delete;
    Stopped &operator=(const Stopped &) = delete;
    ~Stopped() { kill(m_process, SIGCONT); }

private:
    pid_t m_process;
};

TEST_F(Bonjour, EndsAtTheTimeLimitWhateverHangs)
{
    const Publisher publisher("QL70");
    const char *kHanging[] = {nullptr, "BV_AVAHI_PID", "BV_BUS_PID", "resolver"};
    for (const char *hanging : kHanging) {
        const auto stopped = hanging && *hanging == 'B' ? std::make_unique<Stopped>(hanging) : nullptr;
        if (hanging && *hanging == 'r') {
            const std::filesystem::path resolver = bv::resolverPath();
            std::filesystem::remove(resolver);
            std::ofstream(resolver) << "#!/bin/sh\nkill -STOP $$\n";
            std::filesystem::permissions(resolver, std::filesystem::perms(0755));
        }
        const auto begin = std::chrono::steady_clock::now();
        EXPECT_EQ(bv::walkHost(uriOf(hanging ? "QL70" : "nobody")), std::nullopt);
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
        std::printf("%s: %.3f s\n", hanging ? hanging : "no such service", taken.count());
        EXPECT_GE(taken.count(), .99);
        EXPECT_LT(taken.count(), 3);
    }
}

TEST_F(Bonjour, EndsAtOnceWithoutAResolver)
{
    std::filesystem::remove(bv::resolverPath());
    EXPECT_EQ(bv::walkHost(uriOf("QL70")), std::nullopt);
}

TEST_F(Bonjour, TheRefreshReachesThePrinterBehindTheName)
{
    root.write("snmp/snmp.conf", ""); // use the standard port, which this namespace may open
    setenv("SNMPCONFPATH", root.file("snmp").c_str(), 1);
    ProgramUnderTest printer({BV_BUILD_DIR "/bin/ql70sim", "--port", "161", "--address", kAddress, "--count"});
    ASSERT_TRUE(printer.waitFor("ready on")) << printer.output();
    const Publisher publisher("QL70 walk");
    bvtest::TestSession session(uriOf("QL70 walk"));
    EXPECT_EQ(PDECommon::commonGetProfilesFromMIB(&session), 0);
    auto lists = std::make_unique<ProfileList[]>(3);
    EXPECT_EQ(BVPListReadProfile_All(&lists[0], &lists[1], &lists[2]), 0);
    EXPECT_EQ(lists[kProfileRGB].count, 4);
    EXPECT_EQ(lists[kProfileSIM].count, 3);
    EXPECT_EQ(lists[kProfileDST].count, 3);
    EXPECT_EQ(printer.stop(), 0);
    EXPECT_EQ(printer.numberBehind("requests="), 50);
}

} // namespace
