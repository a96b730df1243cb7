// Copies PostScript documents from one descriptor to another and puts a job's settings into each of them. Documents are
// read by their structuring comments (Document Structuring Conventions, version 3.0); what stands between the comments
// is never looked at, so memory and time do not depend on it.
#pragma once

#include "filter/Setting.h"

#include <functional>
#include <string>
#include <string_view>

namespace bv {

class DocumentStream;

// Every document gets the settings once: at the end of its setup section, or in a section of their own before its first
// page, or at its head where it has neither. Features of the same options that a document carries, for the whole of it
// or for a page, are taken out. Documents within documents and binary sections are passed on as they are.
class DocumentRewriter
{
public:
    // Told for each page of a document, counted from 1 over the whole input, with the copies of it that the document
    // has the printer make.
    using PageNotice = std::function<void(int page, int copies)>;

    DocumentRewriter(Settings settings, PageNotice pageNotice);

    // How a copy ended.
    enum class Result {
        Done,
        NoDocument, // all was copied, but nothing in it was PostScript
        ReadError,  // errno says why
        WriteError, // errno says why
    };
    // Copies all of `input` to `output`. Both stay open.
    Result copy(int input, int output);

private:
    // Where in a document the copy stands.
    enum class Place {
        Outside,     // before the first document, or between two
        Header,      // in the header comments
        AfterHeader, // behind them, and nothing has begun
        Prolog,
        Setup,
        Body, // the settings are in
    };

    // What stands around settings that are put in.
    enum class Section { None, Own };

    void code(DocumentStream &stream, std::string_view line);
    void comment(DocumentStream &stream, std::string_view line);
    bool structure(DocumentStream &stream, std::string_view line);
    void beginDocument(DocumentStream &stream, std::string_view line);
    bool beginSetup(DocumentStream &stream, std::string_view line);
    void putSettings(DocumentStream &stream, Section section);
    bool isOurs(std::string_view feature) const;

    Settings m_settings;
    PageNotice m_pageNotice;
    Place m_place = Place::Outside;
    std::string m_lineEnd = "\n";
    int m_nested = 0; // depth of documents within the document
    int m_pages = 0;
    int m_copies = 1;
    bool m_found = false; // some document has begun
};

} // namespace bv
