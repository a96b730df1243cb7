// SPDX-License-Identifier: GPL-2.0-or-later
// The window with the options that neither a row nor the pane holds, by the PPD's groups.
#pragma once

#include "options/FurtherOptions.h"

#include <QDialog>
#include <map>

namespace bv {

class OptionMenu;

// Choices count at once, as those in the rows do.
class MoreOptionsWindow final : public QDialog
{
    Q_OBJECT

public:
    // The options are borrowed. `title` names the printer.
    MoreOptionsWindow(const FurtherOptions &options, const QString &title, QWidget *parent);

    // Shows the options' present choices, and what is said about them, by keyword.
    void showChoices(const std::map<QString, QString> &conflicts, const std::map<QString, QString> &origins);

signals:
    // The user made a choice. Both arguments are PPD keywords.
    void choiceMade(const QString &keyword, const QString &choice);
    void defaultsWanted();

private:
    const FurtherOptions &m_options;
    std::vector<OptionMenu *> m_menus; // in the order of the options
};

} // namespace bv
