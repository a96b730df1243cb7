// SPDX-License-Identifier: GPL-2.0-or-later
// The dialog from the user's side, with a panel that is not ours: opening, changing, switching, printing.
#include "DialogWorld.h"

#include "printers/PrinterMenu.h"
#include "widgets/MessageBar.h"
#include "widgets/SummaryView.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QWindow>

using namespace bv;

namespace {

class Dialog : public bvtest::DialogTest
{
protected:
    // The row of the panel's first option.
    QString tonerInSummary() { return find<SummaryView>("summaryView")->lines().filter("Toner: ").join(u'\n'); }
    QString place() { return dialog->parts().placeText(); }
    QComboBox *toner() { return visibleControl<QComboBox>("tonerMenu"); }

    // The visible control of that name. Other queues' panes may have hidden ones.
    template <typename Widget> Widget *visibleControl(const char *name)
    {
        for (Widget *widget : dialog->findChildren<Widget *>(QLatin1String(name))) {
            if (widget->isVisible())
                return widget;
        }
        ADD_FAILURE() << name << " is not in sight";
        return nullptr;
    }

    void switchTo(const QString &queue)
    {
        QSignalSpy ready(dialog.get(), &PrintDialog::ready);
        auto *printers = find<QComboBox>("printer");
        printers->setCurrentIndex(printers->findData(queue));
        if (ready.isEmpty()) {
            ASSERT_TRUE(ready.wait());
        }
    }

