// SPDX-License-Identifier: GPL-2.0-or-later
// Measures the preview: how long a page of a long document takes to appear, against `pdftoppm` drawing the same page;
// how long the event loop stands still while hostile documents are shown; and the memory that it takes, folded and
// unfolded.
#include "Measure.h"
#include "pages/SampleDocuments.h"
#include "preview/PagePreview.h"
#include "preview/SheetView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <functional>
#include <unistd.h>

namespace {

constexpr int kPages = 100;
constexpr int kHostileMilliseconds = 1500; // for each document
constexpr QSize kA4(595, 842);

// A report: each page full of text, with a chart.
QByteArray report()
{
    QList<QByteArray> objects = {
        "<</Type/Catalog/Pages 2 0 R>>", {}, "<</Type/Font/Subtype/Type1/BaseFont/Times-Roman>>"};
    QByteArray kids;
    for (int page = 0; page < kPages; ++page) {
        QByteArray drawing = "BT /F 10 Tf 12 TL 60 780 Td\n";
        for (int line = 0; line < 50; ++line)
            drawing += "(Line " + QByteArray::number(line) + " of page " + QByteArray::number(page) +
                       " says what has happened in the year that went by.) Tj T*\n";
        drawing += "ET\n";
        for (int bar = 0; bar < 40; ++bar)
            drawing += "0.2 0.4 0." + QByteArray::number(bar % 10) + " rg " + QByteArray::number(60 + 12 * bar) +
                       " 60 9 " + QByteArray::number(20 + 3 * bar) + " re f\n";
        kids += QByteArray::number(objects.size() + 1) + " 0 R ";
        objects << "<</Type/Page/Parent 2 0 R/MediaBox[0 0 595 842]/Contents " +
                       QByteArray::number(objects.size() + 2) + " 0 R/Resources<</Font<</F 3 0 R>>>>>>"
                << bvtest::streamOf(drawing);
    }
    objects[1] = "<</Type/Pages/Kids[" + kids + "]/Count " + QByteArray::number(kPages) + ">>";
    return bvtest::pdfOf(objects);
}

QString write(const QTemporaryDir &folder, const char *name, const QByteArray &content)
{
    QFile file(folder.filePath(QLatin1String(name)));
    if (file.open(QIODevice::WriteOnly))
        file.write(content);
    return file.fileName();
}

// Kilobytes of memory that are of no file, so that no other process shares them.
long privateMemory(const QByteArray &process)
{
    QFile file(QStringLiteral("/proc/%1/smaps_rollup").arg(QString::fromLatin1(process)));
    long sum = 0;
    if (file.open(QIODevice::ReadOnly))
        for (const QByteArray &line : file.readAll().split('\n'))
            if (line.startsWith("Anonymous:"))
                sum += line.mid(line.indexOf(':') + 1).trimmed().split(' ').value(0).toLong();
    return sum;
}

long childMemory()
{
    QFile file(QStringLiteral("/proc/self/task/%1/children").arg(getpid()));
    long sum = 0;
    if (file.open(QIODevice::ReadOnly))
        for (const QByteArray &child : file.readAll().simplified().split(' '))
            sum += child.isEmpty() ? 0 : privateMemory(child);
    return sum;
}

class Watched
{
public:
    explicit Watched(const QStringList &documents)
    {
        m_preview.resize(280, 360);
        m_preview.setSheet({kA4, {12, 12, 12, 12}});
        m_preview.setDocuments(documents);
        m_preview.show();
    }
    bv::PagePreview &preview() { return m_preview; }
    // Until the next picture or note, or until the time is over.
    double untilShown(const std::function<void()> &action, int limit = 20'000)
    {
        return bvbench::milliseconds([&] {
            QEventLoop loop;
            const auto connection = QObject::connect(&m_preview, &bv::PagePreview::shown, &loop, &QEventLoop::quit);
            QTimer::singleShot(limit, &loop, &QEventLoop::quit);
            QTimer::singleShot(0, &loop, action);
            loop.exec();
            QObject::disconnect(connection);
        });
    }
    void goTo(int page)
    {
        auto *field = m_preview.findChild<QSpinBox *>(QStringLiteral("previewPage"));
        field->setValue(page);
    }

private:
    bv::PagePreview m_preview;
};

void rest(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void measurePages(const QString &document)
{
    Watched watched({document});
    const double first = watched.untilShown([&] { watched.preview().start(); });
    std::vector<double> jumps;
    std::vector<double> steps;
    std::vector<double> yardstick;
    for (int round = 0; round < 20; ++round) {
        const int page = 3 + round * 7 % 20 * 5; // never one that was drawn before
        rest(50);
        jumps.push_back(watched.untilShown([&] { watched.goTo(page); }));
        rest(100); // the neighbours are drawn
        steps.push_back(watched.untilShown([&] { watched.goTo(page + 1); }));
        yardstick.push_back(bvbench::milliseconds([&] {
            QProcess::execute(QStringLiteral("pdftoppm"),
                              {QStringLiteral("-f"), QString::number(page), QStringLiteral("-l"), QString::number(page),
                               QStringLiteral("-scale-to"), QStringLiteral("300"), document,
                               document + QStringLiteral(".out")});
        }));
    }
    std::printf("%-44s %8.1f ms\n", "first page of 100, from nothing", first);
    std::printf("%-44s %8.1f ms\n", "a page somewhere else", bvbench::median(jumps));
    std::printf("%-44s %8.1f ms\n", "the next page, after 0.1 s of reading", bvbench::median(steps));
    std::printf("%-44s %8.1f ms\n", "pdftoppm of one page", bvbench::median(yardstick));
}

void measureMemory(const QString &document)
{
    {
        // Fonts and the like are no cost of the preview.
        QSpinBox field;
        field.show();
        rest(50);
    }
    const long before = privateMemory("self");
    Watched watched({document});
    watched.preview().setFolded(true);
    watched.preview().start();
    rest(200);
    const long folded = privateMemory("self");
    watched.untilShown([&] { watched.preview().setFolded(false); });
    rest(300);
    const long unfolded = privateMemory("self");
    const long child = childMemory();
    watched.preview().setFolded(true);
    rest(100);
    std::printf("%-44s %8ld kB\n", "memory of a folded preview", folded - before);
    std::printf("%-44s %8ld kB, and %ld kB in bvpages\n", "memory of an unfolded one", unfolded - before, child);
    std::printf("%-44s %8ld kB\n", "folded again", privateMemory("self") - before);
}

void measureStandStill(const QTemporaryDir &folder)
{
    for (const bvtest::HostileDocument &hostile : bvtest::hostileDocuments()) {
        Watched watched({write(folder, hostile.name, hostile.content)});
        rest(50);
        qint64 longest = 0;
        QElapsedTimer since;
        QTimer beat;
        QObject::connect(&beat, &QTimer::timeout, &beat,
                         [&] { longest = std::max(longest, since.nsecsElapsed()), since.start(); });
        since.start();
        beat.start(1);
        watched.untilShown([&] { watched.preview().start(); }, kHostileMilliseconds);
        rest(20);
        const QString note = watched.preview().sheet().note().simplified();
        std::printf("stand-still with %-27s %8.1f ms  %s\n", hostile.name, double(longest) / 1e6,
                    qPrintable(note.isEmpty() ? watched.preview().sheet().accessibleName() : note));
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString document = write(folder, "report.pdf", report());
    measureMemory(document);
    measurePages(document);
    measureStandStill(folder);
    return 0;
}
