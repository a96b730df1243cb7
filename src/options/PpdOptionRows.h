// SPDX-License-Identifier: GPL-2.0-or-later
// The dialog's own controls for options of the PPD: rows for paper size and type, tray, two-sided printing and
// resolution, and a button for all that neither a row nor the pane holds. The ticket holds the choices as top-level
// strings under the PPD's keywords.
#pragma once

#include "options/ConflictFinder.h"
#include "options/FurtherOptions.h"
#include "widgets/SummaryView.h"

#include <QPointer>
#include <QWidget>

class QFormLayout;
class QPushButton;

namespace bv {

class MoreOptionsWindow;
class OptionMenu;

class PpdOptionRows : public QWidget
{
    Q_OBJECT

public:
    // Makes one row for each of these options that the PPD has. A null PPD gives no rows. The PPD is borrowed and must
    // outlive the rows. Looking for conflicts marks choices in it, so no panel may use the same PPD.
    explicit PpdOptionRows(ppd_file_t *ppd, QWidget *parent = nullptr);

    // Offers what neither a row nor the pane holds. `paneKeys` are the options in the pane; `printer` is a title.
    void offerFurther(const QStringList &paneKeys, const QString &printer, PMPrintSettings settings);

    // Sets the rows from the ticket. A row shows the PPD's default when its entry is missing or names an unknown
    // choice.
    void readFrom(PMPrintSettings settings);
    // Writes the choice of every row into the ticket, so that the job contains all that the rows show. Of the further
    // options it has those that are not at their defaults.
    void writeTo(PMPrintSettings settings) const;
    // Sets every option to the PPD's default.
    void restoreDefaults();

    // Finds the conflicts between the ticket's choices and those of the rows. `overruling` has choices by keyword that
    // count in place of the ticket's, and that no way out may change.
    void findConflicts(PMPrintSettings settings, const std::map<QString, QString> &overruling);
    const std::vector<Conflict> &conflicts() const { return m_conflicts; }
    // Marks the rows in conflict, and says where choices come from. Both maps have sentences by keyword.
    void explain(const std::map<QString, QString> &conflicts, const std::map<QString, QString> &origins);

    // The labels of all rows that a PPD can have.
    static QStringList allLabels();
    // All choices of the options here, by keyword.
    ConflictFinder::Choices choices() const;
    // All rows for the summary, and of the further options those that are not at their defaults: there may be
    // thousands.
    std::vector<SummaryEntry> summary() const;
    // What writeTo() would write if nothing were chosen.
    PrintDictionary defaults() const;
    // Makes a choice as the user would. False if it is none of the options here.
    bool choose(const QString &keyword, const QString &choice);
    // True if the PPD has any constraints.
    bool hasConstraints() const { return m_finder.hasConstraints(); }

    // PPD keywords of the rows, in order. The object name of a row's pop-up is "row_" and the keyword.
    QStringList keywords() const;
    QFormLayout *form() const { return m_form; }

signals:
    // The user made a choice. Both arguments are PPD keywords.
    void choiceMade(const QString &keyword, const QString &choice);

private:
    void addRow(const ppd_option_t &option, const QString &label, const QString &name);
    void openWindow();
    void showNotes();
    void showChanged();

    ppd_file_t *m_ppd;
    ConflictFinder m_finder;
    QFormLayout *m_form;
    QPushButton *m_more;
    std::vector<OptionMenu *> m_menus;
    FurtherOptions m_further;
    QPointer<MoreOptionsWindow> m_window;
    QString m_printer;
    std::vector<Conflict> m_conflicts;
    std::map<QString, QString> m_conflictNotes; // sentences by keyword
    std::map<QString, QString> m_originNotes;
};

} // namespace bv
