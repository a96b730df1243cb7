// SPDX-License-Identifier: GPL-2.0-or-later
// Building, freeing and forwarding of a pane's control table.
#include "controls/ControlTableView.h"

#include "common/AsciiText.h"
#include "platform/NoThrow.h"

ControlTableView::ControlTableView(std::span<const ControlRow> rows, QWidget *parent) : QWidget(parent), m_rows(rows) {}

void ControlTableView::setPPDFile(ppd_file_t *file)
{
    ppd = file;
}

void ControlTableView::setPMPrint(PMPrintSettings printSettings, PMPrintSession printSession)
{
    setting = printSettings;
    session = printSession;
}

void ControlTableView::setViewBounds(const QRect &bounds)
{
    setGeometry(QRect(QPoint(0, 0), bounds.size()));
}

void ControlTableView::createPDEControlTable()
{
    ctrlCount = int16_t(m_rows.size() + 1);
    const bool built = bv::withoutThrowing(false, [this] {
        std::vector<PDEControlItem> table;
        table.reserve(m_rows.size() + 1);
        for (const ControlRow &row : m_rows) {
            table.push_back({outlet<QWidget>(row.outlet), row.kind, row.ppdKey, row.title, row.summaryName,
                             row.identifier, row.profileKind, nullptr});
        }
        table.push_back(endControlItem());
        ctrlTable = std::move(table);
        return true;
    });
    if (!built) {
        ctrlTable.clear();
        return;
    }
    for (int16_t i = 0; ctrlTable[size_t(i)].control; ++i) {
        PDEControlItem &item = ctrlTable[size_t(i)];
        if (item.ppdKey[0] != '\0')
            PDECommon::commonGetPPDArrayForUIOption(ppd, item.ppdKey, &item.ppdChoices);
    }
}

void ControlTableView::deallocPDEControlTable()
{
    ctrlTable = {};
}

PDEControlTable ControlTableView::getControlData()
{
    return ctrlTable.empty() ? nullptr : ctrlTable.data();
}

int32_t ControlTableView::getControlCount() const
{
    return ctrlCount;
}

int32_t ControlTableView::addPPDArray(QStringList *array)
{
    return PDECommon::commonAddPPDArray(array, getControlData());
}

void ControlTableView::createPDEItemForPPDKey()
{
    PDECommon::commonBuildPDEItem(getControlData(), ppd);
}

int32_t ControlTableView::getSummaryText(bv::PrintDictionary *dictionary, bv::PrintArray *array)
{
    return PDECommon::commonGetSummaryText(getControlData(), dictionary, array);
}

int32_t ControlTableView::setControlValueToTicket()
{
    return PDECommon::commonSyncTicketFromPane(setting, session, getControlData());
}

int32_t ControlTableView::getControlValueFromTicket()
{
    return PDECommon::commonSyncPaneFromTicket(setting, session, getControlData());
}

void ControlTableView::defaultFromPPDInfo()
{
    PDECommon::commonDefaultFromPPDInfo(getControlData());
}

void ControlTableView::appendAllKeys(QStringList *array) const
{
    for (size_t i = 0; i < ctrlTable.size() && ctrlTable[i].control; ++i)
        if (const auto key = asciiText(ctrlTable[i].ppdKey))
            array->append(*key);
}
