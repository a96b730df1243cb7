// SPDX-License-Identifier: GPL-2.0-or-later
// One running bvpages: its process and its two pipes. Free of Qt.
#pragma once

#include "pages/PageProtocol.h"
#include "platform/FileDescriptor.h"

#include <optional>
#include <string>

namespace bv {

class PageWorker
{
public:
    PageWorker() = default;
    PageWorker(PageWorker &&other) noexcept { *this = std::move(other); }
    PageWorker &operator=(PageWorker &&other) noexcept;
    PageWorker(const PageWorker &) = delete;
    PageWorker &operator=(const PageWorker &) = delete;
    // Ends the process and waits until it is gone, but no longer than a moment: one that hangs in the kernel on a dead
    // disk ends later by itself.
    ~PageWorker() { end(); }

    // Opens the document and starts the program for it. False when the document is not a file that can be read, or when
    // the program does not start; the diagnostic log has the reason.
    bool start(const std::string &program, const std::string &document);
    bool running() const { return m_process >= 0; }
    pid_t process() const { return m_process; }
    void end();

    // Sends a request. False when the process does not take it.
    bool send(const PageRequest &request);
    // Where answers come from. Reading never blocks.
    int answers() const { return m_answers.get(); }

    // Waits for the next answer, at most until `milliseconds` have passed, and reads it without a picture's bytes.
    std::optional<PageAnswer> waitForAnswer(int milliseconds);

private:
    pid_t m_process = -1;
    FileDescriptor m_watch; // becomes readable when the process ends
    FileDescriptor m_requests;
    FileDescriptor m_answers;
};

// The path of bvpages, in a folder beside the one of the running program.
std::string pagesProgram();

// True if the answer is one to this request, with numbers within the limits of the protocol. A worker that reads a
// hostile document may say anything.
bool plausible(const PageAnswer &answer, const PageRequest &request);

} // namespace bv
