// SPDX-License-Identifier: GPL-2.0-or-later
// Compares words by the letters that would have to change.
#include "commandline/NearestWords.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace bv {

namespace {

constexpr qsizetype kLongest = 64; // longer words are no typing errors
constexpr qsizetype kMost = 3;

// How many letters have to be put in, taken out or replaced to make one word of the other.
int distance(const QString &one, const QString &other)
{
    std::vector<int> row(size_t(other.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < one.size(); ++i) {
        int diagonal = std::exchange(row[0], int(i) + 1);
        for (size_t k = 1; k < row.size(); ++k) {
            const int replaced = diagonal + (one[i] == other[qsizetype(k) - 1] ? 0 : 1);
            diagonal = row[k];
            row[k] = std::min({row[k] + 1, row[k - 1] + 1, replaced});
        }
    }
    return row.back();
}

} // namespace

QStringList nearestWords(const QString &word, const QStringList &words)
{
    const QString wanted = word.toLower();
    if (wanted.isEmpty() || wanted.size() > kLongest)
        return {};
    std::vector<std::pair<int, QString>> found;
    for (const QString &one : words) {
        const QString known = one.toLower();
        if (known.size() > kLongest)
            continue;
        const int letters = distance(wanted, known);
        const bool isPart = wanted.size() > 2 && known.contains(wanted);
        if (letters <= std::max<qsizetype>(1, wanted.size() / 3))
            found.emplace_back(letters, one);
        else if (isPart)
            found.emplace_back(int(kLongest) + letters, one);
    }
    std::stable_sort(found.begin(), found.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
    QStringList nearest;
    for (const auto &[letters, one] : found)
        if (nearest.size() < kMost && !nearest.contains(one))
            nearest << one;
    return nearest;
}

} // namespace bv
