// SPDX-License-Identifier: GPL-2.0-or-later
// Files of presets.
#include "presets/PresetStore.h"

#include "platform/Log.h"
#include "queues/StateFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <algorithm>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("PresetStore", text);
}

QString remedy()
{
    return tr("Check that its folder can be written and that the disk has room.");
}

bool isSameName(const QString &one, const QString &other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

// A file of the preset's name may hold another preset, which was renamed, or what this version cannot read.
QString freePath(const QString &folder, const QString &name)
{
    const QString base = folder + u'/' + safeFileName(name);
    QString path = base + QStringLiteral(".json");
    for (int number = 2; QFileInfo::exists(path) || QFileInfo(path).isSymLink(); ++number)
        path = QStringLiteral("%1+%2.json").arg(base, QString::number(number));
    return path;
}

} // namespace

PresetStore::PresetStore(QString folder) : m_folder(std::move(folder)) {}

QString PresetStore::defaultFolder()
{
    const QString set = qEnvironmentVariable("BVPRINT_PRESETS");
    return QDir::isAbsolutePath(set) ? set : configFolder() + QStringLiteral("/bvprint/presets");
}

std::vector<PresetStore::Stored> PresetStore::all(const QString &queue) const
{
    const QDir folder(m_folder + u'/' + safeFileName(queue));
    std::vector<Stored> found;
    for (const QString &file : folder.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name)) {
        const QString path = folder.filePath(file);
        Result<Preset> preset = presetFromFile(path);
        if (preset)
            found.push_back({path, std::move(preset.value())});
        else
            diagnosticLine(preset.error().toStdString());
    }
    return found;
}

std::optional<PresetStore::Stored> PresetStore::find(const QString &queue, const QString &name) const
{
    for (Stored &stored : all(queue))
        if (isSameName(stored.preset.name, name))
            return std::move(stored);
    return std::nullopt;
}

QStringList PresetStore::names(const QString &queue) const
{
    QStringList names;
    for (const Stored &stored : all(queue))
        names << stored.preset.name;
    std::sort(names.begin(), names.end(),
              [](const QString &one, const QString &other) { return QString::localeAwareCompare(one, other) < 0; });
    return names;
}

bool PresetStore::contains(const QString &queue, const QString &name) const
{
    return find(queue, name).has_value();
}

Result<Preset> PresetStore::load(const QString &queue, const QString &name) const
{
    std::optional<Stored> found = find(queue, name.trimmed());
    return found ? Result<Preset>(std::move(found->preset))
                 : Result<Preset>::failure(tr("There is no preset “%1” for the printer “%2”.").arg(name, queue));
}

QString PresetStore::store(const QString &queue, const Preset &preset) const
{
    if (QString problem = presetNameProblem(preset.name); !problem.isEmpty())
        return problem;
    const std::optional<Stored> old = find(queue, preset.name);
    const QString path = old ? old->path : freePath(m_folder + u'/' + safeFileName(queue), preset.name);
    QString error;
    if (storeFile(path, presetToJson(preset), &error))
        return {};
    return tr("The preset “%1” could not be saved: %2: %3. %4").arg(preset.name, path, error, remedy());
}

QString PresetStore::renameProblem(const QString &queue, const QString &from, const QString &to) const
{
    if (!isSameName(from, to) && contains(queue, to))
        return tr("There is a preset “%1” already. Choose another name, or delete it first.").arg(to);
    return presetNameProblem(to);
}

QString PresetStore::rename(const QString &queue, const QString &from, const QString &to) const
{
    std::optional<Stored> found = find(queue, from);
    if (!found)
        return load(queue, from).error();
    if (QString problem = renameProblem(queue, from, to); !problem.isEmpty())
        return problem;
    // The file keeps its name: the name that counts stands in it, and one write is all or nothing.
    found->preset.name = to;
    QString error;
    if (storeFile(found->path, presetToJson(found->preset), &error))
        return {};
    return tr("The preset “%1” could not be renamed: %2: %3. %4").arg(from, found->path, error, remedy());
}

QString PresetStore::remove(const QString &queue, const QString &name) const
{
    const std::optional<Stored> found = find(queue, name);
    if (!found)
        return load(queue, name).error();
    QFile file(found->path);
    return file.remove() ? QString()
                         : tr("The preset “%1” could not be deleted: %2: %3. %4")
                               .arg(name, found->path, file.errorString(), remedy());
}

QString PresetStore::freeName(const QString &queue, const QString &name) const
{
    QString free = name;
    for (int number = 2; contains(queue, free); ++number) {
        const QString suffix = u' ' + QString::number(number);
        free = name.left(kLongestPresetName - suffix.size());
        if (!free.isEmpty() && free.back().isHighSurrogate())
            free.chop(1);
        free = free.trimmed() + suffix;
    }
    return free;
}

} // namespace bv
