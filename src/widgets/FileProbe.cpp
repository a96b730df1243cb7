// SPDX-License-Identifier: GPL-2.0-or-later
// Looks at the files on a thread that is left behind when it takes too long.
#include "widgets/FileProbe.h"

#include "platform/DetachedThreads.h"

#include <QFileInfo>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>

namespace bv {

namespace {

struct Probe
{
    std::mutex mutex;
    std::condition_variable ended;
    std::vector<FileFacts> facts; // guarded by the mutex
    bool isDone = false;          // guarded by the mutex
};

FileFacts factsOf(const QString &path)
{
    const QFileInfo file(path);
    return {true, file.exists(), file.isDir(), file.isReadable(), file.size()};
}

} // namespace

std::vector<FileFacts> probeFiles(const QStringList &paths)
{
    const auto probe = std::make_shared<Probe>();
    probe->facts.resize(size_t(paths.size()));
    const bool started = startDetached([probe, paths] {
        for (qsizetype i = 0; i < paths.size(); ++i) {
            const FileFacts facts = factsOf(paths[i]);
            const std::lock_guard lock(probe->mutex);
            probe->facts[size_t(i)] = facts;
        }
        const std::lock_guard lock(probe->mutex);
        probe->isDone = true;
        probe->ended.notify_one();
    });
    std::unique_lock lock(probe->mutex);
    if (started)
        probe->ended.wait_for(lock, std::chrono::milliseconds(kProbeMilliseconds), [&probe] { return probe->isDone; });
    return probe->facts;
}

} // namespace bv
