// SPDX-License-Identifier: GPL-2.0-or-later
// Presets as JSON.
#include "presets/Preset.h"

#include "queues/InputFile.h"
#include "queues/JobOnlyKeys.h"
#include "queues/TicketJson.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QLocale>
#include <algorithm>

namespace bv {

namespace {

constexpr int kVersion = 1;
constexpr qint64 kLargestFile = 1024LL * 1024; // bytes; real ones have some thousand
const QString kVersionKey = QStringLiteral("bvprintPreset");
const QString kNameKey = QStringLiteral("name");
const QString kPrinterKey = QStringLiteral("printer");
const QString kOptionsKey = QStringLiteral("options");

QString tr(const char *text)
{
    return QCoreApplication::translate("Preset", text);
}

} // namespace

PrintDictionary presetOptions(const PrintDictionary &ticket)
{
    PrintDictionary options;
    for (const auto &[key, value] : ticket.entries)
        if (value.string() || value.integer())
            options.setValue(key, value);
    removeJobOnlyKeys(&options);
    return options;
}

QString presetNameProblem(const QString &name)
{
    if (name.isEmpty())
        return tr("A preset needs a name.");
    if (name.size() > kLongestPresetName)
        return tr("The name of a preset has at most %1 characters.").arg(QLocale().toString(kLongestPresetName));
    if (std::any_of(name.begin(), name.end(), [](QChar one) { return one.category() == QChar::Other_Control; }))
        return tr("The name of a preset is one line of text.");
    return {};
}

QByteArray presetToJson(const Preset &preset)
{
    const QJsonObject object{{kVersionKey, kVersion},
                             {kNameKey, preset.name},
                             {kPrinterKey, preset.printer},
                             {kOptionsKey, toJson(preset.options)}};
    return QJsonDocument(object).toJson();
}

Result<Preset> presetFromJson(const QByteArray &json, const QString &called)
{
    const auto failure = [&called](const QString &reason) {
        return Result<Preset>::failure(tr("%1 cannot be used: %2").arg(called, reason));
    };
    const Result<PrintDictionary> read = ticketFromJson(json);
    if (!read)
        return failure(tr("It is no JSON object, as presets are."));
    const PrintDictionary &entries = read.value();
    const PrintValue version = entries.value(kVersionKey);
    if (!version.integer())
        return failure(tr("It is no preset of this dialog."));
    if (*version.integer() != kVersion)
        return failure(tr("It was made by a newer version of this dialog. Have that installed to use it."));
    const PrintValue name = entries.value(kNameKey);
    const PrintValue printer = entries.value(kPrinterKey);
    const PrintDictionaryRef options = entries.value(kOptionsKey).dictionary();
    if (!name.string() || !options)
        return failure(tr("Its name or its options are missing."));
    Preset preset{name.string()->trimmed(), printer.string() ? *printer.string() : QString(), presetOptions(*options)};
    if (const QString problem = presetNameProblem(preset.name); !problem.isEmpty())
        return failure(problem);
    return preset;
}

Result<Preset> presetFromFile(const QString &path)
{
    const QString called = tr("The preset %1").arg(path);
    const Result<QByteArray> json = readInputFile(path, called, kLargestFile);
    return json ? presetFromJson(json.value(), called) : Result<Preset>::failure(json.error());
}

} // namespace bv
