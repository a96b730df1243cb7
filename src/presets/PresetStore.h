// SPDX-License-Identifier: GPL-2.0-or-later
// The user's presets: one file each, in a folder for each queue.
#pragma once

#include "presets/Preset.h"

#include <QStringList>

namespace bv {

// Names that differ only in case are one name. A file that is no preset is passed over, with a line in the log.
class PresetStore
{
public:
    // The default is "bvprint/presets" in the user's folder of settings, or the folder that BVPRINT_PRESETS names.
    // Folders are made when they are needed.
    explicit PresetStore(QString folder = defaultFolder());
    static QString defaultFolder();

    // In the order of the user's language.
    QStringList names(const QString &queue) const;
    bool contains(const QString &queue, const QString &name) const;
    Result<Preset> load(const QString &queue, const QString &name) const;

    // Each returns a sentence for the user on a failure, and an empty text on success.

    // Replaces a preset of that name.
    QString store(const QString &queue, const Preset &preset) const;
    // There must be no other preset of the new name. The first one only says whether that holds.
    QString renameProblem(const QString &queue, const QString &from, const QString &to) const;
    QString rename(const QString &queue, const QString &from, const QString &to) const;
    QString remove(const QString &queue, const QString &name) const;

    // The name itself, or with a number behind it, and shortened for that, if there is a preset of that name.
    QString freeName(const QString &queue, const QString &name) const;

private:
    struct Stored
    {
        QString path;
        Preset preset;
    };
    std::vector<Stored> all(const QString &queue) const;
    std::optional<Stored> find(const QString &queue, const QString &name) const;

    QString m_folder;
};

} // namespace bv
