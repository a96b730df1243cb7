// SPDX-License-Identifier: GPL-2.0-or-later
// compare_pictures WANTED FOUND: checks that every picture in the folder WANTED looks the same in the folder FOUND.
// Compares colors and edges in cells of about 16 by 16 pixels. Letters drawn a little darker or half a pixel off make a
// small difference. A missing control changes the edges, a greyed one the colors.
#include <QDir>
#include <QFontInfo>
#include <QGuiApplication>
#include <QImage>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kCell = 16;         // pixels
constexpr int kSizeTolerance = 6; // pixels, in each direction
// Largest allowed difference in the worst channel of the worst cell, from 0 to 255. Another hinting of letters gives 15
// (colors) and 32 (edges); a missing greyed button gives 9 and 63.
constexpr int kColorTolerance = 22;
constexpr int kEdgeTolerance = 46;
constexpr int kSkipped = 77;

// White where a pixel differs at all from its left or upper neighbor.
QImage edges(const QImage &picture)
{
    constexpr int kStep = 6;
    QImage result(picture.size(), QImage::Format_RGB32);
    result.fill(Qt::black);
    for (int y = 1; y < picture.height(); ++y)
        for (int x = 1; x < picture.width(); ++x) {
            const int here = qGray(picture.pixel(x, y));
            if (std::abs(here - qGray(picture.pixel(x - 1, y))) > kStep ||
                std::abs(here - qGray(picture.pixel(x, y - 1))) > kStep)
                result.setPixelColor(x, y, Qt::white);
        }
    return result;
}

int worstCell(const QImage &wanted, const QImage &found)
{
    const QSize cells(wanted.width() / kCell, wanted.height() / kCell);
    const auto reduced = [&](const QImage &picture) {
        return picture.scaled(cells, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage a = reduced(wanted);
    const QImage b = reduced(found);
    int worst = 0;
    for (int y = 0; y < cells.height(); ++y)
        for (int x = 0; x < cells.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            worst = std::max(
                {worst, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)), std::abs(qBlue(p) - qBlue(q))});
        }
    return worst;
}

bool looksTheSame(const QString &name, const QImage &wanted, const QImage &found)
{
    const QSize step = wanted.size() - found.size();
    bool same = !wanted.isNull() && !found.isNull() && std::abs(step.width()) <= kSizeTolerance &&
                std::abs(step.height()) <= kSizeTolerance;
    int colors = 0;
    int lines = 0;
    if (same) {
        colors = worstCell(wanted, found);
        lines = worstCell(edges(wanted), edges(found));
        same = colors <= kColorTolerance && lines <= kEdgeTolerance;
    }
    std::printf("%s: %s; wanted %dx%d, found %dx%d, colors %d, edges %d\n", qPrintable(name),
                same ? "same" : "DIFFERENT", wanted.width(), wanted.height(), found.width(), found.height(), colors,
                lines);
    return same;
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    if (argc != 3)
        return 2;
    if (QFontInfo(QFont(QStringLiteral("DejaVu Sans"))).family() != u"DejaVu Sans") {
        std::printf("skipped: the font of the pictures, DejaVu Sans, is not installed\n");
        return kSkipped;
    }
    const QDir wanted(QString::fromLocal8Bit(argv[1]));
    const QDir found(QString::fromLocal8Bit(argv[2]));
    const QStringList names = wanted.entryList({QStringLiteral("*.png")});
    bool same = !names.isEmpty();
    for (const QString &name : names) {
        const auto load = [&](const QDir &folder) {
            return QImage(folder.filePath(name)).convertToFormat(QImage::Format_RGB32);
        };
        same = looksTheSame(name, load(wanted), load(found)) && same;
    }
    return same ? 0 : 1;
}
