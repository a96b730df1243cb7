// SPDX-License-Identifier: GPL-2.0-or-later
// Finds texts of a window that Qt would show as markup, images included.
#pragma once

#include <QAbstractItemView>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QTextDocument>
#include <QWidget>

namespace bvtest {

// What a stranger may write; no character that a PPD or a file name forbids.
inline constexpr char kMarkup[] = "<img src=x>";

inline bool showsImage(const QString &text)
{
    return Qt::mightBeRichText(text) && text.contains(QLatin1String("<img"));
}

// The places below `root`, itself included, where the image would be loaded: labels, and tips of widgets and items.
inline QStringList imagesShown(QWidget *root)
{
    QStringList places;
    QList<QWidget *> widgets = root->findChildren<QWidget *>();
    widgets << root;
    for (QWidget *widget : widgets) {
        if (showsImage(widget->toolTip()))
            places << widget->objectName() + QStringLiteral(": tip");
        const auto *label = qobject_cast<QLabel *>(widget);
        if (label && label->textFormat() != Qt::PlainText && showsImage(label->text()))
            places << widget->objectName() + QStringLiteral(": label");
        const auto *view = qobject_cast<QAbstractItemView *>(widget);
        const auto *popUp = qobject_cast<QComboBox *>(widget);
        const QAbstractItemModel *model = view ? view->model() : popUp ? popUp->model() : nullptr;
        for (int row = 0; model && row < model->rowCount(); ++row) {
            for (int column = 0; column < model->columnCount(); ++column)
                if (showsImage(model->index(row, column).data(Qt::ToolTipRole).toString()))
                    places << widget->objectName() + QStringLiteral(": item");
        }
    }
    return places;
}

} // namespace bvtest
