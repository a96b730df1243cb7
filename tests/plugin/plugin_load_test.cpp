// SPDX-License-Identifier: GPL-2.0-or-later
// The built plug-in through the host protocol alone: loading, its entry, class names and exported symbols.
#include "support/PaneFixture.h"

#include <QPluginLoader>
#include <QProcess>
#include <QWidget>

namespace {

const QString kSuffix = QStringLiteral("_5C1D7A20_93B4_4E6F_8A2D_7F04C9B1E356");

TEST(PluginLoad, HandsOutOnePanelOfThePrinterModuleTypeOnly)
{
    QPluginLoader loader(QStringLiteral(BV_PLUGIN));
    auto *factory = qobject_cast<bv::PrintPanelFactory *>(loader.instance());
    ASSERT_TRUE(factory) << loader.errorString().toStdString();
    EXPECT_EQ(loader.instance()->metaObject()->className(), "PDEPlugIn" + kSuffix);
    EXPECT_TRUE(factory->initWithBundle({QStringLiteral(BV_PLUGIN), QString()}));

    const bvtest::TestPpd ppd;
    bvtest::TestTicket ticket;
    bvtest::TestSession session;
    bvtest::TestCallback callback;
    callback.settings = &ticket;
    callback.session = &session;
    callback.ppd = ppd.get();
    EXPECT_FALSE(factory->PDEPanelsForType(QStringLiteral("another type"), &callback));
    auto panels = factory->PDEPanelsForType(QString::fromLatin1(bv::kPrinterModulePanelType), &callback);
    ASSERT_TRUE(panels);
    ASSERT_EQ(panels->size(), 1U);
    const QWidget *view = panels->front()->panelView();
    EXPECT_EQ(view->objectName(), "pdeMainView");
    EXPECT_EQ(view->metaObject()->className(), "MainView" + kSuffix);
    for (const auto &[name, type] :
         {std::pair("onColorView", "ColorOptions"), {"onAdvancedView", "AdvancedColorOptions"}}) {
        const auto *pane = view->findChild<QWidget *>(QLatin1String(name));
        ASSERT_TRUE(pane) << name;
        EXPECT_EQ(pane->metaObject()->className(), type + kSuffix);
    }
    panels->clear();
    EXPECT_TRUE(loader.unload());
}

TEST(PluginLoad, EveryOwnQtClassHasTheSuffix)
{
    // Reads the names of the meta objects from the file, so that new classes are checked as well.
    QProcess nm;
    nm.start(QStringLiteral("nm"), {QStringLiteral("-C"), QStringLiteral(BV_PLUGIN)});
    ASSERT_TRUE(nm.waitForFinished());
    QStringList classes;
    for (const QByteArray &line : nm.readAllStandardOutput().split('\n')) {
        if (!line.endsWith("::staticMetaObject") || line.contains(" U "))
            continue;
        const QString name = QString::fromLatin1(line.mid(line.lastIndexOf(' ') + 1)).section("::", -2, -2);
        EXPECT_TRUE(name.endsWith(kSuffix)) << name.toStdString();
        classes.append(name);
    }
    EXPECT_TRUE(classes.contains("ManagementWindow" + kSuffix)) << "the names are there to be read";
}

TEST(PluginLoad, ExportsNothingButTheEntry)
{
    QProcess nm;
    nm.start(QStringLiteral("nm"), {QStringLiteral("-D"), QStringLiteral("--defined-only"), QStringLiteral(BV_PLUGIN)});
    ASSERT_TRUE(nm.waitForFinished());
    QStringList symbols;
    for (const QByteArray &line : nm.readAllStandardOutput().split('\n')) {
        const QByteArray symbol = line.mid(line.lastIndexOf(' ') + 1);
        if (!symbol.isEmpty() && !symbol.startsWith('_')) // _edata, _end, __bss_start and the like are the linker's
            symbols.append(QString::fromLatin1(symbol));
    }
    symbols.sort();
    EXPECT_EQ(symbols, QStringList({"qt_plugin_instance", "qt_plugin_query_metadata_v2"}));
}

} // namespace
