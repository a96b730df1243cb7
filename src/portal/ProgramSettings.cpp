// SPDX-License-Identifier: GPL-2.0-or-later
// The tables of settings and their translation.
#include "portal/ProgramSettings.h"

#include "jobs/JobAttributes.h"
#include "jobs/PageRange.h"
#include "queues/JobOnlyKeys.h"
#include "queues/PpdChoice.h"
#include "queues/UserDefaults.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <cmath>
#include <cups/pwg.h>

namespace bv {

namespace {

constexpr int kMostCopies = 999;
constexpr double kPointsPerMillimeter = 72.0 / 25.4;
constexpr double kSamePaper = 1.0; // millimeters that a program's paper may differ from the PPD's

constexpr QLatin1String kCupsPrefix("cups-");

// Settings whose value is the PPD's choice.
struct PlainRow
{
    const char *setting;
    const char *option;
};
constexpr std::array<PlainRow, 3> kPlainRows = {{
    {"default-source", "InputSlot"},
    {"media-type", "MediaType"},
    {"output-bin", "OutputBin"},
}};

// clang-format off
constexpr std::array<std::array<const char *, 2>, 3> kDuplex = {{
    {"simplex",    "None"},
    {"horizontal", "DuplexNoTumble"},
    {"vertical",   "DuplexTumble"},
}};
// clang-format on

// Settings that a program applies to its pages, and that this dialog does not show.
constexpr std::array<const char *, 6> kNotOffered = {"page-ranges", "page-set",         "number-up",
                                                     "scale",       "number-up-layout", "reverse"};

constexpr char kGray[] = "monochrome";
constexpr char kColorMode[] = "print-color-mode";

QString text(const QVariantMap &map, const char *key)
{
    return map.value(QLatin1String(key)).toString();
}

QString option(const JobOptions &options, const char *keyword)
{
    const auto found = options.find(QLatin1String(keyword));
    return found == options.end() ? QString() : found->second;
}

// Puts a choice that the PPD has among the others.
void choose(PrintDictionary &choices, ppd_option_t *option, const QString &choice)
{
    if (const QString spelled = spelledChoice(option, choice); !spelled.isEmpty())
        choices.setValue(QString::fromUtf8(option->keyword), PrintValue(spelled));
}

bool isJobOption(const QString &keyword)
{
    const JobAttribute *attribute = findJobAttribute(keyword);
    return attribute && attribute->forPrograms;
}

void choose(PrintDictionary &choices, ppd_file_t *ppd, const char *keyword, const QString &choice)
{
    choose(choices, findOption(ppd, QLatin1String(keyword)), choice);
}

void chooseOptions(PrintDictionary &choices, const QVariantMap &settings, ppd_file_t *ppd)
{
    for (auto setting = settings.begin(); setting != settings.end(); ++setting) {
        if (!setting.key().startsWith(kCupsPrefix))
            continue;
        const QString keyword = setting.key().mid(kCupsPrefix.size());
        const QString value = setting.value().toString();
        if (ppd_option_t *option = findOption(ppd, keyword))
            choose(choices, option, value);
        else if (isJobOption(keyword) || ownerOfCustomEntry(ppd, keyword))
            choices.setValue(keyword, PrintValue(value));
    }
}

// "1200" and "1200x600" as PPDs write them.
void chooseResolution(PrintDictionary &choices, const QString &resolution, ppd_file_t *ppd)
{
    for (const QString &form : {QStringLiteral("%1dpi"), QStringLiteral("%1x%1dpi")})
        choose(choices, ppd, "Resolution", form.arg(resolution));
}

// The option that makes the PPD's jobs gray, so that the dialog shows it and it can be turned off there. A PPD without
// one gets the job option.
void chooseGray(PrintDictionary &choices, const QVariantMap &settings, ppd_file_t *ppd)
{
    if (!ppd ||
        (text(settings, "use-color") != u"false" && text(settings, "cups-print-color-mode") != QLatin1String(kGray)))
        return;
    const QString mode = QString::fromLatin1(kColorMode);
    const UserDefaults::Options gray{{mode, QString::fromLatin1(kGray)}};
    const PrintDictionary marked = ticketFromDefaults(gray, ppd);
    for (const auto &[key, value] : marked.entries)
        choices.setValue(key, value);
    if (marked.entries.empty())
        choices.setValue(mode, PrintValue(kGray));
}

QString resolutionOf(const JobOptions &options)
{
    static const QRegularExpression kDpi(QStringLiteral("^(\\d+)(?:x\\1)?dpi$"));
    return kDpi.match(option(options, "Resolution")).captured(1);
}

// The PPD's size of this paper in millimeters, or null.
const ppd_size_t *sizeOf(ppd_file_t *ppd, double width, double height)
{
    for (int i = 0; ppd && i < ppd->num_sizes; ++i) {
        const ppd_size_t &size = ppd->sizes[i];
        if (std::abs(size.width / kPointsPerMillimeter - width) < kSamePaper &&
            std::abs(size.length / kPointsPerMillimeter - height) < kSamePaper && qstrcmp(size.name, "Custom") != 0)
            return &size;
    }
    return nullptr;
}

void choosePaper(PrintDictionary &choices, const QVariantMap &settings, const QVariantMap &pageSetup, ppd_file_t *ppd)
{
    const ppd_size_t *size = sizeOf(ppd, pageSetup.value(QStringLiteral("Width")).toDouble(),
                                    pageSetup.value(QStringLiteral("Height")).toDouble());
    if (!size)
        size = sizeOf(ppd, text(settings, "paper-width").toDouble(), text(settings, "paper-height").toDouble());
    if (!size)
        return;
    // Two sizes of a PPD may differ in their margins only.
    const QString named = text(pageSetup, "PPDName");
    const ppd_size_t *other = ppdPageSize(ppd, named.toUtf8().constData());
    const bool isSame = !named.isEmpty() && other && other->width == size->width && other->length == size->length;
    choose(choices, ppd, "PageSize", isSame ? named : QString::fromUtf8(size->name));
}

// Pages are counted from 0 there and from 1 here.
QString pageRangeOf(const QVariantMap &settings)
{
    static const QRegularExpression kRun(QStringLiteral("^(\\d{1,6})(?:-(\\d{1,6}))?$"));
    if (text(settings, "print-pages") != u"ranges")
        return {};
    QStringList runs;
    for (const QString &part : text(settings, "page-ranges").split(u',')) {
        const QRegularExpressionMatch run = kRun.match(part.trimmed());
        if (!run.hasMatch())
            return {};
        const int first = run.captured(1).toInt() + 1;
        const int last = run.captured(2).isEmpty() ? first : run.captured(2).toInt() + 1;
        runs << (last == first ? QString::number(first) : QStringLiteral("%1-%2").arg(first).arg(last));
    }
    const PageRange range = parsePageRange(runs.join(u','));
    return range.isValid() ? range.toOption() : QString();
}

const ppd_size_t *chosenSize(const JobOptions &options, ppd_file_t *ppd)
{
    const QByteArray name = option(options, "PageSize").toUtf8();
    return ppd && !name.isEmpty() ? ppdPageSize(ppd, name.constData()) : nullptr;
}

// "iso_a4" of "iso_a4_210x297mm".
QString paperName(const ppd_size_t &size)
{
    const pwg_media_t *media = pwgMediaForPPD(size.name);
    const QString name = QString::fromUtf8(media && media->pwg ? media->pwg : size.name);
    return name.count(u'_') > 1 ? name.section(u'_', 0, -2) : name;
}

void setPaper(QVariantMap &settings, const ppd_size_t &size)
{
    settings.insert(QStringLiteral("paper-format"), paperName(size));
    settings.insert(QStringLiteral("paper-width"), QString::number(size.width / kPointsPerMillimeter, 'f', 2));
    settings.insert(QStringLiteral("paper-height"), QString::number(size.length / kPointsPerMillimeter, 'f', 2));
}

} // namespace

DialogCaller callerFrom(const QVariantMap &settings, const QVariantMap &pageSetup, ppd_file_t *ppd)
{
    DialogCaller caller;
    chooseOptions(caller.choices, settings, ppd);
    for (const PlainRow &row : kPlainRows)
        choose(caller.choices, ppd, row.option, text(settings, row.setting));
    for (const auto &row : kDuplex)
        if (text(settings, "duplex") == QLatin1String(row[0]))
            choose(caller.choices, ppd, "Duplex", QLatin1String(row[1]));
    chooseResolution(caller.choices, text(settings, "resolution"), ppd);
    chooseGray(caller.choices, settings, ppd);
    choosePaper(caller.choices, settings, pageSetup, ppd);
    if (const QString collate = text(settings, "collate"); collate == u"true" || collate == u"false")
        caller.choices.setValue(QStringLiteral("Collate"), PrintValue(collate));
    caller.copies = std::clamp(text(settings, "n-copies").toInt(), 1, kMostCopies);
    caller.pageRange = pageRangeOf(settings);
    return caller;
}

QVariantMap settingsFor(const QVariantMap &before, const QString &queue, const JobOptions &options, ppd_file_t *ppd)
{
    QVariantMap settings = before;
    settings.removeIf([](const auto &entry) { return entry.key().startsWith(kCupsPrefix); });
    for (const char *key : kNotOffered)
        settings.remove(QLatin1String(key));
    for (const auto &[keyword, value] : options)
        if (keyword != QLatin1String(kCopiesKey) && keyword != QLatin1String(kPageRangesKey))
            settings.insert(kCupsPrefix + keyword, value);
    settings.insert(QStringLiteral("printer"), queue);
    settings.insert(QStringLiteral("n-copies"), QStringLiteral("1"));
    settings.insert(QStringLiteral("print-pages"), QStringLiteral("all"));
    for (const PlainRow &row : kPlainRows)
        if (const QString choice = option(options, row.option); !choice.isEmpty())
            settings.insert(QLatin1String(row.setting), choice);
    for (const auto &row : kDuplex)
        if (option(options, "Duplex") == QLatin1String(row[1]))
            settings.insert(QStringLiteral("duplex"), QLatin1String(row[0]));
    if (const QString resolution = resolutionOf(options); !resolution.isEmpty())
        settings.insert(QStringLiteral("resolution"), resolution);
    settings.insert(QStringLiteral("use-color"), option(options, kColorMode) == QLatin1String(kGray)
                                                     ? QStringLiteral("false")
                                                     : QStringLiteral("true"));
    if (const ppd_size_t *size = chosenSize(options, ppd))
        setPaper(settings, *size);
    return settings;
}

QVariantMap pageSetupFor(const QVariantMap &before, const JobOptions &options, ppd_file_t *ppd)
{
    const ppd_size_t *size = chosenSize(options, ppd);
    if (!size)
        return before;
    const double width = size->width / kPointsPerMillimeter;
    const double height = size->length / kPointsPerMillimeter;
    if (std::abs(before.value(QStringLiteral("Width")).toDouble() - width) < kSamePaper &&
        std::abs(before.value(QStringLiteral("Height")).toDouble() - height) < kSamePaper)
        return before;
    ppd_option_t *papers = ppdFindOption(ppd, "PageSize");
    const ppd_choice_t *paper = papers ? ppdFindChoice(papers, size->name) : nullptr;
    QVariantMap setup = before;
    setup.insert(QStringLiteral("PPDName"), QString::fromUtf8(size->name));
    setup.insert(QStringLiteral("Name"), paperName(*size));
    setup.insert(QStringLiteral("DisplayName"), QString::fromUtf8(paper ? paper->text : size->name));
    setup.insert(QStringLiteral("Width"), width);
    setup.insert(QStringLiteral("Height"), height);
    setup.insert(QStringLiteral("MarginLeft"), size->left / kPointsPerMillimeter);
    setup.insert(QStringLiteral("MarginRight"), (size->width - size->right) / kPointsPerMillimeter);
    setup.insert(QStringLiteral("MarginTop"), (size->length - size->top) / kPointsPerMillimeter);
    setup.insert(QStringLiteral("MarginBottom"), size->bottom / kPointsPerMillimeter);
    return setup;
}

} // namespace bv
