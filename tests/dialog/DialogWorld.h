// SPDX-License-Identifier: GPL-2.0-or-later
// Fixture of the dialog's tests: a scratch folder, PPD files, a source of queues that can fail, and a panel that is not
// ours.
#pragma once

#include "dialog/PrintDialog.h"
#include "dialog/PrintDialogLayout.h"
#include "queues/PanelLoader.h"
#include "queues/QueueSource.h"
#include "queues/RememberedTickets.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>
#include <atomic>
#include <functional>
#include <gtest/gtest.h>
#include <mutex>

namespace bvtest {

// A PPD with the foreign panel's option, paper sizes, two-sided printing and two constraints.
inline QByteArray panelPpd()
{
    return R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*ModelName: "Paper"
*NickName: "Paper, 1.0"
*OpenUI *TPToner/Toner: PickOne
*DefaultTPToner: Normal
*TPToner Normal/Normal: ""
*TPToner Save/Save: ""
*CloseUI: *TPToner
*OpenUI *PageSize/Media Size: PickOne
*DefaultPageSize: A4
*PageSize A4/A4 paper: "1"
*PageSize A6/Postcard: "2"
*CloseUI: *PageSize
*OpenUI *Duplex/Duplex: PickOne
*DefaultDuplex: None
*Duplex None/Off: ""
*Duplex DuplexNoTumble/Long edge: ""
*CloseUI: *Duplex
*UIConstraints: *PageSize A6 *Duplex DuplexNoTumble
*UIConstraints: *Duplex DuplexNoTumble *PageSize A6
*UIConstraints: *TPToner Save *PageSize A6
*UIConstraints: *PageSize A6 *TPToner Save
)ppd";
}

// The same without the panel's options.
inline QByteArray plainPpd()
{
    return panelPpd().replace("TPToner", "XXToner");
}

// Keeps the jobs it gets, or refuses them.
class RecordingSink final : public bv::JobSink
{
public:
    bv::Result<bv::SentJob> submit(const bv::JobRequest &request, bv::CallControl &control) const override
    {
        while (isSlow && !control.isCancelled())
            QThread::msleep(1);
        if (control.isCancelled() || !refusal.isEmpty())
            return bv::Result<bv::SentJob>::failure(control.isCancelled() ? QStringLiteral("Stopped.") : refusal);
        jobs.push_back(request);
        return bv::SentJob{int(jobs.size()), QString()};
    }

    bool takesDocuments() const override { return needsDocuments; }

    QString refusal;
    bool needsDocuments = true;
    std::atomic<bool> isSlow = false; // a job ends only when it is canceled
    mutable std::vector<bv::JobRequest> jobs;
};

// Queues by name, with the path of each PPD file. An empty path means that the queue has no PPD.
class FakeSource final : public bv::QueueSource
{
public:
    bv::Result<std::vector<bv::PrintQueue>> queues(bv::CallControl &control) const override
    {
        while (isSilent && !control.isCancelled())
            QThread::msleep(1);
        const std::lock_guard lock(mutex);
        if (!failure.isEmpty())
            return bv::Result<std::vector<bv::PrintQueue>>::failure(failure);
        return listed;
    }
    bv::Result<bv::PpdText> ppd(const QString &queue, bv::CallControl &) const override
    {
        asked.release();
        const QString path = ppdPaths.value(queue);
        return path.isEmpty() ? bv::Result<bv::PpdText>::failure(QStringLiteral("“%1” has no driver file.").arg(queue))
                              : bv::PpdText::read(path);
    }

    void add(const QString &name, const QString &ppdPath)
    {
        bv::PrintQueue queue;
        queue.name = name;
        queue.isDefault = listed.empty();
        listed.push_back(queue);
        ppdPaths.insert(name, ppdPath);
    }

    // Changes the list while a dialog may ask for it.
    void relist(const std::function<void(std::vector<bv::PrintQueue> &)> &change)
    {
        const std::lock_guard lock(mutex);
        change(listed);
    }

    mutable std::mutex mutex;
    QString failure;
    std::atomic<bool> isSilent = false; // no answer until the call is canceled
    std::vector<bv::PrintQueue> listed;
    QMap<QString, QString> ppdPaths;
    mutable QSemaphore asked; // released once for each requested PPD
};

class DialogTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        remembered = std::make_unique<bv::RememberedTickets>(folder.filePath("tickets"));
        document = write("letter.pdf", "%PDF-1.4\n");
        loadPlugin(QStringLiteral(BV_BUILD_DIR "/tests/testpanel.so"));
        source.add("Paper", write("paper.ppd", panelPpd()));
        source.add("Second", source.ppdPaths.value("Paper"));
        source.add("Plain", write("plain.ppd", plainPpd()));
        source.add("Bare", QString());
    }

    void TearDown() override { dialog.reset(); }

    void loadPlugin(const QString &path, const QString &language = {})
    {
        loader = std::make_unique<bv::PanelLoader>();
        const auto loaded = loader->load(path, language);
        ASSERT_TRUE(loaded) << qPrintable(loaded.error());
    }

    QString write(const QString &name, const QByteArray &content)
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    void make(bv::PrintDialogStart start)
    {
        dialog = std::make_unique<bv::PrintDialog>(sharedSource, sharedSink, *loader, *remembered, std::move(start));
    }

    // Opens the dialog and waits until the chosen queue is shown.
    void open(bv::PrintDialogStart start)
    {
        make(std::move(start));
        QSignalSpy ready(dialog.get(), &bv::PrintDialog::ready);
        dialog->show();
        ASSERT_TRUE(ready.wait());
    }
    void open() { open({QString(), std::nullopt, {document}}); }

    template <typename Widget> Widget *find(const char *name)
    {
        auto *widget = dialog->findChild<Widget *>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }

    QTemporaryDir folder;
    QString document;
    std::shared_ptr<FakeSource> sharedSource = std::make_shared<FakeSource>();
    std::shared_ptr<RecordingSink> sharedSink = std::make_shared<RecordingSink>();
    FakeSource &source = *sharedSource;
    RecordingSink &sink = *sharedSink;
    std::unique_ptr<bv::RememberedTickets> remembered;
    std::unique_ptr<bv::PanelLoader> loader;
    std::unique_ptr<bv::PrintDialog> dialog;
};

} // namespace bvtest
