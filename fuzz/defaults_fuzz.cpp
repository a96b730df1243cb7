// SPDX-License-Identifier: GPL-2.0-or-later
// Takes any bytes for the user's file of options, reads the defaults of queues from it, and stores others. What belongs
// to other queues must stay as it is, what was stored must be read again, and taking back must restore the file.
#include "QtFuzzing.h"
#include "queues/PpdFile.h"
#include "queues/UserDefaults.h"

#include <QDir>

using fuzz::require;

namespace {

std::string withoutLinesOf(const std::string &text, std::string_view queue)
{
    std::string kept;
    for (const std::string_view line : fuzz::split(text, '\n')) {
        const std::string seen(line.substr(0, line.find('\0')));
        const QByteArray simple = QByteArray::fromStdString(seen).simplified().toLower() + ' ';
        const QByteArray name = QByteArray(queue.data(), qsizetype(queue.size())).toLower() + ' ';
        if (!line.empty() && !simple.startsWith("dest " + name) && !simple.startsWith("default " + name))
            kept.append(line) += '\n';
    }
    return kept;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const fuzz::Scratch scratch;
    static const std::filesystem::path folder = scratch.folder() / ".cups";
    static const bool made = std::filesystem::create_directories(folder);
    require(made);
    static const bv::Result<bv::PpdFile> ppd = bv::PpdFile::open(QStringLiteral(BV_SOURCE_DIR "/resources/QL70.ppd"));
    require(bool(ppd));
    const std::filesystem::path file = folder / "lpoptions";
    const std::string text(fuzz::textOf(data, size));
    fuzz::writeFile(file, text);

    const bv::UserDefaults defaults(QString::fromStdString((scratch.folder() / "replaced").string()));
    for (const QString &instance : defaults.instances(QStringLiteral("Lab")))
        require(defaults.options({QStringLiteral("Lab"), instance}).has_value());
    const bv::QueueInstance lab{QStringLiteral("Lab"), {}};
    const std::optional<bv::UserDefaults::Options> before = defaults.options(lab);
    require(before.has_value());
    bv::ticketFromDefaults(*before, ppd.value().handle());

    const bv::UserDefaults::Options added = {{QStringLiteral("BVQuickColor"), QStringLiteral("Ph o\"t'o\\")}};
    if (const QString problem = defaults.store(lab, added); !problem.isEmpty())
        return 0;
    const std::string stored = fuzz::contentsOf(file);
    require(withoutLinesOf(stored, "Lab") == withoutLinesOf(text, "Lab"));
    const std::optional<bv::UserDefaults::Options> after = defaults.options(lab);
    require(after && after->contains(added.begin()->first) && after->at(added.begin()->first) == added.begin()->second);
    require(defaults.canTakeBack(lab) && defaults.takeBack(lab).isEmpty() && !defaults.canTakeBack(lab));
    require(withoutLinesOf(fuzz::contentsOf(file), "Lab") == withoutLinesOf(text, "Lab"));
    require(defaults.options(lab) == before);
    return 0;
}
