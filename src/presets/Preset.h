// SPDX-License-Identifier: GPL-2.0-or-later
// A preset: choices under a name, and the file that carries it (docs/presets.md).
#pragma once

#include "platform/PrintValue.h"
#include "platform/Result.h"

#include <QByteArray>

namespace bv {

struct Preset
{
    QString name;
    QString printer;         // the model that the choices were made for; only for people who read the file
    PrintDictionary options; // texts and whole numbers only, none that belongs to one job
};

inline constexpr qsizetype kLongestPresetName = 60; // characters

// The entries of a ticket that a preset keeps: texts and whole numbers, without copies and page range.
PrintDictionary presetOptions(const PrintDictionary &ticket);

// A sentence for the user if this cannot be a preset's name; else empty. Blanks around a name must be trimmed before.
QString presetNameProblem(const QString &name);

QByteArray presetToJson(const Preset &preset);
// The sentence of a failure begins with `called`, as in "The preset /home/me/draft.json". What a preset must not hold
// (copies, page range) is left out.
Result<Preset> presetFromJson(const QByteArray &json, const QString &called);
Result<Preset> presetFromFile(const QString &path);

} // namespace bv
