// Finds and describes the named controls below a widget, whatever panel they belong to. Controls are known by their
// kind, never by name.
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

class QWidget;
class QAbstractItemView;

namespace bv {

// How the name of a control is looked up and how far it counts as seen.
struct ControlRoot
{
    QWidget *widget = nullptr; // the view of a panel, or a modal window
    bool isWindow = false;     // a modal window: seen is what is on the screen; a view need not be shown for that
};

// The control of that name in the root's own window; null when there is none.
QWidget *findControl(const ControlRoot &root, const QString &name);

// A control with what fits its kind: name, class, enabled, visible, value, text, items, columns, rows, selected.
QJsonObject describeControl(const ControlRoot &root, QWidget *control);

// Every named control, in the order in which they were made.
QJsonArray describeControls(const ControlRoot &root);

// The identifiers of a table's columns, in order: what the model names them for scripts, else the header's texts.
QStringList columnIdentifiers(const QAbstractItemView &table);

// A class name as people know it: without name space and without the suffix that keeps a plug-in's classes apart.
QString bareClassName(const char *className);

} // namespace bv
