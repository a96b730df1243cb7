// SPDX-License-Identifier: GPL-2.0-or-later
#include "texts/WindowTexts.h"

#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

// The tables lie in a static library. Without this call the linker would drop them. The macro must stand outside any
// namespace.
static void keepTables()
{
    Q_INIT_RESOURCE(bvwindowtexts);
}

namespace {

constexpr char kContext[] = "bvprint";
const QString kFolder = QStringLiteral(":/bvprint/translations");

// Our texts are in one context, whichever class asks for them. Those of Qt's own classes are not ours.
class OneContext : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *meaning, int count) const override
    {
        if (context && *context == 'Q')
            return {};
        return QTranslator::translate(kContext, source, meaning, count);
    }
};

} // namespace

namespace bv {

struct WindowTexts::Tables
{
    QTranslator qt;
    OneContext ours;
};

WindowTexts::WindowTexts(const QString &locale) : m_tables(std::make_unique<Tables>())
{
    keepTables();
    const QLocale wanted(locale);
    if (!m_tables->ours.load(wanted, QString::fromLatin1(kContext), QStringLiteral("_"), kFolder)) {
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        return;
    }
    // Where Qt's translations are not installed, its few texts stay English.
    if (m_tables->qt.load(wanted, QStringLiteral("qtbase"), QStringLiteral("_"),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_tables->qt);
    QCoreApplication::installTranslator(&m_tables->ours);
    QGuiApplication::setLayoutDirection(wanted.textDirection());
}

WindowTexts::~WindowTexts()
{
    QCoreApplication::removeTranslator(&m_tables->ours);
    QCoreApplication::removeTranslator(&m_tables->qt);
}

QStringList WindowTexts::languages()
{
    keepTables();
    QStringList languages = QDir(kFolder).entryList({QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
    for (QString &language : languages)
        language = language.section(u'_', 1).section(u'.', 0, 0);
    return languages;
}

} // namespace bv
