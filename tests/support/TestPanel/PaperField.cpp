// SPDX-License-Identifier: GPL-2.0-or-later
// Refuses digits in the test panel's text field.
#include "PaperField.h"

#include <QRegularExpression>

PaperField::PaperField(QWidget *parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::textEdited, this, [this](const QString &text) {
        static const QRegularExpression digits(QStringLiteral("[0-9]"));
        const int caret = cursorPosition();
        QString kept = text;
        kept.remove(digits);
        if (kept == text)
            return;
        setText(kept);
        setCursorPosition(caret - static_cast<int>(text.size() - kept.size()));
    });
}
