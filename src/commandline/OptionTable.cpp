// SPDX-License-Identifier: GPL-2.0-or-later
// Looks at each option in the PPD, the rows and the pane.
#include "commandline/OptionTable.h"

#include "commandline/ChoiceMaking.h"
#include "options/OptionMenu.h"
#include "options/PpdWords.h"

#include <QComboBox>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("OptionTable", text);
}

QString wordFor(StartSource source)
{
    switch (source) {
    case StartSource::Preset:
        return QStringLiteral("preset");
    case StartSource::Ticket:
        return QStringLiteral("ticket");
    default:
        return QStringLiteral("user");
    }
}

void tellOrigin(ListedOption &listed, const StartedRoom &started, bool isOverruled, bool isGiven, const QString &note)
{
    if (listed.choice == listed.usual) {
        listed.origin = QStringLiteral("printer");
        listed.from = tr("The printer's default.");
    } else if (isGiven && !isOverruled) {
        listed.origin = QStringLiteral("given");
        listed.from = tr("Given on the command line.");
    } else if (!isOverruled && !note.isEmpty()) {
        listed.origin = wordFor(started.source);
        listed.from = note;
    } else {
        listed.origin = QStringLiteral("rules");
        listed.from = tr("Follows from another choice.");
    }
}

} // namespace

std::vector<ListedOption> listOptions(const StartedRoom &started, const QSet<QString> &given)
{
    QueueRoom &room = *started.room;
    room.updateConflicts();
    const std::map<QString, PaneOption> pane = paneOptions(room.pane());
    const std::map<QString, QString> origins = room.originNotes();
    std::vector<ListedOption> list;
    for (const GroupedOption &one : jobChoices(room.ppd())) {
        ListedOption listed;
        listed.group = groupText(*one.group);
        listed.keyword = QString::fromUtf8(one.option->keyword);
        listed.text = optionText(*one.option);
        listed.usual = defaultChoice(*one.option);
        const auto found = pane.find(listed.keyword);
        const PaneOption *held = found == pane.end() ? nullptr : &found->second;
        listed.choice = choiceThatCounts(room, listed.keyword, held);
        for (int i = 0; i < one.option->num_choices; ++i)
            listed.choices.push_back(
                {QString::fromUtf8(one.option->choices[i].choice), choiceText(one.option->choices[i])});
        for (const QString &item : itemsBeside(*one.option, held ? held->control : nullptr))
            listed.choices.push_back({item, item});
        listed.greyed = held ? held->reason : QString();
        tellOrigin(listed, started, held && !held->instead.isEmpty(), given.contains(listed.keyword),
                   textFor(origins, listed.keyword));
        list.push_back(std::move(listed));
    }
    return list;
}

} // namespace bv
