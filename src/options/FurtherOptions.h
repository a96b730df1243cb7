// SPDX-License-Identifier: GPL-2.0-or-later
// The options of the PPD that no control in the window holds, with the user's choices for them.
#pragma once

#include "platform/PrintSettings.h"

#include <QObject>
#include <QStringList>
#include <cups/ppd.h>
#include <vector>

namespace bv {

// Holds keywords only, because a PPD may have thousands of options: their controls are made when they are asked for.
class FurtherOptions final : public QObject
{
    Q_OBJECT

public:
    struct Entry
    {
        const ppd_option_t *option = nullptr;
        QString group; // its title
        QString choice;

        QString keyword() const { return QString::fromUtf8(option->keyword); }
    };

    using QObject::QObject;

    // Takes all options of the PPD but those in `elsewhere`, in the order of its groups, with their default choices.
    // What is built into the printer (installable hardware) is no choice of a job, and is left out. The PPD is
    // borrowed; null gives no options.
    void take(ppd_file_t *ppd, const QStringList &elsewhere);

    const std::vector<Entry> &entries() const { return m_entries; }
    // How many choices are not the printer's defaults.
    int changed() const;

    // Like those of the rows. Choices that are the printer's defaults leave no entry in the ticket.
    void readFrom(PMPrintSettings settings);
    void writeTo(PMPrintSettings settings) const;
    void restoreDefaults();
    // False if there is no such option or choice.
    bool choose(const QString &keyword, const QString &choice);

private:
    void take(const ppd_group_t &group, const QStringList &elsewhere);

    std::vector<Entry> m_entries;
};

} // namespace bv
