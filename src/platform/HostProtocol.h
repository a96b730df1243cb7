// SPDX-License-Identifier: GPL-2.0-or-later
// The protocol between a print dialog and the panels that it loads: factory, panel and the dialog's callback object.
// The dialog includes no other header of a plug-in. All calls come from the dialog's main thread, and none throws.
#pragma once

#include "platform/Log.h"
#include "platform/PanelWait.h"
#include "platform/PrintSettings.h"

#include <QStringList>
#include <QtPlugin>
#include <cups/ppd.h>
#include <memory>
#include <optional>
#include <vector>

class QWidget;

namespace bv {

// The panel type that a print dialog asks for: panels of the printer module.
inline constexpr char kPrinterModulePanelType[] = "BDB091F4-E57F-11D3-B5CC-0050E4603277";

// The key of a summary that holds the array of item names in display order.
inline constexpr char kSummaryDisplayOrder[] = "Summary Display Order";

// Item-model roles that let scripts and assistive tools read a panel's tables. kColumnIdentifierRole is a column's
// identifier in the horizontal header data. kIconShownRole is a bool that says whether a cell shows its icon.
inline constexpr int kColumnIdentifierRole = 0x0100 + 70; // Qt::UserRole + 70
inline constexpr int kIconShownRole = 0x0100 + 71;        // Qt::UserRole + 71

// Dynamic properties that a panel may set on the controls of its view, so that a dialog can sort the summary: the name
// of the control's item in the summary, the localized title of its group, and why the setting has no effect just now
// (empty when it has one). Strings; a dialog and a panel that know nothing of them work together all the same.
inline constexpr char kSummaryNameProperty[] = "bvSummaryName";
inline constexpr char kSummaryGroupProperty[] = "bvSummaryGroup";
inline constexpr char kSummaryOffProperty[] = "bvSummaryOff";

// The same for conflicts between options: the PPD keyword of the option that a control holds, and the keyword of the
// choice that will be sent instead of the control's own, because another control decides (empty: the own one counts),
// with a sentence for the user that says why.
inline constexpr char kOptionProperty[] = "bvOption";
inline constexpr char kOptionInsteadProperty[] = "bvOptionInstead";
inline constexpr char kOptionInsteadReasonProperty[] = "bvOptionInsteadReason";

// Where a plug-in lies and which language its texts have.
struct PluginBundle
{
    QString path;     // absolute path of the plug-in's file
    QString language; // a locale such as "en_GB"; empty: texts are their keys
};

// The dialog's callback object. It outlives the panels made with it. Each function may return null.
class PrintPanelCallback
{
public:
    virtual ~PrintPanelCallback() = default;
    virtual PMPrintSettings printSettings() = 0;
    virtual PMPrintSession printSession() = 0;
    virtual ppd_file_t *ppdFile() = 0;
};

// One panel. The panel owns its view. The dialog gives the view a parent and removes that parent before it deletes the
// panel.
class PrintPanel
{
public:
    virtual ~PrintPanel() = default;

    virtual QString panelName() = 0; // localized
    virtual QString panelKind() = 0; // a fixed identifier
    virtual QStringList supportedPPDOptionKeys() = 0;
    virtual QWidget *panelView() = 0;
    virtual void willShow() = 0;
    virtual bool shouldHide() = 0;
    // Both return true on success. On failure *error receives a text for the user.
    virtual bool restoreValuesAndReturnError(QString *error) = 0;
    virtual bool saveValuesAndReturnError(QString *error) = 0;
    // Maps each localized item name to the value as shown, and kSummaryDisplayOrder to an array of the names.
    virtual PrintDictionary summaryInfo() = 0;
    virtual bool shouldPrint() = 0;
    virtual void PPDOptionKeyValueDidChange(const QString &key, const QString &ppdChoice) = 0;
    virtual void constraints() = 0;
    virtual void terminate() = 0;
};

// The root object of a plug-in.
class PrintPanelFactory
{
public:
    virtual ~PrintPanelFactory() = default;
    // Tells the plug-in where it lies. Only the first call has an effect.
    virtual bool initWithBundle(const PluginBundle &bundle) = 0;
    // Panels of one type, owned by the caller; nothing (never an empty vector) when the plug-in has none of that type.
    virtual std::optional<std::vector<std::unique_ptr<PrintPanel>>> PDEPanelsForType(const QString &type,
                                                                                     PrintPanelCallback *hostInfo) = 0;
};

// A second interface that the root object of a plug-in may have. A dialog that does not know it leaves it alone.
class PrintPanelWaiting
{
public:
    virtual ~PrintPanelWaiting() = default;
    // Offers something to all panels of the plug-in; null takes it back. Borrowed.
    virtual void setPanelWait(PanelWait *wait) = 0;
};

// A third interface of that kind: the plug-in's log can be followed, so that a dialog may speak where panels are
// silent.
class PrintPanelLogging
{
public:
    virtual ~PrintPanelLogging() = default;
    // The observer hears of the lines that all panels write; null ends it. Borrowed.
    virtual void setLogObserver(LogObserver *observer) = 0;
};

} // namespace bv

#define BV_PRINT_PANEL_FACTORY_IID "vnd.brevane.pde.PrintPanelFactory/1"
Q_DECLARE_INTERFACE(bv::PrintPanelFactory, BV_PRINT_PANEL_FACTORY_IID)
Q_DECLARE_INTERFACE(bv::PrintPanelWaiting, "vnd.brevane.pde.PrintPanelWaiting/1")
Q_DECLARE_INTERFACE(bv::PrintPanelLogging, "vnd.brevane.pde.PrintPanelLogging/1")
