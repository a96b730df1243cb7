// SPDX-License-Identifier: GPL-2.0-or-later
// What becomes of an attribute of a job whose option was not chosen again.
#pragma once

#include "jobs/JobSink.h"

namespace bv {

struct AttributeReset
{
    enum class Kind { Set, Leave, Delete };
    Kind kind = Kind::Delete;
    QString value; // to be set
};

// The print server passes a deleted attribute on to its filters with an empty value, which some take for a choice. So a
// standard attribute is set to what the new options mean, or to its neutral value, and only others are deleted.
AttributeReset resetOf(const QString &attribute, const JobOptions &options);

} // namespace bv
