// SPDX-License-Identifier: GPL-2.0-or-later
// A print server for a test that misbehaves as told; see hostile_print_server.py for the words.
#pragma once

#include "support/ProgramUnderTest.h"

#include <QString>

namespace bvtest {

class HostileServer
{
public:
    // `behaviors` are words like "send=closes". Its only queue, QL70, has our PPD unless another is named.
    explicit HostileServer(const std::vector<std::string> &behaviors,
                           const std::string &ppd = BV_SOURCE_DIR "/resources/QL70.ppd")
        : m_program(command(behaviors, ppd))
    {
        m_program.waitFor("\n");
        m_address = QStringLiteral("127.0.0.1:%1").arg(m_program.numberBehind("port "));
    }

    // The value of CUPS_SERVER for this server.
    QString address() const { return m_address; }
    // Waits for a request: "queues", "default", "ppd", "attributes", "create", "send", "cancel",
    // "job", "set", "release" or "document".
    bool waitFor(const std::string &request) { return m_program.waitFor('\n' + request); }
    // How many of them came until now.
    int count(const std::string &request)
    {
        m_program.readWhatIsThere();
        return m_program.occurrences('\n' + request);
    }

private:
    static std::vector<std::string> command(const std::vector<std::string> &behaviors, const std::string &ppd)
    {
        std::vector<std::string> words = {"/usr/bin/python3", BV_SOURCE_DIR "/tests/support/hostile_print_server.py",
                                          ppd};
        words.insert(words.end(), behaviors.begin(), behaviors.end());
        return words;
    }

    ProgramUnderTest m_program;
    QString m_address;
};

} // namespace bvtest