    // Presses Print. True when the job was sent and the dialog closed.
    bool print()
    {
        QSignalSpy printed(dialog.get(), &PrintDialog::printed);
        const auto busy = [this] { return dialog->printReason().isEmpty() || !dialog->messageText().isEmpty(); };
        find<QPushButton>("print")->click();
        return QTest::qWaitFor([&] { return !printed.isEmpty() || (busy() && !dialog->messageText().isEmpty()); }) &&
               !printed.isEmpty();
    }
};

TEST_F(Dialog, PaintsAndShowsThatItIsBusyBeforeAnyWait)
{
    make({QString(), std::nullopt, {document}});
    EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_FALSE(place().isEmpty());
    EXPECT_FALSE(find<QPushButton>("print")->isEnabled());
    EXPECT_FALSE(dialog->printReason().isEmpty());
    EXPECT_EQ(find<QComboBox>("printer")->count(), 0);

    QSignalSpy ready(dialog.get(), &PrintDialog::ready);
    dialog->show();
    ASSERT_TRUE(ready.wait());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(dialog->printReason(), QString());
    EXPECT_EQ(place(), QString());
    EXPECT_EQ(find<QLabel>("paneTitle")->text(), "Paper Stamp");
}

TEST_F(Dialog, RestoreDefaultsResetsPaneAndRowsButNotTheJobsOwnRows)
{
    PrintDictionary ticket;
    ticket.setValue("TPToner", "Rich");
    ticket.setValue("PageSize", "A6");
    open({QString(), ticket, {document}});
    EXPECT_EQ(tonerInSummary(), "Toner: Rich");
    EXPECT_EQ(find<QComboBox>("row_PageSize")->currentData().toString(), "A6");
    find<QSpinBox>("copies")->setValue(2);
    find<QPushButton>("restoreDefaults")->click();
    EXPECT_EQ(tonerInSummary(), "Toner: Normal");
    EXPECT_EQ(find<QComboBox>("row_PageSize")->currentData().toString(), "A4");
    EXPECT_EQ(find<QSpinBox>("copies")->value(), 2);
    ASSERT_TRUE(print());
    EXPECT_EQ(sink.jobs[0].options.at("TPToner"), "Normal");
    EXPECT_EQ(sink.jobs[0].options.at("copies"), "2");
}

TEST_F(Dialog, SendsWhatItShows)
{
    const QString second = write("b.txt", "text");
    open({"Second", std::nullopt, {document, second}});
    ASSERT_TRUE(print());
    EXPECT_EQ(sink.jobs.at(0).documents, (QStringList{document, second}));
    open({"Second", std::nullopt, {document}});
    QTest::keyClick(toner(), Qt::Key_Down);
    find<QComboBox>("row_Duplex")->setCurrentIndex(1);
    find<QSpinBox>("copies")->setValue(3);
    QTest::keyClicks(find<QLineEdit>("pageRange"), "2, 1");
    ASSERT_TRUE(print());
    ASSERT_EQ(sink.jobs.size(), 2U);
    const JobRequest &job = sink.jobs[1];
    EXPECT_EQ(job.queue, "Second");
    for (const auto &[key, value] : JobOptions{{"TPToner", "Save"},
                                               {"TPSheets", "1"},
                                               {"PageSize", "A4"},
                                               {"Duplex", "DuplexNoTumble"},
                                               {"copies", "3"},
                                               {"page-ranges", "1-2"}})
        EXPECT_EQ(job.options.count(key) ? job.options.at(key) : QString(), value) << qPrintable(key);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
}

TEST_F(Dialog, RemembersChoicesWhenTheJobIsSentButNotOnCancel)
{
    open();
    QTest::keyClick(toner(), Qt::Key_Down);
    find<QSpinBox>("copies")->setValue(3);
    find<QPushButton>("cancel")->click();
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
    EXPECT_FALSE(remembered->load("Paper"));

    open();
    EXPECT_EQ(toner()->currentIndex(), 0);
    QTest::keyClick(toner(), Qt::Key_Down);
    find<QComboBox>("row_Duplex")->setCurrentIndex(1);
    find<QSpinBox>("copies")->setValue(3);
    ASSERT_TRUE(print());

    open({"Paper", std::nullopt, {}});
    EXPECT_EQ(toner()->currentIndex(), 1);
    EXPECT_EQ(find<QComboBox>("row_Duplex")->currentIndex(), 1);
    EXPECT_EQ(find<QSpinBox>("copies")->value(), 1);
    EXPECT_FALSE(remembered->load("Second"));
}

TEST_F(Dialog, SwitchingQueuesKeepsThePaneAndValuesOfEach)
{
    open();
    QComboBox *first = toner();
    QTest::keyClick(first, Qt::Key_Down);
    find<QComboBox>("row_PageSize")->setCurrentIndex(1);
    switchTo("Second");
    EXPECT_NE(toner(), first);
    EXPECT_EQ(toner()->currentIndex(), 0);
    EXPECT_EQ(visibleControl<QComboBox>("row_PageSize")->currentIndex(), 0);
    switchTo("Paper");
    EXPECT_EQ(toner(), first);
    EXPECT_EQ(first->currentIndex(), 1);
    EXPECT_EQ(visibleControl<QComboBox>("row_PageSize")->currentIndex(), 1);
    EXPECT_EQ(tonerInSummary(), "Toner: Save");
}

TEST_F(Dialog, ExplainsAMissingPaneAndPrintsWithoutIt)
{
    open({"Plain", std::nullopt, {document}});
    EXPECT_TRUE(place().contains("Plain"));
    ASSERT_TRUE(dialog->printReason().isEmpty());
    ASSERT_TRUE(print());
    EXPECT_EQ(sink.jobs[0].options.at("PageSize"), "A4");
}

TEST_F(Dialog, ChoosesTheDefaultQueueAndShowsItsState)
{
    source.listed[0].isDefault = false;
    source.listed[1].isDefault = true;
    source.listed[1].acceptsJobs = false;
    open();
    EXPECT_EQ(find<QComboBox>("printer")->currentData().toString(), "Second");
    EXPECT_TRUE(find<QLabel>("printerNote")->text().contains("takes no jobs"));
    EXPECT_TRUE(dialog->printReason().contains("takes no jobs"));
    EXPECT_FALSE(find<QPushButton>("print")->isEnabled());

    source.listed[1].acceptsJobs = source.listed[1].isStopped = true;
    open();
    EXPECT_FALSE(find<QLabel>("printerNote")->text().contains("takes no jobs"));
    EXPECT_TRUE(dialog->messageText().contains("stopped"));
    EXPECT_TRUE(dialog->printReason().isEmpty());
    // Somebody resumes it.
    source.relist([](auto &listed) { listed[1].isStopped = false; });
    find<PrinterMenu>("printer")->showPopup(); // asks at once
    EXPECT_TRUE(QTest::qWaitFor([&] { return dialog->messageText().isEmpty(); }, 20000));
    find<PrinterMenu>("printer")->hidePopup();
    ASSERT_TRUE(print());
    EXPECT_EQ(sink.jobs.size(), 1U);
}

TEST_F(Dialog, FollowsThePrintersWhileItIsOpen)
{
    open();
    auto *printers = find<PrinterMenu>("printer");
    const auto shows = [&](const std::function<bool()> &wanted) {
        printers->hidePopup();
        printers->showPopup(); // asks at once
        return QTest::qWaitFor(wanted, 20000);
    };
    const bv::PrintQueue paper = source.listed[0];
    source.relist([](auto &listed) {
        listed.erase(listed.begin()); // the one in the window
        listed.push_back({});
        listed.back().name = "New";
    });
    EXPECT_TRUE(shows([&] { return printers->findData("New") >= 0; }));
    EXPECT_EQ(printers->currentData().toString(), "Paper");
    EXPECT_TRUE(dialog->printReason().contains("no longer there")) << qPrintable(dialog->printReason());
    EXPECT_EQ(tonerInSummary(), "Toner: Normal") << "what the user chose stays";
    source.relist([&](auto &listed) {
        listed.push_back(paper);
        listed.back().acceptsJobs = false;
        listed.back().stateMessage = "Moved to the cellar";
    });
    EXPECT_TRUE(shows([&] { return dialog->printReason().contains("Moved to the cellar"); }))
        << qPrintable(dialog->printReason());
    source.relist([](auto &listed) { listed.back().acceptsJobs = true; });
    EXPECT_TRUE(shows([&] { return dialog->printReason().isEmpty(); }));
    printers->hidePopup();
    EXPECT_TRUE(print());
}

TEST_F(Dialog, MarksQueuesWithoutPaneOnceTheMenuIsOpened)
{
    open();
    auto *printers = find<QComboBox>("printer");
    source.asked.acquire(source.asked.available());
    EXPECT_FALSE(source.asked.tryAcquire(1, 50)) << "nobody has asked for the other printers yet";
    printers->showPopup();
    const auto marked = [&](const char *queue) {
        return !printers->itemData(printers->findData(queue), Qt::ToolTipRole).toString().isEmpty();
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return marked("Plain") && marked("Bare"); }));
    EXPECT_FALSE(marked("Paper"));
    EXPECT_FALSE(marked("Second"));
    EXPECT_TRUE(printers->itemText(printers->findData("Plain")).contains("no color options"));
    EXPECT_EQ(printers->itemText(printers->findData("Bare")), "Bare") << "it may be another time";
}

