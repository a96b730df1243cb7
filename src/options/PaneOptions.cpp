// SPDX-License-Identifier: GPL-2.0-or-later
// Reads and writes properties of a panel's controls.
#include "options/PaneOptions.h"

#include "options/ConflictMark.h"
#include "options/OptionMenu.h"
#include "platform/HostProtocol.h"
#include "platform/PlainTip.h"
#include "widgets/MarkedControls.h"

#include <QCoreApplication>
#include <QTextDocumentFragment>

namespace bv {

namespace {

// What the panel itself says at a control, and what became of it: the panel may have changed its words since.
struct Explained
{
    QString ownTip;
    QString wholeTip;
    QString ownDescription;
    QString wholeDescription;

    bool operator==(const Explained &) const = default;
};
constexpr char kExplained[] = "bvExplained";

QString ownText(const QString &now, const QString &own, const QString &whole)
{
    const QString &text = now == whole ? own : now;
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

QString lines(QStringList texts)
{
    texts.removeAll(QString());
    return texts.join(u'\n');
}

void explainControl(QWidget &control, const QString &conflict, const QString &origin)
{
    const auto before = control.property(kExplained).value<Explained>();
    Explained now;
    now.ownTip = ownText(control.toolTip(), before.ownTip, before.wholeTip);
    const QString tip = lines({now.ownTip, conflict, origin});
    if (plainTip(tip) != control.toolTip())
        setPlainTip(&control, tip);
    now.wholeTip = control.toolTip();
    now.ownDescription = ownText(control.accessibleDescription(), before.ownDescription, before.wholeDescription);
    now.wholeDescription = lines({now.ownDescription, conflict});
    if (now.wholeDescription != control.accessibleDescription())
        control.setAccessibleDescription(now.wholeDescription);
    markConflict(control, !conflict.isEmpty());
    if (!(now == before))
        control.setProperty(kExplained, QVariant::fromValue(now));
}

} // namespace

std::map<QString, PaneOption> paneOptions(const QWidget *view)
{
    std::map<QString, PaneOption> options;
    for (QWidget *control : markedControls(view)) {
        const QString keyword = control->property(kOptionProperty).toString();
        if (keyword.isEmpty())
            continue;
        PaneOption option{control, control->property(kOptionInsteadProperty).toString(), {}};
        const bool isGreyed = !control->isEnabledTo(view);
        if (!option.instead.isEmpty())
            option.reason = control->property(kOptionInsteadReasonProperty).toString();
        else if (isGreyed)
            option.reason = control->property(kSummaryOffProperty).toString();
        if (option.reason.isEmpty() && (isGreyed || !option.instead.isEmpty()))
            option.reason = QCoreApplication::translate("PaneOptions", "Other choices decide this now.");
        options[keyword] = option;
    }
    return options;
}

std::map<QString, QString> overrulingChoices(const QWidget *view)
{
    std::map<QString, QString> choices;
    for (const QWidget *control : markedControls(view)) {
        const QString instead = control->property(kOptionInsteadProperty).toString();
        if (!instead.isEmpty())
            choices[control->property(kOptionProperty).toString()] = instead;
    }
    return choices;
}

bool showsOverruledControls(const QWidget *view)
{
    const QList<QWidget *> controls = markedControls(view);
    return std::any_of(controls.begin(), controls.end(), [](const QWidget *control) {
        return control->isVisible() && control->isEnabled() &&
               !control->property(kOptionInsteadProperty).toString().isEmpty();
    });
}

void explainPane(const QWidget *view, const std::map<QString, QString> &conflicts,
                 const std::map<QString, QString> &origins)
{
    for (QWidget *control : markedControls(view)) {
        const QVariant option = control->property(kOptionProperty);
        if (option.isValid())
            explainControl(*control, textFor(conflicts, option.toString()), textFor(origins, option.toString()));
    }
}

} // namespace bv
