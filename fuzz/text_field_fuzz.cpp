// SPDX-License-Identifier: GPL-2.0-or-later
// Reads bytes as what a user does in a text field: keys, pasting, selecting, undoing, dropping, composing. The text
// must keep to the field's filter and limits after each step, and the button beside it must follow.
#include "QtFuzzing.h"
#include "profileui/BVTextField.h"
#include "profileui/KeyFilters.h"

#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPushButton>

using fuzz::require;

namespace {

constexpr int kMostSteps = 200;

struct Kind
{
    uint32_t total;
    uint32_t extension;
    uint32_t filter;
};

// Those of the window, and some that come to their limits sooner. An extension needs a filter that lets the dot
// through.
constexpr Kind kKinds[] = {
    {31, 3, kFilterFileName},    {30, 0, kFilterAscii}, {6, 3, kFilterFileName}, {4, 0, kFilterNumeric}, {5, 0, 4},
    {5, 0, kFilterAlphaNumeric},
};

struct Key
{
    int key;
    Qt::KeyboardModifiers modifiers;
};

constexpr Key kKeys[] = {
    {Qt::Key_Backspace, Qt::NoModifier}, {Qt::Key_Delete, Qt::NoModifier},         {Qt::Key_Left, Qt::NoModifier},
    {Qt::Key_Right, Qt::ShiftModifier},  {Qt::Key_Home, Qt::NoModifier},           {Qt::Key_End, Qt::ShiftModifier},
    {Qt::Key_Z, Qt::ControlModifier},    {Qt::Key_Y, Qt::ControlModifier},         {Qt::Key_A, Qt::ControlModifier},
    {Qt::Key_K, Qt::ControlModifier},    {Qt::Key_Backspace, Qt::ControlModifier}, {Qt::Key_X, Qt::ControlModifier},
    {Qt::Key_V, Qt::ControlModifier},    {Qt::Key_C, Qt::ControlModifier},
};

void press(QWidget &field, const Key &key, const QString &text = {})
{
    QKeyEvent down(QEvent::KeyPress, key.key, key.modifiers, text);
    QApplication::sendEvent(&field, &down);
}

// The limits in other words than those of the field.
bool keepsTo(const Kind &kind, const QString &text)
{
    if (text.size() > qsizetype(kind.total))
        return false;
    const QStringList parts = text.split(u'.');
    if (kind.extension > 0 && (parts.size() > 2 || parts[0].size() > qsizetype(kind.total - 1 - kind.extension) ||
                               (parts.size() == 2 && parts[1].size() > qsizetype(kind.extension))))
        return false;
    QString checked = text;
    CheckUniCharString(reinterpret_cast<const char16_t *>(text.utf16()), static_cast<uint32_t>(text.size()),
                       kind.filter, &checked);
    return checked == text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::application();
    fuzz::Input input(data, size);
    const Kind kind = kKinds[input.byte() % std::size(kKinds)];
    QWidget window;
    QPushButton button(&window);
    BVTextField field(&window);
    field.setMaxLength(kind.total, kind.extension);
    field.setInputKey(kind.filter);
    field.setOperateControl(&button);
    field.textShouldBeginEditing(&field);
    for (int step = 0; !input.atEnd() && step < kMostSteps; ++step) {
        const uint8_t what = input.byte();
        const QString text = what & 0x80 ? fuzz::wordsOf(input.text(input.byte() % 64)) : QString();
        const bool byUser = what % 8 != 7;
        const QString before = field.text();
        switch (what % 8) {
        case 0:
        case 1:
            press(field, {Qt::Key_unknown, Qt::NoModifier},
                  text.isEmpty() ? QString(QChar(input.byte())) : text.left(1));
            break;
        case 2:
        case 3:
            press(field, kKeys[input.byte() % std::size(kKeys)]);
            break;
        case 4: {
            QInputMethodEvent event(text, {});
            if (input.byte() & 1)
                event.setCommitString(text, -int(input.byte() % 4), input.byte() % 4);
            QApplication::sendEvent(&field, &event);
            break;
        }
        case 5: {
            QMimeData dropped;
            dropped.setText(text);
            const QPoint where(input.byte(), 1);
            QDropEvent event(where, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&field, &event);
            break;
        }
        case 6: // as the clipboard does
            field.insert(text);
            emit field.textEdited(field.text());
            break;
        case 7:
            if (keepsTo(kind, text))
                field.putText(text);
            break;
        }
        require(keepsTo(kind, field.text()));
        // Qt lets it stand inside what is being composed, which is no part of the text.
        require(field.cursorPosition() >= 0);
        if (byUser && field.text() != before)
            require(button.isEnabled() == (!field.text().isEmpty() && field.text()[0] != u'.'));
    }
    return 0;
}
