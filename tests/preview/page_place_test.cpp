// SPDX-License-Identifier: GPL-2.0-or-later
// Where pages lie on a sheet, against what the print server's own filters made of such documents, and which pages are
// selected.
#include "preview/PagePlace.h"
#include "preview/PageSpans.h"

#include <gtest/gtest.h>
#include <ostream>

using namespace bv;

namespace bv {
void PrintTo(const PagePlace &place, std::ostream *out)
{
    *out << place.sheet.width() << 'x' << place.sheet.height() << ": " << place.page.x() << ',' << place.page.y() << ' '
         << place.page.width() << 'x' << place.page.height();
}
} // namespace bv

TEST(PagePlace, IsTheOneOfThePrintChain)
{
    struct Case
    {
        PageContent content;
        QSizeF page;
        QSizeF largest;
        PagePlace place;
    };
    const QSizeF a4(595, 842);
    const QSizeF turned = a4.transposed();
    const QSizeF a6(298, 420);
    const QSizeF a3(842, 1191);
    const Sheet sheet = {a4, {12, 12, 12, 12}};
    // clang-format off
    const Case cases[] = {
        {PageContent::Pdf,     a4,              a4,           {a4,     {0, 0, 595, 842}}},
        {PageContent::Pdf,     turned,          a4,           {turned, {0, 0, 842, 595}}},
        {PageContent::Pdf,     a6,              a6,           {a4,     {148.5, 211, 298, 420}}},
        {PageContent::Pdf,     a6.transposed(), a6,           {turned, {211, 148.5, 420, 298}}},
        {PageContent::Pdf,     {606, 842},      {606, 842},   {a4,     {-5.5, 0, 606, 842}}},
        {PageContent::Pdf,     a3,              a3,           {a4,     {12, 17.2, 571, 807.7}}},
        {PageContent::Pdf,     {612, 792},      {612, 792},   {a4,     {12, 51.5, 571, 738.9}}},
        {PageContent::Pdf,     a6,              a3,           {a4,     {12, 18.6, 571, 804.8}}},
        {PageContent::Picture, {200, 100},      {},           {turned, {12, 93, 818, 409}}},
        {PageContent::Picture, {1500, 3000},    {},           {a4,     {93, 12, 409, 818}}},
        {PageContent::Text,    a4,              {},           {a4,     {0, 0, 595, 842}}},
        {PageContent::Pdf,     {},              {},           {a4,     {0, 0, 595, 842}}},
    };
    // clang-format on
    for (const Case &one : cases) {
        const PagePlace place = placePage(sheet, one.content, one.page, one.largest);
        EXPECT_EQ(place.sheet, one.place.sheet);
        const QRectF off(place.page.topLeft() - one.place.page.topLeft(), place.page.size() - one.place.page.size());
        EXPECT_LT(std::abs(off.x()) + std::abs(off.y()) + std::abs(off.width()) + std::abs(off.height()), 0.5)
            << testing::PrintToString(place) << " for " << testing::PrintToString(one.place);
    }
    // Borders turn with the sheet.
    EXPECT_EQ(placePage({a4, {10, 0, 0, 0}}, PageContent::Picture, {842, 595}, {}).page.bottom(), 585);
}

TEST(PageSpans, LeadFromOneSelectedPageToTheNext)
{
    const PageSpans all;
    const PageSpans some = {{2, 3}, {8, 2147483647}};
    EXPECT_EQ(selectedFrom(all, 5, 0), 1);
    EXPECT_EQ(selectedFrom(all, 5, 6), std::nullopt);
    EXPECT_EQ(selectedUpTo(all, 5, 9), 5);
    EXPECT_EQ(selectedUpTo(all, 0, 9), std::nullopt);
    EXPECT_EQ(selectedFrom(some, 10, 4), 8);
    EXPECT_EQ(selectedFrom(some, 7, 4), std::nullopt);
    EXPECT_EQ(selectedUpTo(some, 10, 7), 3);
    EXPECT_EQ(selectedUpTo(some, 10, 1), std::nullopt);
    EXPECT_EQ(selectedNear(some, 10, 1), 2);
    EXPECT_EQ(selectedNear(some, 10, 5), 3);
    EXPECT_EQ(selectedNear(some, 10, 6), 8);
    EXPECT_EQ(selectedNear(some, 1, 1), std::nullopt);
}
