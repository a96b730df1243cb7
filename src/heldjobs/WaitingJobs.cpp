// SPDX-License-Identifier: GPL-2.0-or-later
// Lists jobs (RFC 8011, Get-Jobs).
#include "heldjobs/WaitingJobs.h"

#include "heldjobs/HeldJob.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <string_view>

namespace bv {

namespace {

using Jobs = Result<std::vector<WaitingJob>>;

// What the answer says of one job.
struct ListedJob
{
    WaitingJob job;
    bool isHeld = false;
    bool isIndefinite = false;
    bool isWhole = true;
    bool isOwn = false;

    bool isWaiting() const { return job.id > 0 && isHeld && isIndefinite && isWhole && isOwn; }
};

struct Row
{
    const char *name;
    ipp_tag_t tag; // of the value, without its language
    void (*take)(ListedJob &job, ipp_attribute_t *value);
};

QString text(ipp_attribute_t *value)
{
    return QString::fromUtf8(ippGetString(value, 0, nullptr));
}

// clang-format off
constexpr std::array<Row, 6> kRows = {{
    {"job-id",                    IPP_TAG_INTEGER, [](ListedJob &job, ipp_attribute_t *value) { job.job.id = ippGetInteger(value, 0); }},
    {"time-at-creation",          IPP_TAG_INTEGER, [](ListedJob &job, ipp_attribute_t *value) { job.job.created = ippGetInteger(value, 0); }},
    {"job-state",                 IPP_TAG_ENUM,    [](ListedJob &job, ipp_attribute_t *value) { job.isHeld = ippGetInteger(value, 0) == IPP_JSTATE_HELD; }},
    {"job-state-reasons",         IPP_TAG_KEYWORD, [](ListedJob &job, ipp_attribute_t *value) { job.isWhole = !isIncomplete(value); }},
    {"job-hold-until",            IPP_TAG_KEYWORD, [](ListedJob &job, ipp_attribute_t *value) { job.isIndefinite = text(value) == u"indefinite"; }},
    {"job-originating-user-name", IPP_TAG_NAME,    [](ListedJob &job, ipp_attribute_t *value) { job.isOwn = isOwnJob(text(value)); }},
}};
// clang-format on

ipp_tag_t plainTag(ipp_attribute_t *value)
{
    const ipp_tag_t tag = ippGetValueTag(value);
    return tag == IPP_TAG_NAMELANG ? IPP_TAG_NAME : tag;
}

std::vector<WaitingJob> jobsOf(ipp_t *message)
{
    std::vector<WaitingJob> jobs;
    ListedJob job;
    const auto endJob = [&] {
        if (job.isWaiting())
            jobs.push_back(job.job);
        job = ListedJob();
    };
    for (ipp_attribute_t *one = ippFirstAttribute(message); one; one = ippNextAttribute(message)) {
        const char *name = ippGetName(one);
        if (ippGetGroupTag(one) != IPP_TAG_JOB || !name) {
            endJob();
            continue;
        }
        for (const Row &row : kRows)
            if (std::string_view(row.name) == name && row.tag == plainTag(one))
                row.take(job, one);
    }
    endJob();
    std::sort(jobs.begin(), jobs.end());
    return jobs;
}

} // namespace

Jobs waitingJobs(CallControl &control)
{
    Result<ServerConnection> server = ServerConnection::open(control);
    if (!server)
        return Jobs::failure(server.error());
    const IppMessage request(ippNewRequest(IPP_OP_GET_JOBS));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, "ipp://localhost/");
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "my-jobs", 1);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr, "not-completed");
    std::array<const char *, kRows.size()> names;
    std::transform(kRows.begin(), kRows.end(), names.begin(), [](const Row &row) { return row.name; });
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", int(names.size()), nullptr,
                  names.data());
    const ServerAnswer answer = server.value().ask(request);
    if (!answer.message)
        return Jobs::failure(answer.problem);
    // A server without any queue says "not found".
    if (answer.status() == IPP_STATUS_ERROR_NOT_FOUND)
        return std::vector<WaitingJob>();
    if (answer.isRefusal())
        return Jobs::failure(QCoreApplication::translate("WaitingJobs", "The print server does not tell its jobs: %1.")
                                 .arg(answer.words()));
    return jobsOf(answer.message.get());
}

} // namespace bv
