// SPDX-License-Identifier: GPL-2.0-or-later
// Makes every system call of every sequence that writes a file fail in turn, and kills the process at each. Afterwards
// each file is whole, an answer of success is true, and the sequence works again. FAULT_TABLE=FILE tries all classes of
// faults, and writes the counts to the file as a table.
#include "helper/HelperFixture.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

namespace bvtest {

namespace {

enum class When { Always, InFullTable };

struct FaultClass
{
    const char *name;
    const char *meaning;
    When when;
    bool onlyWrites;
    bool ends; // the process
};

// clang-format off
constexpr FaultClass kClasses[] = {
    // name    meaning                               when               writes ends
    {"EIO",    "the device fails",                   When::Always,      false, false},
    {"KILL",   "killed before the call",             When::Always,      false, true },
    {"ENOSPC", "the disk is full",                   When::InFullTable, false, false},
    {"EACCES", "not allowed",                        When::InFullTable, false, false},
    {"EINTR",  "interrupted by a signal",            When::InFullTable, false, false},
    {"SHORT",  "half of a write is written",         When::Always,      true,  false},
    {"TORN",   "half of a write is written, killed", When::Always,      true,  true },
};
// clang-format on

struct Count
{
    int tries = 0;
    int survived = 0;
};

using Row = std::map<std::string, Count>; // by class

std::map<std::string, Row> &table()
{
    static std::map<std::string, Row> rows;
    return rows;
}

const char *tableFile()
{
    return std::getenv("FAULT_TABLE");
}

} // namespace

// One sequence that writes. Each member function is called for each fault anew.
class Sequence
{
public:
    virtual ~Sequence() = default;
    virtual void prepare() = 0;
    // Runs it in one process; true when it said that it succeeded.
    virtual bool act(const RunOptions &options) = 0;
    // The folder whose calls count.
    virtual std::string folder() = 0;
    // What is wrong after it. `succeeded` is its answer.
    virtual std::string wrong(bool succeeded, bool ended) = 0;
    // Whether the same still works, without a fault.
    virtual bool worksAgain() = 0;
};

class FaultTable : public HelperTest, public ::testing::WithParamInterface<const char *>
{
protected:
    std::unique_ptr<Sequence> make(const std::string &name);

    std::string callsOf(Sequence &sequence)
    {
        sequence.prepare();
        RunOptions options = with("each:0:NONE");
        options.environment["FAULT_UNDER"] = sequence.folder();
        options.environment["FAULT_LOG"] = real("/calls");
        EXPECT_TRUE(sequence.act(options));
        std::string calls = contents("/calls").value_or("");
        std::filesystem::remove(real("/calls"));
        return calls;
    }

    std::string triedWith(Sequence &sequence, int call, const FaultClass &fault)
    {
        sequence.prepare();
        RunOptions options = with("each:" + std::to_string(call) + ':' + fault.name);
        options.environment["FAULT_UNDER"] = sequence.folder();
        std::string wrong = sequence.wrong(sequence.act(options), fault.ends);
        if (!wrong.empty())
            return wrong;
        return sequence.worksAgain() ? "" : "does not work again";
    }

    friend class HelperSequence;
    friend class DialogSequence;
};

// A request to the helper, between the list "old" and the list "new".
class HelperSequence : public Sequence
{
public:
    using Arguments = std::vector<std::string>;
    struct Files
    {
        std::optional<std::string> current, previous, unreadable;
        bool operator==(const Files &) const = default;
    };

    HelperSequence(FaultTable &test, Files before, std::vector<Arguments> first, Arguments request, Files after)
        : m_test(test), m_before(std::move(before)), m_first(std::move(first)), m_request(std::move(request)),
          m_after(std::move(after))
    {}

