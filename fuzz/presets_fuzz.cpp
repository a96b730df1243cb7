// SPDX-License-Identifier: GPL-2.0-or-later
// Takes any bytes for a preset's file, and imports it twice into a folder that has presets, a file that is none, and
// one that carries another name than it holds. What was stored must be loaded again with its name and options, must
// replace no other preset, and nothing may come to be outside the folder. Using it a second time must change nothing.
#include "QtFuzzing.h"
#include "presets/PresetStore.h"
#include "presets/PresetUse.h"
#include "queues/PpdFile.h"
#include "queues/QueueSession.h"
#include "queues/TicketJson.h"

#include <QJsonDocument>

using fuzz::require;

namespace {

const QString kQueue = QStringLiteral("Lab");

QByteArray jsonOf(const bv::PrintDictionary &options)
{
    return QJsonDocument(bv::toJson(options)).toJson(QJsonDocument::Compact);
}

struct Printer
{
    Printer()
    {
        bv::Result<bv::PpdFile> ppd = bv::PpdFile::open(QStringLiteral(BV_SOURCE_DIR "/resources/QL70.ppd"));
        require(bool(ppd));
        session = std::make_unique<bv::QueueSession>(bv::QueueIdentity{kQueue, {}, true}, std::move(ppd.value()));
    }

    std::unique_ptr<bv::QueueSession> session;
};

// All presets of the printer but the one of this name, which must be there once.
std::map<QString, QByteArray> others(const bv::PresetStore &store, const QString &name)
{
    std::map<QString, QByteArray> found;
    int count = 0;
    for (const QString &one : store.names(kQueue)) {
        if (one == name) {
            ++count;
            continue;
        }
        const bv::Result<bv::Preset> preset = store.load(kQueue, one);
        require(preset && preset.value().name == one);
        require(found.emplace(one, presetToJson(preset.value())).second);
    }
    require(count == (name.isEmpty() ? 0 : 1));
    return found;
}

// As the menu does it. Returns the name under which the preset is stored.
QString import(const bv::PresetStore &store, bv::Preset preset)
{
    const std::map<QString, QByteArray> before = others(store, {});
    preset.name = store.freeName(kQueue, preset.name);
    require(!store.contains(kQueue, preset.name));
    require(store.store(kQueue, preset).isEmpty());
    const bv::Result<bv::Preset> loaded = store.load(kQueue, preset.name);
    require(loaded && loaded.value().name == preset.name && loaded.value().printer == preset.printer);
    require(jsonOf(loaded.value().options) == jsonOf(preset.options));
    require(others(store, preset.name) == before);
    return preset.name;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const fuzz::Scratch scratch;
    static const Printer printer;
    const std::filesystem::path presets = scratch.folder() / "presets";
    const std::filesystem::path given = scratch.folder() / "given.json";
    std::filesystem::remove_all(presets);
    std::filesystem::create_directories(presets / "Lab");
    fuzz::writeFile(given, fuzz::textOf(data, size));

    const bv::PresetStore store(QString::fromStdString(presets.string()));
    const bv::Result<bv::Preset> preset = bv::presetFromFile(QString::fromStdString(given.string()));
    if (!preset) {
        require(!preset.error().isEmpty());
        return 0;
    }
    require(bv::presetNameProblem(preset.value().name).isEmpty());
    fuzz::writeFile(presets / "Lab" / "Draft.json", "{");
    require(store.store(kQueue, {QStringLiteral("Proof"), {}, {}}).isEmpty());
    const QString first = import(store, preset.value());
    const QString renamed = store.freeName(kQueue, QStringLiteral("Renamed"));
    require(store.rename(kQueue, first, renamed).isEmpty() && !store.contains(kQueue, first));
    const QString second = import(store, preset.value());
    require(second == first && import(store, preset.value()) != first);
    require(fuzz::contentsOf(presets / "Lab" / "Draft.json") == "{");
    for (const QString &name : {renamed, second})
        require(store.remove(kQueue, name).isEmpty() && !store.contains(kQueue, name));

    for (const auto &entry : std::filesystem::directory_iterator(scratch.folder()))
        require(entry.path() == presets || entry.path() == given);
    for (const auto &entry : std::filesystem::directory_iterator(presets))
        require(entry.path().filename() == "Lab");

    bv::useChoices(*printer.session, nullptr, preset.value().options);
    const bv::PresetOutcome again = bv::useChoices(*printer.session, nullptr, preset.value().options);
    require(again.changed == 0);
    return 0;
}
