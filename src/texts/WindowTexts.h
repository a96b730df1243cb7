// SPDX-License-Identifier: GPL-2.0-or-later
// The language of the windows: our own texts, Qt's, and the direction of writing.
#pragma once

#include <QString>
#include <QStringList>
#include <memory>

namespace bv {

// While it lives, the application's windows speak the language of a locale. It must be made after the QApplication, end
// before it, and stand before the first window, since widgets ask for their texts once.
class WindowTexts
{
public:
    // `locale` as messageLocale() has it, "de_DE" say. A language that there are no texts for is English.
    explicit WindowTexts(const QString &locale);
    ~WindowTexts();
    WindowTexts(const WindowTexts &) = delete;
    WindowTexts &operator=(const WindowTexts &) = delete;

    // The languages that there are texts for besides English: "ar", "de", "zh_CN" …
    static QStringList languages();

private:
    struct Tables;
    std::unique_ptr<Tables> m_tables;
};

} // namespace bv
