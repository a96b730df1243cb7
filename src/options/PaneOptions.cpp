// SPDX-License-Identifier: GPL-2.0-or-later
// Reads and writes properties of a panel's controls.
#include "options/PaneOptions.h"

#include "options/ConflictMark.h"
#include "options/OptionMenu.h"
#include "platform/HostProtocol.h"
#include "platform/PlainTip.h"

#include <QCoreApplication>
#include <QTextDocumentFragment>

namespace bv {

namespace {

// What the panel itself says at a control, and what became of it: the panel may have changed its words since.
constexpr char kOwnTip[] = "bvOwnTip";
constexpr char kWholeTip[] = "bvWholeTip";
constexpr char kOwnDescription[] = "bvOwnDescription";
constexpr char kWholeDescription[] = "bvWholeDescription";

QString ownText(const QWidget &control, const QString &now, const char *own, const char *whole)
{
    const QVariant before = control.property(whole);
    const QString text = before.isValid() && before.toString() == now ? control.property(own).toString() : now;
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

QString lines(QStringList texts)
{
    texts.removeAll(QString());
    return texts.join(u'\n');
}

void explainControl(QWidget &control, const QString &conflict, const QString &origin)
{
    const QString ownTip = ownText(control, control.toolTip(), kOwnTip, kWholeTip);
    const QString tip = lines({ownTip, conflict, origin});
    if (plainTip(tip) != control.toolTip())
        setPlainTip(&control, tip);
    control.setProperty(kOwnTip, ownTip);
    control.setProperty(kWholeTip, control.toolTip());
    const QString own = ownText(control, control.accessibleDescription(), kOwnDescription, kWholeDescription);
    const QString description = lines({own, conflict});
    if (description != control.accessibleDescription())
        control.setAccessibleDescription(description);
    markConflict(control, !conflict.isEmpty());
    control.setProperty(kOwnDescription, own);
    control.setProperty(kWholeDescription, description);
}

} // namespace

std::map<QString, PaneOption> paneOptions(const QWidget *view)
{
    std::map<QString, PaneOption> options;
    for (QWidget *control : view ? view->findChildren<QWidget *>() : QList<QWidget *>()) {
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
    if (!view)
        return choices;
    for (const QWidget *control : view->findChildren<QWidget *>()) {
        const QString instead = control->property(kOptionInsteadProperty).toString();
        if (!instead.isEmpty())
            choices[control->property(kOptionProperty).toString()] = instead;
    }
    return choices;
}

bool showsOverruledControls(const QWidget *view)
{
    const QList<QWidget *> controls = view ? view->findChildren<QWidget *>() : QList<QWidget *>();
    return std::any_of(controls.begin(), controls.end(), [](const QWidget *control) {
        return control->isVisible() && control->isEnabled() &&
               !control->property(kOptionInsteadProperty).toString().isEmpty();
    });
}

void explainPane(const QWidget *view, const std::map<QString, QString> &conflicts,
                 const std::map<QString, QString> &origins)
{
    if (!view)
        return;
    for (QWidget *control : view->findChildren<QWidget *>()) {
        const QVariant option = control->property(kOptionProperty);
        if (option.isValid())
            explainControl(*control, textFor(conflicts, option.toString()), textFor(origins, option.toString()));
    }
}

} // namespace bv
