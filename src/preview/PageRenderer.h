// SPDX-License-Identifier: GPL-2.0-or-later
// Draws pages of one document through a bvpages process, without ever making its caller wait.
#pragma once

#include "pages/PageWorker.h"
#include "preview/PagePlace.h"

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QSet>
#include <QSocketNotifier>
#include <QTimer>
#include <memory>
#include <optional>

namespace bv {

// A page as it is to be drawn.
struct PageWish
{
    int page = 1; // counted from 1
    QSize room;   // the sheet, turned with the page, is to fit into so many pixels
    bool gray = false;

    bool operator==(const PageWish &) const = default;
};

struct DrawnPage
{
    PagePlace place;
    QImage picture; // of the page without the sheet
};

// Why there is no picture.
enum class NoPage {
    None,    // there is one
    Unshown, // the document is of a kind that is not shown
    Locked,  // needs a password
    Broken,  // the document, or the page, cannot be read
    TooLong, // the page takes too long
};

class PageRenderer : public QObject
{
    Q_OBJECT

public:
    // How long the process may take for an answer, in milliseconds.
    struct Limits
    {
        int document = 6'000;
        int page = 10'000;
    };

    // Starts nothing yet. `program` is bvpages.
    PageRenderer(QString document, const Sheet &sheet, std::string program = pagesProgram());
    PageRenderer(QString document, const Sheet &sheet, std::string program, Limits limits);
    // Ends the process.
    ~PageRenderer() override;

    const QString &document() const { return m_document; }
    // What the document is. Unknown with 0 pages until opened().
    PageContent content() const { return m_content; }
    int pageCount() const { return m_pages; }
    bool isOpen() const { return m_pages > 0; }
    // Why the whole document cannot be shown.
    NoPage failure() const { return m_failure; }

    // Opens the document without drawing.
    void open();
    // Draws this page, in place of an earlier wish that is not fulfilled yet.
    void draw(const PageWish &wish);
    // A wish for later pages that gives way to any other.
    void drawAhead(const PageWish &wish);
    bool isBusy() const { return m_request.has_value(); }
    // Ends the process now and forgets all wishes. No signal follows.
    void stop();

signals:
    // The number of pages is known.
    void opened();
    // The document cannot be shown. No other signal follows.
    void failed(bv::NoPage why);
    void drawn(const bv::PageWish &wish, const bv::DrawnPage &page);
    void notDrawn(const bv::PageWish &wish, bv::NoPage why);
    // Nothing is left to do.
    void idle();

private:
    void proceed();
    bool ensureWorker();
    void ask(PageRequest request, int milliseconds);
    void readAnswer();
    void take(const PageAnswer &answer);
    void takeLayout(const PageAnswer &answer);
    void takeMeasure(const PageAnswer &answer);
    void takePicture();
    // The process ended, said nonsense, or took too long.
    void lose(NoPage why);
    void stopWorker();
    void fail(NoPage why);
    void giveUpPage(NoPage why);
    void finish();

    QString m_document;
    Sheet m_sheet;
    std::string m_program;
    Limits m_limits;

    PageWorker m_worker;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QTimer m_deadline;
    QElapsedTimer m_asked;
    qint64 m_openTime = 0;  // milliseconds that the process took for the layout
    bool m_laidOut = false; // this process knows the pages
    bool m_useful = false;  // this process has drawn a page
    std::optional<PageRequest> m_request;
    std::optional<PageWish> m_wish; // under way
    std::optional<PageWish> m_next;
    PagePlace m_place;
    PageAnswer m_answer;
    size_t m_filled = 0; // bytes of the answer, then of the picture
    QByteArray m_bytes;  // of the picture, while they come; empty before

    PageContent m_content = PageContent::Unknown;
    int m_pages = 0;
    QSizeF m_largest;
    NoPage m_failure = NoPage::None;
    QSet<int> m_lost; // pages that a fresh process could not draw
};

} // namespace bv
