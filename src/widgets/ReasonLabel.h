// The line beside a greyed button that says why it is greyed, in sight and for assistive tools.
#pragma once

#include <QLabel>
#include <QPointer>

class QAbstractButton;

namespace bv {

class ReasonLabel : public QLabel
{
    Q_OBJECT

public:
    // The button is not owned. usualTip is the button's tool tip while it can be pressed.
    ReasonLabel(QAbstractButton *button, QString usualTip, QWidget *parent = nullptr);

    // Greys the button and says why: here, in its tool tip and in its accessible description. An empty reason makes
    // the button usable again and takes the texts away.
    void explain(const QString &reason);

private:
    QPointer<QAbstractButton> m_button;
    QString m_usualTip;
};

} // namespace bv
