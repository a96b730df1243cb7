// SPDX-License-Identifier: GPL-2.0-or-later
// The test panel: a combo box, a check box, two text fields, a spin box, a table and a modal window.
#include "TestPanel.h"

#include "PaperField.h"
#include "PaperTable.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QThread>
#include <QVBoxLayout>

namespace {

// The panel's keys in the ticket.
const QString kTonerKey = QStringLiteral("TPToner");   // string, one of kToners
const QString kStampKey = QStringLiteral("TPStamp");   // string
const QString kSheetsKey = QStringLiteral("TPSheets"); // integer
const QString kOwnKey = QStringLiteral("TestPanel");   // dictionary, private to the panel

const QStringList kToners = {QStringLiteral("Normal"), QStringLiteral("Save"), QStringLiteral("Rich")};

void log(const QString &call)
{
    const QString path = qEnvironmentVariable("TESTPANEL_LOG");
    QFile file(path);
    if (!path.isEmpty() && file.open(QIODevice::Append))
        file.write(call.toUtf8() + '\n');
}

QTableView *makeTable(QWidget *parent)
{
    auto *table = new QTableView(parent);
    table->setObjectName(QStringLiteral("paperTable"));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTabKeyNavigation(false); // Tab must leave the table
    table->setModel(new PaperTable(table));
    table->setAccessibleName(QStringLiteral("Papers"));
    return table;
}

} // namespace

TestPanel::TestPanel(bv::PrintPanelCallback *callback) : m_callback(callback)
{
    log(QStringLiteral("made"));
}

TestPanel::~TestPanel()
{
    delete m_view;
    log(QStringLiteral("gone"));
}

QString TestPanel::panelName()
{
    log(QStringLiteral("panelName"));
    return QStringLiteral("Paper Stamp");
}

QString TestPanel::panelKind()
{
    log(QStringLiteral("panelKind"));
    return QStringLiteral("example.paper.stamp");
}

QStringList TestPanel::supportedPPDOptionKeys()
{
    log(QStringLiteral("supportedPPDOptionKeys"));
    return {kTonerKey, kStampKey};
}

QWidget *TestPanel::panelView()
{
    log(QStringLiteral("panelView"));
    buildView();
    return m_view;
}

void TestPanel::buildView()
{
    if (m_view)
        return;
    m_view = new QWidget;
    m_view->setObjectName(QStringLiteral("paperView"));
    auto *tabs = new QTabWidget(m_view);
    tabs->setObjectName(QStringLiteral("tabs"));
    auto *outer = new QVBoxLayout(m_view);
    outer->addWidget(tabs);

    auto *first = new QWidget;
    auto *form = new QFormLayout(first);
    m_toner = new QComboBox;
    m_toner->setObjectName(QStringLiteral("tonerMenu"));
    m_toner->addItems(kToners);
    auto *tonerLabel = new QLabel(QStringLiteral("&Toner:"));
    tonerLabel->setObjectName(QStringLiteral("tonerLabel"));
    tonerLabel->setBuddy(m_toner);
    form->addRow(tonerLabel, m_toner);
    m_stamp = new QCheckBox(QStringLiteral("Stamp"));
    m_stamp->setObjectName(QStringLiteral("stampCheck"));
    form->addRow(m_stamp);
    m_stampText = new PaperField;
    m_stampText->setObjectName(QStringLiteral("stampText"));
    m_stampText->setEnabled(false);
    form->addRow(QStringLiteral("Stamp &text:"), m_stampText);
    tabs->addTab(first, QStringLiteral("Look"));

    auto *second = new QWidget;
    auto *column = new QFormLayout(second);
    m_sheets = new QSpinBox;
    m_sheets->setObjectName(QStringLiteral("sheetSpin"));
    m_sheets->setRange(1, 16);
    column->addRow(QStringLiteral("&Sheets:"), m_sheets);
    column->addRow(makeTable(second));
    auto *edit = new QPushButton(QStringLiteral("&Edit…"));
    edit->setObjectName(QStringLiteral("editButton"));
    column->addRow(edit);
    tabs->addTab(second, QStringLiteral("Paper"));

    QObject::connect(m_stamp, &QCheckBox::clicked, m_stampText, &QWidget::setEnabled);
    QObject::connect(m_toner, &QComboBox::activated, m_toner,
                     [](int index) { log(QStringLiteral("toner %1").arg(index)); });
    QObject::connect(edit, &QPushButton::clicked, edit, [this] { openEditor(); });
}

