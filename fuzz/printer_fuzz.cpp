// SPDX-License-Identifier: GPL-2.0-or-later
// Walks a printer that answers with any bytes. The input is a row of answers; each begins with a byte that says whether
// it goes out as it is, or as a well-formed answer to the question with the next bytes as its variables. After the last
// one the printer says that there is nothing more.
#include "Fuzzing.h"
#include "discovery/ProfileSpool.h"
#include "discovery/ProfileWalk.h"
#include "discovery/SnmpEnvironment.h"

#include <cstring>
#include <mutex>
#include <netinet/in.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

using fuzz::require;

namespace {

constexpr int kMostAnswers = 60;

std::string tagged(uint8_t tag, std::string_view bytes)
{
    std::string text(1, static_cast<char>(tag));
    if (bytes.size() < 128) {
        text += static_cast<char>(bytes.size());
    } else {
        text += '\x82';
        text += static_cast<char>(bytes.size() >> 8);
        text += static_cast<char>(bytes.size() & 0xFF);
    }
    return text.append(bytes);
}

// The contents of the field at *at, which goes on to the next one.
std::string_view inside(std::string_view message, size_t *at)
{
    if (*at + 2 > message.size())
        return {};
    size_t length = static_cast<uint8_t>(message[*at + 1]);
    size_t begin = *at + 2;
    if (length & 0x80) {
        const size_t bytes = length & 0x7F;
        length = 0;
        for (size_t i = 0; i < bytes && begin < message.size(); ++i)
            length = length << 8 | static_cast<uint8_t>(message[begin++]);
    }
    const std::string_view value = message.substr(std::min(begin, message.size()), length);
    *at = begin + length;
    return value;
}

std::string requestNumber(std::string_view request)
{
    size_t at = 0;
    const std::string_view message = inside(request, &at);
    at = 0;
    inside(message, &at); // version
    inside(message, &at); // community
    const std::string_view pdu = inside(message, &at);
    at = 0;
    return std::string(inside(pdu, &at));
}

// A variable: column, row, kind and length of the value, value.
std::string variable(fuzz::Input &input)
{
    const uint8_t column = input.byte() % 9;
    const unsigned row = (input.byte() << 1 | (input.byte() & 1)) % 520;
    std::string name("\x2b\x06\x01\x04\x01\x82\xb7\x27\x01\x01\x01\x01\x06\x0d\x01\x01", 16);
    name += static_cast<char>(column);
    name += '\x01';
    if (row >= 128)
        name += static_cast<char>(0x80 | row >> 7);
    name += static_cast<char>(row & 0x7F);
    const uint8_t kind = input.byte();
    const std::string_view value = input.text(kind >> 2);
    constexpr uint8_t kTags[] = {2, 4, 5, 0x41};
    return tagged(0x30, tagged(6, name) + tagged(kTags[kind & 3], value));
}

std::string answerOf(const std::string &number, uint8_t error, const std::string &variables)
{
    const std::string pdu = tagged(0xA2, tagged(2, number) + tagged(2, std::string(1, static_cast<char>(error))) +
                                             tagged(2, std::string(1, '\0')) + tagged(0x30, variables));
    return tagged(0x30, tagged(2, std::string(1, '\0')) + tagged(4, "mirror") + pdu);
}

class Printer
{
public:
    Printer() : m_socket(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        require(bind(m_socket, reinterpret_cast<sockaddr *>(&address), size) == 0);
        require(getsockname(m_socket, reinterpret_cast<sockaddr *>(&address), &size) == 0);
        m_place = "udp:127.0.0.1:" + std::to_string(ntohs(address.sin_port));
        std::thread([this] { serve(); }).detach();
    }
    const std::string &place() const { return m_place; }

    void setAnswers(const uint8_t *data, size_t size)
    {
        const std::lock_guard lock(m_mutex);
        m_input = fuzz::Input(data, size);
        m_answersLeft = kMostAnswers;
    }

private:
    void serve()
    {
        for (;;) {
            char bytes[2048];
            sockaddr_in from{};
            socklen_t size = sizeof from;
            const ssize_t got = recvfrom(m_socket, bytes, sizeof bytes, 0, reinterpret_cast<sockaddr *>(&from), &size);
            if (got <= 0)
                continue;
            const std::string said = next(requestNumber({bytes, static_cast<size_t>(got)}));
            sendto(m_socket, said.data(), said.size(), 0, reinterpret_cast<sockaddr *>(&from), size);
        }
    }

    std::string next(const std::string &number)
    {
        const std::lock_guard lock(m_mutex);
        if (m_input.atEnd() || m_answersLeft-- <= 0)
            return answerOf(number, 2, {});
        const uint8_t mode = m_input.byte();
        if (mode == 0xFF)
            return std::string(m_input.text(m_input.byte()));
        std::string variables;
        if (mode & 0x40) {
            variables = m_input.text(m_input.byte());
        } else {
            for (int i = mode & 7; i >= 0; --i)
                variables += variable(m_input);
        }
        return answerOf(number, mode & 0x80 ? m_input.byte() % 20 : 0, variables);
    }

    int m_socket;
    std::string m_place;
    std::mutex m_mutex; // guards what follows
    fuzz::Input m_input{nullptr, 0};
    int m_answersLeft = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const fuzz::Scratch scratch;
    static Printer *const printer = [] {
        bv::prepareSnmpEnvironment();
        return new Printer; // its thread uses it until the program ends
    }();
    printer->setAnswers(data, size);
    // What the printer does not answer in a moment it answers never.
    std::vector<std::string> words = {"snmpwalk",
                                      "-Os",
                                      "-c",
                                      "mirror",
                                      "-v",
                                      "1",
                                      "-r",
                                      "0",
                                      "-t",
                                      "0.02",
                                      printer->place(),
                                      "1.3.6.1.4.1.39847.1.1.1.1.6.13.1.1"};
    std::vector<char *> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string &word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const bv::WalkLimits limits = {.answers = kMostAnswers + 1, .time = std::chrono::milliseconds(500)};
    const int32_t status = bv::walkPrinter(static_cast<int32_t>(words.size()), arguments.data(), limits, nullptr);
    require(status >= 0 && status <= 2);
    require(std::memchr(sDEBUGmsg, '\0', sizeof sDEBUGmsg) != nullptr);
    require(PlistForSpool.count >= 0);
    printer->setAnswers(nullptr, 0);
    return 0;
}
