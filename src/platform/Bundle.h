// SPDX-License-Identifier: GPL-2.0-or-later
// The plug-in's bundle: its path and its localized strings.
#pragma once

#include "platform/HostProtocol.h"

namespace bv {

class Bundle
{
public:
    // Loads the translation table of the bundle's language. Without a table every text is its key.
    explicit Bundle(PluginBundle where);
    ~Bundle();

    const QString &path() const { return m_where.path; }

    // The localized text of a key, or the key itself when the table has no text for it.
    QString localizedString(const QString &key) const;

private:
    struct Tables;
    PluginBundle m_where;
    std::unique_ptr<Tables> m_tables;
};

} // namespace bv

// The plug-in's bundle. Null until the first initWithBundle sets it; unchanged from then on.
const bv::Bundle *pluginBundle();
// Keeps the bundle if none is kept yet.
void setPluginBundle(const bv::PluginBundle &bundle);
// The localized text of an ASCII key, or the key itself when the bundle has no text for it. A null string without a
// bundle, and for a key that is null or not ASCII.
QString bundleText(const char *key);
// Like bundleText, but returns the key where bundleText returns a null string.
QString localizedString(const char *key);
