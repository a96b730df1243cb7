// SPDX-License-Identifier: GPL-2.0-or-later
// qt_sender QUEUE FILE OPTION=CHOICE...: prints a picture or a text as a program that uses Qt's printing does.
// tools/chain-matrix uses it.
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPrintEngine>
#include <QPrinter>

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 3)
        return 2;
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(arguments[1]);
    // Qt's own dialog hands options to the print engine under this key (private to Qt): names and values in turn.
    constexpr auto kCupsOptions = QPrintEngine::PrintEnginePropertyKey(0xfe00);
    QStringList options;
    for (const QString &option : arguments.mid(3))
        options << option.section(u'=', 0, 0) << option.section(u'=', 1);
    printer.printEngine()->setProperty(kCupsOptions, options);
    QPainter painter(&printer);
    if (const QImage picture(arguments[2]); !picture.isNull()) {
        painter.drawImage(QRect(0, 0, 2000, 2000), picture);
    } else {
        QFile file(arguments[2]);
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        painter.drawText(QRect(0, 0, 4000, 6000), 0, QString::fromUtf8(file.readAll()));
    }
    return painter.end() ? 0 : 1;
}
