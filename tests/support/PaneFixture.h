// SPDX-License-Identifier: GPL-2.0-or-later
// The environment of a pane in a test: a PPD (from text or the project's own), a ticket, a session, and the dialog's
// callback.
#pragma once

#include "platform/HostProtocol.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace bvtest {

// An open PPD with its defaults marked. It is not localized.
class TestPpd
{
public:
    // Opens the project's own PPD.
    TestPpd() : m_file(ppdOpenFile(BV_SOURCE_DIR "/resources/QL70.ppd")) { ppdMarkDefaults(m_file); }
    // Opens a PPD with the given option lines. `languageEncoding` is the field's value; null for none.
    TestPpd(const QByteArray &lines, char *languageEncoding)
    {
        QFile file(m_dir.filePath(QStringLiteral("test.ppd")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*ModelName: \"Test\"\n*NickName: \"Test\"\n");
        file.write(lines);
        file.close();
        m_file = ppdOpenFile(qPrintable(file.fileName()));
        if (m_file) {
            ppdMarkDefaults(m_file);
            m_file->lang_encoding = languageEncoding ? strdup(languageEncoding) : nullptr;
        }
    }
    ~TestPpd() { ppdClose(m_file); }
    TestPpd(const TestPpd &) = delete;
    TestPpd &operator=(const TestPpd &) = delete;
    ppd_file_t *get() const { return m_file; }

private:
    QTemporaryDir m_dir;
    ppd_file_t *m_file = nullptr;
};

class TestTicket : public bv::PrintSettings
{
public:
    bv::PrintValue value(const QString &key) const override { return top.value(key); }
    void setValue(const QString &key, const bv::PrintValue &value) override { top.setValue(key, value); }

    // A string in the queue's dictionary, or "-" when it is missing.
    QString inQueue(const QString &key, const QString &queue = QStringLiteral("Lab")) const
    {
        const auto product = top.value(QStringLiteral("QL70")).dictionary();
        const auto entries = product ? product->value(queue).dictionary() : nullptr;
        const bv::PrintValue found = entries ? entries->value(key) : bv::PrintValue();
        return found.string() ? *found.string() : QStringLiteral("-");
    }
    // A string at the ticket's top level, or "-" when it is missing.
    QString atTop(const QString &key) const
    {
        const bv::PrintValue found = top.value(key);
        return found.string() ? *found.string() : QStringLiteral("-");
    }
    // Sets a value in the queue's dictionary.
    void putInQueue(const QString &key, const bv::PrintValue &value)
    {
        const QString product = QStringLiteral("QL70");
        if (!top.value(product).dictionary())
            top.setValue(product, std::make_shared<bv::PrintDictionary>());
        const auto queues = top.value(product).dictionary();
        if (!queues->contains(QStringLiteral("Lab")))
            queues->setValue(QStringLiteral("Lab"), std::make_shared<bv::PrintDictionary>());
        queues->value(QStringLiteral("Lab")).dictionary()->setValue(key, value);
    }

    bv::PrintDictionary top;
};

class TestSession : public bv::PrintSession, public bv::Printer
{
public:
    explicit TestSession(std::optional<QString> deviceUri = {}) : uri(std::move(deviceUri)) {}
    const bv::Printer *currentPrinter() const override { return hasPrinter ? this : nullptr; }
    bv::PrintValue data(const QString &key) const override { return items.value(key); }
    QString identifier() const override { return QStringLiteral("Lab"); }
    std::optional<QString> deviceUri() const override { return uri; }

    bool hasPrinter = true;
    std::optional<QString> uri;
    bv::PrintDictionary items;
};

class TestCallback : public bv::PrintPanelCallback
{
public:
    PMPrintSettings printSettings() override { return settings; }
    PMPrintSession printSession() override { return session; }
    ppd_file_t *ppdFile() override { return ppd; }

    PMPrintSettings settings = nullptr;
    PMPrintSession session = nullptr;
    ppd_file_t *ppd = nullptr;
};

// PPD lines of an option with these choices ("A B C"). The first one is the default unless another is given.
inline QByteArray ppdOption(const QByteArray &keyword, const QByteArray &choices, const QByteArray &type = "PickOne",
                            const QByteArray &defaultChoice = {})
{
    const QByteArrayList list = choices.isEmpty() ? QByteArrayList() : choices.split(' ');
    QByteArray text = "*OpenUI *" + keyword + ": " + type + "\n";
    text += "*Default" + keyword + ": " + (defaultChoice.isEmpty() && !list.isEmpty() ? list.first() : defaultChoice) +
            "\n";
    for (const QByteArray &choice : list)
        text += "*" + keyword + " " + choice + "/" + choice + " text: \"\"\n";
    return text + "*CloseUI: *" + keyword + "\n";
}

} // namespace bvtest
