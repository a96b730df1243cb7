// SPDX-License-Identifier: GPL-2.0-or-later
// Answers requests for the pages of one document until there are no more requests.
#pragma once

#include "pages/PageReader.h"

namespace bv {

class PageServer
{
public:
    // The reader may be null: then every answer is that the document cannot be shown.
    PageServer(std::unique_ptr<PageReader> reader, int input, int output);

    // Returns when the input ends, or when a request makes no sense or an answer cannot be written.
    void serve();

private:
    PageAnswer answer(const PageRequest &request, QImage *picture);
    void layOut(const PageRequest &request, PageAnswer &answer);
    void measure(PageAnswer &answer);
    void render(const PageRequest &request, PageAnswer &answer, QImage *picture);
    bool write(const PageAnswer &answer, const QImage &picture);

    std::unique_ptr<PageReader> m_reader;
    int m_input;
    int m_output;
    bool m_laidOut = false;
};

} // namespace bv
