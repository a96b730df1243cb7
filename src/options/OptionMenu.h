// SPDX-License-Identifier: GPL-2.0-or-later
// The pop-up of one PPD option, with the mark of a conflict.
#pragma once

#include <QComboBox>
#include <cups/ppd.h>
#include <map>

namespace bv {

// The default choice of an option: its keyword, whether the PPD names it or it is the first one.
QString defaultChoice(const ppd_option_t &option);

class OptionMenu final : public QComboBox
{
    Q_OBJECT

public:
    // `name` stands for the option in sentences. The option is borrowed. Its default choice is chosen.
    OptionMenu(const ppd_option_t &option, const QString &name, QWidget *parent = nullptr);

    // Keywords of the PPD.
    QString keyword() const { return QString::fromUtf8(m_option.keyword); }
    QString choice() const { return currentData().toString(); }
    QString name() const { return m_name; }
    // What the printer proposes: a keyword, and its words.
    QString usualChoice() const { return defaultChoice(m_option); }
    QString usualText() const { return itemText(findData(usualChoice())); }

    // Chooses by keyword, without a signal. False if the option has no such choice.
    bool choose(const QString &choice);
    // Chooses what the PPD proposes, or the first choice if it proposes none.
    void chooseDefault();

    // Sentences about the choice: with what it is in conflict, which is marked by an icon as well, and where it comes
    // from. Both may be empty.
    void explain(const QString &conflict, const QString &origin);

signals:
    // The user made a choice. Both arguments are PPD keywords.
    void choiceMade(const QString &keyword, const QString &choice);

private:
    void showNotes();

    const ppd_option_t &m_option;
    QString m_name;
    QString m_conflict;
    QString m_origin;
};

// A text by keyword, or an empty one.
inline QString textFor(const std::map<QString, QString> &texts, const QString &keyword)
{
    const auto found = texts.find(keyword);
    return found == texts.end() ? QString() : found->second;
}

} // namespace bv
