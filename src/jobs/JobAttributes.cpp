// SPDX-License-Identifier: GPL-2.0-or-later
// The table of job options.
#include "jobs/JobAttributes.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>

namespace bv {

namespace {

constexpr char kTruth[] = "true false";
constexpr int kPoints = 100000; // more than any sheet has

// RFC 8011, section 5.2, PWG 5100.3, and the options of the print server's filters (lp(1)). Copies and pages are not
// here: they are checked by themselves.
// clang-format off
constexpr std::array<JobAttribute, 30> kAttributes = {{
    // name                        least  most     values                                              for programs
    {"Collate",                    0,     0,       kTruth,                                             true},
    {"columns",                    1,     100,     nullptr,                                            false},
    {"cpi",                        1,     100,     nullptr,                                            false},
    {"fit-to-page",                0,     0,       kTruth,                                             false},
    {"fitplot",                    0,     0,       kTruth,                                             false},
    {"job-billing",                0,     0,       nullptr,                                            true},
    {"job-hold-until",             0,     0,       "no-hold indefinite day-time evening night second-shift third-shift weekend HH:MM", true},
    {"job-priority",               1,     100,     nullptr,                                            true},
    {"job-sheets",                 0,     0,       nullptr,                                            true},
    {"landscape",                  0,     0,       kTruth,                                             false},
    {"lpi",                        1,     100,     nullptr,                                            false},
    {"multiple-document-handling", 0,     0,       "single-document separate-documents-uncollated-copies separate-documents-collated-copies single-document-new-sheet", false},
    {"natural-scaling",            1,     1000,    nullptr,                                            false},
    {"number-up",                  0,     0,       "1 2 4 6 9 16",                                     false},
    {"number-up-layout",           0,     0,       "btlr btrl lrbt lrtb rlbt rltb tblr tbrl",          false},
    {"orientation-requested",      3,     6,       nullptr,                                            false},
    {"outputorder",                0,     0,       "normal reverse",                                   false},
    {"page-border",                0,     0,       "none single single-thick double double-thick",     false},
    {"page-bottom",                0,     kPoints, nullptr,                                            false},
    {"page-delivery",              0,     0,       "same-order-face-up same-order-face-down reverse-order-face-up reverse-order-face-down", false},
    {"page-left",                  0,     kPoints, nullptr,                                            false},
    {"page-right",                 0,     kPoints, nullptr,                                            false},
    {"page-set",                   0,     0,       "all odd even",                                     false},
    {"page-top",                   0,     kPoints, nullptr,                                            false},
    {"position",                   0,     0,       "center top left right top-left top-right bottom bottom-left bottom-right", false},
    {"ppi",                        1,     10000,   nullptr,                                            false},
    {"prettyprint",                0,     0,       kTruth,                                             false},
    {"print-scaling",              0,     0,       "auto auto-fit fill fit none",                      false},
    {"scaling",                    1,     1000,    nullptr,                                            false},
    {"wrap",                       0,     0,       kTruth,                                             false},
}};
// clang-format on

} // namespace

QString JobAttribute::values() const
{
    if (words)
        return QString::fromLatin1(words).split(u' ').join(QStringLiteral(", "));
    return most == 0 ? QString() : QStringLiteral("%1-%2").arg(least).arg(most);
}

bool JobAttribute::takes(const QString &value) const
{
    static const QRegularExpression kTime(QStringLiteral("^\\d{1,2}:\\d{2}(:\\d{2})?$"));
    if (value.isEmpty())
        return false;
    if (words) {
        const QStringList known = QString::fromLatin1(words).split(u' ');
        return known.contains(value, Qt::CaseInsensitive) ||
               (known.contains(u"HH:MM") && kTime.match(value).hasMatch());
    }
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    return most == 0 || (isNumber && number >= least && number <= most);
}

const JobAttribute *findJobAttribute(const QString &name)
{
    const auto *found = std::find_if(kAttributes.begin(), kAttributes.end(),
                                     [&name](const JobAttribute &one) { return name == QLatin1String(one.name); });
    return found == kAttributes.end() ? nullptr : found;
}

QStringList jobAttributeNames()
{
    QStringList names;
    for (const JobAttribute &one : kAttributes)
        names << QLatin1String(one.name);
    return names;
}

} // namespace bv
