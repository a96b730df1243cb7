// SPDX-License-Identifier: GPL-2.0-or-later
// Shows a sheet of paper with a page on it, or a sentence instead. Keys and wheel turn pages.
#pragma once

#include "preview/PageRenderer.h"

#include <QIcon>
#include <QWidget>

namespace bv {

class SheetView : public QWidget
{
    Q_OBJECT

public:
    explicit SheetView(QWidget *parent = nullptr);

    // The device pixels into which a sheet fits.
    QSize room() const;

    void showPage(const DrawnPage &page);
    // Shows texts, and an icon above them if it is not null.
    void showNote(const QString &heading, const QString &text, const QIcon &icon = {});
    // Says that another page is on its way, if it does not come soon. What is shown stays, paler.
    void showWaiting();
    // The texts shown instead of a page. Empty while a page is shown.
    QString note() const;
    // What is shown of the page. Null while there is none.
    const QImage &picture() const { return m_page.picture; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    // The user wants to go so many pages forward, or back if negative.
    void turned(int pages);
    void wentToFirst();
    void wentToLast();
    // The room has another size.
    void resized();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void paintSheet(QPainter &painter) const;
    void paintNote(QPainter &painter) const;
    QRect sheetRect() const;

    DrawnPage m_page;
    QString m_heading;
    QString m_text;
    QIcon m_icon;
    QTimer m_patience; // runs until a wait is worth a word
    bool m_waiting = false;
    int m_wheel = 0; // eighths of a degree that have not turned a page yet
};

} // namespace bv