TEST_F(Dialog, AQueueWithoutDriverCannotPrintOffersARetryAndKeepsItsTicket)
{
    PrintDictionary ticket;
    for (const char *key : {"copies", "page-ranges"})
        ticket.setValue(key, "7");
    ticket.setValue("TPToner", "Rich");
    open({"Bare", ticket, {document}});
    EXPECT_TRUE(dialog->messageText().contains("Bare"));
    EXPECT_FALSE(dialog->printReason().isEmpty());
    EXPECT_FALSE(dialog->hadPrinter());
    switchTo("Paper");
    EXPECT_EQ(tonerInSummary(), "Toner: Normal") << "the ticket is for the other queue";
    switchTo("Bare");
    source.ppdPaths["Bare"] = source.ppdPaths["Paper"];
    QSignalSpy ready(dialog.get(), &PrintDialog::ready);
    find<QPushButton>("messageAction")->click();
    ASSERT_TRUE(ready.wait());
    EXPECT_EQ(dialog->messageText(), QString());
    EXPECT_TRUE(dialog->hadPrinter());
    const auto *printers = find<QComboBox>("printer");
    EXPECT_EQ(printers->currentText(), "Bare");
    EXPECT_EQ(printers->currentData(Qt::ToolTipRole).toString(), "") << "a stain of the failure";
    EXPECT_EQ(tonerInSummary(), "Toner: Rich");
    ASSERT_TRUE(print());
    EXPECT_EQ(sink.jobs[0].options.count("copies") + sink.jobs[0].options.count("page-ranges"), 0U)
        << "the dialog's own rows say these";
}

