// SPDX-License-Identifier: GPL-2.0-or-later
// What bvprint and bvpages say to each other: requests and answers of fixed size, in the machine's own byte order,
// since both run on one machine. Free of Qt.
#pragma once

#include <cstdint>

namespace bv {

// The descriptor on which bvpages finds the document, open for reading. Requests come on its standard input, answers go
// to its standard output.
inline constexpr int kDocumentDescriptor = 3;

// Limits that both sides check.
inline constexpr uint32_t kMostPages = 1'000'000;
inline constexpr uint32_t kMostPixels = 24'000'000;  // of one picture
inline constexpr uint32_t kLongestSide = 40'000'000; // of a sheet or page, in hundredths of a point (140 m)
inline constexpr uint32_t kUnitsPerPoint = 100;      // sheets and pages are measured in hundredths of a point
inline constexpr uint32_t kPageOrder = 0x62767067;   // begins each request and answer

enum class PageTask : uint32_t {
    Layout = 1,  // lay out the document for a sheet; comes first, and again for another sheet
    Measure = 2, // the size of a page
    Render = 3,  // a picture of a page
};

enum class PageVerdict : uint32_t {
    Done = 0,
    Unreadable = 1, // broken, too big, or not of the kind that it seems to be
    Locked = 2,     // needs a password
};

// What is in a document, as far as it matters for its place on a sheet.
enum class PageContent : uint32_t {
    Unknown = 0, // none that can be shown
    Pdf = 1,     // pages with a size of their own
    Picture = 2, // pixels that fill the sheet
    Text = 3,    // laid out on the sheet
};

struct PageRequest
{
    uint32_t order = kPageOrder;
    PageTask task = PageTask::Layout;
    uint32_t page = 0;  // Measure, Render: counted from 0
    uint32_t width = 0; // Layout: of the sheet, in hundredths of a point; Render: in pixels
    uint32_t height = 0;
    uint32_t left = 0; // Layout: the borders that the printer leaves white, in hundredths of a point
    uint32_t top = 0;
    uint32_t right = 0;
    uint32_t bottom = 0;
    uint32_t gray = 0; // Render: 1 for a picture in gray
};

struct PageAnswer
{
    uint32_t order = kPageOrder;
    PageTask task = PageTask::Layout;
    PageVerdict verdict = PageVerdict::Unreadable;
    PageContent content = PageContent::Unknown;
    uint32_t page = 0;   // as requested
    uint32_t pages = 0;  // Layout: in the document
    uint32_t width = 0;  // Layout: the shorter side of the largest page; Measure: of the page; both in hundredths of a
    uint32_t height = 0; // point, or any unit for a picture; Render: in pixels, as requested. Layout: the longer side
    uint32_t bytes =
        0; // Render: follow the answer, row by row without gaps: one a pixel in gray, else four (0xffRRGGBB)
    uint32_t reserved = 0;
};

static_assert(sizeof(PageRequest) == 40 && sizeof(PageAnswer) == 40);

// The bytes of a picture.
constexpr uint32_t pictureBytes(uint32_t width, uint32_t height, bool gray)
{
    return width * height * (gray ? 1 : 4);
}
static_assert(kMostPixels <= UINT32_MAX / 4);

} // namespace bv
