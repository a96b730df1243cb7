// SPDX-License-Identifier: GPL-2.0-or-later
// Lays lines out and fills objects.
#include "commandline/OptionTexts.h"

#include "queues/JobOnlyKeys.h"

#include <algorithm>

namespace bv {

namespace {

constexpr qsizetype kWidest = 44; // characters of a column; what is longer pushes its own line apart

QString tr(const char *text)
{
    return QCoreApplication::translate("OptionTexts", text);
}

using Line = std::pair<QString, QString>; // a word for programs, and what people call it

qsizetype widthOf(const std::vector<Line> &lines)
{
    qsizetype width = 0;
    for (const Line &line : lines)
        if (line.first.size() <= kWidest)
            width = std::max(width, line.first.size());
    return width;
}

QString inColumns(const Line &line, qsizetype width, const QString &before)
{
    if (line.second.isEmpty() || line.second == line.first)
        return before + line.first + u'\n';
    return before + line.first.leftJustified(width) + QStringLiteral("  ") + line.second + u'\n';
}

QString note(const QString &sentence)
{
    QString text;
    for (const QString &line : sentence.split(u'\n', Qt::SkipEmptyParts))
        text += QStringLiteral("      ") + line + u'\n';
    return text;
}

const ListedOption *find(const std::vector<ListedOption> &options, const QString &keyword)
{
    const auto found = std::find_if(options.begin(), options.end(),
                                    [&keyword](const ListedOption &one) { return one.keyword == keyword; });
    return keyword.isEmpty() || found == options.end() ? nullptr : &*found;
}

QString headingOf(const SummaryEntry &row)
{
    return row.usual && *row.usual != row.value ? tr("Changed")
           : row.hint.group.isEmpty()           ? tr("Unchanged")
                                                : row.hint.group;
}

// The rows by their headings, what is changed first.
std::vector<std::pair<QString, std::vector<const SummaryEntry *>>> grouped(const std::vector<SummaryEntry> &rows)
{
    std::vector<std::pair<QString, std::vector<const SummaryEntry *>>> groups{{tr("Changed"), {}}};
    for (const SummaryEntry &row : rows) {
        const QString heading = headingOf(row);
        auto group = std::find_if(groups.begin(), groups.end(), [&](const auto &one) { return one.first == heading; });
        if (group == groups.end())
            group = groups.insert(groups.end(), {heading, {}});
        group->second.push_back(&row);
    }
    return groups;
}

Line lineOf(const SummaryEntry &row, const std::vector<ListedOption> &options)
{
    const ListedOption *option = find(options, row.hint.option);
    const QString words = row.name + QStringLiteral(": ") + row.value;
    return option ? Line{option->keyword + u'=' + option->choice, words} : Line{words, {}};
}

} // namespace

QString optionText(const std::vector<ListedOption> &options)
{
    std::vector<Line> titles;
    titles.reserve(options.size());
    for (const ListedOption &option : options)
        titles.emplace_back(option.keyword, option.text);
    QString text;
    QString group;
    for (size_t i = 0; i < options.size(); ++i) {
        const ListedOption &option = options[i];
        if (option.group != group)
            text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + option.group + u'\n';
        group = option.group;
        text += inColumns(titles[i], widthOf(titles), QStringLiteral("  "));
        std::vector<Line> lines;
        for (const ListedChoice &choice : option.choices)
            lines.emplace_back(choice.choice,
                               choice.choice == option.usual ? tr("%1 (default)").arg(choice.text) : choice.text);
        for (const Line &line : lines)
            text += inColumns(line, widthOf(lines),
                              line.first == option.choice ? QStringLiteral("    * ") : QStringLiteral("      "));
        if (option.choice != option.usual)
            text += note(option.from);
        text += note(option.greyed);
    }
    return text;
}

QJsonArray optionJson(const std::vector<ListedOption> &options)
{
    QJsonArray array;
    for (const ListedOption &option : options) {
        QJsonArray choices;
        for (const ListedChoice &choice : option.choices)
            choices.append(
                QJsonObject{{QStringLiteral("choice"), choice.choice}, {QStringLiteral("text"), choice.text}});
        array.append(QJsonObject{
            {QStringLiteral("option"), option.keyword},
            {QStringLiteral("text"), option.text},
            {QStringLiteral("group"), option.group},
            {QStringLiteral("choice"), option.choice},
            {QStringLiteral("default"), option.usual},
            {QStringLiteral("origin"), option.origin},
            {QStringLiteral("from"), option.from},
            {QStringLiteral("gray"), option.greyed.isEmpty() ? QJsonValue() : QJsonValue(option.greyed)},
            {QStringLiteral("choices"), choices},
        });
    }
    return array;
}

QString summaryText(const std::vector<SummaryEntry> &rows, const std::vector<ListedOption> &options,
                    const JobOptions &attributes)
{
    std::vector<Line> all;
    all.reserve(rows.size());
    for (const SummaryEntry &row : rows)
        all.push_back(lineOf(row, options));
    const qsizetype width = widthOf(all);
    QString text;
    for (const auto &[heading, members] : grouped(rows)) {
        if (members.empty())
            continue;
        text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + heading + u'\n';
        for (const SummaryEntry *row : members)
            text += inColumns(lineOf(*row, options), width, QStringLiteral("  ")) + note(row->hint.off);
    }
    if (!attributes.empty())
        text += u'\n' + tr("This job") + u'\n';
    for (const auto &[name, value] : attributes) {
        const QString title = name == QLatin1String(kCopiesKey)       ? tr("Copies")
                              : name == QLatin1String(kPageRangesKey) ? tr("Pages to print")
                                                                      : QString();
        text += inColumns({name + u'=' + value, title}, width, QStringLiteral("  "));
    }
    return text;
}

QJsonArray summaryJson(const std::vector<SummaryEntry> &rows, const std::vector<ListedOption> &options)
{
    QJsonArray array;
    for (const SummaryEntry &row : rows) {
        const ListedOption *option = find(options, row.hint.option);
        array.append(QJsonObject{
            {QStringLiteral("option"), option ? QJsonValue(option->keyword) : QJsonValue()},
            {QStringLiteral("choice"), option ? QJsonValue(option->choice) : QJsonValue()},
            {QStringLiteral("name"), row.name},
            {QStringLiteral("value"), row.value},
            {QStringLiteral("default"), row.usual ? QJsonValue(*row.usual) : QJsonValue()},
            {QStringLiteral("group"), row.hint.group},
            {QStringLiteral("off"), row.hint.off.isEmpty() ? QJsonValue() : QJsonValue(row.hint.off)},
        });
    }
    return array;
}

QJsonObject optionsJson(const JobOptions &options)
{
    QJsonObject object;
    for (const auto &[keyword, value] : options)
        object.insert(keyword, value);
    return object;
}

QJsonArray refusalJson(const std::vector<Refusal> &refusals)
{
    QJsonArray array;
    for (const Refusal &one : refusals)
        array.append(QJsonObject{{QStringLiteral("options"), one.words}, {QStringLiteral("reason"), one.sentence}});
    return array;
}

} // namespace bv