    std::string folder() override { return m_test.folder(); }
    void prepare() override
    {
        std::filesystem::remove_all(folder());
        std::filesystem::create_directories(folder());
        const auto put = [this](const std::string &path, const std::optional<std::string> &text) {
            if (text)
                m_test.put(path, *text);
        };
        put(m_test.current(), m_before.current);
        put(m_test.previous(), m_before.previous);
        for (const Arguments &request : m_first)
            EXPECT_TRUE(m_test.answers(true, request));
    }
    bool act(const RunOptions &options) override
    {
        RunOptions all = options;
        if (m_request[0] == m_test.walkRequest()[0])
            all.environment.merge(m_test.walkSettings().environment);
        const RunResult result = m_test.run(m_request, all);
        return result.output == m_request[0] + "=TRUE\n" || result.output == m_request[0] + "=iRet=1\n";
    }
    std::string wrong(bool succeeded, bool /*ended*/) override
    {
        const Files now = files();
        for (const auto file : {&Files::current, &Files::previous, &Files::unreadable})
            if (now.*file != m_before.*file && now.*file != m_after.*file)
                return "torn";
        // A walk answers with the printer's status, and logs what became of the list.
        if (succeeded && m_request[0] != m_test.walkRequest()[0] && now != m_after)
            return "TRUE without the new list";
        return "";
    }
    bool worksAgain() override
    {
        const std::string next = listText("next", 3);
        return m_test.writeList(next, {}, 3000) &&
               m_test.answers(true, {kSwap, "2", m_test.current(), m_test.previous()}) &&
               m_test.contents(m_test.current()) == next && m_test.contents(m_test.previous()) == next &&
               m_test.names().find(".plist.") == std::string::npos;
    }
    Files files() const
    {
        std::string aside = m_test.current();
        aside.insert(aside.rfind('.'), ".unreadable");
        return {m_test.contents(m_test.current()), m_test.contents(m_test.previous()), m_test.contents(aside)};
    }
    void learnAfter()
    {
        prepare();
        act({});
        m_after = files();
    }

private:
    FaultTable &m_test;
    Files m_before;
    std::vector<Arguments> m_first;
    Arguments m_request;
    Files m_after;
};

// A file of the dialog, written by dialog_writer.
class DialogSequence : public Sequence
{
public:
    // What it writes: "ticket", "defaults" or "job".
    DialogSequence(FaultTable &test, std::string what, bool hasOld)
        : m_test(test), m_what(std::move(what)), m_job(m_what == "job"), m_hasOld(hasOld)
    {}

    std::string folder() override { return m_test.real("/dialog"); }
    void prepare() override
    {
        std::filesystem::remove_all(folder());
        m_test.put("/document", kDocument);
        if (m_hasOld) {
            EXPECT_TRUE(write("old", {}));
        }
    }
    bool act(const RunOptions &options) override { return write("new", options); }
    std::string wrong(bool succeeded, bool ended) override
    {
        if (m_job && succeeded)
            return whole("/dialog/job-1") ? "" : "success without a whole job";
        if (m_job)
            return ended || !std::filesystem::exists(m_test.real("/dialog/job-1")) ? "" : "half of a job stays";
        const bool defaults = m_what == "defaults";
        const std::string now =
            m_test.contents(defaults ? "/dialog/.cups/lpoptions" : "/dialog/QL70.json").value_or("");
        const auto holds = [&](const std::string &text) {
            return defaults ? now == "Dest QL70 Choice=" + text + "\n"
                            : now.find('"' + text + '"') != now.npos && now.ends_with("}\n");
        };
        const bool isNew = holds("new");
        const bool isOld = m_hasOld ? holds("old") : now.empty();
        if (!isNew && !isOld)
            return "torn";
        return succeeded && !isNew ? "success without the new choice" : "";
    }
    bool worksAgain() override
    {
        if (!act({}))
            return false;
        return m_job ? whole("/dialog/job-1") || whole("/dialog/job-2") : wrong(true, false).empty();
    }

private:
    static constexpr char kDocument[] = "%!PS\nshowpage\n";

    bool write(const std::string &text, const RunOptions &options) const
    {
        RunOptions all = options;
        all.program = BV_BUILD_DIR "/tests/dialog_writer";
        return m_test
                   .run(m_job ? HelperSequence::Arguments{"job", m_test.real("/dialog"), m_test.real("/document")}
                              : HelperSequence::Arguments{m_what, m_test.real("/dialog"), text},
                        all)
                   .exitCode == 0;
    }
    bool whole(const std::string &job) const
    {
        return m_test.contents(job + "/1-document") == kDocument &&
               m_test.contents(job + "/options.json").value_or("").ends_with("}\n");
    }

