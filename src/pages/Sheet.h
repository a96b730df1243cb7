// SPDX-License-Identifier: GPL-2.0-or-later
// A sheet of paper.
#pragma once

#include <QMarginsF>
#include <QSizeF>

namespace bv {

struct Sheet
{
    // In points. A4, until a printer's paper is known.
    QSizeF size = {595, 842};
    // Left white by the printer.
    QMarginsF borders;

    bool operator==(const Sheet &) const = default;
};

} // namespace bv
