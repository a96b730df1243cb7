// SPDX-License-Identifier: GPL-2.0-or-later
// dialog_writer ticket FOLDER TEXT: remembers a choice. dialog_writer defaults FOLDER TEXT: makes a choice a default of
// the user whose home the folder is. dialog_writer job FOLDER DOCUMENT: stores a job. The dialog's own code, in a
// program that a test can stop at any call. Exit status: 0 done, 1 failed.
#include "jobs/FolderSink.h"
#include "queues/RememberedTickets.h"
#include "queues/UserDefaults.h"

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 4)
        return 2;
    if (words[1] == QStringLiteral("ticket")) {
        bv::PrintDictionary ticket;
        ticket.setValue(QStringLiteral("Choice"), words[3]);
        return bv::RememberedTickets(words[2]).store(QStringLiteral("QL70"), ticket) ? 0 : 1;
    }
    if (words[1] == QStringLiteral("defaults")) {
        qputenv("HOME", words[2].toUtf8());
        const bv::UserDefaults defaults(words[2]);
        return defaults.store({QStringLiteral("QL70"), {}}, {{QStringLiteral("Choice"), words[3]}}).isEmpty() ? 0 : 1;
    }
    bv::CallControl control;
    bv::JobRequest request;
    request.options[QStringLiteral("Choice")] = QStringLiteral("one");
    request.documents.push_back(words[3]);
    const auto sent = bv::FolderSink(words[2]).submit(request, control);
    if (!sent)
        std::fprintf(stderr, "%s\n", qPrintable(sent.error()));
    return sent ? 0 : 1;
}
