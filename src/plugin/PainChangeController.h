// SPDX-License-Identifier: GPL-2.0-or-later
// PainChangeController: swaps the two panes in the container, and forwards the panel's calls to both in a fixed order.
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

    // The interface file's outlets. The controller owns none of them, and any may be missing. Calls to a missing pane
    // are skipped, and its Quick Color and Economy count as 0. Without a container no pane is swapped.
    QPointer<QWidget> onMainCustomView;
    QPointer<ColorOptions> onColorView;
    QPointer<AdvancedColorOptions> onAdvancedView;

    void SHowColorToAdvancedView();
    void ShowAdvancedToColorView();

    // These forward to the advanced pane first, then to the Color Options pane.
    void creatPDEControlTableEachView();
    void addPPDArrayEachView(QStringList *array);
    void deallocPDEControlTableEachView();
    void setPPDFileEachView(ppd_file_t *file);
    void setPMPrintEachView(PMPrintSettings settings, PMPrintSession session);
    void createPDEItemForPPDKeyEachView();
    // The only one in reverse order, which is intended: the Color Options pane comes first.
    void defaultFromPPDInfoEachView();
    void getControlValueFromTickettEachView();
    void setControlValueToTicketEachView();

    // Sets the first `count` slots to null (`count` is cut to 16 bits), then writes the two tables into slots 0 and 1.
    // It writes them for any count, so the list must have at least two slots. Returns 2.
    int32_t getControlDataEachView(PDEControlTable *list, int32_t count);
    // The sum of both panes' record counts, in 16-bit arithmetic.
    int32_t getControlCountEachView() const;

    // The chosen Quick Color, and whether Economy Print is on.
    int16_t quickColor() const;
    int16_t economy() const;

    // Sets the advanced menus to the choices that Quick Color and Economy imply.
    void changeAdvancedItemAccodingQuickColor();
    void getSummaryAdvancedItemAccodingQuickColor(bv::PrintDictionary *dictionary, bv::PrintArray *array);
    // Adds the Color Options items first. The advanced items follow: the pane's own under the free choice, else those
    // that Quick Color implies.
    void getSummaryTextEachView(bv::PrintDictionary *dictionary, bv::PrintArray *array);

public slots:
    // Both do nothing while the pane to show has no control table.
    void ColorToAdvancedView();
    void AdvancedToColorView();

private:
    void show(ControlTableView *shown, ControlTableView *hidden);
    template <typename Call> void advancedThenColor(Call call);
};
