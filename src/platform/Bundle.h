// The plug-in's bundle: where it lies, its localised strings and its image files.
#pragma once

#include "platform/HostProtocol.h"

namespace bv {

class Bundle
{
public:
    // Loads the translation table of the bundle's language; without one every text is its key.
    explicit Bundle(PluginBundle where);
    ~Bundle();

    const QString &path() const { return m_where.path; }

    // The localised text of a key, from the default table; a key without a text yields the key itself.
    QString localizedString(const QString &key) const;

private:
    struct Tables;
    PluginBundle m_where;
    std::unique_ptr<Tables> m_tables;
};

} // namespace bv

// The plug-in's bundle, set by the first initWithBundle and kept from then on; null before.
const bv::Bundle *pluginBundle();
// Keeps the bundle if none is kept yet.
void setPluginBundle(const bv::PluginBundle &bundle);
// The localised text of an ASCII key in the plug-in's bundle, the key itself where the bundle has no text for it. A
// null string where no text can be had: without a bundle, and for a key that is null or no ASCII.
QString bundleText(const char *key);
// The same for texts that must show something: the key itself also where no text can be had.
QString localizedString(const char *key);
