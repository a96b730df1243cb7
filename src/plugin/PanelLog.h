// SPDX-License-Identifier: GPL-2.0-or-later
// The panel's part of the diagnostic log: lines that mark begin and end, and a counter of control-table records.
#pragma once

#include "common/PDEControlItem.h"
#include "platform/Log.h"
#include "platform/PrintValue.h"

class QObject;

// Descriptions for the format "%@", in UTF-8.
std::string describe(const QString &text);
std::string describe(const QObject &object);
namespace bv {
std::string describe(const PrintValue &value);
std::string describe(const PrintDictionary &dictionary);

// Writes one log line such as "BEGIN self(object) format". `format` is filled in with the remaining arguments.
void logBracket(std::string_view bracket, const LogArgument &object, std::string_view format,
                std::initializer_list<LogArgument> arguments);
} // namespace bv

template <typename... Arguments>
void _PDEProlog(const QObject *object, const char *format, const Arguments &...arguments)
{
    bv::logBracket("BEGIN self(%@) %@", bv::LogArgument(object), format, {bv::LogArgument(arguments)...});
}

template <typename... Arguments>
void _PDEEpilog(const QObject *object, const char *format, const Arguments &...arguments)
{
    bv::logBracket("END self(%@) %@", bv::LogArgument(object), format, {bv::LogArgument(arguments)...});
}

template <typename... Arguments> void _PDELog(const QObject *object, const char *format, const Arguments &...arguments)
{
    bv::logBracket("LOG self(%@): %@", bv::LogArgument(object), format, {bv::LogArgument(arguments)...});
}

// Number of records including the end record, which is the first one without a control. 1 for an empty table.
int32_t _DEBUGControlTable(PDEControlTable table);
