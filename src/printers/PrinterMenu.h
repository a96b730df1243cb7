// SPDX-License-Identifier: GPL-2.0-or-later
// A pop-up of printers that finds them while one types.
#pragma once

#include <QComboBox>

class QLabel;
class QLineEdit;
class QListView;

namespace bv {

class PrinterFilter;

// What the items are found by stands in kSearchRole, and the second line of an item in kNoteRole.
class PrinterMenu : public QComboBox
{
    Q_OBJECT

public:
    static constexpr int kNoteRole = Qt::UserRole + 1;
    static constexpr int kSearchRole = Qt::UserRole + 2;

    explicit PrinterMenu(QWidget *parent = nullptr);

    void showPopup() override;
    void hidePopup() override;
    // The list of what was found, and the field to type in. Both are in sight while the pop-up is open.
    QListView *list() const { return m_list; }
    QLineEdit *field() const { return m_field; }

signals:
    void opened();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void find(const QString &words);
    void choose(const QModelIndex &found);
    QRect popUpPlace() const;

    QWidget *m_popUp;
    QLineEdit *m_field;
    QListView *m_list;
    QLabel *m_nothing;
    PrinterFilter *m_filter;
};

} // namespace bv
