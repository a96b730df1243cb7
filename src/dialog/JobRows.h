// The rows for what belongs to one job only and is never remembered: copies and page range.
#pragma once

#include "jobs/JobSink.h"

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

    // The job's options: "copies" where there are more than one, "page-ranges" where not all pages print. Only to be
    // asked for while problem() is empty.
    JobOptions options() const;
    // A sentence for people that says what is wrong with the page range; empty when all is well.
    QString problem() const;

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
