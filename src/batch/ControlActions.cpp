// SPDX-License-Identifier: GPL-2.0-or-later
// Driving controls by their kind.
#include "batch/ControlActions.h"

#include "batch/ControlCatalog.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCoreApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QSpinBox>
#include <QTabWidget>
#include <optional>

namespace bv {

namespace {

QString disabledSentence(const QWidget *control)
{
    return control->isEnabled() ? QString() : QStringLiteral("%1 is disabled.").arg(control->objectName());
}

std::optional<int> number(const QString &text)
{
    bool isNumber = false;
    const int value = text.toInt(&isNumber);
    return isNumber ? std::optional(value) : std::nullopt;
}

// The number, if it is from first to last. Otherwise nothing, with a sentence in *error.
std::optional<int> numberWithin(const QString &text, int first, int last, QString *error)
{
    const std::optional<int> value = number(text);
    if (!value)
        *error = QStringLiteral("%1 is no number.").arg(text);
    else if (*value < first || *value > last)
        *error = last < first
                     ? QStringLiteral("There is no %1; there is nothing to choose.").arg(*value)
                     : QStringLiteral("There is no %1; it goes from %2 to %3.").arg(*value).arg(first).arg(last);
    else
        return value;
    return std::nullopt;
}

QString setCombo(QComboBox *combo, const QString &value)
{
    QString error;
    const std::optional<int> item = numberWithin(value, 0, combo->count() - 1, &error);
    if (!item)
        return error;
    const QModelIndex index = combo->model()->index(*item, combo->modelColumn(), combo->rootModelIndex());
    if (!(combo->model()->flags(index) & Qt::ItemIsEnabled))
        return QStringLiteral("The item %1 is disabled.").arg(*item);
    const QPointer<QComboBox> kept(combo);
    combo->setCurrentIndex(*item);
    if (kept)
        emit combo->activated(*item);
    if (kept)
        emit combo->textActivated(combo->itemText(*item));
    return {};
}

QString setCheckable(QAbstractButton *button, const QString &value)
{
    QString error;
    const std::optional<int> mark = numberWithin(value, 0, 1, &error);
    if (!mark)
        return error;
    const QPointer<QAbstractButton> kept(button);
    button->setChecked(*mark == 1);
    if (kept)
        emit button->clicked(*mark == 1);
    return {};
}

void takeFocus(QLineEdit *field)
{
    // A view that is not shown has no focus, but its window knows which field would have it.
    if (field->hasFocus() || field->window()->focusWidget() == field)
        return;
    field->setFocus(Qt::OtherFocusReason);
    field->end(false);
}

QString setField(QLineEdit *field, const QString &value)
{
    if (field->isReadOnly())
        return QStringLiteral("%1 cannot be changed.").arg(field->objectName());
    takeFocus(field);
    // Has the effect of pasting, but leaves the clipboard alone: it may belong to a user of this display.
    field->selectAll();
    field->insert(value);
    return {};
}

QString setTabs(QTabWidget *tabs, const QString &value)
{
    QString error;
    const std::optional<int> tab = numberWithin(value, 0, tabs->count() - 1, &error);
    if (!tab)
        return error;
    if (!tabs->isTabEnabled(*tab))
        return QStringLiteral("The tab %1 is disabled.").arg(*tab);
    tabs->setCurrentIndex(*tab);
    return {};
}

QString setSpinBox(QSpinBox *box, const QString &value)
{
    QString error;
    if (const std::optional<int> chosen = numberWithin(value, box->minimum(), box->maximum(), &error))
        box->setValue(*chosen);
    return error;
}

QString notOfKind(const QWidget *control, const QString &kind)
{
    return QStringLiteral("%1 is no %2.").arg(control->objectName(), kind);
}

} // namespace

QString setControl(QWidget *control, const QString &value)
{
    if (QString error = disabledSentence(control); !error.isEmpty())
        return error;
    if (auto *combo = qobject_cast<QComboBox *>(control))
        return setCombo(combo, value);
    if (auto *button = qobject_cast<QAbstractButton *>(control); button && button->isCheckable())
        return setCheckable(button, value);
    if (auto *field = qobject_cast<QLineEdit *>(control))
        return setField(field, value);
    if (auto *tabs = qobject_cast<QTabWidget *>(control))
        return setTabs(tabs, value);
    if (auto *box = qobject_cast<QSpinBox *>(control))
        return setSpinBox(box, value);
    return QStringLiteral("%1 has no value to set.").arg(control->objectName());
}

QString setTableMark(QWidget *table, const QString &column, const QString &row, const QString &value)
{
    auto *view = qobject_cast<QAbstractItemView *>(table);
    if (!view || !view->model())
        return notOfKind(table, QStringLiteral("table"));
    if (QString error = disabledSentence(table); !error.isEmpty())
        return error;
    const qsizetype number = columnIdentifiers(*view).indexOf(column);
    if (number < 0)
        return QStringLiteral("%1 has no column %2.").arg(table->objectName(), column);
    QString error;
    const std::optional<int> at = numberWithin(row, 0, view->model()->rowCount(view->rootIndex()) - 1, &error);
    if (!at)
        return error;
    const std::optional<int> mark = numberWithin(value, 0, 1, &error);
    if (!mark)
        return error;
    const QModelIndex index = view->model()->index(*at, static_cast<int>(number), view->rootIndex());
    const Qt::ItemFlags flags = view->model()->flags(index);
    if (!(flags & Qt::ItemIsUserCheckable) || !(flags & Qt::ItemIsEnabled))
        return QStringLiteral("The cell %1 of row %2 has no check mark to set.").arg(column).arg(*at);
    // A mark that is already as wanted is not set again, because some models toggle it on every call.
    const bool isSet = view->model()->data(index, Qt::CheckStateRole).toInt() == Qt::Checked;
    if (isSet != (*mark == 1) &&
        !view->model()->setData(index, *mark == 1 ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole))
        return QStringLiteral("The check mark %1 of row %2 cannot be changed.").arg(column).arg(*at);
    return {};
}

QString typeIntoControl(QWidget *control, const QString &text)
{
    auto *field = qobject_cast<QLineEdit *>(control);
    if (!field)
        return notOfKind(control, QStringLiteral("text field"));
    if (QString error = disabledSentence(control); !error.isEmpty())
        return error;
    takeFocus(field);
    const QPointer<QLineEdit> kept(field);
    for (qsizetype i = 0; kept && i < text.size();) {
        // A character outside the BMP is two UTF-16 units, but one key.
        const qsizetype length = text[i].isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
        const QString character = text.mid(i, length);
        const int key =
            length == 1 && character[0].unicode() < 0x100 ? character[0].toUpper().unicode() : int(Qt::Key_unknown);
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, type == QEvent::KeyPress ? character : QString());
            if (kept)
                QCoreApplication::sendEvent(field, &event);
        }
        i += length;
    }
    return {};
}

