// SPDX-License-Identifier: GPL-2.0-or-later
// The check of a text field after each change, including caret and undo steps.
#include "profileui/BVTextField.h"

#include "profileui/KeyFilters.h"

#include <QDropEvent>
#include <QInputMethodEvent>

#include <algorithm>

BVTextField::BVTextField(QWidget *parent) : QLineEdit(parent)
{
    // This signal reports every kind of change by the user: typing, pasting, dropping, undo.
    connect(this, &QLineEdit::textEdited, this, &BVTextField::textDidChange);
}

void BVTextField::setMaxLength(uint32_t total, uint32_t extension)
{
    maxLen = total;
    maxExtension = extension;
}

void BVTextField::setInputKey(uint32_t filter)
{
    inputkey = filter;
}

void BVTextField::setOperateControl(QWidget *control)
{
    operateOutlet = control;
}

void BVTextField::setOldString(const QString &text)
{
    oldValue = text;
}

void BVTextField::putText(const QString &text)
{
    setText(text);
    QInputMethodEvent nothingComposed;
    inputMethodEvent(&nothingComposed);
    setOldString(text);
}

bool BVTextField::textShouldBeginEditing(QLineEdit *editor)
{
    oldValue = text();
    textObj = editor;
    return true;
}

bool BVTextField::textShouldEndEditing(QLineEdit *editor)
{
    Q_UNUSED(editor);
    textObj = nullptr;
    return true;
}

bool BVTextField::breaksALimit(const QString &text) const
{
    const auto length = static_cast<uint32_t>(text.size());
    const uint32_t stemLimit = maxLen - 1 - maxExtension;
    const qsizetype dot = text.indexOf(u'.');
    const bool roomForExtension = maxExtension > 0 && dot < 0;
    if (length > (roomForExtension ? stemLimit : maxLen))
        return true;
    if (maxExtension == 0 || dot < 0)
        return false;
    const auto stem = static_cast<uint32_t>(dot);
    if (stem > stemLimit || length - stem > maxExtension + 1)
        return true;
    return length >= 2 && text.indexOf(u'.', dot + 1) >= 0;
}

void BVTextField::textDidChange()
{
    if (m_replacing)
        return;
    const QString changed = text();
    if (breaksALimit(changed)) {
        const qsizetype caret = cursorPosition() - changed.size() + oldValue.size();
        replaceText(oldValue, caret);
        m_refusedCaret = cursorPosition();
        updateOperateControl();
    } else {
        QString checked = changed;
        const auto *units = reinterpret_cast<const char16_t *>(changed.utf16());
        CheckUniCharString(units, static_cast<uint32_t>(changed.size()), inputkey, &checked);
        if (checked != changed) {
            // The caret goes after the remaining part of the text that stood before it.
            QString before = changed.left(cursorPosition());
            CheckUniCharString(units, static_cast<uint32_t>(before.size()), inputkey, &before);
            replaceText(checked, before.size());
        }
        updateOperateControl();
        oldValue = checked;
    }
}

void BVTextField::updateOperateControl()
{
    if (!operateOutlet)
        return;
    const QString now = text();
    const bool usable = now.contains(u'.') ? now.indexOf(u'.') != 0 : !now.isEmpty();
    if (operateOutlet->isEnabled() != usable)
        operateOutlet->setEnabled(usable);
}

void BVTextField::replaceText(const QString &text, qsizetype caret)
{
    m_replacing = true;
    // Undoing first removes the change from the undo steps, so that the user's undo never restores a refused text. This
    // may undo more than the one change; the text is then inserted as one step.
    undo();
    if (this->text() != text) {
        selectAll();
        insert(text);
    }
    deselect();
    setCursorPosition(static_cast<int>(std::clamp<qsizetype>(caret, 0, text.size())));
    m_replacing = false;
}

void BVTextField::focusInEvent(QFocusEvent *event)
{
    if (!textObj)
        textShouldBeginEditing(this);
    QLineEdit::focusInEvent(event);
}

void BVTextField::focusOutEvent(QFocusEvent *event)
{
    // The field's own context menu takes the focus, but does not end the session.
    if (event->reason() != Qt::PopupFocusReason)
        textShouldEndEditing(this);
    QLineEdit::focusOutEvent(event);
}

void BVTextField::dropEvent(QDropEvent *event)
{
    m_refusedCaret = -1;
    // A drop on a field without the focus is a separate editing session.
    const bool ownSession = !textObj;
    if (ownSession)
        textShouldBeginEditing(this);
    QLineEdit::dropEvent(event);
    if (ownSession && !hasFocus())
        textShouldEndEditing(this);
    // Qt selects the dropped text afterwards. After a refusal that text is gone, so the selection is undone.
    if (m_refusedCaret >= 0)
        setCursorPosition(m_refusedCaret);
}
