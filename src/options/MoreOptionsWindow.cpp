// SPDX-License-Identifier: GPL-2.0-or-later
// One box for each group, in an area that scrolls.
#include "options/MoreOptionsWindow.h"

#include "options/OptionMenu.h"
#include "options/PpdWords.h"
#include "widgets/PaneArea.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace bv {

namespace {

QString labelText(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

} // namespace

MoreOptionsWindow::MoreOptionsWindow(const FurtherOptions &options, const QString &title, QWidget *parent)
    : QDialog(parent), m_options(options)
{
    setObjectName(QStringLiteral("moreOptionsWindow"));
    setWindowTitle(tr("More Options – %1").arg(title));
    auto *area = new PaneArea(this);
    auto *content = new QWidget;
    auto *boxes = new QVBoxLayout(content);
    boxes->setContentsMargins(0, 0, 4, 0);
    QFormLayout *form = nullptr;
    QString group;
    m_menus.reserve(options.entries().size());
    for (const FurtherOptions::Entry &entry : options.entries()) {
        if (!form || entry.group != group) {
            group = entry.group;
            auto *box = new QGroupBox(labelText(group), content);
            form = new QFormLayout(box);
            form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
            boxes->addWidget(box);
        }
        const QString name = optionText(*entry.option);
        auto *menu = new OptionMenu(*entry.option, name, form->parentWidget());
        auto *label = new QLabel(tr("%1:", "an option").arg(labelText(name)), form->parentWidget());
        label->setTextFormat(Qt::PlainText);
        label->setBuddy(menu);
        form->addRow(label, menu);
        connect(menu, &OptionMenu::choiceMade, this, &MoreOptionsWindow::choiceMade);
        m_menus.push_back(menu);
    }
    boxes->addStretch(1);
    area->setWidget(content);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton *defaults = buttons->addButton(tr("Restore De&faults"), QDialogButtonBox::ResetRole);
    defaults->setObjectName(QStringLiteral("moreOptionsDefaults"));
    defaults->setAutoDefault(false);
    connect(defaults, &QPushButton::clicked, this, &MoreOptionsWindow::defaultsWanted);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *column = new QVBoxLayout(this);
    column->addWidget(area, 1);
    column->addWidget(buttons);
    constexpr int kCharacters = 60;
    const QSize frame(16, 48);
    resize(sizeHint()
               .expandedTo({fontMetrics().averageCharWidth() * kCharacters, 0})
               .boundedTo(screen()->availableSize() - frame));
}

void MoreOptionsWindow::showChoices(const std::map<QString, QString> &conflicts,
                                    const std::map<QString, QString> &origins)
{
    for (size_t i = 0; i < m_menus.size(); ++i) {
        OptionMenu &menu = *m_menus[i];
        menu.choose(m_options.entries()[i].choice);
        menu.explain(textFor(conflicts, menu.keyword()), textFor(origins, menu.keyword()));
    }
}

} // namespace bv
