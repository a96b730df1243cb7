// SPDX-License-Identifier: GPL-2.0-or-later
// Finds and describes the named controls below a widget, for any panel. Code here depends on the kind of a control,
// never on its name.
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

class QWidget;
class QAbstractItemView;

namespace bv {

// A widget in which controls are looked up.
struct ControlRoot
{
    QWidget *widget = nullptr; // the view of a panel, or a modal window
    bool isWindow = false;     // true: controls count as visible only on the screen; false: also in a view not shown
};

// The control of that name in the root's own window; null when there is none.
QWidget *findControl(const ControlRoot &root, const QString &name);

// Describes a control with the entries that fit its kind, out of: name, class, enabled, visible, value, text, items,
// columns, rows, selected.
QJsonObject describeControl(const ControlRoot &root, QWidget *control);

// Describes every named control, in order of creation.
QJsonArray describeControls(const ControlRoot &root);

// The identifiers of a table's columns, in order: the model's names for scripts, or else the header texts.
QStringList columnIdentifiers(const QAbstractItemView &table);

// A class name without its namespace and without the plug-in's class suffix.
QString bareClassName(const char *className);

} // namespace bv
