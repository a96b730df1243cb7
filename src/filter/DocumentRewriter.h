// SPDX-License-Identifier: GPL-2.0-or-later
// Copies PostScript documents from one descriptor to another and adds a job's settings to each. Only structuring
// comments are interpreted (Document Structuring Conventions, version 3.0). The code between them is copied unread, so
// memory use does not depend on its size.
#pragma once

#include "filter/Setting.h"

#include <functional>
#include <string>
#include <string_view>

namespace bv {

class DocumentStream;

// Adds the settings to each document once: at the end of its setup section, else in a new setup section before the
// first page, else at the beginning. Removes the document's own features for the same options, for the whole document
// and for single pages. Embedded documents and binary sections are copied unchanged.
class DocumentRewriter
{
public:
    // Called for each page. Pages are counted from 1 over the whole input. `copies` is the number of copies that the
    // document tells the printer to make.
    using PageNotice = std::function<void(int page, int copies)>;

    DocumentRewriter(Settings settings, PageNotice pageNotice);

    // The result of copy().
    enum class Result {
        Done,
        NoDocument, // everything was copied, but there was no PostScript document
        ReadError,  // errno says why
        WriteError, // errno says why
    };
    // Copies all of `input` to `output`. Leaves both open.
    Result copy(int input, int output);

private:
    // The current position in a document.
    enum class Place {
        Outside,     // before the first document, or between two documents
        Header,      // in the header comments
        AfterHeader, // after the header comments, before any section
        Prolog,
        Setup,
        Body, // after the settings
    };

    // Whether settings are written with a setup section of their own around them.
    enum class Section { None, Own };

    void code(DocumentStream &stream, std::string_view line);
    void comment(DocumentStream &stream, std::string_view line);
    bool structure(DocumentStream &stream, std::string_view line);
    void beginDocument(DocumentStream &stream, std::string_view line);
    bool beginSetup(DocumentStream &stream, std::string_view line);
    void endResource(DocumentStream &stream);
    void putSettings(DocumentStream &stream, Section section);
    bool isOurs(std::string_view feature) const;

    Settings m_settings;
    PageNotice m_pageNotice;
    Place m_place = Place::Outside;
    std::string m_comment; // the comment being handled
    std::string m_lineEnd = "\n";
    std::string m_resourceEnd; // the comment that ends the resource, font or file in which the prolog began
    int m_nested = 0;          // nesting depth of embedded documents
    int m_pages = 0;
    int m_copies = 1;
    bool m_found = false; // a document was found
};

} // namespace bv
