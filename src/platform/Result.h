// SPDX-License-Identifier: GPL-2.0-or-later
// The outcome of an operation that can fail: a value, or one sentence that tells the user what went wrong.
#pragma once

#include <QString>
#include <optional>
#include <utility>

namespace bv {

template <typename T> class Result
{
public:
    Result(T value) : m_value(std::move(value)) {}
    // The sentence names the thing that failed and, if possible, a remedy.
    static Result failure(const QString &sentence)
    {
        Result result;
        result.m_error = sentence;
        return result;
    }

    explicit operator bool() const { return m_value.has_value(); }
    // Call these only when the result holds a value.
    T &value() { return *m_value; }
    const T &value() const { return *m_value; }
    // Empty when the result holds a value.
    const QString &error() const { return m_error; }

private:
    Result() = default;

    std::optional<T> m_value;
    QString m_error;
};

} // namespace bv
