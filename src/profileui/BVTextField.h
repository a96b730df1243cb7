// A text field that checks its whole text after every change by the user: it limits the length (of a file name: stem
// and extension apart), drops characters outside its filter, puts back the text before a change that breaks a limit,
// and enables one other control while the text is usable.
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

    // Limits in UTF-16 units: of the whole text, and of the extension behind the dot (0: a text without that rule).
    // The toolkit's own length limit is not used.
    void setMaxLength(uint32_t total, uint32_t extension);
    // The number of the filter, see KeyFilters.h.
    void setInputKey(uint32_t filter);
    // The control that is enabled while the text is usable (borrowed; null: none).
    void setOperateControl(QWidget *control);
    // The text that a later refusal goes back to.
    void setOldString(const QString &text);

    // Puts a text into the field from code: no check, and a later refusal goes back to it. Text that an input method
    // was still composing is dropped.
    void putText(const QString &text);

    // The start and end of an editing session, which is as long as the field has the focus; a refusal goes back to the
    // text that stands there at its start. Both answer true.
    bool textShouldBeginEditing(QLineEdit *editor);
    bool textShouldEndEditing(QLineEdit *editor);

public slots:
    // The check after a change by the user. A refusal goes back to the last text that was accepted or named.
    void textDidChange();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    bool breaksALimit(const QString &text) const;
    void updateOperateControl();
    // Gives the field another text and caret in the middle of a change; the change itself leaves no step to undo.
    void replaceText(const QString &text, qsizetype caret);

    QString oldValue;                // the last accepted text
    QPointer<QLineEdit> textObj;     // the editor in use: the field itself while it is being edited
    uint32_t maxLen = UINT32_MAX;    // limit of the whole text
    uint32_t maxExtension = 0;       // limit of the extension, 0 for none
    uint32_t inputkey = 0;           // which filter
    QPointer<QWidget> operateOutlet; // enabled by the text

    bool m_replacing = false; // the check itself is changing the text
    int m_refusedCaret = -1;  // where the last refusal of an event left the caret
};
