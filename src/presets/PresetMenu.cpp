// SPDX-License-Identifier: GPL-2.0-or-later
// The menu's entries and what each does.
#include "presets/PresetMenu.h"

#include "platform/PlainTip.h"
#include "queues/StateFolder.h"
#include "queues/TicketJson.h"

#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>

namespace bv {

namespace {

constexpr qsizetype kMostMisfits = 6; // that are listed; a preset of another printer may have dozens

QString inMenu(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

QString quoted(const QString &name)
{
    return PresetMenu::tr("“%1”", "a preset").arg(name);
}

} // namespace

PresetMenu::PresetMenu(QWidget *parent) : QPushButton(parent), m_menu(new QMenu(this))
{
    setObjectName(QStringLiteral("presets"));
    setAutoDefault(false);
    setPlainTip(this, tr("Start from the printer's defaults, from the last job or from choices that you saved"));
    connect(m_menu, &QMenu::aboutToShow, this, &PresetMenu::fill);
    setMenu(m_menu);
    showName();
}

void PresetMenu::setTarget(Target target)
{
    m_target = std::move(target);
    if (state().what.isEmpty())
        state().what = m_target.started;
    showName();
    fill();
}

void PresetMenu::setState(const QString &preset, const QString &what)
{
    state() = {preset, what, std::nullopt, false};
    showName();
}

// Later, because an entry of the menu may be at work.
void PresetMenu::refill()
{
    QMetaObject::invokeMethod(this, &PresetMenu::fill, Qt::QueuedConnection);
}

void PresetMenu::fill()
{
    m_menu->clear();
    const auto add = [this](const QString &text, const QString &name, auto &&slot) {
        QAction *action = m_menu->addAction(text);
        action->setObjectName(name);
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    add(tr("The Printer's &Defaults"), QStringLiteral("presetDefaults"), [this] { useDefaults(); });
    add(tr("As &Last Time"), QStringLiteral("presetLastTime"), [this] {
        useLastTime();
    })->setEnabled(m_target.lastTime && m_target.lastTime());
    m_menu->addSeparator();
    for (const QString &name : m_store.names(m_target.queue)) {
        QAction *action = add(inMenu(name), QStringLiteral("preset_") + name, [this, name] { use(name); });
        action->setCheckable(true);
        action->setChecked(name == state().preset);
    }
    m_menu->addSeparator();
    const bool hasOne = !state().preset.isEmpty();
    const QString one = hasOne ? quoted(inMenu(state().preset)) : tr("Preset");
    add(tr("&Save as Preset…"), QStringLiteral("presetSave"), [this] { save(); });
    add(tr("&Rename %1…").arg(one), QStringLiteral("presetRename"), [this] { rename(); })->setEnabled(hasOne);
    add(tr("D&elete %1").arg(one), QStringLiteral("presetDelete"), [this] { remove(); })->setEnabled(hasOne);
    add(tr("E&xport %1…").arg(one), QStringLiteral("presetExport"), [this] { exportFile(); })->setEnabled(hasOne);
    add(tr("&Import…"), QStringLiteral("presetImport"), [this] { importFile(); });
}

void PresetMenu::use(const QString &name)
{
    const Result<Preset> preset = m_store.load(m_target.queue, name);
    if (preset)
        apply(preset.value().options, quoted(preset.value().name), preset.value().name,
              tr("From the preset “%1”.").arg(preset.value().name));
    else
        emit failed(preset.error());
}

void PresetMenu::useDefaults()
{
    apply({}, tr("Printer's defaults"), {}, {});
}

void PresetMenu::useLastTime()
{
    if (const std::optional<PrintDictionary> ticket = m_target.lastTime())
        apply(presetOptions(*ticket), tr("As last time"), {}, tr("As in your last job."));
}

void PresetMenu::apply(const PrintDictionary &options, const QString &what, const QString &preset,
                       const QString &origin)
{
    const PresetOutcome outcome = m_target.use(options, origin);
    setState(preset, what);
    emit used();
    QString sentences = outcome.changed == 0 ? tr("%1: all settings were so already.").arg(what)
                        : outcome.changed == 1
                            ? tr("%1: one setting changed.").arg(what)
                            : tr("%1: %2 settings changed.").arg(what, QString::number(outcome.changed));
    if (!outcome.misfits.isEmpty()) {
        sentences += u'\n' + tr("Not used:") + u'\n' + outcome.misfits.mid(0, kMostMisfits).join(u'\n');
        if (const qsizetype more = outcome.misfits.size() - kMostMisfits; more > 0)
            sentences += u'\n' + tr("and %1 more.").arg(more);
    }
    emit done(sentences);
}

void PresetMenu::follow(const PrintDictionary &choices)
{
    State &now = state();
    if (!now.chosen)
        now.chosen = choices;
    const bool isChanged = toJson(*now.chosen) != toJson(choices);
    if (isChanged == now.isChanged)
        return;
    now.isChanged = isChanged;
    showName();
}

void PresetMenu::showName()
{
    const QString what = state().what.isEmpty() ? tr("Printer's defaults") : state().what;
    setText(state().isChanged ? tr("Pre&set: %1, changed").arg(inMenu(what)) : tr("Pre&set: %1").arg(inMenu(what)));
}

void PresetMenu::save()
{
    const QString name = askName(tr("Save as Preset"), state().preset);
    if (name.isEmpty() || !mayReplace(name))
        return;
    const Result<PrintDictionary> choices = m_target.choices();
    if (!choices) {
        emit failed(choices.error());
        return;
    }
    if (!isDone(m_store.store(m_target.queue, {name, m_target.model, presetOptions(choices.value())})))
        return;
    setState(name, quoted(name));
    refill();
    emit done(tr("The choices are saved as “%1”, for the printer “%2”. Copies and pages belong to each job.")
                  .arg(name, m_target.title));
}

void PresetMenu::rename()
{
    const QString name = askName(tr("Rename Preset"), state().preset);
    if (name.isEmpty() || name == state().preset || !isDone(m_store.rename(m_target.queue, state().preset, name)))
        return;
    state().preset = name;
    state().what = quoted(name);
    showName();
    refill();
}

void PresetMenu::remove()
{
    const QString name = state().preset;
    if (!isAgreed(tr("Delete Preset"),
                  tr("Delete the preset “%1” of “%2”? The present choices stay.").arg(name, m_target.title)) ||
        !isDone(m_store.remove(m_target.queue, name)))
        return;
    state().preset.clear();
    state().what = tr("Choices of “%1”").arg(name);
    showName();
    refill();
    emit done(tr("The preset “%1” is deleted.").arg(name));
}

void PresetMenu::exportFile()
{
    const Result<Preset> preset = m_store.load(m_target.queue, state().preset);
    if (!preset) {
        emit failed(preset.error());
        return;
    }
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Export Preset"), QDir::homePath() + u'/' + safeFileName(state().preset) + QStringLiteral(".json"),
        tr("Presets (*.json)"));
    if (path.isEmpty())
        return;
    QString error;
    if (storeFile(path, presetToJson(preset.value()), &error))
        emit done(tr("The preset “%1” is exported to %2.").arg(state().preset, path));
    else
        emit failed(tr("The preset “%1” could not be exported: %2: %3.").arg(state().preset, path, error));
}

void PresetMenu::importFile()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Import Preset"), QDir::homePath(),
                                                      tr("Presets (*.json);;All files (*)"));
    if (path.isEmpty())
        return;
    Result<Preset> preset = presetFromFile(path);
    if (!preset) {
        emit failed(preset.error());
        return;
    }
    preset.value().name = m_store.freeName(m_target.queue, preset.value().name);
    if (!isDone(m_store.store(m_target.queue, preset.value())))
        return;
    refill();
    use(preset.value().name);
}

bool PresetMenu::isDone(const QString &problem)
{
    if (!problem.isEmpty())
        emit failed(problem);
    return problem.isEmpty();
}

QString PresetMenu::askName(const QString &title, const QString &proposed)
{
    bool isAccepted = false;
    QString name = QInputDialog::getText(this, title, tr("&Name:"), QLineEdit::Normal, proposed, &isAccepted).trimmed();
    if (!isAccepted || !isDone(presetNameProblem(name)))
        return {};
    return name;
}

bool PresetMenu::mayReplace(const QString &name)
{
    return !m_store.contains(m_target.queue, name) ||
           isAgreed(tr("Save as Preset"), tr("There is a preset “%1” already. Replace it?").arg(name));
}

bool PresetMenu::isAgreed(const QString &title, const QString &question)
{
    QMessageBox box(QMessageBox::Question, title, QString(), QMessageBox::Yes | QMessageBox::No, this);
    box.setTextFormat(Qt::PlainText);
    box.setText(question);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace bv