    FaultTable &m_test;
    std::string m_what;
    bool m_job;
    bool m_hasOld;
};

std::unique_ptr<Sequence> FaultTable::make(const std::string &name)
{
    using Arguments = HelperSequence::Arguments;
    using Files = HelperSequence::Files;
    struct Row
    {
        const char *name;
        Files before;
        std::vector<Arguments> first;
        Arguments request;
        Files after;
    };
    const std::string old = listText("old", 3);
    const std::string text = listText("new list", 3);
    const std::vector<Arguments> pieces = {{kPiece, url(), text.substr(0, 3000)}, {kPiece, url(), text.substr(3000)}};
    const Arguments swap = {kSwap, "2", current(), previous()};
    // clang-format off
    const Row rows[] = {
        {"first_piece",      {old, {}, {}},        {},          pieces[0],                            {old, {}, {}}},
        {"later_piece",      {old, {}, {}},        {pieces[0]}, pieces[1],                            {old, {}, {}}},
        {"commit",           {old, {}, {}},        pieces,      {kCommit, url()},                     {text, {}, {}}},
        {"swap",             {text, old, {}},      {},          swap,                                 {text, text, {}}},
        {"swap_back",        {text, old, {}},      {},          {kSwap, "3", current(), previous()},  {old, old, {}}},
        {"unreadable_aside", {"damaged", old, {}}, {},          swap,                                 {"damaged", old, "damaged"}},
        {"removal",          {old, {}, {}},        {},          {kRemove, current()},                 {}},
        {"walk",             {old, {}, {}},        {},          walkRequest(),                        {}},
    };
    // clang-format on
    for (const Row &row : rows) {
        if (row.name != name)
            continue;
        auto sequence = std::make_unique<HelperSequence>(*this, row.before, row.first, row.request, row.after);
        if (name == "walk")
            sequence->learnAfter();
        return sequence;
    }
    const bool hasOld = name != "job" && name != "first_choices";
    return std::make_unique<DialogSequence>(*this, name == "job" || name == "defaults" ? name : "ticket", hasOld);
}

TEST_P(FaultTable, EveryFaultLeavesWholeFiles)
{
    const auto sequence = make(GetParam());
    // A walk writes many pieces, each with the same calls.
    const int step = !tableFile() && GetParam() == std::string("walk") ? 4 : 1;
    const std::string calls = callsOf(*sequence);
    std::istringstream lines(calls);
    int call = 0;
    for (std::string name; std::getline(lines, name);) {
        if (++call % step != 0)
            continue;
        for (const FaultClass &fault : kClasses) {
            if ((fault.when != When::Always && !tableFile()) || (fault.onlyWrites && name != "write"))
                continue;
            const std::string wrong = triedWith(*sequence, call, fault);
            EXPECT_EQ(wrong, "") << fault.name << " at call " << call << ", " << name << ", of\n" << calls;
            Count &count = table()[GetParam()][fault.name];
            ++count.tries;
            count.survived += wrong.empty() ? 1 : 0;
        }
    }
    EXPECT_GT(call, 2) << "the calls are seen";
}

constexpr const char *kSequences[] = {"first_piece",   "later_piece",      "commit",   "swap",
                                      "swap_back",     "unreadable_aside", "removal",  "walk",
                                      "first_choices", "choices",          "defaults", "job"};

INSTANTIATE_TEST_SUITE_P(Sequences, FaultTable, ::testing::ValuesIn(kSequences),
                         [](const auto &info) { return std::string(info.param); });

// Writes the table when all sequences have been tried.
class TableWriter : public ::testing::Environment
{
public:
    void TearDown() override
    {
        if (!tableFile())
            return;
        std::ofstream out(tableFile());
        out << "# Faults\n\n"
               "`tools/fault-table` wrote this page. It makes every system call of every sequence that writes a file "
               "fail "
               "in turn, and\nkills the process at each. A fault is survived when each file is then the whole old or "
               "the "
               "whole new one, an answer of\nsuccess is true, nothing is left that the next run does not clear away, "
               "and "
               "the sequence works again.\n\n| class | what happens | tries | survived |\n|---|---|---|---|\n";
        for (const FaultClass &fault : kClasses) {
            const Count sum = sumOf(fault.name);
            out << "| " << fault.name << " | " << fault.meaning << " | " << sum.tries << " | " << sum.survived
                << " |\n";
        }
        out << "\n| sequence |";
        for (const FaultClass &fault : kClasses)
            out << ' ' << fault.name << " |";
        out << "\n|---|---|---|---|---|---|---|---|\n";
        for (const char *name : kSequences) {
            out << "| " << name << " |";
            for (const FaultClass &fault : kClasses) {
                const Count &count = table()[name][fault.name];
                out << ' ' << count.survived << " of " << count.tries << " |";
            }
            out << '\n';
        }
    }

private:
    static Count sumOf(const char *fault)
    {
        Count sum;
        for (const auto &[name, row] : table()) {
            const auto count = row.find(fault);
            if (count == row.end())
                continue;
            sum.tries += count->second.tries;
            sum.survived += count->second.survived;
        }
        return sum;
    }
};

const auto *const tableWriter = ::testing::AddGlobalTestEnvironment(new TableWriter); // owned by the framework

} // namespace bvtest