void TestPanel::openEditor()
{
    log(QStringLiteral("editor opens"));
    // The window stays a child of the view after it is closed.
    QDialog &editor = *new QDialog(m_view);
    editor.setObjectName(QStringLiteral("editorWindow"));
    auto *form = new QFormLayout(&editor);
    auto *name = new QLineEdit;
    name->setObjectName(QStringLiteral("editName"));
    form->addRow(QStringLiteral("&Name:"), name);
    // Has the same name as a control of the view. Lookups must prefer the one in the modal window.
    auto *stamp = new QCheckBox(QStringLiteral("Stamp in the editor"));
    stamp->setObjectName(QStringLiteral("stampCheck"));
    form->addRow(stamp);
    for (const char *which : {"editBrowse", "editOK", "editCancel"}) {
        auto *button = new QPushButton(QLatin1String(which));
        button->setObjectName(QLatin1String(which));
        form->addRow(button);
    }
    QObject::connect(editor.findChild<QPushButton *>(QStringLiteral("editBrowse")), &QPushButton::clicked, &editor,
                     [&editor, name] {
                         const QString path = QFileDialog::getOpenFileName(&editor);
                         name->setText(QFileInfo(path).fileName());
                     });
    QObject::connect(editor.findChild<QPushButton *>(QStringLiteral("editOK")), &QPushButton::clicked, &editor,
                     [&editor] {
                         QThread::msleep(100); // like a button that writes a file
                         log(QStringLiteral("editor confirmed"));
                         editor.accept();
                     });
    QObject::connect(editor.findChild<QPushButton *>(QStringLiteral("editCancel")), &QPushButton::clicked, &editor,
                     &QDialog::reject);
    if (editor.exec() == QDialog::Accepted)
        m_stampText->setText(name->text());
    log(QStringLiteral("editor closes"));
}

void TestPanel::willShow()
{
    log(QStringLiteral("willShow"));
    if (auto *tabs = m_view ? m_view->findChild<QTabWidget *>() : nullptr)
        tabs->setCurrentIndex(0);
}

bool TestPanel::shouldHide()
{
    log(QStringLiteral("shouldHide"));
    return true;
}

bool TestPanel::restoreValuesAndReturnError(QString *error)
{
    log(QStringLiteral("restoreValues"));
    buildView();
    const bv::PrintSettings &ticket = *m_callback->printSettings();
    const bv::PrintValue toner = ticket.value(kTonerKey);
    const bv::PrintValue stamp = ticket.value(kStampKey);
    const bv::PrintValue sheets = ticket.value(kSheetsKey);
    m_toner->setCurrentIndex(toner.string() ? static_cast<int>(kToners.indexOf(*toner.string())) : 0);
    m_stamp->setChecked(stamp.string() && !stamp.string()->isEmpty());
    m_stampText->setEnabled(m_stamp->isChecked());
    m_stampText->setText(stamp.string() ? *stamp.string() : QString());
    m_sheets->setValue(sheets.integer() ? static_cast<int>(*sheets.integer()) : 1);
    if (m_stampText->text() != u"odd")
        return true;
    if (error)
        *error = QStringLiteral("The stamp is not known.");
    return false;
}

bool TestPanel::saveValuesAndReturnError(QString *error)
{
    log(QStringLiteral("saveValues"));
    buildView();
    if (m_stampText->text() == u"refuse") {
        if (error)
            *error = QStringLiteral("The stamp is not to be used.");
        return false;
    }
    bv::PrintSettings &ticket = *m_callback->printSettings();
    ticket.setValue(kTonerKey, m_toner->currentText());
    ticket.setValue(kStampKey, m_stamp->isChecked() ? m_stampText->text() : QString());
    ticket.setValue(kSheetsKey, bv::PrintValue::integer(m_sheets->value()));
    if (!ticket.value(kOwnKey).dictionary())
        ticket.setValue(kOwnKey, std::make_shared<bv::PrintDictionary>());
    ticket.value(kOwnKey).dictionary()->setValue(QStringLiteral("saved"), bv::PrintValue::boolean(true));
    return true;
}

bv::PrintDictionary TestPanel::summaryInfo()
{
    log(QStringLiteral("summaryInfo"));
    buildView();
    bv::PrintDictionary summary;
    summary.setValue(QStringLiteral("Toner"), m_toner->currentText());
    summary.setValue(QStringLiteral("Stamp"), m_stamp->isChecked() ? m_stampText->text() : QStringLiteral("none"));
    summary.setValue(QStringLiteral("Sheets"), QString::number(m_sheets->value()));
    summary.setValue(QString::fromLatin1(bv::kSummaryDisplayOrder),
                     bv::PrintArray{QStringLiteral("Toner"), QStringLiteral("Stamp"), QStringLiteral("Sheets")});
    return summary;
}

bool TestPanel::shouldPrint()
{
    log(QStringLiteral("shouldPrint"));
    return !m_stampText || m_stampText->text() != u"hold";
}

void TestPanel::PPDOptionKeyValueDidChange(const QString &key, const QString &ppdChoice)
{
    log(QStringLiteral("PPDOptionKeyValueDidChange %1 %2").arg(key, ppdChoice));
}

void TestPanel::constraints()
{
    log(QStringLiteral("constraints"));
}

void TestPanel::terminate()
{
    log(QStringLiteral("terminate"));
}

bool TestPanelFactory::initWithBundle(const bv::PluginBundle &bundle)
{
    log(QStringLiteral("initWithBundle %1").arg(bundle.language));
    return !qEnvironmentVariableIsSet("TESTPANEL_REFUSES_START");
}

std::optional<std::vector<std::unique_ptr<bv::PrintPanel>>>
TestPanelFactory::PDEPanelsForType(const QString &type, bv::PrintPanelCallback *hostInfo)
{
    const int count = type == QLatin1String(bv::kPrinterModulePanelType) ? 1 : type == u"two" ? 2 : 0;
    if (count == 0)
        return std::nullopt;
    std::vector<std::unique_ptr<bv::PrintPanel>> panels;
    for (int i = 0; i < count; ++i)
        panels.push_back(std::make_unique<TestPanel>(hostInfo));
    return panels;
}
