// SPDX-License-Identifier: GPL-2.0-or-later
// The documents of the job. Files are added by a file dialog, by dropping them, or by the command line.
#pragma once

#include <QStringList>
#include <QWidget>

class QLabel;
class QListWidget;
class QMimeData;
class QPushButton;

namespace bv {

class DocumentList : public QWidget
{
    Q_OBJECT

public:
    explicit DocumentList(QWidget *parent = nullptr);

    // Adds files by path; relative paths start from the current folder. Leaves out files that cannot be read or are in
    // the list already, and reports them by refused().
    void addDocuments(const QStringList &paths);
    // Adds the files of a drop or paste. Only local files can be printed.
    void addDropped(const QMimeData &data);
    // A fixed list shows its documents only: nothing can be added or removed by the user.
    void setFixed(bool fixed);
    // True if the data may contain files.
    static bool canTake(const QMimeData &data);

    // Absolute paths, in printing order.
    QStringList documents() const;

    // The height that the list wants, and that of the few rows that it shows at least before it scrolls, in pixels.
    int listHeight() const;
    int leastListHeight() const;
    // Has the list scroll from this height on.
    void limitList(int height);

    // For the tab order and the default focus.
    QListWidget *list() const { return m_list; }
    QPushButton *addButton() const { return m_add; }

public slots:
    // Has the user choose files to add.
    void chooseFiles();

signals:
    // Other documents, or another order.
    void documentsChanged();
    // A sentence for the user about files that were not added.
    void refused(const QString &reason);

private:
    void removeSelected();
    // Moves the selected documents by one place, as long as the first or last one has room.
    void moveSelected(bool up);
    void countDocuments();
    void updateButtons();

    QLabel *m_label;
    QListWidget *m_list;
    QPushButton *m_add;
    QPushButton *m_remove;
    bool m_isFixed = false;
};

} // namespace bv
