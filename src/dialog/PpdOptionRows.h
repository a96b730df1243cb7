// SPDX-License-Identifier: GPL-2.0-or-later
// The dialog's own rows for paper size, tray, two-sided printing and resolution. The choices come from the PPD. The
// ticket holds them as top-level strings under the PPD's keywords.
#pragma once

#include "platform/PrintSettings.h"

#include <QStringList>
#include <QWidget>
#include <cups/ppd.h>
#include <vector>

class QComboBox;
class QFormLayout;
class QLabel;

namespace bv {

class PpdOptionRows : public QWidget
{
    Q_OBJECT

public:
    // Makes one row for each of these options that the PPD has. A null PPD gives no rows. The PPD is borrowed and must
    // outlive the rows. Looking for conflicts marks choices in it, so no panel may use the same PPD.
    explicit PpdOptionRows(ppd_file_t *ppd, QWidget *parent = nullptr);

    // Sets the rows from the ticket. A row shows the PPD's default when its entry is missing or names an unknown
    // choice.
    void readFrom(PMPrintSettings settings);
    // Writes the choice of every row into the ticket, so that the job contains all that the rows show.
    void writeTo(PMPrintSettings settings) const;
    // Sets every row to the PPD's default.
    void restoreDefaults();

    // Checks the rows against the ticket's other choices. Describes the conflicts in a line below the rows; the line is
    // hidden when there are none.
    void updateConflicts(PMPrintSettings settings);
    QString conflictText() const;
    // True if the PPD has any constraints.
    bool hasConstraints() const;

    // PPD keywords of the rows, in order. The object name of a row's pop-up is "row_" and the keyword.
    QStringList keywords() const;
    QFormLayout *form() const { return m_form; }

signals:
    // The user made a choice. Both arguments are PPD keywords.
    void choiceMade(const QString &keyword, const QString &choice);

private:
    struct Row
    {
        ppd_option_t *option = nullptr;
        QComboBox *popUp = nullptr;
        QString name; // without mnemonic, for use in sentences
    };

    void addRow(ppd_option_t *option, const QString &label, const QString &name);
    void markEverything(PMPrintSettings settings);
    QStringList conflictSentences() const;

    ppd_file_t *m_ppd;
    QFormLayout *m_form;
    QLabel *m_conflict;
    QLabel *m_conflictIcon;
    std::vector<Row> m_rows;
};

} // namespace bv
