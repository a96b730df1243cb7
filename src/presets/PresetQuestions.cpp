// SPDX-License-Identifier: GPL-2.0-or-later
// The questions. Names are the user's words, never markup.
#include "presets/PresetQuestions.h"

#include <QCoreApplication>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("PresetQuestions", text);
}

} // namespace

QString askPresetName(QWidget *parent, const QString &title, const QString &proposed,
                      const std::function<QString(const QString &name)> &problem)
{
    constexpr int kCharacters = 50; // the width of the question
    QString name = proposed;
    QString why;
    while (true) {
        QInputDialog question(parent);
        question.setObjectName(QStringLiteral("presetName"));
        question.setWindowTitle(title);
        question.setLabelText((why.isEmpty() ? QString() : why + u'\n') + tr("&Name:"));
        question.setTextValue(name);
        for (QLabel *label : question.findChildren<QLabel *>()) {
            label->setTextFormat(Qt::PlainText);
            label->setWordWrap(true);
        }
        question.resize(question.fontMetrics().averageCharWidth() * kCharacters, 0);
        if (question.exec() != QDialog::Accepted)
            return {};
        name = question.textValue().trimmed();
        why = problem(name);
        if (why.isEmpty())
            return name;
    }
}

bool askBefore(QWidget *parent, const QString &title, const QString &question, const QString &action)
{
    QMessageBox box(QMessageBox::Question, title, QString(), QMessageBox::Cancel, parent);
    box.setObjectName(QStringLiteral("presetQuestion"));
    box.setTextFormat(Qt::PlainText);
    box.setText(question);
    const QPushButton *go = box.addButton(action, QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == go;
}

} // namespace bv
