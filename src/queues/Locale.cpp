// SPDX-License-Identifier: GPL-2.0-or-later
// Reads the locale variables.
#include "queues/Locale.h"

#include <QtGlobal>

namespace bv {

namespace {

// The locale's name without codeset and modifier; empty when none is set.
QString localeName()
{
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (const QString value = qEnvironmentVariable(variable); !value.isEmpty())
            return value.section(u'@', 0, 0).section(u'.', 0, 0);
    return {};
}

} // namespace

bool isLocaleC()
{
    const QString name = localeName();
    return name == u"C" || name == u"POSIX";
}

QString messageLocale()
{
    const QString name = localeName();
    return name.isEmpty() || isLocaleC() ? QStringLiteral("en") : name;
}

} // namespace bv
