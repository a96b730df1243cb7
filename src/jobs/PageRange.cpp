// SPDX-License-Identifier: GPL-2.0-or-later
// Reads page ranges run by run, then sorts and joins them.
#include "jobs/PageRange.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <optional>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("PageRange", text);
}

// Converts digits to ASCII, dashes to "-" and separators to ",", and leaves out marks of direction.
QString simplified(const QString &text)
{
    static const QString kDashes = QStringLiteral("\u2010\u2011\u2012\u2013\u2014\u2212\u301c\uff5e");
    static const QString kSeparators = QStringLiteral(";\u060c\u061b\u3001\uff0c");
    QString plain;
    for (const QChar character : text) {
        if (character.isDigit() && character.digitValue() >= 0)
            plain += QChar(u'0' + character.digitValue());
        else if (kDashes.contains(character))
            plain += u'-';
        else if (kSeparators.contains(character))
            plain += u',';
        else if (character.category() != QChar::Other_Format)
            plain += character;
    }
    return plain;
}

// Reads a page number. Nothing when the text is not a number. Numbers above kOpenEnd become kOpenEnd.
std::optional<int> pageNumber(const QString &text)
{
    if (text.isEmpty() || !std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; }))
        return std::nullopt;
    bool fits = false;
    const int number = text.toInt(&fits);
    return fits ? number : PageRun::kOpenEnd;
}

std::optional<PageRun> readRun(const QString &text, QString *error)
{
    const qsizetype dash = text.indexOf(u'-');
    const QString firstText = dash < 0 ? text : text.left(dash).trimmed();
    const QString lastText = dash < 0 ? text : text.mid(dash + 1).trimmed();
    const std::optional<int> first = firstText.isEmpty() && dash >= 0 ? 1 : pageNumber(firstText);
    const std::optional<int> last = lastText.isEmpty() && dash >= 0 ? PageRun::kOpenEnd : pageNumber(lastText);
    if (!first || !last || (firstText.isEmpty() && lastText.isEmpty())) {
        *error = tr("“%1” is no page or range of pages. Write for example 1-3, 8.").arg(text);
        return std::nullopt;
    }
    if (*first == 0 || *last == 0) {
        *error = tr("Pages are counted from 1.");
        return std::nullopt;
    }
    if (*last < *first) {
        *error = tr("The range %1 runs backwards. Write %2-%3.").arg(text).arg(*last).arg(*first);
        return std::nullopt;
    }
    return PageRun{*first, *last};
}

// True if `run` begins inside `before` or directly after it.
bool touches(const PageRun &before, const PageRun &run)
{
    return before.last == PageRun::kOpenEnd || run.first <= before.last + 1;
}

} // namespace

QString PageRange::toOption() const
{
    QStringList parts;
    for (const PageRun &run : runs) {
        if (run.first == run.last)
            parts << QString::number(run.first);
        else if (run.last == PageRun::kOpenEnd)
            parts << QStringLiteral("%1-").arg(run.first);
        else
            parts << QStringLiteral("%1-%2").arg(run.first).arg(run.last);
    }
    return parts.join(u',');
}

PageRange parsePageRange(const QString &text)
{
    PageRange range;
    std::vector<PageRun> runs;
    for (const QString &part : simplified(text).split(u',')) {
        if (part.trimmed().isEmpty())
            continue;
        const std::optional<PageRun> run = readRun(part.trimmed(), &range.error);
        if (!run)
            return range;
        runs.push_back(*run);
    }
    if (runs.empty()) {
        range.error = tr("Enter the pages to print, for example 1-3, 8.");
        return range;
    }
    std::sort(runs.begin(), runs.end(), [](const PageRun &a, const PageRun &b) { return a.first < b.first; });
    for (const PageRun &run : runs) {
        if (!range.runs.empty() && touches(range.runs.back(), run))
            range.runs.back().last = std::max(range.runs.back().last, run.last);
        else
            range.runs.push_back(run);
    }
    return range;
}

} // namespace bv