TEST_F(Dialog, ReportsAMissingPrintServerAndCanTryAgain)
{
    source.failure = "The print server cannot be reached. Start it and try again.";
    open();
    EXPECT_EQ(dialog->messageText(), source.failure);
    EXPECT_FALSE(find<QPushButton>("print")->isEnabled());
    source.failure.clear();
    QSignalSpy ready(dialog.get(), &PrintDialog::ready);
    find<QPushButton>("messageAction")->click();
    ASSERT_TRUE(ready.wait());
    EXPECT_TRUE(find<QPushButton>("print")->isEnabled());
}

TEST_F(Dialog, AFailedJobIsReportedAndKeepsAllChoices)
{
    open();
    QTest::keyClick(toner(), Qt::Key_Down);
    find<QSpinBox>("copies")->setValue(5);
    sink.refusal = "The print server refused the job.";
    EXPECT_FALSE(print());
    EXPECT_EQ(dialog->messageText(), sink.refusal);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(toner()->currentIndex(), 1);
    EXPECT_EQ(find<QSpinBox>("copies")->value(), 5);
    EXPECT_FALSE(remembered->load("Paper"));
    sink.refusal.clear();
    EXPECT_TRUE(print());
    EXPECT_EQ(sink.jobs[0].options.at("TPToner"), "Save");
}

TEST_F(Dialog, ARefusingPanelStopsTheJobAndTheSwitchOfQueues)
{
    for (const char *word : {"refuse", "hold"}) {
        open();
        visibleControl<QCheckBox>("stampCheck")->click();
        visibleControl<QLineEdit>("stampText")->setText(word);
        EXPECT_FALSE(print()) << word;
        EXPECT_FALSE(dialog->messageText().isEmpty());
        EXPECT_TRUE(sink.jobs.empty());
    }
    visibleControl<QLineEdit>("stampText")->setText("refuse");
    auto *printers = find<QComboBox>("printer");
    printers->setCurrentIndex(printers->findData("Second"));
    EXPECT_EQ(printers->currentData().toString(), "Paper");
    EXPECT_EQ(dialog->messageText(), "The stamp is not to be used.");
}

TEST_F(Dialog, ReportsTicketValuesThatThePanelRefused)
{
    PrintDictionary ticket;
    ticket.setValue("TPStamp", "odd");
    open({QString(), ticket, {document}});
    EXPECT_EQ(dialog->messageText(), "The stamp is not known.");
    EXPECT_TRUE(dialog->printReason().isEmpty());
}

TEST_F(Dialog, AGreyedPrintButtonSaysWhyInThreePlaces)
{
    open({QString(), std::nullopt, {}});
    const auto *print = find<QPushButton>("print");
    const auto expectReason = [&](const char *word) {
        EXPECT_FALSE(print->isEnabled());
        EXPECT_TRUE(dialog->printReason().contains(word)) << qPrintable(dialog->printReason());
        EXPECT_EQ(print->toolTip(), dialog->printReason());
        EXPECT_EQ(print->accessibleDescription(), dialog->printReason());
    };
    expectReason("document");
    open();
    print = find<QPushButton>("print");
    find<QPushButton>("documentRemove")->click();
    expectReason("document");
    open();
    print = find<QPushButton>("print");
    QTest::keyClicks(find<QLineEdit>("pageRange"), "3-1");
    expectReason("backwards");
    find<QRadioButton>("allPages")->click();
    EXPECT_TRUE(print->isEnabled());
    EXPECT_NE(print->toolTip(), QString());
}

