// SPDX-License-Identifier: GPL-2.0-or-later
// A text field that checks its whole text after every change by the user. It drops characters outside its filter and
// undoes a change that breaks a length limit. File names have separate limits for stem and extension. The field also
// enables one other control while its text is usable.
#pragma once

#include "platform/ClassNames.h"

#include <QLineEdit>
#include <QPointer>
#include <cstdint>

class BVTextField : public QLineEdit
{
    Q_OBJECT

public:
    explicit BVTextField(QWidget *parent = nullptr);

    // Limits of the whole text and of the extension after the dot, in UTF-16 units. Extension 0: the text is not a file
    // name, and only the total counts. Qt's own length limit is not used.
    void setMaxLength(uint32_t total, uint32_t extension);
    // The filter's number, see KeyFilters.h.
    void setInputKey(uint32_t filter);
    // The control that is enabled while the text is usable (borrowed; null: none).
    void setOperateControl(QWidget *control);
    // The text that is restored when a later change is refused.
    void setOldString(const QString &text);

    // Sets the text from code, without a check. A later refused change restores this text. Text that an input method is
    // still composing is dropped.
    void putText(const QString &text);

    // Start and end of an editing session, which lasts while the field has the focus. The text at its start is the one
    // that a refused change restores. Both return true.
    bool textShouldBeginEditing(QLineEdit *editor);
    bool textShouldEndEditing(QLineEdit *editor);

public slots:
    // Checks the text after a change by the user. A refused change restores the last text that was accepted or set.
    void textDidChange();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    bool breaksALimit(const QString &text) const;
    void updateOperateControl();
    // Replaces text and caret (a UTF-16 index) during a change. The user's change itself leaves no undo step.
    void replaceText(const QString &text, qsizetype caret);

    QString oldValue;                // the last accepted text
    QPointer<QLineEdit> textObj;     // the field itself during an editing session, else null
    uint32_t maxLen = UINT32_MAX;    // limit of the whole text
    uint32_t maxExtension = 0;       // limit of the extension, 0 for none
    uint32_t inputkey = 0;           // which filter
    QPointer<QWidget> operateOutlet; // enabled by the text

    bool m_replacing = false; // the check itself is changing the text
    int m_refusedCaret = -1;  // where the last refusal of an event left the caret
};
