// SPDX-License-Identifier: GPL-2.0-or-later
// Looks up localized strings of the plug-in in the translation tables of its resources.
#include "platform/Bundle.h"

#include "platform/Log.h"

#include <QLocale>
#include <QSet>
#include <QTranslator>

#include <algorithm>

// The tables lie in a static library. Without this call the linker would drop them. The macro must stand outside any
// namespace.
static void keepTables()
{
    Q_INIT_RESOURCE(bvco);
}

namespace bv {

struct Bundle::Tables
{
    QTranslator texts;
    QSet<QString> missed; // keys without words; each leaves one line in the log
    bool loaded = false;
};

Bundle::Bundle(PluginBundle where) : m_where(std::move(where)), m_tables(std::make_unique<Tables>())
{
    if (m_where.language.isEmpty())
        return;
    keepTables();
    const QLocale locale(m_where.language);
    m_tables->loaded = m_tables->texts.load(locale, QStringLiteral("bvco"), QStringLiteral("_"),
                                            QStringLiteral(":/bvco/translations")) ||
                       m_tables->texts.load(QStringLiteral(":/bvco/translations/bvco_en.qm"));
}

Bundle::~Bundle() = default;

QString Bundle::localizedString(const QString &key) const
{
    if (!m_tables->loaded)
        return key;
    QString text = m_tables->texts.translate("bvco", key.toUtf8().constData());
    if (!text.isEmpty())
        return text;
    if (!m_tables->missed.contains(key)) {
        m_tables->missed.insert(key);
        diagnosticLine("no words for the text \"" + key.toStdString() + '"');
    }
    return key;
}

} // namespace bv

namespace {

std::unique_ptr<const bv::Bundle> &keptBundle()
{
    static std::unique_ptr<const bv::Bundle> bundle;
    return bundle;
}

} // namespace

const bv::Bundle *pluginBundle()
{
    return keptBundle().get();
}

void setPluginBundle(const bv::PluginBundle &bundle)
{
    if (!keptBundle())
        keptBundle() = std::make_unique<const bv::Bundle>(bundle);
}

QString bundleText(const char *key)
{
    const QString text = QString::fromLatin1(key);
    const bool ascii = std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
    return key && ascii && pluginBundle() ? pluginBundle()->localizedString(text) : QString();
}

QString localizedString(const char *key)
{
    const QString text = bundleText(key);
    return text.isNull() ? QString::fromLatin1(key) : text;
}