TEST_F(Dialog, ShowsConflictsBetweenThePaneAndTheRows)
{
    open();
    auto *conflict = find<QLabel>("conflictText");
    EXPECT_FALSE(conflict->isVisible());
    find<QComboBox>("row_PageSize")->setCurrentIndex(1);
    QTest::keyClick(toner(), Qt::Key_Down);
    EXPECT_TRUE(QTest::qWaitFor([&] { return conflict->isVisible(); }));
    EXPECT_EQ(tonerInSummary(), "Toner: Save") << "live";
    EXPECT_TRUE(conflict->text().contains("Save")) << qPrintable(conflict->text());
    find<QComboBox>("row_PageSize")->setCurrentIndex(0);
    EXPECT_FALSE(conflict->isVisible());
    EXPECT_TRUE(dialog->printReason().isEmpty());
}

TEST_F(Dialog, SumsUpItsOwnRowsLikeThePanels)
{
    open();
    const auto *summary = find<SummaryView>("summaryView");
    EXPECT_EQ(summary->lines().mid(0, 4), (QStringList{"All as the printer proposes.", "General settings",
                                                       "Paper size: A4 paper", "Two-sided: Off"}));
    find<QComboBox>("row_Duplex")->setCurrentIndex(1);
    EXPECT_EQ(summary->lines().mid(0, 2), (QStringList{"Changed", "Two-sided: Long edge"}));
    QTest::keyClick(toner(), Qt::Key_Down);
    EXPECT_TRUE(QTest::qWaitFor([&] { return tonerInSummary() == "Toner: Save"; }));
    EXPECT_EQ(summary->lines().mid(0, 3), (QStringList{"Changed", "Two-sided: Long edge", "Toner: Save"}));
    const QTreeWidgetItem *row = summary->topLevelItem(0)->child(0);
    EXPECT_TRUE(row->font(1).bold());
    EXPECT_EQ(row->data(0, Qt::AccessibleTextRole).toString(), "Two-sided: Long edge");
    // A printer without a panel has them as well, and its further options once they differ.
    switchTo("Plain");
    visibleControl<QComboBox>("row_PageSize")->setCurrentIndex(1);
    visibleControl<QPushButton>("moreOptions")->click();
    visibleControl<QComboBox>("row_XXToner")->setCurrentIndex(1);
    EXPECT_EQ(summary->lines().mid(0, 3), (QStringList{"Changed", "Paper size: Postcard", "Toner: Save"}));
}

TEST_F(Dialog, KeepsItsPlaceUnderThePointerOnceAConflictIsSettled)
{
    open();
    visibleControl<QComboBox>("row_PageSize")->setCurrentIndex(1);
    visibleControl<QComboBox>("row_Duplex")->setCurrentIndex(1);
    QTest::keyClick(toner(), Qt::Key_Down);
    auto *bar = find<QWidget>("conflictBar");
    const auto sentences = [&] { return find<QLabel>("conflictText")->text().count(u'\n') + 1; };
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar->isVisible() && sentences() == 2; }));
    const auto *way = bar->findChild<QPushButton *>("settle_Duplex");
    ASSERT_NE(way, nullptr);
    QWindow *window = dialog->windowHandle();
    const auto at = [this](const QWidget *button) { return button->mapTo(dialog.get(), button->rect().center()); };
    const auto pointTo = [this](const QPoint &place) {
        QCursor::setPos(dialog->mapToGlobal(place));
        QCoreApplication::processEvents();
    };
    // The first click brings up the buttons for the other conflict, the second one of a double click presses none.
    pointTo(at(way));
    QTest::mouseDClick(window, Qt::LeftButton, {}, at(way));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(sentences(), 1);
    EXPECT_TRUE(find<QLabel>("conflictText")->text().contains("do not go together"));
    const QRect place = bar->geometry();
    // Far from the last click, so that the next one is none of a double click.
    QTest::mouseClick(window, Qt::LeftButton, {}, at(find<QLabel>("conflictText")));
    way = bar->findChild<QPushButton *>();
    ASSERT_NE(way, nullptr);
    pointTo(at(way));
    QTest::mouseDClick(window, Qt::LeftButton, {}, at(way));
    QCoreApplication::processEvents();
    EXPECT_EQ(find<QLabel>("conflictText")->text(), "Settled.");
    EXPECT_EQ(bar->geometry(), place);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(dialog->focusWidget(), find<QPushButton>("print"));
    pointTo(at(bar));
    EXPECT_TRUE(bar->isVisible());
    pointTo(QPoint(5, 5));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !bar->isVisible(); }));
}