QString selectTableRow(QWidget *table, const QString &row)
{
    auto *view = qobject_cast<QAbstractItemView *>(table);
    if (!view || !view->model() || !view->selectionModel())
        return notOfKind(table, QStringLiteral("table"));
    if (QString error = disabledSentence(table); !error.isEmpty())
        return error;
    QString error;
    const std::optional<int> at = numberWithin(row, -1, view->model()->rowCount(view->rootIndex()) - 1, &error);
    if (!at)
        return error;
    if (*at < 0) {
        view->selectionModel()->clearSelection();
        view->selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
        return {};
    }
    view->selectionModel()->setCurrentIndex(view->model()->index(*at, 0, view->rootIndex()),
                                            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    return {};
}

QString pressControl(QWidget *control)
{
    auto *button = qobject_cast<QAbstractButton *>(control);
    if (!button)
        return notOfKind(control, QStringLiteral("button"));
    QString error = disabledSentence(control);
    if (error.isEmpty())
        button->click();
    return error;
}

QString chooseFile(QFileDialog *panel, const QString &path)
{
    if (path == u"-") {
        panel->reject();
        return {};
    }
    const QFileInfo info(path);
    if (!info.exists())
        return QStringLiteral("%1 is not there.").arg(path);
    const bool wantsFolder = panel->fileMode() == QFileDialog::Directory;
    if (info.isDir() != wantsFolder)
        return QStringLiteral("%1 is %2.")
            .arg(path, wantsFolder ? QStringLiteral("no folder") : QStringLiteral("a folder"));
    auto *field = panel->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (!field)
        return QStringLiteral("The file panel belongs to the desktop and cannot be driven.");
    field->setText(info.absoluteFilePath());
    static_cast<QDialog *>(panel)->accept();
    return {};
}

} // namespace bv
