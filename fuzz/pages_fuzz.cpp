// SPDX-License-Identifier: GPL-2.0-or-later
// Both sides of what bvprint and bvpages say to each other, with any bytes from the other one. The first byte chooses:
// requests to a server of pages, whose document is text or a reader that says any numbers; or an answer to a request,
// which bvprint takes or does not.
#include "QtFuzzing.h"
#include "pages/DocumentKind.h"
#include "pages/PageServer.h"
#include "pages/PageWorker.h"
#include "pages/TextReader.h"
#include "preview/PagePlace.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <sys/mman.h>
#include <unistd.h>

using fuzz::require;

namespace {

constexpr uint32_t kMostDrawn = 10'000; // pixels; most of the time goes into clearing and copying them
constexpr size_t kMostRequests = 8;

int fileOf(std::string_view bytes)
{
    const int file = memfd_create("bytes", MFD_CLOEXEC);
    require(write(file, bytes.data(), bytes.size()) == ssize_t(bytes.size()) && lseek(file, 0, SEEK_SET) == 0);
    return file;
}

// A reader of a hostile document: whatever number the bytes hold.
class OddReader final : public bv::PageReader
{
public:
    explicit OddReader(fuzz::Input &input) : m_input(input) {}
    bv::PageContent content() const override { return static_cast<bv::PageContent>(m_input.byte() % 4); }
    bv::PageVerdict layOut(const bv::Sheet &) override { return static_cast<bv::PageVerdict>(m_input.byte() % 3); }
    int64_t pageCount() const override { return number(); }
    QSizeF pageSize(int) override { return {length(), length()}; }
    QImage render(int, QSize pixels) override
    {
        const QSize odd(m_input.byte(), m_input.byte());
        QImage image(m_input.byte() & 1 ? odd : pixels, QImage::Format_ARGB32);
        image.fill(Qt::red);
        return image;
    }

private:
    int64_t number() const
    {
        int64_t value = 0;
        const std::string_view bytes = m_input.text(m_input.byte() % 9);
        std::memcpy(&value, bytes.data(), bytes.size());
        return value;
    }
    double length() const
    {
        constexpr double kOdd[] = {0,
                                   -1,
                                   1e-300,
                                   1e300,
                                   std::numeric_limits<double>::infinity(),
                                   std::numeric_limits<double>::quiet_NaN(),
                                   595,
                                   400000};
        const uint8_t which = m_input.byte();
        return which < std::size(kOdd) ? kOdd[which] : double(number());
    }

    fuzz::Input &m_input;
};

bv::PageRequest requestOf(fuzz::Input &input)
{
    bv::PageRequest request;
    const std::string_view bytes = input.text(sizeof request);
    std::memcpy(&request, bytes.data(), bytes.size());
    return request;
}

// Requests that begin as they must, the other bytes as they come.
std::vector<bv::PageRequest> requestsOf(fuzz::Input &input)
{
    std::vector<bv::PageRequest> requests;
    for (size_t count = input.byte() % kMostRequests + 1; requests.size() < count;) {
        bv::PageRequest request = requestOf(input);
        if (uint64_t{request.width} * request.height <= bv::kMostPixels && request.task == bv::PageTask::Render)
            while (uint64_t{request.width} * request.height > kMostDrawn)
                (request.width > request.height ? request.width : request.height) /= 2;
        request.order = input.byte() == 1 ? request.order : bv::kPageOrder;
        requests.push_back(request);
    }
    return requests;
}

void serve(fuzz::Input &input, bool asText)
{
    const std::vector<bv::PageRequest> requests = requestsOf(input);
    const int in = fileOf({reinterpret_cast<const char *>(requests.data()), requests.size() * sizeof requests[0]});
    const int out = memfd_create("answers", MFD_CLOEXEC);
    const int document = fileOf(asText ? input.rest() : std::string_view());
    std::unique_ptr<bv::PageReader> reader;
    if (asText)
        reader = std::make_unique<bv::TextReader>(document);
    else
        reader = std::make_unique<OddReader>(input);
    bv::PageServer(std::move(reader), in, out).serve();

    // What it wrote must be answers that bvprint takes.
    std::string said(size_t(lseek(out, 0, SEEK_END)), '\0');
    require(pread(out, said.data(), said.size(), 0) == ssize_t(said.size()));
    size_t at = 0;
    for (const bv::PageRequest &request : requests) {
        if (at == said.size())
            break;
        bv::PageAnswer answer;
        require(said.size() - at >= sizeof answer);
        std::memcpy(&answer, said.data() + at, sizeof answer);
        require(bv::plausible(answer, request));
        at += sizeof answer + answer.bytes;
        require(at <= said.size());
    }
    require(at == said.size());
    for (const int descriptor : {in, out, document})
        close(descriptor);
}

void take(fuzz::Input &input)
{
    const bv::PageRequest request = requestOf(input);
    bv::PageAnswer answer;
    const std::string_view bytes = input.text(sizeof answer);
    std::memcpy(&answer, bytes.data(), bytes.size());
    answer.order = bv::kPageOrder;
    answer.task = request.task;
    answer.page = request.page;
    if (!bv::plausible(answer, request) || answer.verdict != bv::PageVerdict::Done)
        return;
    if (answer.task == bv::PageTask::Render)
        require(answer.bytes == uint64_t{request.width} * request.height * (request.gray ? 1 : 4));
    if (answer.task != bv::PageTask::Measure)
        return;
    const bv::Sheet sheet = {{double(request.width) / 100, double(request.height) / 100}, {}};
    const QSizeF size = QSizeF(answer.width, answer.height) / bv::kUnitsPerPoint;
    const QSizeF largest(input.byte() * 1000.0, input.byte() * 1000.0);
    const bv::PagePlace place = bv::placePage(sheet, answer.content, size, largest);
    for (const double side : {place.page.width(), place.page.height(), place.sheet.width(), place.sheet.height()})
        require(std::isfinite(side));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::application();
    fuzz::Input input(data, size);
    const uint8_t side = input.byte();
    if (side % 3 == 0)
        serve(input, true);
    else if (side % 3 == 1)
        serve(input, false);
    else
        take(input);
    require(bv::documentContent(fuzz::textOf(data, size)) <= bv::PageContent::Text);
    return 0;
}
