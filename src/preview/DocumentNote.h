// SPDX-License-Identifier: GPL-2.0-or-later
// What stands in the preview's place for a document whose pages cannot be shown.
#pragma once

#include "preview/PageRenderer.h"

#include <QIcon>
#include <QString>

namespace bv {

struct DocumentNote
{
    QString heading;
    QString text;
    QIcon icon;
};

// For a document of a kind that is not shown: its icon, name, kind and size. Else the reason.
DocumentNote documentNote(const QString &path, NoPage why);

} // namespace bv
