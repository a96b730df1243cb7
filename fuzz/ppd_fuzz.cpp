// SPDX-License-Identifier: GPL-2.0-or-later
// Takes any bytes for a PPD file, plain or compressed, and makes of it what the dialog makes: tables, menus, rows, the
// pane, the job's options.
#include "QtFuzzing.h"
#include "common/PDECommon.h"
#include "filter/JobSettings.h"
#include "jobs/PrintJob.h"
#include "options/PpdOptionRows.h"
#include "platform/Bundle.h"
#include "plugin/PDEPlugInInterface.h"
#include "queues/QueueSession.h"
#include "queues/UserDefaults.h"

#include <QComboBox>

using fuzz::require;

namespace {

constexpr size_t kMostOptions = 50;

void checkOption(ppd_file_t *ppd, const ppd_option_t *option)
{
    std::shared_ptr<const PPDChoiceArray> choices;
    if (PDECommon::commonGetPPDArrayForUIOption(ppd, option->keyword, &choices) != noErr)
        return;
    require(int(choices->size()) == std::max(option->num_choices, 0));
    QComboBox menu;
    PDEControlItem item;
    item.control = &menu;
    item.kind = kPDEControlPopUp;
    item.ppdKey = option->keyword;
    item.ppdChoices = choices;
    PDECommon::commonReBuildMenuFromPPD(ppd, &item);
    require(menu.count() == option->num_choices);
    require(PDECommon::commonGetDefualtValueFromPPDWithSInt32(&item) < std::max(menu.count(), 1));
}

void checkPane(bv::QueueSession &session)
{
    PDEPlugInInterface panel(&session);
    QString error;
    require(panel.panelView() != nullptr);
    panel.restoreValuesAndReturnError(&error);
    panel.willShow();
    panel.constraints();
    panel.saveValuesAndReturnError(&error);
    panel.summaryInfo();
    panel.shouldPrint();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const fuzz::Scratch scratch;
    static const bool ready = [] {
        setenv("LC_ALL", "de_DE.UTF-8", 1);
        fuzz::application();
        setPluginBundle({QStringLiteral("/plugin"), QString()});
        return true;
    }();
    require(ready);
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const bv::Result<bv::PpdText> text = bv::PpdText::from(bytes, QStringLiteral("x"));
    if (!text)
        return 0;
    require(text.value().text.size() <= bv::PpdText::kMost);
    bv::Result<bv::PpdFile> opened = bv::PpdFile::open(text.value());
    if (!opened) {
        require(!opened.error().isEmpty());
        return 0;
    }
    bv::QueueSession session({QStringLiteral("Lab"), {}, true}, std::move(opened.value()));
    ppd_file_t *const ppd = session.ppdFile();
    std::vector<ppd_option_t *> options = bv::ppdOptions(ppd);
    options.resize(std::min(options.size(), kMostOptions));
    for (const ppd_option_t *option : options)
        checkOption(ppd, option);
    bv::ticketFromDefaults({{QStringLiteral("media"), QStringLiteral("A4")},
                            {QStringLiteral("sides"), QStringLiteral("two-sided-long-edge")}},
                           ppd);
    bv::PpdOptionRows rows(ppd);
    rows.readFrom(&session.ticket());
    rows.writeTo(&session.ticket());
    rows.findConflicts(&session.ticket(), {});
    // The whole pane takes long, and shows nothing without its options.
    if (ppdFindOption(ppd, "BVQuickColor") || ppdFindOption(ppd, "BVImageRGBSource"))
        checkPane(session);
    bv::jobOptions(session.ticket().entries(), ppd);
    bv::jobSettings(ppd, "BVQuickColor=Photo media=A4");
    return 0;
}
