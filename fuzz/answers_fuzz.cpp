// SPDX-License-Identifier: GPL-2.0-or-later
// Asks a print server that answers with any bytes: for its queues, for a PPD, and to take a job. The input is a row of
// answers; each begins with a byte that says whether it goes out as it is, or as a well-formed answer to the question
// with the next bytes as its attributes. After the last one the server closes every connection.
#include "QtFuzzing.h"
#include "jobs/PrintServerSink.h"
#include "queues/PrintServer.h"

#include <atomic>
#include <cstring>
#include <memory>
#include <mutex>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

using fuzz::require;

namespace {

constexpr int kMostAnswers = 12;
constexpr int kAccepted = 7; // the number of a job that the server took

// One request: its headers, its first bytes. False when the connection ends before.
class Request
{
public:
    explicit Request(int connection) : m_connection(connection) {}

    bool read()
    {
        if (!fill("\r\n\r\n"))
            return false;
        const std::string headers = take(m_bytes.find("\r\n\r\n") + 4);
        if (headers.find("100-continue") != headers.npos &&
            send(m_connection, "HTTP/1.1 100 Continue\r\n\r\n", 25, MSG_NOSIGNAL) != 25)
            return false;
        if (headers.starts_with("GET"))
            return true;
        constexpr std::string_view kLength = "Content-Length: ";
        if (const size_t at = headers.find(kLength); at != headers.npos)
            return readBytes(std::strtoul(headers.c_str() + at + kLength.size(), nullptr, 10), true);
        for (;;) { // chunks
            if (!fill("\r\n"))
                return false;
            const size_t size = std::strtoul(take(m_bytes.find("\r\n") + 2).c_str(), nullptr, 16);
            if (!readBytes(size, true) || !readBytes(2, false))
                return false;
            if (size == 0)
                return true;
        }
    }
    const std::string &body() const { return m_body; }

private:
    bool more()
    {
        char bytes[4096];
        const ssize_t got = recv(m_connection, bytes, sizeof bytes, 0);
        if (got > 0)
            m_bytes.append(bytes, static_cast<size_t>(got));
        return got > 0;
    }
    bool fill(std::string_view mark)
    {
        while (m_bytes.find(mark) == m_bytes.npos)
            if (!more())
                return false;
        return true;
    }
    std::string take(size_t count)
    {
        std::string taken = m_bytes.substr(0, count);
        m_bytes.erase(0, count);
        return taken;
    }
    bool readBytes(size_t count, bool keep)
    {
        while (m_bytes.size() < count)
            if (!more())
                return false;
        const std::string taken = take(count);
        if (keep)
            m_body += taken;
        return true;
    }

    int m_connection;
    std::string m_bytes;
    std::string m_body;
};

class Server
{
public:
    explicit Server(const std::filesystem::path &place) : m_socket(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        require(place.string().size() < sizeof address.sun_path);
        place.string().copy(address.sun_path, sizeof address.sun_path - 1);
        require(bind(m_socket, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0);
        require(listen(m_socket, 16) == 0);
        setenv("CUPS_SERVER", place.c_str(), 1);
        std::thread([this] { serve(); }).detach();
    }

    void setAnswers(std::string_view bytes)
    {
        const std::lock_guard lock(m_mutex);
        m_input = fuzz::Input(reinterpret_cast<const uint8_t *>(bytes.data()), bytes.size());
        m_answersLeft = kMostAnswers;
    }

private:
    void serve()
    {
        for (;;) {
            const int connection = accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC);
            if (connection < 0)
                continue;
            bool goesOn = true;
            while (goesOn) {
                Request request(connection);
                goesOn = request.read();
                const std::string said = goesOn ? next(request.body(), &goesOn) : std::string();
                send(connection, said.data(), said.size(), MSG_NOSIGNAL);
            }
            close(connection);
        }
    }

    std::string next(const std::string &question, bool *goesOn)
    {
        const std::lock_guard lock(m_mutex);
        *goesOn = false;
        if (m_input.atEnd() || m_answersLeft-- <= 0)
            return {};
        const uint8_t mode = m_input.byte();
        const size_t length = static_cast<size_t>(m_input.byte() << 8) | m_input.byte();
        if (mode == 0xFF)
            return std::string(m_input.text(length));
        std::string body;
        if (mode & 0x40) { // a file
            body = m_input.text(length);
        } else {
            body = std::string("\x02\x00", 2) + (mode & 0x20 ? '\x04' : '\0') + static_cast<char>(mode & 0x0F);
            body += question.size() >= 8 ? question.substr(4, 4) : std::string(4, '\0');
            if (mode & 0x10)
                body += std::string("\x02\x21\x00\x06job-id\x00\x04\x00\x00\x00", 15) + static_cast<char>(kAccepted);
            body.append(m_input.text(length)) += '\x03';
        }
        *goesOn = (mode & 0x80) == 0;
        return "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: " + std::to_string(body.size()) +
               "\r\n\r\n" + body;
    }

    int m_socket;
    std::mutex m_mutex; // guards what follows
    fuzz::Input m_input{nullptr, 0};
    int m_answersLeft = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const fuzz::Scratch scratch;
    static auto *const server = new Server(scratch.folder() / "server"); // its thread goes on to the end
    static const QString document = [] {
        const std::filesystem::path path = scratch.folder() / "document.txt";
        fuzz::writeFile(path, "A document.\n");
        return QString::fromStdString(path.string());
    }();
    fuzz::Input input(data, size);
    const uint8_t question = input.byte();
    server->setAnswers(input.rest());
    bv::CallControl control(std::chrono::milliseconds(3000));
    switch (question % 4) {
    case 0:
        if (const auto queues = bv::PrintServer::queues(control)) {
            for (const bv::PrintQueue &queue : queues.value())
                require(!queue.name.isEmpty());
        } else {
            require(!queues.error().isEmpty());
        }
        break;
    case 1:
        if (const auto queue = bv::PrintServer::queue(QStringLiteral("Lab"), control))
            require(queue.value().name == u"Lab");
        break;
    case 2:
        if (const auto ppd = bv::PrintServer::ppd(QStringLiteral("Lab"), control))
            require(ppd.value().text.size() <= bv::PpdText::kMost);
        break;
    case 3: {
        const bv::JobRequest job = {QStringLiteral("Lab"), QStringLiteral("Title"), {document}, {}};
        const auto sent = bv::PrintServerSink().submit(job, control);
        require(sent ? sent.value().id.has_value() : !sent.error().isEmpty());
        break;
    }
    }
    server->setAnswers({});
    return 0;
}
