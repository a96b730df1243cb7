// SPDX-License-Identifier: GPL-2.0-or-later
// The kinds of controls and how each is described.
#include "batch/ControlCatalog.h"

#include "platform/HostProtocol.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>

namespace bv {

namespace {

// Whether the widget is a control to its user. Containers, scroll bars, headers and the tabs of a tab view are not.
bool isControlKind(const QWidget *widget)
{
    if (qobject_cast<const QScrollBar *>(widget) || qobject_cast<const QHeaderView *>(widget))
        return false;
    if (const auto *box = qobject_cast<const QGroupBox *>(widget))
        return box->isCheckable();
    return qobject_cast<const QComboBox *>(widget) || qobject_cast<const QAbstractButton *>(widget) ||
           qobject_cast<const QLabel *>(widget) || qobject_cast<const QLineEdit *>(widget) ||
           qobject_cast<const QTabWidget *>(widget) || qobject_cast<const QAbstractItemView *>(widget) ||
           qobject_cast<const QAbstractSpinBox *>(widget) || qobject_cast<const QAbstractSlider *>(widget) ||
           qobject_cast<const QPlainTextEdit *>(widget) || qobject_cast<const QTextEdit *>(widget);
}

// Whether the widget is part of another control: the field of a spin box, the list of a pop-up, a button of a tab bar
// or a table's corner.
bool isPartOfControl(const QWidget *widget, const QWidget *root)
{
    for (const QWidget *parent = widget->parentWidget(); parent && parent != root; parent = parent->parentWidget())
        if (qobject_cast<const QComboBox *>(parent) || qobject_cast<const QAbstractSpinBox *>(parent) ||
            qobject_cast<const QTabBar *>(parent) || qobject_cast<const QAbstractItemView *>(parent))
            return true;
    return false;
}

bool isNamedControl(const QWidget *widget, const QWidget *root)
{
    const QString name = widget->objectName();
    return !name.isEmpty() && !name.startsWith(u"qt_") && isControlKind(widget) && !isPartOfControl(widget, root);
}

// A title without its mnemonic mark "&". A doubled "&" stands for the character itself.
QString withoutMarks(const QString &title)
{
    QString text;
    for (qsizetype i = 0; i < title.size(); ++i) {
        if (title[i] == u'&' && i + 1 < title.size())
            ++i;
        text.append(title[i]);
    }
    return text;
}

QJsonValue cell(const QAbstractItemModel &model, const QModelIndex &index)
{
    if (const QVariant icon = model.data(index, kIconShownRole); icon.isValid())
        return icon.toBool() ? 1 : 0;
    if (const QVariant mark = model.data(index, Qt::CheckStateRole); mark.isValid())
        return mark.toInt() == Qt::Checked ? 1 : 0;
    return model.data(index, Qt::DisplayRole).toString();
}

void describeTable(const QAbstractItemView &table, QJsonObject &description)
{
    description[u"columns"] = QJsonArray::fromStringList(columnIdentifiers(table));
    QJsonArray rows;
    if (const QAbstractItemModel *model = table.model()) {
        const QModelIndex root = table.rootIndex();
        for (int row = 0; row < model->rowCount(root); ++row) {
            QJsonArray cells;
            for (int column = 0; column < model->columnCount(root); ++column)
                cells.append(cell(*model, model->index(row, column, root)));
            rows.append(cells);
        }
    }
    description[u"rows"] = rows;
    const QModelIndexList selected =
        table.selectionModel() ? table.selectionModel()->selectedIndexes() : QModelIndexList();
    description[u"selected"] = selected.isEmpty() ? -1 : selected.first().row();
}

void describeButton(const QAbstractButton &button, QJsonObject &description)
{
    description[u"text"] = withoutMarks(button.text());
    if (button.isCheckable())
        description[u"value"] = button.isChecked() ? 1 : 0;
}

void describeCombo(const QComboBox &combo, QJsonObject &description)
{
    description[u"value"] = combo.currentIndex();
    QJsonArray items;
    for (int i = 0; i < combo.count(); ++i)
        items.append(combo.itemText(i));
    description[u"items"] = items;
}

void describeTabs(const QTabWidget &tabs, QJsonObject &description)
{
    description[u"value"] = tabs.currentIndex();
    QJsonArray items;
    for (int i = 0; i < tabs.count(); ++i)
        items.append(withoutMarks(tabs.tabText(i)));
    description[u"items"] = items;
}

// Adds the entries that depend on the control's kind.
void describeKind(QWidget *control, QJsonObject &description)
{
    if (const auto *combo = qobject_cast<QComboBox *>(control))
        describeCombo(*combo, description);
    else if (const auto *button = qobject_cast<QAbstractButton *>(control))
        describeButton(*button, description);
    else if (const auto *label = qobject_cast<QLabel *>(control))
        description[u"text"] = label->buddy() ? withoutMarks(label->text()) : label->text();
    else if (const auto *field = qobject_cast<QLineEdit *>(control))
        description[u"value"] = field->text();
    else if (const auto *tabs = qobject_cast<QTabWidget *>(control))
        describeTabs(*tabs, description);
    else if (const auto *table = qobject_cast<QAbstractItemView *>(control))
        describeTable(*table, description);
    else if (const auto *number = qobject_cast<QSpinBox *>(control))
        description[u"value"] = number->value();
    else if (const auto *real = qobject_cast<QDoubleSpinBox *>(control))
        description[u"value"] = real->value();
    else if (const auto *other = qobject_cast<QAbstractSpinBox *>(control))
        description[u"value"] = other->text();
    else if (const auto *slider = qobject_cast<QAbstractSlider *>(control))
        description[u"value"] = slider->value();
    else if (const auto *plain = qobject_cast<QPlainTextEdit *>(control))
        description[u"value"] = plain->toPlainText();
    else if (const auto *rich = qobject_cast<QTextEdit *>(control))
        description[u"value"] = rich->toPlainText();
    else if (const auto *group = qobject_cast<QGroupBox *>(control)) {
        description[u"text"] = withoutMarks(group->title());
        description[u"value"] = group->isChecked() ? 1 : 0;
    }
}

// A window is a child of the window that opened it, also after it was closed. Its controls belong only to itself.
bool standsIn(const ControlRoot &root, const QWidget *widget)
{
    return widget->window() == root.widget->window() && isNamedControl(widget, root.widget);
}

} // namespace

QWidget *findControl(const ControlRoot &root, const QString &name)
{
    if (!root.widget || name.isEmpty())
        return nullptr;
    for (QWidget *widget : root.widget->findChildren<QWidget *>(name))
        if (standsIn(root, widget))
            return widget;
    return nullptr;
}

QJsonObject describeControl(const ControlRoot &root, QWidget *control)
{
    QJsonObject description;
    description[u"name"] = control->objectName();
    description[u"class"] = bareClassName(control->metaObject()->className());
    description[u"enabled"] = control->isEnabledTo(control->parentWidget());
    description[u"visible"] = root.isWindow ? control->isVisible() : control->isVisibleTo(root.widget);
    describeKind(control, description);
    return description;
}

QJsonArray describeControls(const ControlRoot &root)
{
    QJsonArray controls;
    for (QWidget *widget : root.widget->findChildren<QWidget *>())
        if (standsIn(root, widget))
            controls.append(describeControl(root, widget));
    return controls;
}

QStringList columnIdentifiers(const QAbstractItemView &table)
{
    QStringList identifiers;
    const QAbstractItemModel *model = table.model();
    for (int column = 0; model && column < model->columnCount(table.rootIndex()); ++column) {
        const QVariant identifier = model->headerData(column, Qt::Horizontal, kColumnIdentifierRole);
        identifiers.append(identifier.isValid() ? identifier.toString()
                                                : model->headerData(column, Qt::Horizontal).toString());
    }
    return identifiers;
}

QString bareClassName(const char *className)
{
    static const QRegularExpression suffix(
        QStringLiteral("_[0-9A-F]{8}_[0-9A-F]{4}_[0-9A-F]{4}_[0-9A-F]{4}_[0-9A-F]{12}$"));
    QString name = QString::fromLatin1(className).section(QStringLiteral("::"), -1);
    return name.remove(suffix);
}

} // namespace bv
