// The documents of the job: a list to which files are added by a file panel, by dropping or by the command line.
#pragma once

#include <QStringList>
#include <QWidget>

class QListWidget;
class QMimeData;
class QPushButton;

namespace bv {

class DocumentList : public QWidget
{
    Q_OBJECT

public:
    explicit DocumentList(QWidget *parent = nullptr);

    // Adds files by path, relative ones from the current folder. A file that is in the list already is not added
    // again; one that cannot be read is left out and told by refused().
    void addDocuments(const QStringList &paths);
    // Adds what a drop or paste carries. Only files of this machine can be printed.
    void addDropped(const QMimeData &data);
    // Whether a drop carries anything that could be a file.
    static bool canTake(const QMimeData &data);

    // Absolute paths, in the order in which they print.
    QStringList documents() const;

    // The list itself, for the tab order and the default focus.
    QListWidget *list() const { return m_list; }
    QPushButton *addButton() const { return m_add; }

signals:
    void documentsChanged();
    // A sentence for people about files that were not taken.
    void refused(const QString &reason);

private:
    void chooseFiles();
    void removeSelected();
    void updateButtons();

    QListWidget *m_list;
    QPushButton *m_add;
    QPushButton *m_remove;
};

} // namespace bv
