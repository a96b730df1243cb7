// SPDX-License-Identifier: GPL-2.0-or-later
// A line of plain text that ends in "…" where there is no room for all of it.
#pragma once

#include <QLabel>

namespace bv {

// Asks for no width. text() is the whole text, for assistive tools too.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace bv
