// SPDX-License-Identifier: GPL-2.0-or-later
// The table of PPD choices that have a matching standard attribute.
#include "jobs/StandardAttributes.h"

#include <array>

namespace bv {

namespace {

struct Row
{
    const char *option;
    const char *choice; // case does not matter, as in libcups
    const char *attribute;
    const char *value;
};

// clang-format off
constexpr std::array<Row, 5> kRows = {{
    {"BVColorAsGray", "True",  "print-color-mode", "monochrome"},
    {"BVColorAsGray", "False", "print-color-mode", "color"},
    {"ColorModel",    "Gray",  "print-color-mode", "monochrome"},
    {"ColorModel",    "RGB",   "print-color-mode", "color"},
    {"ColorModel",    "CMYK",  "print-color-mode", "color"},
}};
// clang-format on

QString chosen(const JobOptions &options, ppd_file_t *ppd, const char *keyword)
{
    if (const auto found = options.find(QString::fromLatin1(keyword)); found != options.end())
        return found->second;
    ppd_option_t *option = ppd ? ppdFindOption(ppd, keyword) : nullptr;
    // Ignores a default that is not one of the option's choices.
    return option && ppdFindChoice(option, option->defchoice) ? QString::fromUtf8(option->defchoice) : QString();
}

} // namespace

void addStandardAttributes(JobOptions &options, ppd_file_t *ppd)
{
    for (const Row &row : kRows)
        if (chosen(options, ppd, row.option).compare(QLatin1String(row.choice), Qt::CaseInsensitive) == 0)
            options.try_emplace(QString::fromLatin1(row.attribute), QString::fromLatin1(row.value));
}

} // namespace bv
