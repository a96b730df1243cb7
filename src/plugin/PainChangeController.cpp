// SPDX-License-Identifier: GPL-2.0-or-later
// Swapping the panes, and forwarding to both.
#include "plugin/PainChangeController.h"

#include "profiles/QuickColorPresets.h"

#include <QLayout>
#include <memory>

namespace {

// Moves the focus into the new pane, so that keyboard users can continue there.
void focusFirstControl(QWidget *pane)
{
    QWidget *next = pane->nextInFocusChain();
    while (next != pane && !(pane->isAncestorOf(next) && (next->focusPolicy() & Qt::TabFocus) && next->isEnabled()))
        next = next->nextInFocusChain();
    next->setFocus(Qt::TabFocusReason);
}

} // namespace

void PainChangeController::ColorToAdvancedView()
{
    if (onAdvancedView && onAdvancedView->getControlData())
        SHowColorToAdvancedView();
}

void PainChangeController::AdvancedToColorView()
{
    if (onColorView && onColorView->getControlData())
        ShowAdvancedToColorView();
}

void PainChangeController::SHowColorToAdvancedView()
{
    show(onAdvancedView, onColorView);
}

void PainChangeController::ShowAdvancedToColorView()
{
    show(onColorView, onAdvancedView);
}

void PainChangeController::show(ControlTableView *shown, ControlTableView *hidden)
{
    if (!shown)
        return;
    const bool hadFocus = hidden && hidden->isAncestorOf(hidden->window()->focusWidget());
    shown->setViewBounds(onMainCustomView ? onMainCustomView->rect() : QRect());
    if (!onMainCustomView) // a pane without a parent would become a window of its own
        return;
    shown->setParent(onMainCustomView);
    QLayout *layout = onMainCustomView->layout();
    if (hidden) {
        hidden->setParent(onMainCustomView); // keeps the hidden pane in the view, so that its controls can be found
        if (layout && layout->indexOf(hidden) >= 0)
            const std::unique_ptr<QLayoutItem> replaced(layout->replaceWidget(hidden, shown));
        hidden->hide();
    } else if (layout && layout->indexOf(shown) < 0) {
        layout->addWidget(shown);
    }
    shown->show();
    if (hadFocus)
        focusFirstControl(shown);
}

template <typename Call> void PainChangeController::advancedThenColor(Call call)
{
    if (onAdvancedView)
        call(*onAdvancedView);
    if (onColorView)
        call(*onColorView);
}

void PainChangeController::creatPDEControlTableEachView()
{
    advancedThenColor([](ControlTableView &pane) { pane.createPDEControlTable(); });
}

void PainChangeController::addPPDArrayEachView(QStringList *array)
{
    advancedThenColor([array](ControlTableView &pane) { pane.addPPDArray(array); });
}

void PainChangeController::deallocPDEControlTableEachView()
{
    advancedThenColor([](ControlTableView &pane) { pane.deallocPDEControlTable(); });
}

void PainChangeController::setPPDFileEachView(ppd_file_t *file)
{
    advancedThenColor([file](ControlTableView &pane) { pane.setPPDFile(file); });
}

void PainChangeController::setPMPrintEachView(PMPrintSettings settings, PMPrintSession session)
{
    advancedThenColor([=](ControlTableView &pane) { pane.setPMPrint(settings, session); });
}

void PainChangeController::createPDEItemForPPDKeyEachView()
{
    advancedThenColor([](ControlTableView &pane) { pane.createPDEItemForPPDKey(); });
}

void PainChangeController::defaultFromPPDInfoEachView()
{
    if (onColorView)
        onColorView->defaultFromPPDInfo();
    if (onAdvancedView)
        onAdvancedView->defaultFromPPDInfo();
}

void PainChangeController::getControlValueFromTickettEachView()
{
    advancedThenColor([](ControlTableView &pane) { pane.getControlValueFromTicket(); });
}

void PainChangeController::setControlValueToTicketEachView()
{
    advancedThenColor([](ControlTableView &pane) { pane.setControlValueToTicket(); });
}

int32_t PainChangeController::getControlDataEachView(PDEControlTable *list, int32_t count)
{
    for (int16_t slot = 0; slot < int16_t(count); ++slot)
        list[slot] = nullptr;
    list[0] = onColorView ? onColorView->getControlData() : nullptr;
    list[1] = onAdvancedView ? onAdvancedView->getControlData() : nullptr;
    return 2;
}

int32_t PainChangeController::getControlCountEachView() const
{
    return int16_t((onColorView ? onColorView->getControlCount() : 0) +
                   (onAdvancedView ? onAdvancedView->getControlCount() : 0));
}

int16_t PainChangeController::quickColor() const
{
    return onColorView ? int16_t(onColorView->getQuickColorValue()) : int16_t(0);
}

int16_t PainChangeController::economy() const
{
    return onColorView ? int16_t(onColorView->getEconoModeValue()) : int16_t(0);
}

void PainChangeController::changeAdvancedItemAccodingQuickColor()
{
    if (onAdvancedView)
        onAdvancedView->changeItemAccodingQuickColor(quickColor(), economy());
}

void PainChangeController::getSummaryAdvancedItemAccodingQuickColor(bv::PrintDictionary *dictionary,
                                                                    bv::PrintArray *array)
{
    if (onAdvancedView)
        onAdvancedView->getSummaryItemAccodingQuickColor(quickColor(), economy(), dictionary, array);
}

void PainChangeController::getSummaryTextEachView(bv::PrintDictionary *dictionary, bv::PrintArray *array)
{
    if (onColorView)
        onColorView->getSummaryText(dictionary, array);
    if (quickColor() != kQuickColorFree)
        getSummaryAdvancedItemAccodingQuickColor(dictionary, array);
    else if (onAdvancedView)
        onAdvancedView->getSummaryText(dictionary, array);
}
