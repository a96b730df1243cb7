// SPDX-License-Identifier: GPL-2.0-or-later
// The table of PPD choices that have a matching standard attribute.
#include "jobs/StandardAttributes.h"

#include <array>
#include <cstring>

namespace bv {

namespace {

struct Row
{
    const char *option;
    const char *choice; // case does not matter, as in libcups
    const char *attribute;
    const char *value;
};

constexpr char kColor[] = "color";

// clang-format off
constexpr std::array<Row, 5> kRows = {{
    {"BVColorAsGray", "True",  "print-color-mode", "monochrome"},
    {"BVColorAsGray", "False", "print-color-mode", kColor},
    {"ColorModel",    "Gray",  "print-color-mode", "monochrome"},
    {"ColorModel",    "RGB",   "print-color-mode", kColor},
    {"ColorModel",    "CMYK",  "print-color-mode", kColor},
}};
// clang-format on

// Whether the job has this choice. A color choice that is also the PPD's default says nothing: the controls had it from
// the start, and the print server may have a default of its own.
bool isChosen(const JobOptions &options, ppd_file_t *ppd, const Row &row)
{
    const auto found = options.find(QString::fromLatin1(row.option));
    if (found == options.end() || found->second.compare(QLatin1String(row.choice), Qt::CaseInsensitive) != 0)
        return false;
    const ppd_option_t *option = ppd && std::strcmp(row.value, kColor) == 0 ? ppdFindOption(ppd, row.option) : nullptr;
    return !option || qstricmp(option->defchoice, row.choice) != 0;
}

} // namespace

void addStandardAttributes(JobOptions &options, ppd_file_t *ppd)
{
    for (const Row &row : kRows)
        if (isChosen(options, ppd, row))
            options.try_emplace(QString::fromLatin1(row.attribute), QString::fromLatin1(row.value));
}

} // namespace bv
