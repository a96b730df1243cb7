// Swapping the panes, and forwarding to both.
#include "plugin/PainChangeController.h"

#include "profiles/QuickColorPresets.h"

#include <QLayout>
#include <memory>

namespace {

// Keyboard users go on in the pane that has come.
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
    if (!shown || !hidden)
        return;
    const bool hadFocus = hidden->isAncestorOf(hidden->window()->focusWidget());
    shown->setViewBounds(onMainCustomView ? onMainCustomView->rect() : QRect());
    if (onMainCustomView) {
        shown->setParent(onMainCustomView);
        hidden->setParent(onMainCustomView); // a hidden pane stays in the view, so that its controls can be found
        if (QLayout *layout = onMainCustomView->layout(); layout && layout->indexOf(hidden) >= 0)
            const std::unique_ptr<QLayoutItem> replaced(layout->replaceWidget(hidden, shown));
    }
    hidden->hide();
    shown->show();
    if (hadFocus)
        focusFirstControl(shown);
}

void PainChangeController::creatPDEControlTableEachView()
{
    onAdvancedView->createPDEControlTable();
    onColorView->createPDEControlTable();
}

void PainChangeController::addPPDArrayEachView(QStringList *array)
{
    onAdvancedView->addPPDArray(array);
    onColorView->addPPDArray(array);
}

void PainChangeController::deallocPDEControlTableEachView()
{
    if (onAdvancedView)
        onAdvancedView->deallocPDEControlTable();
    if (onColorView)
        onColorView->deallocPDEControlTable();
}

void PainChangeController::setPPDFileEachView(ppd_file_t *file)
{
    onAdvancedView->setPPDFile(file);
    onColorView->setPPDFile(file);
}

void PainChangeController::setPMPrintEachView(PMPrintSettings settings, PMPrintSession session)
{
    onAdvancedView->setPMPrint(settings, session);
    onColorView->setPMPrint(settings, session);
}

void PainChangeController::createPDEItemForPPDKeyEachView()
{
    onAdvancedView->createPDEItemForPPDKey();
    onColorView->createPDEItemForPPDKey();
}

void PainChangeController::defaultFromPPDInfoEachView()
{
    onColorView->defaultFromPPDInfo();
    onAdvancedView->defaultFromPPDInfo();
}

void PainChangeController::getControlValueFromTickettEachView()
{
    onAdvancedView->getControlValueFromTicket();
    onColorView->getControlValueFromTicket();
}

void PainChangeController::setControlValueToTicketEachView()
{
    onAdvancedView->setControlValueToTicket();
    onColorView->setControlValueToTicket();
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

void PainChangeController::changeAdvancedItemAccodingQuickColor()
{
    onAdvancedView->changeItemAccodingQuickColor(int16_t(onColorView->getQuickColorValue()),
                                                 int16_t(onColorView->getEconoModeValue()));
}

void PainChangeController::getSummaryAdvancedItemAccodingQuickColor(bv::PrintDictionary *dictionary,
                                                                    bv::PrintArray *array)
{
    onAdvancedView->getSummaryItemAccodingQuickColor(int16_t(onColorView->getQuickColorValue()),
                                                     int16_t(onColorView->getEconoModeValue()), dictionary, array);
}

void PainChangeController::getSummaryTextEachView(bv::PrintDictionary *dictionary, bv::PrintArray *array)
{
    onColorView->getSummaryText(dictionary, array);
    if (int16_t(onColorView->getQuickColorValue()) != kQuickColorFree)
        getSummaryAdvancedItemAccodingQuickColor(dictionary, array);
    else
        onAdvancedView->getSummaryText(dictionary, array);
}
