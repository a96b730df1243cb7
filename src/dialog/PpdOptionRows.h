// The dialog's own rows for what a PPD says about paper, tray, two-sided printing and resolution. Their choices are
// top-level strings of the ticket under the PPD's keyword.
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
    // One row for each of the options that the PPD has; none without a PPD. The rows mark choices in the PPD when they
    // look for conflicts, so it is one that no panel sees; it is borrowed and must outlive the rows.
    explicit PpdOptionRows(ppd_file_t *ppd, QWidget *parent = nullptr);

    // Takes the rows' choices from the ticket; a row whose entry is missing or names no choice shows the PPD's default.
    void readFrom(PMPrintSettings settings);
    // Writes every row's choice into the ticket, so that the job says what the rows show.
    void writeTo(PMPrintSettings settings) const;
    // Puts every row on the PPD's default.
    void restoreDefaults();

    // Looks at the rows together with the ticket's other choices and says in a line below the rows which of the rows'
    // choices do not go together with what; empty and hidden without such a conflict.
    void updateConflicts(PMPrintSettings settings);
    QString conflictText() const;
    // Whether the PPD rules out anything at all.
    bool hasConstraints() const;

    // The PPD keywords of the rows, in order; the pop-up of each has its keyword as object name, with "row_" before it.
    QStringList keywords() const;
    QFormLayout *form() const { return m_form; }

signals:
    // The user chose something: the option's keyword and the choice's keyword.
    void choiceMade(const QString &keyword, const QString &choice);

private:
    struct Row
    {
        ppd_option_t *option = nullptr;
        QComboBox *popUp = nullptr;
        QString name; // for sentences, without mnemonic
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
