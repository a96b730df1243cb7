// SPDX-License-Identifier: GPL-2.0-or-later
// Descriptions of objects and values, and the bracketing lines.
#include "plugin/PanelLog.h"

#include <QObject>

std::string describe(const QString &text)
{
    return text.toStdString();
}

std::string describe(const QObject &object)
{
    return bv::formatLog("<%s %p %s>", {bv::LogArgument(object.metaObject()->className()),
                                        bv::LogArgument(static_cast<const void *>(&object)),
                                        bv::LogArgument(object.objectName().toStdString())});
}

namespace bv {

std::string describe(const PrintValue &value)
{
    if (const QString *text = value.string())
        return '"' + text->toStdString() + '"';
    if (const int64_t *number = value.integer())
        return std::to_string(*number);
    if (const double *number = value.real())
        return std::to_string(*number);
    if (const bool *truth = value.boolean())
        return *truth ? "true" : "false";
    if (const PrintDictionaryRef dictionary = value.dictionary())
        return describe(*dictionary);
    if (const PrintArray *array = value.array()) {
        std::string text = "(";
        for (const PrintValue &element : *array)
            text.append(text.size() > 1 ? ", " : "").append(describe(element));
        return text + ')';
    }
    return "(null)";
}

std::string describe(const PrintDictionary &dictionary)
{
    std::string text = "{";
    for (const auto &[key, value] : dictionary.entries)
        text.append(text.size() > 1 ? "; " : "").append(key.toStdString()).append(" = ").append(describe(value));
    return text + '}';
}

void logBracket(std::string_view bracket, const LogArgument &object, std::string_view format,
                std::initializer_list<LogArgument> arguments)
{
    diagnosticLine(formatLog(formatLog(bracket, {object, LogArgument(format)}), arguments));
}

} // namespace bv

int32_t _DEBUGControlTable(PDEControlTable table)
{
    int32_t records = 1;
    while (table && table[records - 1].control)
        ++records;
    return records;
}
