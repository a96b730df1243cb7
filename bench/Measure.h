// SPDX-License-Identifier: GPL-2.0-or-later
// Measures the milliseconds of one step, and takes the median of several.
#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

namespace bvbench {

template <typename Step> double milliseconds(Step step)
{
    const auto start = std::chrono::steady_clock::now();
    step();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

inline double median(std::vector<double> values)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace bvbench
