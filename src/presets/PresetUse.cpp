// SPDX-License-Identifier: GPL-2.0-or-later
// Compares the choices before and after with what was wanted.
#include "presets/PresetUse.h"

#include "presets/Preset.h"
#include "queues/QueueSession.h"
#include "queues/TicketJson.h"

#include <QCoreApplication>
#include <QSet>
#include <algorithm>

namespace bv {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("PresetUse", text);
}

bool belongsToAny(const QString &key, const QStringList &options)
{
    return std::any_of(options.begin(), options.end(),
                       [&key](const QString &option) { return !option.isEmpty() && key.startsWith(option); });
}

const ppd_option_t *optionOf(ppd_file_t *ppd, const QString &key)
{
    return ppd ? ppdFindOption(ppd, key.toUtf8().constData()) : nullptr;
}

// The option that an entry belongs to: OPTIONCustom belongs to OPTION, other entries to themselves.
QString ownerOf(const QString &key, ppd_file_t *ppd, const QStringList &paneKeys)
{
    if (optionOf(ppd, key))
        return key;
    QString owner = key;
    for (const QString &option : paneKeys)
        if (!option.isEmpty() && key.startsWith(option) && (owner == key || option.size() > owner.size()))
            owner = option;
    return owner;
}

QString titleOf(const QString &key, ppd_file_t *ppd)
{
    const ppd_option_t *option = optionOf(ppd, key);
    const QString text = option ? QString::fromUtf8(option->text) : QString();
    return text.isEmpty() ? key : text;
}

// Names of PPD options begin with a capital letter; those of job attributes, which any printer takes, do not.
bool isAttribute(const QString &key)
{
    return !key.isEmpty() && !key.front().isUpper();
}

bool isEqual(const PrintValue &one, const PrintValue &other)
{
    return toJson(one) == toJson(other);
}

// The value of an option: where the ticket says nothing, the printer's default, or the first choice without one.
PrintValue valueOf(const QString &key, const PrintDictionary &choices, ppd_file_t *ppd)
{
    const ppd_option_t *option = optionOf(ppd, key);
    if (choices.contains(key) || !option || option->num_choices == 0)
        return choices.value(key);
    const bool hasDefault = ppdFindChoice(const_cast<ppd_option_t *>(option), option->defchoice) != nullptr;
    return PrintValue(QString::fromUtf8(hasDefault ? option->defchoice : option->choices[0].choice));
}

int countChanges(const PrintDictionary &before, const PrintDictionary &after, ppd_file_t *ppd,
                 const QStringList &paneKeys)
{
    PrintDictionary all = before;
    for (const auto &[key, value] : after.entries)
        all.setValue(key, value);
    QSet<QString> changed;
    for (const auto &[key, value] : all.entries)
        if (!isEqual(valueOf(key, before, ppd), valueOf(key, after, ppd)))
            changed.insert(ownerOf(key, ppd, paneKeys));
    return int(changed.size());
}

// What keeps an entry from being used at all; empty: nothing is known.
QString misfitOf(const QString &key, const PrintValue &value, ppd_file_t *ppd)
{
    const ppd_option_t *option = optionOf(ppd, key);
    if (!option)
        return tr("%1: this printer has no such setting.").arg(key);
    const QString *choice = value.string();
    const bool isThere =
        choice && ppdFindChoice(const_cast<ppd_option_t *>(option), choice->toUtf8().constData()) != nullptr;
    return isThere ? QString()
                   : tr("%1: this printer does not offer “%2”.").arg(titleOf(key, ppd), choice ? *choice : QString());
}

} // namespace

void putIntoNested(const PrintDictionary &ticket, const PrintDictionary &values, const QStringList &paneKeys)
{
    for (const auto &[key, value] : ticket.entries) {
        const PrintDictionaryRef nested = value.dictionary();
        if (!nested)
            continue;
        putIntoNested(*nested, values, paneKeys);
        if (std::none_of(paneKeys.begin(), paneKeys.end(), [&](const QString &one) { return nested->contains(one); }))
            continue;
        for (const auto &[name, wanted] : values.entries)
            if (belongsToAny(name, paneKeys))
                nested->setValue(name, wanted);
    }
}

PresetOutcome useChoices(QueueSession &session, PrintPanel *panel, const PrintDictionary &options)
{
    ppd_file_t *ppd = session.ppdFile();
    Ticket &ticket = session.ticket();
    // A refusal is ignored: before printing the panel is asked again, and then it counts.
    const auto save = [panel] { return !panel || panel->saveValuesAndReturnError(nullptr); };
    const auto restore = [panel] { return !panel || panel->restoreValuesAndReturnError(nullptr); };
    const QStringList paneKeys = panel ? panel->supportedPPDOptionKeys() : QStringList();
    save();
    const PrintDictionary before = presetOptions(ticket.entries());

    // From the defaults on, so that nothing of the old choices stays, and the panel makes its dictionaries.
    ticket.clear();
    restore();
    save();
    const PrintDictionary usual = presetOptions(ticket.entries());
    PresetOutcome outcome;
    PrintDictionary wanted;
    for (const auto &[key, value] : options.entries) {
        // The panel judges its own; a job attribute goes to any printer.
        const bool isPanels = usual.contains(key) || belongsToAny(key, paneKeys);
        const bool isFree = isPanels || (!optionOf(ppd, key) && isAttribute(key));
        const QString misfit = isFree ? QString() : misfitOf(key, value, ppd);
        if (misfit.isEmpty())
            wanted.setValue(key, value);
        else
            outcome.misfits << misfit;
    }
    for (const auto &[key, value] : wanted.entries)
        ticket.setValue(key, value);
    putIntoNested(ticket.entries(), wanted, paneKeys);
    restore();
    save();
    const PrintDictionary after = presetOptions(ticket.entries());
    QSet<QString> refused;
    for (const auto &[key, value] : wanted.entries) {
        const QString owner = ownerOf(key, ppd, paneKeys);
        if (isEqual(after.value(key), value) || refused.contains(owner))
            continue;
        refused.insert(owner);
        const QString misfit = owner == key && optionOf(ppd, key) ? misfitOf(key, value, ppd) : QString();
        outcome.misfits << (misfit.isEmpty()
                                ? tr("%1: the saved choice is not there any more.").arg(titleOf(owner, ppd))
                                : misfit);
    }
    outcome.misfits.sort();
    outcome.changed = countChanges(before, after, ppd, paneKeys);
    return outcome;
}

} // namespace bv
