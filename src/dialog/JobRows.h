// SPDX-License-Identifier: GPL-2.0-or-later
// The rows for copies and page range. They apply to one job and are never remembered.
#pragma once

#include "jobs/JobSink.h"
#include "jobs/PageRange.h"

#include <QWidget>

class QFormLayout;
class QLabel;
class QLineEdit;
class QRadioButton;
class QSpinBox;

namespace bv {

class JobRows : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kMaxCopies = 999;

    explicit JobRows(QWidget *parent = nullptr);

    // Returns "copies" when more than one is wanted, and "page-ranges" when not all pages are printed. Valid only while
    // problem() is empty.
    JobOptions options() const;
    // Shows what these options say of copies and pages.
    void setOptions(const JobOptions &options);
    // A sentence for the user about a wrong page range. Empty when the range is valid.
    QString problem() const;
    // The runs of pages that are printed. None at all means all pages, or a range with a problem.
    std::vector<PageRun> pages() const;

    QSpinBox *copies() const { return m_copies; }
    QFormLayout *form() const { return m_form; }

signals:
    void changed();

private:
    void update();

    QFormLayout *m_form;
    QSpinBox *m_copies;
    QRadioButton *m_allPages;
    QRadioButton *m_somePages;
    QLineEdit *m_range;
};

} // namespace bv
