// SPDX-License-Identifier: GPL-2.0-or-later
// ControlTableView: the base class of both panes. A pane names its controls in a constant table; this class turns it
// into the control table and hands all PPD, ticket and summary work to PDECommon.
#pragma once

#include "platform/ClassNames.h"

#include "common/PDECommon.h"

#include <QWidget>
#include <span>

// One row of a pane's constant table. `outlet` is the object name of the control in the interface file.
struct ControlRow
{
    const char *outlet;
    int32_t kind;
    const char *ppdKey;
    const char *title;
    const char *summaryName;
    const char *identifier;
    int16_t profileKind;
};

class ControlTableView : public QWidget
{
    Q_OBJECT

public:
    // PPD, settings and session are borrowed and may be null.
    void setPPDFile(ppd_file_t *file);
    void setPMPrint(PMPrintSettings printSettings, PMPrintSession printSession);
    // Resizes the view to the rectangle's size and moves it to (0, 0). The rectangle's own origin is ignored.
    void setViewBounds(const QRect &bounds);

    // Builds the table and the choice lists from the current controls.
    virtual void createPDEControlTable();
    // Frees the table; does nothing when there is none.
    void deallocPDEControlTable();
    // The table, owned by the view. Null before it is built and after it is freed.
    PDEControlTable getControlData();
    // Number of records in the last table built, including the end record.
    int32_t getControlCount() const;

    // Appends the bound PPD keywords; see PDECommon::commonAddPPDArray.
    int32_t addPPDArray(QStringList *array);
    // Sets titles and fills menus from the PPD.
    virtual void createPDEItemForPPDKey();
    // Adds the pane's summary items; see PDECommon::commonGetSummaryText.
    int32_t getSummaryText(bv::PrintDictionary *dictionary, bv::PrintArray *array);
    int32_t setControlValueToTicket();
    int32_t getControlValueFromTicket();
    void defaultFromPPDInfo();

protected:
    ControlTableView(std::span<const ControlRow> rows, QWidget *parent);

    // Appends the keyword of every row, including empty ones.
    void appendAllKeys(QStringList *array) const;

    // The control with that object name, or null when the interface file lacks it.
    template <typename Control> Control *outlet(const char *name) const
    {
        return findChild<Control *>(QLatin1String(name));
    }

    ppd_file_t *ppd = nullptr;
    PMPrintSettings setting = nullptr;
    PMPrintSession session = nullptr;

private:
    std::span<const ControlRow> m_rows;
    std::vector<PDEControlItem> ctrlTable;
    int16_t ctrlCount = 0;
};
