// SPDX-License-Identifier: GPL-2.0-or-later
// Gives every control in sight of a window a mnemonic of its own, those of panels and of foreign languages too.
#pragma once

#include <QObject>
#include <QString>
#include <vector>

class QWidget;

namespace bv {

// Controls are named by their own text, or by a label that is their buddy. A mark "&" that a text brings along is kept
// where its letter is still free. A text none of whose letters is free gets one behind it, in parentheses. A control
// keeps its letter as long as it lives, so that people can learn it; what stands on different pages of a stack may have
// the same.
class Mnemonics : public QObject
{
    Q_OBJECT

public:
    // Follows the window from now on: what is shown, hidden or renamed. The window is borrowed.
    explicit Mnemonics(QWidget *window);

    // Looks at the window now instead of in the next turn of the event loop.
    void assign();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    // A text as the last assignment left it. The owner may be gone.
    struct Seen
    {
        const QWidget *owner;
        int place;
        QString text;
        bool isInSight;

        bool operator==(const Seen &) const = default;
    };

    QWidget *m_window;
    std::vector<Seen> m_seen; // most requests for a new layout have changed no text
    bool m_pending = false;
};

// The mnemonic of a text, in upper case; null when it has none.
QChar mnemonicOf(const QString &text);
// The text as people read it, without the mark.
QString withoutMnemonic(const QString &text);

} // namespace bv
