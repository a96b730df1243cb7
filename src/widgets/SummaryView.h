// SPDX-License-Identifier: GPL-2.0-or-later
// Shows settings as rows of name and value: first what differs from the printer's defaults, then the rest in groups
// that can be folded.
#pragma once

#include "platform/PrintValue.h"

#include <QHash>
#include <QStringList>
#include <QTreeWidget>
#include <array>
#include <optional>
#include <vector>

namespace bv {

// What a panel's controls say of the items of its summary, by the item's name.
struct SummaryHint
{
    QString group;       // title of the group that the item belongs to; may be empty
    QString off;         // why the item has no effect just now; empty when it has one
    QString option = {}; // the PPD keyword of its option; may be empty
};
using SummaryHints = QHash<QString, SummaryHint>;

// The hints that the controls below a panel's view carry (kSummaryNameProperty and the others of the host protocol).
// Empty for a panel that has none.
SummaryHints summaryHints(const QWidget *view);

// A setting with its value, all as shown.
struct SummaryEntry
{
    QString name;
    QString value;
    std::optional<QString> usual; // the value that the printer proposes; nothing: unknown, and nothing differs
    SummaryHint hint = {};
};

// The items of a panel's summary. The order array decides; a name without a value is skipped, and so is a name that was
// there before: it has the same value. Without an order array the items come in dictionary order. `defaults` is the
// summary of a panel whose settings were never changed.
std::vector<SummaryEntry> summaryEntries(const PrintDictionary &summary, const PrintDictionary &defaults = {},
                                         const SummaryHints &hints = {});

class SummaryView : public QTreeWidget
{
    Q_OBJECT

public:
    explicit SummaryView(QWidget *parent = nullptr);

    // Shows these settings, of whatever source. Keeps what is folded and the scroll position.
    void showEntries(const std::vector<SummaryEntry> &entries);
    // Shows a sentence instead of items.
    void showNote(const QString &note);

    // The texts of all rows from top to bottom, "name: value" or a heading alone.
    QStringList lines() const;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Row
    {
        QString heading;
        QString name;
        QString value;
        QString off;
        bool changed = false;
    };
    // Gives each row its item below its heading.
    void placeRows();
    // Sees to it that the heading is the one at this place.
    QTreeWidgetItem *placeHeading(int place, const QString &text, bool isUnfolded);
    void renewTexts();
    // Gives the names the room that they need, as long as the values keep theirs. What does not fit beside each other
    // is broken into lines.
    void fitColumns();
    // The widest text of a column, or the widest of its words, in pixels.
    int widestIn(int column, bool words);
    int widthOf(const QString &text, bool isStrong, bool words);

    std::vector<Row> m_rows;                // in the order shown
    std::vector<QTreeWidgetItem *> m_cells; // one for each row
    QHash<QString, bool> m_unfolded;        // by heading, once the user has folded or unfolded it
    // Widths in the present font, since measuring is most of what a change would cost: by the text, for whole texts and
    // for their widest words, in regular and in strong letters.
    std::array<std::array<QHash<QString, int>, 2>, 2> m_widths;
};

} // namespace bv
