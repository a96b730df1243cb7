// SPDX-License-Identifier: GPL-2.0-or-later
// Between the words in which programs give print settings to the portal (those of GTK) and a job's options.
#pragma once

#include "dialog/DialogCaller.h"
#include "jobs/JobSink.h"

#include <QVariantMap>
#include <cups/ppd.h>

namespace bv {

// The choices, copies and pages that a program's settings and page setup ask for, as far as the PPD has them; all else
// is left out. Changes the PPD's marks and marks its defaults at the end. `ppd` may be null.
DialogCaller callerFrom(const QVariantMap &settings, const QVariantMap &pageSetup, ppd_file_t *ppd);

// The program's settings with what the job's options say. Copies and pages belong to the job and are one copy of all
// pages here, because a program applies those that it finds; what the dialog does not offer (page set, pages on a
// sheet, scale, reverse) goes, because a program would apply it unseen.
QVariantMap settingsFor(const QVariantMap &before, const QString &queue, const JobOptions &options, ppd_file_t *ppd);

// The program's page setup on the paper that the options choose. Where that is the paper of before, nothing changes.
QVariantMap pageSetupFor(const QVariantMap &before, const JobOptions &options, ppd_file_t *ppd);

} // namespace bv
