// SPDX-License-Identifier: GPL-2.0-or-later
// Each kind of value as lp(1) takes it.
#include "heldjobs/JobAttributes.h"

#include "jobs/PageRange.h"

#include <algorithm>
#include <array>
#include <cups/cups.h>
#include <optional>
#include <string_view>

namespace bv {

namespace {

constexpr std::array<std::string_view, 6> kNoOptionsBegin = {
    "job-", "time-at-", "date-time-at-", "document-", "number-of-", "attributes-",
};
constexpr std::array<std::string_view, 7> kNoOptions = {
    "printer-uri",
    "compression",
    "requesting-user-name",
    "output-device-assigned",
    "ipp-attribute-fidelity",
    "original-requesting-user-name",
    "media-col",
};

bool isOption(std::string_view name)
{
    return std::none_of(kNoOptionsBegin.begin(), kNoOptionsBegin.end(),
                        [name](std::string_view begin) { return name.substr(0, begin.size()) == begin; }) &&
           std::find(kNoOptions.begin(), kNoOptions.end(), name) == kNoOptions.end();
}

QString rangeText(ipp_attribute_t *attribute, int index)
{
    int last = 0;
    const int first = ippGetRange(attribute, index, &last);
    return last == PageRun::kOpenEnd ? QStringLiteral("%1-").arg(first) : QStringLiteral("%1-%2").arg(first).arg(last);
}

QString resolutionText(ipp_attribute_t *attribute, int index)
{
    int down = 0;
    ipp_res_t units = IPP_RES_PER_INCH;
    const int across = ippGetResolution(attribute, index, &down, &units);
    const QString unit = units == IPP_RES_PER_INCH ? QStringLiteral("dpi") : QStringLiteral("dpcm");
    return across == down ? QString::number(across) + unit : QStringLiteral("%1x%2%3").arg(across).arg(down).arg(unit);
}

// Nothing for a kind of value that no option has.
std::optional<QString> valueText(ipp_attribute_t *attribute, int index)
{
    switch (ippGetValueTag(attribute)) {
    case IPP_TAG_INTEGER:
    case IPP_TAG_ENUM:
        return QString::number(ippGetInteger(attribute, index));
    case IPP_TAG_BOOLEAN:
        return ippGetBoolean(attribute, index) ? QStringLiteral("true") : QStringLiteral("false");
    case IPP_TAG_RANGE:
        return rangeText(attribute, index);
    case IPP_TAG_RESOLUTION:
        return resolutionText(attribute, index);
    case IPP_TAG_KEYWORD:
    case IPP_TAG_NAME:
    case IPP_TAG_NAMELANG:
    case IPP_TAG_TEXT:
    case IPP_TAG_TEXTLANG:
        return QString::fromUtf8(ippGetString(attribute, index, nullptr));
    default:
        return std::nullopt;
    }
}

// The name of the paper that media-col describes; empty when it describes none that has a name.
QString paperName(ipp_t *message)
{
    ipp_attribute_t *paper = ippFindAttribute(message, "media-col", IPP_TAG_BEGIN_COLLECTION);
    ipp_attribute_t *size =
        paper ? ippFindAttribute(ippGetCollection(paper, 0), "media-size", IPP_TAG_BEGIN_COLLECTION) : nullptr;
    if (!size)
        return {};
    const int width = numberOf(ippGetCollection(size, 0), "x-dimension", 0);
    const int length = numberOf(ippGetCollection(size, 0), "y-dimension", 0);
    const pwg_media_t *media = width > 0 && length > 0 ? pwgMediaForSize(width, length) : nullptr;
    return QString::fromUtf8(media ? media->pwg : "");
}

} // namespace

QString textOf(ipp_t *message, const char *name)
{
    ipp_attribute_t *attribute = ippFindAttribute(message, name, IPP_TAG_ZERO);
    const char *text = attribute ? ippGetString(attribute, 0, nullptr) : nullptr;
    return QString::fromUtf8(text ? text : "");
}

int numberOf(ipp_t *message, const char *name, int otherwise)
{
    ipp_attribute_t *attribute = ippFindAttribute(message, name, IPP_TAG_ZERO);
    const ipp_tag_t tag = attribute ? ippGetValueTag(attribute) : IPP_TAG_ZERO;
    return tag == IPP_TAG_INTEGER || tag == IPP_TAG_ENUM ? ippGetInteger(attribute, 0) : otherwise;
}

JobAttributes jobAttributes(ipp_t *message)
{
    JobAttributes read;
    for (ipp_attribute_t *one = ippFirstAttribute(message); one; one = ippNextAttribute(message)) {
        const char *name = ippGetName(one);
        if (ippGetGroupTag(one) != IPP_TAG_JOB || !name || !isOption(name))
            continue;
        QStringList values;
        for (int i = 0; i < ippGetCount(one); ++i) {
            if (const std::optional<QString> text = valueText(one, i))
                values << *text;
        }
        if (values.isEmpty())
            continue;
        read.options[QString::fromUtf8(name)] = values.join(u',');
        read.names << QString::fromUtf8(name);
    }
    const QString paper = paperName(message);
    if (!paper.isEmpty() && read.options.count(QStringLiteral("PageSize")) == 0) {
        read.options.try_emplace(QStringLiteral("media"), paper);
        read.names << QStringLiteral("media-col");
    }
    return read;
}

} // namespace bv
