// SPDX-License-Identifier: GPL-2.0-or-later
// Job options that no PPD has: the print server and its filters follow them.
#pragma once

#include <QString>
#include <QStringList>

namespace bv {

struct JobAttribute
{
    const char *name;
    int least = 0; // of a number; least and most are 0 for other values
    int most = 0;
    const char *words = nullptr; // the values that there are, between blanks; null: any text
    bool forPrograms = false;    // a program that prints may give it

    // What is accepted, for people: "1-100", or the words.
    QString values() const;
    // Whether this can be its value.
    bool takes(const QString &value) const;
};

// Null when the print server knows no such option. The case of a name counts, as on the print server.
const JobAttribute *findJobAttribute(const QString &name);
QStringList jobAttributeNames();

} // namespace bv
