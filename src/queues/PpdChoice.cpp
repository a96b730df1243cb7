// SPDX-License-Identifier: GPL-2.0-or-later
// Looks options and choices up.
#include "queues/PpdChoice.h"

#include "queues/PpdFile.h"

#include <algorithm>

namespace bv {

ppd_option_t *findOption(ppd_file_t *ppd, const QString &keyword)
{
    return ppd ? ppdFindOption(ppd, keyword.toUtf8().constData()) : nullptr;
}

QString spelledChoice(ppd_option_t *option, const QString &choice)
{
    const ppd_choice_t *found = option ? ppdFindChoice(option, choice.toUtf8().constData()) : nullptr;
    return found ? QString::fromUtf8(found->choice) : QString();
}

const ppd_option_t *ownerOfCustomEntry(ppd_file_t *ppd, const QString &key)
{
    const std::vector<ppd_option_t *> options = ppdOptions(ppd);
    const auto owner = std::find_if(options.begin(), options.end(), [&key](const ppd_option_t *one) {
        return key.startsWith(QString::fromUtf8(one->keyword) + QStringLiteral("Custom"));
    });
    return owner == options.end() ? nullptr : *owner;
}

} // namespace bv
