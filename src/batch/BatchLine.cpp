// SPDX-License-Identifier: GPL-2.0-or-later
// Cutting a batch line into words.
#include "batch/BatchLine.h"

namespace bv {

namespace {

bool isBlank(QChar character)
{
    return character == u' ' || character == u'\t';
}

// Reads one word from position, which is at its first character; false when a quote is not closed.
bool readWord(const QString &text, qsizetype &position, QString &word)
{
    bool quoted = false;
    for (; position < text.size(); ++position) {
        const QChar character = text[position];
        if (!quoted && isBlank(character))
            return true;
        if (character == u'"') {
            quoted = !quoted;
            continue;
        }
        const QChar next = position + 1 < text.size() ? text[position + 1] : QChar();
        if (quoted && character == u'\\' && (next == u'"' || next == u'\\')) {
            word.append(next);
            ++position;
            continue;
        }
        word.append(character);
    }
    return !quoted;
}

void skipBlanks(const QString &text, qsizetype &position)
{
    while (position < text.size() && isBlank(text[position]))
        ++position;
}

} // namespace

BatchLine splitBatchLine(const QString &line)
{
    const QString text = line.trimmed();
    BatchLine split;
    if (text.isEmpty() || text.startsWith(u'#'))
        return split;
    qsizetype position = 0;
    readWord(text, position, split.command);
    // An empty pair of quotes is a word, but not a command.
    if (split.command.isEmpty())
        split.command = QStringLiteral("\"\"");
    skipBlanks(text, position);
    split.rest = text.mid(position);
    return split;
}

Result<QStringList> batchWords(const QString &rest)
{
    QStringList words;
    qsizetype position = 0;
    for (skipBlanks(rest, position); position < rest.size(); skipBlanks(rest, position)) {
        QString word;
        if (!readWord(rest, position, word))
            return Result<QStringList>::failure(QStringLiteral("A quote is not closed."));
        words.append(word);
    }
    return words;
}

} // namespace bv
