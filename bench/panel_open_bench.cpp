// SPDX-License-Identifier: GPL-2.0-or-later
// Time from loading the plug-in to the shown and restored pane, by step. Prints medians of 20 openings for three PPDs:
// the project's own, one with ten times the options, one with ten times the choices. Marking conflicts is done by
// libcups and is also measured alone.
#include "PanelOpening.h"
#include "common/PDECommon.h"
#include "support/PaneFixture.h"
#include "ui_PDEMain.h"

#include "colorrules/OptionConstraints.h"

#include <QApplication>
#include <QFile>
#include <cstdio>
#include <map>

namespace {

using bvbench::milliseconds;

constexpr int kRuns = 20;

// The project's PPD with additional options, which no pane knows, and additional choices in known options.
QByteArray grownPpd(int moreOptions, int moreChoices)
{
    QFile file(QStringLiteral(BV_SOURCE_DIR "/resources/QL70.ppd"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray text;
    QByteArray keyword;
    QByteArray additional;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith("*OpenUI *BV"))
            keyword = line.mid(9, line.indexOf('/') - 9);
        if (line.startsWith("*CloseUI: *BV") && !keyword.isEmpty() && !line.contains("Boolean")) {
            for (int i = 0; i < moreChoices; ++i)
                text += '*' + keyword + " More" + QByteArray::number(i) + "/More " + QByteArray::number(i) + ": \"\"\n";
            for (int i = 0; i < moreOptions; ++i)
                additional += bvtest::ppdOption(keyword + QByteArray::number(i), "A B C D");
            keyword.clear();
        }
        text += line + '\n';
    }
    return text + additional;
}

ppd_file_t *openPpd(const QByteArray &text, const QTemporaryDir &folder)
{
    QFile file(folder.filePath(QStringLiteral("grown.ppd")));
    if (!file.open(QIODevice::WriteOnly))
        return nullptr;
    file.write(text);
    file.close();
    ppd_file_t *ppd = ppdOpenFile(qPrintable(file.fileName()));
    if (ppd)
        ppdMarkDefaults(ppd);
    return ppd;
}

int choicesOf(ppd_file_t *ppd, const QStringList &keys)
{
    int count = 0;
    for (const QString &key : keys) {
        const ppd_option_t *option = ppdFindOption(ppd, qPrintable(key));
        count += option ? option->num_choices : 0;
    }
    return count;
}

void report(const char *name, ppd_file_t *ppd)
{
    bvtest::TestTicket ticket;
    bvtest::TestSession session;
    bvtest::TestCallback callback;
    callback.settings = &ticket;
    callback.session = &session;
    callback.ppd = ppd;
    std::map<const char *, std::vector<double>> steps;
    QStringList keys;
    for (int run = 0; run < kRuns; ++run) {
        const auto add = [&](const char *step, double time) { steps[step].push_back(time); };
        const bvbench::PanelOpening opening = bvbench::openPanel(callback);
        keys = opening.keys;
        add("whole", opening.whole);
        add("load", opening.load);
        add("view", opening.view);
        add("restore", opening.restore);
        add("show", opening.show);

        // The steps of the view alone, with its classes linked into this program.
        MainView view;
        Ui::PDEMain form;
        PainChangeController controller;
        add("view.form", milliseconds([&] { form.setupUi(&view); }));
        controller.onMainCustomView = form.onMainCustomView;
        controller.onColorView = form.onColorView;
        controller.onAdvancedView = form.onAdvancedView;
        controller.setPPDFileEachView(ppd);
        controller.setPMPrintEachView(&ticket, &session);
        add("view.tables", milliseconds([&] { controller.creatPDEControlTableEachView(); }));
        add("view.menus", milliseconds([&] { controller.createPDEItemForPPDKeyEachView(); }));
        PDEControlTable tables[] = {form.onColorView->getControlData(), form.onAdvancedView->getControlData()};
        const auto joined = PDECommon::commonControlTableCompound(tables, 2);
        controller.defaultFromPPDInfoEachView();
        controller.getControlValueFromTickettEachView();
        add("restore.rules", milliseconds([&] { vColorPresetConstraints(joined.get()); }));
        add("libcups.conflicts", milliseconds([&] {
                for (const QString &key : keys) {
                    const QByteArray keyword = key.toLatin1();
                    const ppd_option_t *option = ppdFindOption(ppd, keyword);
                    for (int i = 0; option && i < option->num_choices; ++i)
                        PDECommon::commonIsPPDChoiceConflicted(ppd, keyword, option->choices[i].choice);
                }
            }));
    }
    std::printf("%-12s choices %5d", name, choicesOf(ppd, keys));
    for (const char *step : {"whole", "load", "view", "view.form", "view.tables", "libcups.conflicts", "view.menus",
                             "restore", "restore.rules", "show"})
        std::printf("  %s %.2f", step, bvbench::median(steps[step]));
    std::printf("  ms\n");
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir root;
    qputenv("BVCO_ROOT", root.path().toUtf8());
    for (const auto &[name, options, choices] :
         {std::tuple("own", 0, 0), {"options x10", 10, 0}, {"choices x10", 0, 32}}) {
        ppd_file_t *ppd = openPpd(grownPpd(options, choices), root);
        if (!ppd) {
            std::fprintf(stderr, "the PPD cannot be opened\n");
            return 1;
        }
        report(name, ppd);
        ppdClose(ppd);
    }
    return 0;
}
