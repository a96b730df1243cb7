// SPDX-License-Identifier: GPL-2.0-or-later
// The table of standard options, and what libcups makes of them.
#include "queues/StandardOptions.h"

#include "queues/PpdFile.h"

#include <algorithm>
#include <cups/cups.h>
#include <span>

namespace bv {

namespace {

constexpr const char *kMarkedByLibcups[] = {
    "media",
    "sides",
    "output-bin",
    "print-color-mode",
    "output-mode",
    "print-quality",
    "print-content-optimize",
    "resolution",
    "printer-resolution",
    "finishing-template",
    "finishings",
    "mirror",
};

constexpr char kPageRegion[] = "PageRegion"; // follows PageSize

QString markedChoice(ppd_file_t *ppd, const ppd_option_t *option)
{
    const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, option->keyword);
    return QString::fromUtf8(marked ? marked->choice : "");
}

// A choice that is not the default one; null when there is none.
const ppd_choice_t *otherChoice(const ppd_option_t *option)
{
    const std::span<const ppd_choice_t> choices(option->choices, size_t(option->num_choices));
    const auto found = std::find_if(choices.begin(), choices.end(), [option](const ppd_choice_t &choice) {
        return qstricmp(choice.choice, option->defchoice) != 0 && qstricmp(choice.choice, "Custom") != 0;
    });
    return found == choices.end() ? nullptr : &*found;
}

} // namespace

bool isStandardOption(const QString &name)
{
    return std::any_of(std::begin(kMarkedByLibcups), std::end(kMarkedByLibcups),
                       [&name](const char *standard) { return name == QLatin1String(standard); });
}

std::map<QString, QString> choicesOfStandardOption(const QString &name, const QString &value, ppd_file_t *ppd)
{
    std::map<QString, QString> choices;
    if (!ppd)
        return choices;
    const std::vector<ppd_option_t *> options = ppdOptions(ppd);
    cups_option_t *list = nullptr;
    const int count = cupsAddOption(name.toUtf8().constData(), value.toUtf8().constData(), 0, &list);
    // A mark that was there before tells nothing. So the options are marked twice, with different choices before.
    for (const bool fromDefaults : {true, false}) {
        ppdMarkDefaults(ppd);
        for (const ppd_option_t *option : options)
            if (const ppd_choice_t *other = fromDefaults ? nullptr : otherChoice(option))
                ppdMarkOption(ppd, option->keyword, other->choice);
        std::map<const ppd_option_t *, QString> before;
        for (const ppd_option_t *option : options)
            before[option] = markedChoice(ppd, option);
        cupsMarkOptions(ppd, count, list);
        for (const ppd_option_t *option : options)
            if (const QString marked = markedChoice(ppd, option);
                !marked.isEmpty() && marked != before[option] && qstrcmp(option->keyword, kPageRegion) != 0)
                choices[QString::fromUtf8(option->keyword)] = marked;
    }
    cupsFreeOptions(count, list);
    ppdMarkDefaults(ppd);
    return choices;
}

} // namespace bv
