// SPDX-License-Identifier: GPL-2.0-or-later
// The table of first bytes, and the rule for plain text.
#include "pages/DocumentKind.h"

#include <algorithm>
#include <array>

namespace bv {

namespace {

using namespace std::string_view_literals;

struct Start
{
    std::string_view bytes;
    PageContent content;
};

// The formats that the print server's filters take, and PostScript, which reads like text but is none.
// clang-format off
constexpr std::array<Start, 22> kStarts = {{
    {"\x89PNG\r\n\x1a\n"sv, PageContent::Picture},
    {"\xff\xd8\xff"sv,      PageContent::Picture},
    {"GIF87a"sv,            PageContent::Picture},
    {"GIF89a"sv,            PageContent::Picture},
    {"II*\0"sv,             PageContent::Picture},
    {"MM\0*"sv,             PageContent::Picture},
    {"BM"sv,                PageContent::Picture},
    {"P1\n"sv,              PageContent::Picture},
    {"P2\n"sv,              PageContent::Picture},
    {"P3\n"sv,              PageContent::Picture},
    {"P4\n"sv,              PageContent::Picture},
    {"P5\n"sv,              PageContent::Picture},
    {"P6\n"sv,              PageContent::Picture},
    {"%!"sv,                PageContent::Unknown},
    {"\x04%!"sv,            PageContent::Unknown},
    {"\x1b%-12345X"sv,      PageContent::Unknown},
    {"<svg"sv,              PageContent::Unknown},
    {"<?xml"sv,             PageContent::Unknown},
    {"<!DOCTYPE"sv,         PageContent::Unknown},
    {"<!doctype"sv,         PageContent::Unknown},
    {"<html"sv,             PageContent::Unknown},
    {"{\\rtf"sv,            PageContent::Unknown},
}};
// clang-format on

// Readers look for this mark in the first 1024 bytes (ISO 32000-1, annex H).
constexpr std::string_view kPdfMark = "%PDF-";
constexpr size_t kPdfMarkWithin = 1024;

// Characters that a plain text file has: printable ones, tabs, ends of lines and pages, and bytes above ASCII.
bool isTextByte(char byte)
{
    const auto code = static_cast<unsigned char>(byte);
    return (code >= 0x20 && code != 0x7f) || (code >= '\b' && code <= '\r') || code == 0x1b;
}

} // namespace

PageContent documentContent(std::string_view head)
{
    // "BM" alone is too short a mark: a text may begin so.
    const bool text = !head.empty() && std::all_of(head.begin(), head.end(), isTextByte);
    for (const Start &start : kStarts) {
        if (head.starts_with(start.bytes) && !(text && start.bytes == "BM"sv))
            return start.content;
    }
    if (head.substr(0, kPdfMarkWithin).find(kPdfMark) != std::string_view::npos)
        return PageContent::Pdf;
    return text ? PageContent::Text : PageContent::Unknown;
}

} // namespace bv
