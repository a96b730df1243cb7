// SPDX-License-Identifier: GPL-2.0-or-later
// What the service tells the process that shows one dialog, and what that process answers. Both are one line of JSON.
#pragma once

#include "jobs/JobSink.h"

#include <QByteArray>
#include <QVariantMap>

namespace bv {

// A job without its document, on which the user has agreed.
struct AgreedJob
{
    QString queue;
    JobOptions options;
};

struct DialogRequest
{
    // The descriptor of the document in the process of the dialog, where there is a document.
    static constexpr int kDocumentDescriptor = 3;

    bool hasDocument = false; // else the user only agrees on settings
    bool mayHandOver = true;  // a queue without the panel is left to the desktop's own dialog
    QString parent;           // the program's window, as the portal names it
    QString title;            // of window and job
    QString acceptLabel;      // empty: the dialog's own
    bool isModal = true;
    QVariantMap settings;         // of the program; texts only
    QVariantMap pageSetup;        // of the program; texts and numbers
    std::optional<AgreedJob> job; // to be printed without asking again

    QByteArray toLine() const;
    // Nothing when the line is no request.
    static std::optional<DialogRequest> fromLine(const QByteArray &line);
};

struct DialogAnswer
{
    // The numbers are the portal's.
    enum class Response : uint { Done = 0, Canceled = 1, Failed = 2 };

    Response response = Response::Failed;
    bool isHandedOver = false; // the desktop's own dialog is to be asked in place of this one
    QVariantMap settings;      // texts only
    QVariantMap pageSetup;     // texts and numbers of the type double
    AgreedJob job;             // when no document was there

    QByteArray toLine() const;
    static std::optional<DialogAnswer> fromLine(const QByteArray &line);
};

// The entries of types that a program may give: texts, and numbers where they are wanted (as double). Others, very long
// ones, and all behind the first 1,000 are left out.
QVariantMap plainEntries(const QVariantMap &entries, bool withNumbers);

} // namespace bv
