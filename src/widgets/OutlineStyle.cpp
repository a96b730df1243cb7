// SPDX-License-Identifier: GPL-2.0-or-later
// A style over the usual one that draws its lines last.
#include "widgets/OutlineStyle.h"

#include <QApplication>
#include <QGroupBox>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <algorithm>

namespace bv {

namespace {

// The only style whose outlines vanish.
const QString kUsualStyle = QStringLiteral("fusion");

class OutlineStyle : public QProxyStyle
{
public:
    OutlineStyle() : QProxyStyle(kUsualStyle) { setObjectName(kUsualStyle); }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        switch (element) {
        case PE_IndicatorRadioButton:
            drawOutline(*option, painter, option->rect, true);
            break;
        case PE_FrameGroupBox:
            drawOutline(*option, painter, option->rect.adjusted(0, titleHeight(*option, widget), 0, 0), false);
            break;
        case PE_Frame:
        case PE_FrameLineEdit:
        case PE_FrameTabWidget:
        case PE_IndicatorCheckBox:
        case PE_PanelButtonCommand:
            drawOutline(*option, painter, option->rect, false);
            break;
        default:
            break;
        }
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override
    {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        if (control == CC_ComboBox || control == CC_SpinBox)
            drawOutline(*option, painter, option->rect, false);
    }

private:
    // The frame of a group stands below its title.
    int titleHeight(const QStyleOption &option, const QWidget *widget) const
    {
        constexpr int kGap = 3;
        const auto *group = qobject_cast<const QGroupBox *>(widget);
        return !group || group->title().isEmpty()
                   ? 0
                   : std::max(option.fontMetrics.height(), pixelMetric(PM_ExclusiveIndicatorHeight)) + kGap;
    }

    static void drawOutline(const QStyleOption &option, QPainter *painter, const QRect &rect, bool isRound)
    {
        constexpr int kBlack = 24; // a shade that nobody tells from a darker one
        constexpr int kDark = 96;  // where fields and buttons are seen by their own color, but small circles are not
        const int shade = option.palette.color(QPalette::Window).value();
        if (shade > (isRound ? kDark : kBlack))
            return;
        const bool isFocused = (option.state & State_HasFocus) != 0 && !isRound;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setBrush(Qt::NoBrush);
        QColor line = option.palette.color(isFocused ? QPalette::Highlight : QPalette::WindowText);
        if (shade > kBlack)
            line.setAlphaF(0.5F);
        painter->setPen(line);
        const QRectF box = QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
        if (isRound)
            painter->drawEllipse(box);
        else
            painter->drawRect(box);
        painter->restore();
    }
};

} // namespace

void useOutlines()
{
    const QStyle *style = QApplication::style();
    if (style->name() == kUsualStyle && !dynamic_cast<const OutlineStyle *>(style))
        QApplication::setStyle(new OutlineStyle);
}

} // namespace bv
