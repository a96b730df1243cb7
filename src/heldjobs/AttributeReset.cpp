// SPDX-License-Identifier: GPL-2.0-or-later
// The table of standard attributes (RFC 8011, PWG 5100.13).
#include "heldjobs/AttributeReset.h"

#include <array>
#include <cups/cups.h>

namespace bv {

namespace {

using Kind = AttributeReset::Kind;

QString valueOf(const JobOptions &options, const char *keyword)
{
    const auto found = options.find(QString::fromLatin1(keyword));
    return found == options.end() ? QString() : found->second;
}

// The functions below return nothing where the options do not tell.

QString sidesOf(const JobOptions &options)
{
    for (const char *keyword : {"Duplex", "JCLDuplex", "EFDuplex"}) {
        const QString choice = valueOf(options, keyword);
        if (choice.isEmpty())
            continue;
        if (choice.contains(u"NoTumble", Qt::CaseInsensitive))
            return QStringLiteral("two-sided-long-edge");
        return choice.contains(u"Tumble", Qt::CaseInsensitive) ? QStringLiteral("two-sided-short-edge")
                                                               : QStringLiteral("one-sided");
    }
    return {};
}

QString mediaOf(const JobOptions &options)
{
    const pwg_media_t *media = pwgMediaForPPD(valueOf(options, "PageSize").toUtf8().constData());
    return QString::fromUtf8(media ? media->pwg : "");
}

QString resolutionOf(const JobOptions &options)
{
    return valueOf(options, "Resolution");
}

struct Row
{
    const char *attribute;
    const char *neutral; // null: what the function makes of the options
    QString (*meaning)(const JobOptions &options);
};

// clang-format off
constexpr std::array<Row, 12> kRows = {{
    {"copies",                 "1",     nullptr},
    {"page-ranges",            "1-",    nullptr},
    {"number-up",              "1",     nullptr},
    {"print-color-mode",       "color", nullptr}, // gray is among the options
    {"print-quality",          "4",     nullptr}, // normal
    {"print-content-optimize", "auto",  nullptr},
    {"finishings",             "3",     nullptr}, // none
    {"mirror",                 "false", nullptr},
    {"sides",                  nullptr, sidesOf},
    {"media",                  nullptr, mediaOf},
    {"resolution",             nullptr, resolutionOf},
    {"printer-resolution",     nullptr, resolutionOf},
}};
// clang-format on

// Ruled by PPD options, which win over it.
constexpr char kPaperByMeasures[] = "media-col";

} // namespace

AttributeReset resetOf(const QString &attribute, const JobOptions &options)
{
    if (attribute == QLatin1String(kPaperByMeasures))
        return {Kind::Leave, {}};
    for (const Row &row : kRows) {
        if (attribute != QLatin1String(row.attribute))
            continue;
        const QString value = row.neutral ? QString::fromLatin1(row.neutral) : row.meaning(options);
        return {value.isEmpty() ? Kind::Leave : Kind::Set, value};
    }
    return {};
}

} // namespace bv
