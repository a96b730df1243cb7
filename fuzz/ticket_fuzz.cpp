// SPDX-License-Identifier: GPL-2.0-or-later
// Takes any bytes for a ticket, and shows it in the pane of the project's own PPD. What the pane gives back must be a
// ticket that it shows in the same way, and that can be written and read again.
#include "QtFuzzing.h"
#include "jobs/PrintJob.h"
#include "platform/Bundle.h"
#include "plugin/PDEPlugInInterface.h"
#include "queues/PpdFile.h"
#include "queues/QueueSession.h"
#include "queues/TicketJson.h"
#include "queues/UserDefaults.h"

#include <QComboBox>
#include <QJsonDocument>

using fuzz::require;

namespace {

QByteArray jsonOf(const bv::PrintDictionary &ticket)
{
    return QJsonDocument(bv::toJson(ticket)).toJson(QJsonDocument::Compact);
}

struct Pane
{
    Pane()
    {
        fuzz::application();
        setPluginBundle({QStringLiteral("/plugin"), QString()});
        bv::Result<bv::PpdFile> ppd = bv::PpdFile::open(QStringLiteral(BV_SOURCE_DIR "/resources/QL70.ppd"));
        require(bool(ppd));
        session = std::make_unique<bv::QueueSession>(bv::QueueIdentity{QStringLiteral("Lab"), {}, true},
                                                     std::move(ppd.value()));
        panel = std::make_unique<PDEPlugInInterface>(session.get());
        view = panel->panelView();
    }

    // The state of every menu.
    std::vector<int> shown() const
    {
        std::vector<int> indexes;
        for (const QComboBox *menu : view->findChildren<QComboBox *>())
            indexes.push_back(menu->currentIndex());
        return indexes;
    }

    fuzz::Scratch scratch;
    std::unique_ptr<bv::QueueSession> session;
    std::unique_ptr<PDEPlugInInterface> panel;
    QWidget *view;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static auto *const pane = new Pane;
    const QByteArray json(reinterpret_cast<const char *>(data), qsizetype(size));
    const bv::Result<bv::PrintDictionary> ticket = bv::ticketFromJson(json);
    if (!ticket) {
        require(!ticket.error().isEmpty());
        return 0;
    }
    const QByteArray written = jsonOf(ticket.value());
    const bv::Result<bv::PrintDictionary> again = bv::ticketFromJson(written);
    require(again && jsonOf(again.value()) == written);

    bv::QueueSession &session = *pane->session;
    session.ticket().replace(ticket.value());
    QString error;
    pane->panel->restoreValuesAndReturnError(&error);
    pane->panel->willShow();
    pane->panel->constraints();
    const bool saved = pane->panel->saveValuesAndReturnError(&error);
    require(saved || !error.isEmpty());
    pane->panel->summaryInfo();
    const std::vector<int> shown = pane->shown();
    const QByteArray given = jsonOf(session.ticket().entries());
    pane->panel->restoreValuesAndReturnError(&error);
    pane->panel->constraints();
    require(pane->shown() == shown);
    pane->panel->saveValuesAndReturnError(&error);
    require(jsonOf(session.ticket().entries()) == given);
    pane->panel->shouldPrint();

    for (const auto &[keyword, value] : bv::jobOptions(session.ticket().entries(), session.ppdFile()))
        require(!keyword.isEmpty());
    bv::ticketFromDefaults(bv::defaultsFromTicket(session.ticket().entries()), session.ppdFile());
    return 0;
}
