// SPDX-License-Identifier: GPL-2.0-or-later
// Shows the pages that will be printed, one at a time. It can be folded away.
#pragma once

#include "preview/PageRenderer.h"
#include "preview/PageSpans.h"

#include <QCache>
#include <QWidget>

class QLabel;
class QSpinBox;
class QToolButton;

namespace bv {

class SheetView;

class PagePreview : public QWidget
{
    Q_OBJECT

public:
    explicit PagePreview(QWidget *parent = nullptr);
    ~PagePreview() override;

    // Nothing is read or drawn before this call.
    void start();
    // Another program in place of bvpages, and its limits. Call it before start().
    void setProgram(const std::string &program, PageRenderer::Limits limits);

    // Absolute paths, in printing order. The page shown stays if its document does.
    void setDocuments(const QStringList &documents);
    // Goes to the first selected page of a document.
    void showDocument(int index);
    void setSheet(const Sheet &sheet);
    void setGray(bool gray);
    void setSpans(const PageSpans &spans);

    bool isFolded() const { return m_folded; }
    // Folds or unfolds without foldedByUser().
    void setFolded(bool folded);
    // The height of the whole with a sheet of this height, for a layout that decides about folding.
    int heightForSheet(int sheet) const;

    // The controls in tab order.
    QList<QWidget *> controls() const;
    const SheetView &sheet() const { return *m_sheet; }
    const Sheet &paper() const { return m_paper; }
    bool isGray() const { return m_gray; }
    int document() const { return m_document; }
    // Counted from 1; 0 while the document is not open or has no selected page.
    int page() const;

signals:
    void foldedByUser(bool folded);
    // Another page, its picture, or a note in its place is shown.
    void shown();

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    struct Document
    {
        QString path;
        int pages = 0; // 0 until it was opened
        PageContent content = PageContent::Unknown;
        NoPage failure = NoPage::None;
    };

    void build();
    Document *current();
    PageRenderer &renderer();
    void closeRenderer();
    PageWish wish(int page) const;
    QString cacheKey(const PageWish &wish) const;

    void turn(int pages);
    void goToPage(int page);
    // Goes to the first or last selected page of a document.
    void goToDocument(int index, bool last);
    // Shows what is to be shown now, or asks for it.
    void refresh();
    void showNote(NoPage why);
    void drawNeighbours();
    void updateControls();
    QString sentence() const;

    void opened();
    void take(const PageWish &wish, const DrawnPage &page);

    QToolButton *m_toggle = nullptr;
    QWidget *m_body = nullptr;
    QLabel *m_name = nullptr;
    SheetView *m_sheet = nullptr;
    QToolButton *m_back = nullptr;
    QToolButton *m_forward = nullptr;
    QSpinBox *m_field = nullptr;
    QLabel *m_count = nullptr;
    QTimer m_rest; // runs while the size changes

    std::string m_program = pagesProgram();
    PageRenderer::Limits m_limits;
    bool m_started = false;
    bool m_folded = false;
    std::vector<Document> m_documents;
    int m_document = 0;
    int m_page = 1;      // wanted; the one shown is the nearest that is selected
    bool m_last = false; // the last page is wanted, whichever it is
    Sheet m_paper;
    bool m_gray = false;
    PageSpans m_spans;
    std::unique_ptr<PageRenderer> m_renderer; // of the current document
    QCache<QString, DrawnPage> m_cache;
    QString m_aheadOf; // the page whose neighbours are drawn
    QSet<int> m_ahead; // neighbours that were asked for
};

} // namespace bv
