// SPDX-License-Identifier: GPL-2.0-or-later
// Tries the choices until nothing changes any more.
#include "commandline/ChoiceMaking.h"

#include "options/OptionMenu.h"
#include "queues/PpdChoice.h"

#include <QComboBox>
#include <QCoreApplication>
#include <algorithm>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("ChoiceMaking", text);
}

QString custom(const QString &keyword)
{
    return keyword + QStringLiteral("Custom");
}

bool hasEntries(const PrintDictionary &ticket, const PrintDictionary &entries)
{
    return std::all_of(entries.entries.begin(), entries.entries.end(), [&ticket](const auto &entry) {
        const PrintValue held = ticket.value(entry.first);
        return held.string() && entry.second.string() &&
               held.string()->compare(*entry.second.string(), Qt::CaseInsensitive) == 0;
    });
}

// The choices under way for one room.
class Maker
{
public:
    Maker(QueueRoom &room, const std::vector<WantedChoice> &wanted) : m_room(room), m_wanted(wanted)
    {
        look();
        for (const WantedChoice &one : wanted)
            m_before.push_back(holds(one, false));
    }

    // Makes what can be made.
    void makeAvailable()
    {
        std::vector<bool> isMade(m_wanted.size(), false);
        for (bool isChanged = true; isChanged;) {
            isChanged = false;
            for (size_t i = 0; i < m_wanted.size(); ++i) {
                if (isMade[i] || !held(m_wanted[i]).reason.isEmpty())
                    continue;
                isMade[i] = isChanged = true;
                if (!holds(m_wanted[i], true))
                    make(m_wanted[i]);
            }
        }
    }

    void makeAll()
    {
        for (const WantedChoice &one : m_wanted)
            if (!holds(one, true))
                make(one);
    }

    std::vector<Refusal> refused() const
    {
        std::vector<Refusal> refusals;
        for (size_t i = 0; i < m_wanted.size(); ++i) {
            const PaneOption &option = held(m_wanted[i]);
            const bool isFree =
                option.reason.isEmpty() || !option.instead.isEmpty() || m_before[i] || isUsual(m_wanted[i]);
            if (holds(m_wanted[i], true) && isFree)
                continue;
            const QString why = option.reason.isEmpty() ? tr("Another choice does not let it stand.") : option.reason;
            refusals.push_back({m_wanted[i].word(), why});
        }
        return refusals;
    }

private:
    void look()
    {
        m_room.updateConflicts(); // has the panel write its choices into the ticket
        m_pane = paneOptions(m_room.pane());
    }

    const PaneOption &held(const WantedChoice &one) const
    {
        static const PaneOption kFree;
        const auto found = m_pane.find(one.keyword);
        return found == m_pane.end() ? kFree : found->second;
    }

    // Whether the option has this choice: by its own control, or counting what overrules it.
    bool holds(const WantedChoice &one, bool counting) const
    {
        PaneOption option = held(one);
        if (!counting)
            option.instead.clear();
        if (!one.entries.entries.empty())
            return option.instead.isEmpty() && hasEntries(m_room.ticket(), one.entries);
        const QString wanted = one.choice.isEmpty() ? one.item : one.choice;
        return choiceThatCounts(m_room, one.keyword, option.control ? &option : nullptr) == wanted;
    }

    // The printer's default asks for no effect, so it may stand in an option that has none.
    bool isUsual(const WantedChoice &one) const
    {
        const ppd_option_t *option = findOption(m_room.ppd(), one.keyword);
        return option && !one.choice.isEmpty() && one.choice == defaultChoice(*option);
    }

    void make(const WantedChoice &one)
    {
        if (!one.entries.entries.empty()) {
            m_room.chooseInPane(one.entries);
        } else if (!one.item.isEmpty()) {
            auto *menu = qobject_cast<QComboBox *>(held(one).control);
            if (const int index = menu ? menu->findText(one.item, Qt::MatchExactly | Qt::MatchCaseSensitive) : -1;
                index >= 0) {
                menu->setCurrentIndex(index);
                emit menu->activated(index);
            }
        } else {
            m_room.choose(one.keyword, one.choice);
        }
        look();
    }

    QueueRoom &m_room;
    const std::vector<WantedChoice> &m_wanted;
    std::vector<bool> m_before; // whether its option had the choice before all others were made
    std::map<QString, PaneOption> m_pane;
};

} // namespace

QString choiceThatCounts(const QueueRoom &room, const QString &keyword, const PaneOption *held)
{
    if (held && !held->instead.isEmpty())
        return held->instead;
    const ConflictFinder::Choices rows = room.rows()->choices();
    if (const auto row = rows.find(keyword); row != rows.end())
        return row->second;
    const PrintValue isCustom = room.ticket().value(custom(keyword));
    const auto *menu = qobject_cast<const QComboBox *>(held ? held->control : nullptr);
    if (menu && isCustom.string() && *isCustom.string() == u"True")
        return menu->currentText();
    const PrintValue own = room.ticket().value(keyword);
    if (own.string())
        return *own.string();
    const ppd_option_t *option = findOption(room.ppd(), keyword);
    return option ? QString::fromUtf8(option->defchoice) : QString();
}

Result<std::vector<Refusal>> makeChoices(QueueRoom &room, const std::vector<WantedChoice> &wanted, bool force)
{
    Maker maker(room, wanted);
    maker.makeAvailable();
    // A stored profile that this user's list lacks is no question of rules.
    const PrintDictionary &ticket = room.ticket();
    const std::map<QString, PaneOption> pane = paneOptions(room.pane());
    for (const WantedChoice &one : wanted) {
        const auto held = pane.find(one.keyword);
        const bool isFree = held != pane.end() && held->second.reason.isEmpty();
        if (!one.entries.entries.empty() && (held == pane.end() || (isFree && !hasEntries(ticket, one.entries))))
            return Result<std::vector<Refusal>>::failure(
                tr("%1: there is no such profile in your list.").arg(one.keyword));
    }
    std::vector<Refusal> refusals = maker.refused();
    if (force && !refusals.empty())
        maker.makeAll();
    return refusals;
}

std::vector<Refusal> conflictsIn(QueueRoom &room)
{
    room.updateConflicts();
    std::vector<Refusal> refusals;
    for (const Conflict &conflict : room.conflicts()) {
        QStringList words;
        for (const Conflict::Side &side : conflict.sides)
            words << side.keyword + u'=' + side.choice;
        refusals.push_back({words.join(u' '), conflict.sentence});
    }
    return refusals;
}

} // namespace bv