TEST_F(Dialog, ButtonsSettleAConflictAndPrintAsksOnce)
{
    open();
    find<QComboBox>("row_PageSize")->setCurrentIndex(1);
    find<QComboBox>("row_Duplex")->setCurrentIndex(1);
    QTest::keyClick(toner(), Qt::Key_Down);
    auto *bar = find<QWidget>("conflictBar");
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar->isVisible(); }));
    int questions = 0;
    const auto answer = [&](bool print) {
        QTimer::singleShot(0, dialog.get(), [&questions, print] {
            auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_NE(question, nullptr);
            ++questions;
            EXPECT_TRUE(question->text().contains("Postcard"));
            for (QAbstractButton *button : question->buttons())
                if ((question->buttonRole(button) == QMessageBox::AcceptRole) == print)
                    button->click();
        });
        find<QPushButton>("print")->click();
    };
    sink.refusal = "Not now.";
    answer(false);
    EXPECT_EQ(dialog->messageText(), QString());
    answer(true);
    ASSERT_TRUE(QTest::qWaitFor([&] { return dialog->messageText() == sink.refusal; }));
    EXPECT_FALSE(print()) << "without another question";
    EXPECT_EQ(questions, 2);
    sink.refusal.clear();

    // One after the other, in the rows and in the pane.
    const auto settle = [&](const QString &keyword) {
        for (QPushButton *button : bar->findChildren<QPushButton *>("settle_" + keyword))
            if (!button->isHidden())
                return button->click();
        ADD_FAILURE() << keyword.toStdString();
    };
    settle("Duplex");
    EXPECT_EQ(find<QComboBox>("row_Duplex")->currentIndex(), 0);
    settle("TPToner");
    EXPECT_EQ(toner()->currentIndex(), 0);
    EXPECT_TRUE(bar->isHidden());
    EXPECT_EQ(find<QComboBox>("row_PageSize")->currentIndex(), 1);
    EXPECT_TRUE(print());
}

TEST_F(Dialog, EnterPrintsAndEscapeCancels)
{
    open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    QSignalSpy printed(dialog.get(), &PrintDialog::printed);
    QTest::keyClick(find<QSpinBox>("copies"), Qt::Key_Return);
    EXPECT_TRUE(printed.wait());
    open();
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
}

