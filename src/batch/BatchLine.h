// SPDX-License-Identifier: GPL-2.0-or-later
// Splitting of a batch line into the command word and its arguments.
#pragma once

#include "platform/Result.h"

#include <QStringList>

namespace bv {

struct BatchLine
{
    QString command; // empty: a blank line or a comment
    QString rest;    // the unchanged text after the command word, without surrounding blanks
};

// Splits off the command word. It may be quoted like any other word.
BatchLine splitBatchLine(const QString &line);

// Splits the rest of a line into words at blanks. A word or a part of it may be in double quotes. Inside quotes, \" and
// \\ stand for a quote and a backslash; any other backslash is literal. An unclosed quote is an error.
Result<QStringList> batchWords(const QString &rest);

} // namespace bv
