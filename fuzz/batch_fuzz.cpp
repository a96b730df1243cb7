// SPDX-License-Identifier: GPL-2.0-or-later
// Takes any bytes for a batch, and runs it on the built plug-in, without the commands that open windows, write files or
// print. Each line that is a command gets one line of JSON as its answer.
#include "QtFuzzing.h"
#include "batch/BatchRunner.h"
#include "queues/PanelLoader.h"

#include <QJsonDocument>
#include <sys/mman.h>
#include <unistd.h>

using fuzz::require;

namespace {

constexpr int kMostLines = 20;

bool isLeftOut(const QString &command)
{
    return command == u"press" || command == u"choose" || command == u"screenshot" || command == u"print";
}

// A word as a batch names it.
QString quoted(QString word)
{
    return u'"' + word.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\"")) + u'"';
}

void checkWords(const QString &line)
{
    const bv::Result<QStringList> words = bv::batchWords(line);
    if (!words)
        return;
    QStringList again;
    for (const QString &word : words.value())
        again << quoted(word);
    require(bv::batchWords(again.join(u' ')).value() == words.value());
}

// Plug-in, session and panel; made once, since they take their time.
struct World
{
    World()
    {
        fuzz::application();
        require(bool(loader.load(QStringLiteral(BV_PLUGIN), QString())));
        bv::Result<bv::PpdFile> ppd = bv::PpdFile::open(QStringLiteral(BV_SOURCE_DIR "/resources/QL70.ppd"));
        require(bool(ppd));
        session = std::make_unique<bv::QueueSession>(bv::QueueIdentity{QStringLiteral("Lab"), {}, true},
                                                     std::move(ppd.value()));
        commands = std::make_unique<bv::BatchCommands>(*session, loader, nullptr, bv::DocumentArguments(false));
        commands->run({QStringLiteral("panelView"), QString()});
    }

    // Runs the script, and returns what it wrote to standard output.
    std::string answersTo(const std::string &script)
    {
        const int file = memfd_create("batch", MFD_CLOEXEC);
        require(write(file, script.data(), script.size()) == ssize_t(script.size()));
        const int output = memfd_create("answers", MFD_CLOEXEC);
        const int before = dup(STDOUT_FILENO);
        dup2(output, STDOUT_FILENO);
        bv::BatchRunner runner(*commands);
        require(runner.open(QStringLiteral("/proc/self/fd/%1").arg(file)).isEmpty());
        runner.run();
        dup2(before, STDOUT_FILENO);
        std::string answers(size_t(lseek(output, 0, SEEK_END)), '\0');
        require(pread(output, answers.data(), answers.size(), 0) == ssize_t(answers.size()));
        for (const int descriptor : {file, output, before})
            close(descriptor);
        return answers;
    }

    fuzz::Scratch scratch;
    bv::PanelLoader loader;
    std::unique_ptr<bv::QueueSession> session;
    std::unique_ptr<bv::BatchCommands> commands;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static auto *const world = new World;
    std::string script;
    size_t commands = 0;
    for (const std::string_view line : fuzz::split(fuzz::textOf(data, size), '\n')) {
        const QString text = fuzz::wordsOf(line);
        checkWords(text);
        const bv::BatchLine command = bv::splitBatchLine(text);
        if (isLeftOut(command.command) || commands == kMostLines)
            continue;
        script.append(line) += '\n';
        commands += command.command.isEmpty() ? 0 : 1;
    }
    world->session->ticket().clear();
    size_t answers = 0;
    const std::string said = world->answersTo(script);
    for (const std::string_view line : fuzz::split(said, '\n')) {
        if (line.empty())
            continue;
        require(QJsonDocument::fromJson(QByteArray(line.data(), qsizetype(line.size()))).isObject());
        require(std::none_of(line.begin(), line.end(), [](char one) { return one >= 0 && one < ' '; }));
        ++answers;
    }
    require(answers == commands);
    return 0;
}
