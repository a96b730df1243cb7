// SPDX-License-Identifier: GPL-2.0-or-later
// Runs the helper as the dialog does, and /bin/true in the same way for comparison. Measures one request that changes
// nothing, and the requests that write a full list (3 x 500 records) against as many runs of /bin/true and one
// fsync(2). Prints medians in microseconds and ratios. Both take turns, so the machine's load affects both alike.
#include "profiles/HelperRequest.h"
#include "profiles/ProfileOperations.h"
#include "profiles/ProfilePaths.h"
#include "support/SampleLists.h"
#include "support/TestRoot.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

constexpr int kAnswerRounds = 301;
constexpr int kWriteRounds = 41;

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

template <typename Work> double microseconds(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

// Runs a program for each request. Counts the requests and measures their time.
class TimedTransport : public bv::HelperTransport
{
public:
    bool available() override { return true; }

    std::optional<std::string> run(std::string_view request, std::span<const std::string> arguments) override
    {
        bv::HelperTransport *self = bv::setHelperTransport(nullptr);
        std::optional<std::string> answer;
        m_spent += microseconds([&] { answer = bv::runHelper(request, arguments); });
        bv::setHelperTransport(self);
        ++m_requests;
        return answer;
    }

    int requests() const { return m_requests; }
    double spent() const { return m_spent; }

private:
    int m_requests = 0;
    double m_spent = 0;
};

// Installs a program instead of the helper.
void install(const std::filesystem::path &program)
{
    const std::filesystem::path path = bv::mapRootPath(kHelperPath);
    std::filesystem::create_directories(path.parent_path());
    std::filesystem::remove(path);
    std::filesystem::create_symlink(program, path);
}

double timeOfTrue(int runs, const std::vector<std::string> &arguments)
{
    install("/bin/true");
    return microseconds([&] {
        for (int i = 0; i < runs; ++i)
            bv::runHelper("bvPListIsAdminProfile_XPC", arguments);
    });
}

double timeOfFlush(const std::string &text)
{
    const std::string path = bv::mapRootPath("/flushed");
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    require(write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size()), "cannot write");
    const double time = microseconds([&] { fsync(file); });
    close(file);
    return time;
}

constexpr std::string_view kQuestion = "bvPListIsAdminProfile_XPC";

void benchAnswer(const std::filesystem::path &helper)
{
    const std::vector<std::string> arguments = {bv::profilePaths().current};
    std::vector<double> own;
    std::vector<double> bare;
    for (int i = 0; i < kAnswerRounds; ++i) {
        install(helper);
        own.push_back(microseconds(
            [&] { require(bv::answerIsTrue(bv::runHelper(kQuestion, arguments), kQuestion), "no answer"); }));
        bare.push_back(timeOfTrue(1, arguments));
    }
    std::printf("one answer        helper %8.0f  /bin/true %8.0f  ratio %.2f\n", median(own), median(bare),
                median(own) / median(bare));
}

void benchWrite(const std::filesystem::path &helper)
{
    const std::vector<std::string> arguments = {bv::profilePaths().current};
    const auto lists = bvtest::makeLists();
    for (ProfileList *list : {&lists->rgb, &lists->sim, &lists->dst})
        bvtest::fill(*list);
    std::vector<double> own;
    std::vector<double> bare;
    int requests = 0;
    for (int i = 0; i < kWriteRounds; ++i) {
        install(helper);
        TimedTransport transport;
        bv::setHelperTransport(&transport);
        require(BVPListWriteProfile_All(&lists->rgb, &lists->sim, &lists->dst) == 0, "not written");
        bv::setHelperTransport(nullptr);
        requests = transport.requests();
        own.push_back(transport.spent());
        bare.push_back(timeOfTrue(requests, arguments) +
                       timeOfFlush(bvtest::TestRoot::readFile(bvtest::TestRoot::listFile())));
    }
    std::printf("full list, %d requests  helper %8.0f  /bin/true and fsync %8.0f  ratio %.2f\n", requests, median(own),
                median(bare), median(own) / median(bare));
}

} // namespace

int main()
{
    const bvtest::TestRoot root;
    const std::filesystem::path helper = BV_BUILD_DIR "/bin/QL70Helper";
    benchAnswer(helper);
    benchWrite(helper);
    return 0;
}
