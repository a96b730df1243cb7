// ControlTableView: what both panes have in common. A pane names its controls in a constant table; this class turns it
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
    // Takes the rectangle's size, at origin (0, 0) whatever origin it has.
    void setViewBounds(const QRect &bounds);

    // Builds the table and the choice lists from the controls as they are now.
    virtual void createPDEControlTable();
    // Frees the table; does nothing when there is none.
    void deallocPDEControlTable();
    // The table, owned by the view; null when there is none.
    PDEControlTable getControlData();
    // Number of records of the last table built, end record included.
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

    // Appends every row's keyword, empty ones included.
    void appendAllKeys(QStringList *array) const;

    // The control of an outlet; null when the interface file lacks it.
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
