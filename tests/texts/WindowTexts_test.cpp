// SPDX-License-Identifier: GPL-2.0-or-later
// The language of the windows follows the locale, and English stays where there are no texts.
#include "texts/WindowTexts.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <gmock/gmock.h>

namespace {

using ::testing::Contains;

QString words(const char *context, const char *source, const char *meaning = nullptr)
{
    return QCoreApplication::translate(context, source, meaning);
}

TEST(WindowTexts, SpeakEveryLanguageWhoeverAsks)
{
    const QStringList languages = bv::WindowTexts::languages();
    for (const char *language : {"ar", "de", "es", "fr", "ja", "zh_CN"})
        EXPECT_THAT(languages, Contains(QString(language)));
    for (const QString &language : languages) {
        SCOPED_TRACE(language.toStdString());
        const bv::WindowTexts texts(language);
        EXPECT_NE(words("PresetMenu", "As last time"), "As last time");
        EXPECT_EQ(words("bv::Anything", "As last time"), words("PresetMenu", "As last time"));
        EXPECT_EQ(QGuiApplication::layoutDirection(), language == "ar" ? Qt::RightToLeft : Qt::LeftToRight);
    }
    const bv::WindowTexts swiss("de_CH");
    EXPECT_EQ(words("PresetMenu", "As last time"), QString::fromUtf8("Wie beim letzten Mal"));
    EXPECT_EQ(words("QShortcut", "Preset"), "Preset") << "Qt's own texts are not ours";
}

TEST(WindowTexts, AreEnglishInOtherLanguagesAndAtTheEnd)
{
    {
        const bv::WindowTexts arabic("ar");
    }
    EXPECT_EQ(words("PresetMenu", "As last time"), "As last time");
    for (const char *locale : {"en", "en_US", "C", "tlh", ""}) {
        const bv::WindowTexts texts(locale);
        EXPECT_EQ(words("PresetMenu", "As last time"), "As last time") << locale;
        EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight) << locale;
    }
}

} // namespace
