// PainChangeController: swaps the two panes in the container and forwards what the panel asks of both, in a fixed
// order.
#pragma once

#include "platform/ClassNames.h"

#include "colorrules/AdvancedColorOptions.h"
#include "controls/ColorOptions.h"

#include <QObject>
#include <QPointer>

class PainChangeController : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // The interface file's outlets. The controller owns none of them, and any may be missing: what is asked of a
    // missing pane is left out, its Quick Color and Economy count as 0, and without a container no pane is swapped.
    QPointer<QWidget> onMainCustomView;
    QPointer<ColorOptions> onColorView;
    QPointer<AdvancedColorOptions> onAdvancedView;

    void SHowColorToAdvancedView();
    void ShowAdvancedToColorView();

    // Forwarders: the advanced pane first, then the Color Options pane.
    void creatPDEControlTableEachView();
    void addPPDArrayEachView(QStringList *array);
    void deallocPDEControlTableEachView();
    void setPPDFileEachView(ppd_file_t *file);
    void setPMPrintEachView(PMPrintSettings settings, PMPrintSession session);
    void createPDEItemForPPDKeyEachView();
    // The one reversed order, kept as it is: the Color Options pane first.
    void defaultFromPPDInfoEachView();
    void getControlValueFromTickettEachView();
    void setControlValueToTicketEachView();

    // Zeroes the first `count` slots (taken as 16 bits), then writes the two tables into slots 0 and 1, whatever the
    // count. Returns 2. The list must have room for both.
    int32_t getControlDataEachView(PDEControlTable *list, int32_t count);
    // The panes' record counts, added as 16-bit numbers.
    int32_t getControlCountEachView() const;

    // Sets the advanced menus to what Quick Color and Economy stand for.
    void changeAdvancedItemAccodingQuickColor();
    void getSummaryAdvancedItemAccodingQuickColor(bv::PrintDictionary *dictionary, bv::PrintArray *array);
    // Color Options first, then what Quick Color implies or, under the free choice, the advanced pane's own items.
    void getSummaryTextEachView(bv::PrintDictionary *dictionary, bv::PrintArray *array);

public slots:
    // Each is refused while the pane to show has no control table.
    void ColorToAdvancedView();
    void AdvancedToColorView();

private:
    void show(ControlTableView *shown, ControlTableView *hidden);
    template <typename Call> void advancedThenColor(Call call);
    int16_t quickColor() const;
    int16_t economy() const;
};