TEST_F(Dialog, WhileAJobIsSentOnlyCancelWorks)
{
    open();
    sink.isSlow = true;
    QSignalSpy printed(dialog.get(), &PrintDialog::printed);
    auto *printers = find<QComboBox>("printer");
    find<QPushButton>("print")->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return find<QPushButton>("cancelJob")->isVisible(); }));
    EXPECT_FALSE(find<QPushButton>("cancel")->isVisible()) << "only one button cancels";
    EXPECT_FALSE(find<QSpinBox>("copies")->isEnabled());
    QTest::mouseClick(find<QPushButton>("print"), Qt::LeftButton);
    QTest::keyClick(find<QSpinBox>("copies"), Qt::Key_Up);
    QTest::keyClick(find<QSpinBox>("copies"), Qt::Key_Return);
    printers->setCurrentIndex(printers->findData("Second"));
    EXPECT_EQ(printers->currentData().toString(), "Paper");
    EXPECT_EQ(find<QSpinBox>("copies")->value(), 1);
    // The job is stopped, and everything can be used again.
    QTest::mouseClick(find<QPushButton>("cancelJob"), Qt::LeftButton);
    EXPECT_EQ(dialog->printReason(), QString());
    EXPECT_TRUE(find<QPushButton>("cancel")->isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog->messageText().contains(u"…"); }));
    QTest::keyClick(find<QSpinBox>("copies"), Qt::Key_Up);
    EXPECT_EQ(find<QSpinBox>("copies")->value(), 2);
    EXPECT_TRUE(dialog->isVisible());
    // Esc ends the job and the dialog.
    find<QPushButton>("print")->click();
    QTest::keyClick(find<QSpinBox>("copies"), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(printed.count(), 0);
    EXPECT_TRUE(sink.jobs.empty());
}

TEST_F(Dialog, ARangeMustFitOneDocument)
{
    const QString second = write("b.pdf", "%PDF-1.4");
    open({QString(), std::nullopt, {document, second}});
    QTest::keyClicks(find<QLineEdit>("pageRange"), "1");
    EXPECT_TRUE(dialog->printReason().contains("one document")) << qPrintable(dialog->printReason());
    open({QString(), std::nullopt, {document}, [](const QString &) { return 4; }});
    QTest::keyClicks(find<QLineEdit>("pageRange"), "2-5");
    EXPECT_FALSE(print());
    EXPECT_EQ(dialog->messageText(), "letter.pdf has 4 pages; there is no page 5.");
    find<QLineEdit>("pageRange")->setText("2-4");
    EXPECT_TRUE(print());
}

TEST_F(Dialog, CancelEndsItWhileThePrintServerIsSilent)
{
    source.isSilent = true;
    make({QString(), std::nullopt, {document}});
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
    EXPECT_TRUE(find<QWidget>("waitIndicator")->isVisible());
    EXPECT_FALSE(find<QComboBox>("printer")->placeholderText().contains("No printer"));
    EXPECT_TRUE(dialog->isWaiting());
    find<QPushButton>("cancel")->click();
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(Dialog, CallsThePanelInOrderAndDeletesItBeforeThePlugIn)
{
    const QString log = folder.filePath("calls");
    qputenv("TESTPANEL_LOG", log.toUtf8());
    open();
    find<QComboBox>("row_PageSize")->setCurrentIndex(1);
    find<QComboBox>("row_PageSize")->setCurrentIndex(0);
    sink.refusal = "Not now.";
    ASSERT_FALSE(print());
    sink.refusal.clear();
    ASSERT_TRUE(print());
    dialog.reset();
    qunsetenv("TESTPANEL_LOG");
    QFile file(log);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList order = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
    order.removeIf([](const QString &call) {
        return call == "supportedPPDOptionKeys" || call == "summaryInfo" || call == "panelName";
    });
    EXPECT_EQ(order.first(), "made");
    EXPECT_LT(order.indexOf("panelView"), order.indexOf("restoreValues"));
    EXPECT_LT(order.indexOf("restoreValues"), order.indexOf("willShow"));
    EXPECT_LT(order.indexOf("shouldHide"), order.lastIndexOf("saveValues"));
    EXPECT_LT(order.lastIndexOf("saveValues"), order.lastIndexOf("shouldPrint"));
    EXPECT_EQ(order.mid(order.size() - 2), (QStringList{"terminate", "gone"}));
    for (const char *once : {"made", "panelView", "restoreValues", "terminate",
                             "PPDOptionKeyValueDidChange PageSize A6", "PPDOptionKeyValueDidChange PageSize A4"})
        EXPECT_EQ(order.count(once), 1) << once;
    // The refused job caused a second round of these calls.
    for (const char *twice : {"willShow", "shouldHide", "shouldPrint"})
        EXPECT_EQ(order.count(twice), 2) << twice;
}

} // namespace
