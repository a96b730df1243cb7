// One line of a batch: its command's word and what follows.
#pragma once

#include "platform/Result.h"

#include <QStringList>

namespace bv {

struct BatchLine
{
    QString command; // empty: a blank line or a comment
    QString rest;    // what follows the command's word, blanks around it taken away, as it stands in the line
};

// Splits off the command's word, which may stand in double quotes like any other.
BatchLine splitBatchLine(const QString &line);

// The words of a line's rest: separated by blanks. A word or a part of it may stand in double quotes, where a backslash
// in front of a quote or a backslash takes it as it is; any other backslash stands for itself.
Result<QStringList> batchWords(const QString &rest);

} // namespace bv
