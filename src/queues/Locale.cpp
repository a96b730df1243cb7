// Reads the locale variables.
#include "queues/Locale.h"

#include <QtGlobal>

namespace bv {

QString messageLocale()
{
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString value = qEnvironmentVariable(variable);
        if (value.isEmpty())
            continue;
        const QString name = value.section(u'@', 0, 0).section(u'.', 0, 0);
        return name == u"C" || name == u"POSIX" ? QString() : name;
    }
    return {};
}

} // namespace bv
