// SPDX-License-Identifier: GPL-2.0-or-later
// Values of the print settings: strings, numbers, booleans, arrays and dictionaries. Dictionaries are shared by
// reference, so that one fetched from the settings can be changed in place. Everything is in this header because the
// dialog and the plug-in both use it and neither links the other.
#pragma once

#include <QString>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

namespace bv {

class PrintValue;

// Keys in ascending order of their UTF-16 units; all code that walks a dictionary uses this order.
using PrintEntries = std::map<QString, PrintValue>;
using PrintArray = std::vector<PrintValue>;

struct PrintDictionary;
using PrintDictionaryRef = std::shared_ptr<PrintDictionary>;

// One value. Copying it copies strings, numbers and arrays, and shares dictionaries.
class PrintValue
{
public:
    PrintValue() = default;
    PrintValue(QString text) : m_value(std::move(text)) {}
    PrintValue(const char *text) : m_value(QString::fromUtf8(text)) {}
    PrintValue(PrintArray array) : m_value(std::move(array)) {}
    PrintValue(PrintDictionaryRef dictionary)
    {
        if (dictionary)
            m_value = std::move(dictionary);
    }
    static PrintValue integer(int64_t number) { return PrintValue(Value(number)); }
    static PrintValue real(double number) { return PrintValue(Value(number)); }
    static PrintValue boolean(bool value) { return PrintValue(Value(value)); }

    // Whether there is no value, as for an absent key. Such a value is never stored in a dictionary.
    bool isNone() const { return std::holds_alternative<std::monostate>(m_value); }
    // Whether both values are of one type.
    bool hasTypeOf(const PrintValue &other) const { return m_value.index() == other.m_value.index(); }

    // These return null when the value is of another type. Pointers stay valid while this value is unchanged.
    const QString *string() const { return std::get_if<QString>(&m_value); }
    const int64_t *integer() const { return std::get_if<int64_t>(&m_value); }
    const double *real() const { return std::get_if<double>(&m_value); }
    const bool *boolean() const { return std::get_if<bool>(&m_value); }
    const PrintArray *array() const { return std::get_if<PrintArray>(&m_value); }
    PrintDictionaryRef dictionary() const
    {
        const auto *ref = std::get_if<PrintDictionaryRef>(&m_value);
        return ref ? *ref : nullptr;
    }

private:
    using Value = std::variant<std::monostate, QString, int64_t, double, bool, PrintArray, PrintDictionaryRef>;
    explicit PrintValue(Value value) : m_value(std::move(value)) {}

    Value m_value;
};

// A dictionary of the settings. Always held through PrintDictionaryRef.
struct PrintDictionary
{
    PrintEntries entries;

    bool contains(const QString &key) const { return entries.find(key) != entries.end(); }
    PrintValue value(const QString &key) const
    {
        const auto found = entries.find(key);
        return found == entries.end() ? PrintValue() : found->second;
    }
    void setValue(const QString &key, PrintValue value) { entries.insert_or_assign(key, std::move(value)); }
};

} // namespace bv
