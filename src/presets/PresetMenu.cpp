// SPDX-License-Identifier: GPL-2.0-or-later
// The menu's entries and what each does.
#include "presets/PresetMenu.h"

#include "platform/PlainTip.h"
#include "presets/PresetQuestions.h"
#include "queues/StateFolder.h"
#include "queues/TicketJson.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QJsonObject>
#include <QLocale>
#include <QMenu>
#include <utility>

namespace bv {

namespace {

constexpr qsizetype kMostMisfits = 6; // that are listed; a preset of another printer may have dozens
constexpr int kButtonCharacters = 32; // of a name on the button; the tip has all of it

const QString kFileSuffix = QStringLiteral("json");

QString inMenu(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

QString usualWords()
{
    return PresetMenu::tr("Printer's defaults");
}

QString fileKinds()
{
    return PresetMenu::tr("Presets (*.json)");
}

QString fromPreset(const QString &name)
{
    return PresetMenu::tr("From the preset “%1”.").arg(name);
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
    state() = {preset, what, std::nullopt, Look::AsChosen};
    showName();
}

// Later, because an entry of the menu may be at work.
void PresetMenu::refill()
{
    QMetaObject::invokeMethod(this, &PresetMenu::fill, Qt::QueuedConnection);
}

void PresetMenu::fill()
{
    // Submenus are no actions of the menu's own; clearing it leaves them.
    for (QMenu *each : m_menu->findChildren<QMenu *>(Qt::FindDirectChildrenOnly))
        each->deleteLater();
    m_menu->clear();
    const auto add = [this](const QString &text, const QString &name, auto &&slot) {
        QAction *action = m_menu->addAction(text);
        action->setObjectName(name);
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    const bool isUsual = state().look == Look::AsUsual || state().what == usualWords();
    const auto mark = [](QAction *action, bool isInUse) {
        action->setCheckable(true);
        action->setChecked(isInUse);
    };
    mark(add(tr("The Printer's &Defaults"), QStringLiteral("presetDefaults"), [this] { useDefaults(); }), isUsual);
    add(tr("As &Last Time"), QStringLiteral("presetLastTime"), [this] {
        useLastTime();
    })->setEnabled(m_target.lastTime && m_target.lastTime());
    m_menu->addSeparator();
    const QStringList names = m_store.names(m_target.queue);
    for (const QString &name : names)
        mark(add(inMenu(name), QStringLiteral("preset_") + name, [this, name] { use(name); }), name == inUse());
    m_menu->addSeparator();
    add(tr("&Save as Preset…"), QStringLiteral("presetSave"), [this] { save(); });
    // Each preset can be chosen here, because using it first would change what the window shows.
    const auto addFor = [this, &names](const QString &text, const QString &name, auto slot) {
        QMenu *each = m_menu->addMenu(text);
        each->menuAction()->setObjectName(name);
        each->setEnabled(!names.isEmpty());
        for (const QString &preset : names) {
            QAction *action = each->addAction(tr("%1…", "a preset").arg(inMenu(preset)));
            action->setObjectName(name + u'_' + preset);
            connect(action, &QAction::triggered, this, [this, preset, slot] { (this->*slot)(preset); });
        }
    };
    addFor(tr("&Rename"), QStringLiteral("presetRename"), &PresetMenu::rename);
    addFor(tr("D&elete"), QStringLiteral("presetDelete"), &PresetMenu::remove);
    addFor(tr("E&xport"), QStringLiteral("presetExport"), &PresetMenu::exportFile);
    add(tr("&Import…"), QStringLiteral("presetImport"), [this] { importFile(); });
}

void PresetMenu::use(const QString &name)
{
    const Result<Preset> preset = m_store.load(m_target.queue, name);
    if (preset)
        apply(preset.value().options, quoted(preset.value().name), quoted(preset.value().name), preset.value().name,
              fromPreset(preset.value().name));
    else
        emit failed(preset.error());
}

void PresetMenu::useDefaults()
{
    apply({}, usualWords(), usualWords(), {}, {});
}

void PresetMenu::useLastTime()
{
    if (const std::optional<PrintDictionary> ticket = m_target.lastTime())
        apply(presetOptions(*ticket), tr("As last time"), tr("As last time"), {}, tr("As in your last job."));
}

void PresetMenu::showDefaults()
{
    setState({}, usualWords());
}

void PresetMenu::apply(const PrintDictionary &options, const QString &what, const QString &said, const QString &preset,
                       const QString &origin)
{
    const PresetOutcome outcome = m_target.use(options, origin);
    setState(preset, what);
    emit used();
    QString sentences = outcome.changed == 0 ? tr("%1: all settings were so already.").arg(said)
                        : outcome.changed == 1
                            ? tr("%1: one setting changed.").arg(said)
                            : tr("%1: %2 settings changed.").arg(said, QLocale().toString(outcome.changed));
    if (!outcome.misfits.isEmpty()) {
        sentences += u'\n' + tr("Not used:") + u'\n' + outcome.misfits.mid(0, kMostMisfits).join(u'\n');
        if (const qsizetype more = outcome.misfits.size() - kMostMisfits; more > 0)
            sentences += u'\n' + tr("and %1 more.").arg(QLocale().toString(more));
    }
    emit done(sentences);
}

void PresetMenu::follow(const PrintDictionary &choices)
{
    State &now = state();
    if (!now.chosen)
        now.chosen = choices;
    const QJsonObject present = toJson(choices);
    const Look look = present == toJson(*now.chosen)      ? Look::AsChosen
                      : present == toJson(m_target.usual) ? Look::AsUsual
                                                          : Look::Changed;
    if (look == now.look)
        return;
    now.look = look;
    showName();
}

void PresetMenu::showName()
{
    const State &now = state();
    const QString what = now.look == Look::AsUsual || now.what.isEmpty() ? usualWords() : now.what;
    const QString text = now.look == Look::Changed ? tr("Pre&set: %1, changed") : tr("Pre&set: %1");
    const QString fitting =
        fontMetrics().elidedText(what, Qt::ElideMiddle, fontMetrics().averageCharWidth() * kButtonCharacters);
    setText(text.arg(inMenu(fitting)));
    setPlainTip(this, (fitting == what ? QString() : what + u'\n') +
                          tr("Start from the printer's defaults, from the last job or from choices that you saved"));
}

void PresetMenu::save()
{
    QString name = inUse();
    do {
        name = askPresetName(this, tr("Save as Preset"), name, presetNameProblem);
        if (name.isEmpty())
            return;
    } while (m_store.contains(m_target.queue, name) &&
             !askBefore(this, tr("Save as Preset"), tr("There is a preset “%1” already. Replace it?").arg(name),
                        tr("&Replace")));
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

void PresetMenu::rename(const QString &from)
{
    const QString to = askPresetName(this, tr("Rename Preset"), from, [this, &from](const QString &name) {
        return m_store.renameProblem(m_target.queue, from, name);
    });
    if (to.isEmpty() || to == from || !isDone(m_store.rename(m_target.queue, from, to)))
        return;
    if (state().preset == from) {
        state().preset = to;
        state().what = quoted(to);
        showName();
    }
    refill();
    emit done(tr("The preset “%1” is called “%2” now.").arg(from, to));
}

void PresetMenu::remove(const QString &name)
{
    if (!askBefore(this, tr("Delete Preset"),
                   tr("Delete the preset “%1” of “%2”? What is chosen now stays.").arg(name, m_target.title),
                   tr("&Delete")) ||
        !isDone(m_store.remove(m_target.queue, name)))
        return;
    if (state().preset == name) {
        state().preset.clear();
        state().what = tr("Choices of “%1”").arg(name);
        showName();
    }
    refill();
    emit done(tr("The preset “%1” is deleted.").arg(name));
}

void PresetMenu::exportFile(const QString &name)
{
    const Result<Preset> preset = m_store.load(m_target.queue, name);
    if (!preset) {
        emit failed(preset.error());
        return;
    }
    QFileDialog where(this, tr("Export Preset"), folder(), fileKinds());
    where.setObjectName(QStringLiteral("presetFile"));
    where.setAcceptMode(QFileDialog::AcceptSave);
    where.setDefaultSuffix(kFileSuffix); // before it asks whether to replace a file
    where.selectFile(safeFileName(name) + u'.' + kFileSuffix);
    if (where.exec() != QDialog::Accepted)
        return;
    const QString path = where.selectedFiles().value(0);
    QString error;
    if (storeFile(path, presetToJson(preset.value()), &error)) {
        m_folder = QFileInfo(path).path();
        emit done(tr("The preset “%1” is exported to %2.").arg(name, path));
    } else
        emit failed(tr("The preset “%1” could not be exported: %2: %3. Export it to a folder that you may write.")
                        .arg(name, path, error));
}

void PresetMenu::importFile()
{
    QFileDialog which(this, tr("Import Preset"), folder(), fileKinds() + tr(";;All files (*)"));
    which.setObjectName(QStringLiteral("presetFile"));
    which.setFileMode(QFileDialog::ExistingFile);
    if (which.exec() != QDialog::Accepted)
        return;
    const QString path = which.selectedFiles().value(0);
    m_folder = QFileInfo(path).path();
    Result<Preset> read = presetFromFile(path);
    if (!read) {
        emit failed(read.error() + u' ' + tr("Choose a file that was exported as a preset."));
        return;
    }
    Preset &preset = read.value();
    const QString called = std::exchange(preset.name, m_store.freeName(m_target.queue, preset.name));
    if (!isDone(m_store.store(m_target.queue, preset)))
        return;
    refill();
    apply(preset.options, quoted(preset.name),
          called == preset.name ? tr("%1 is imported and used", "a preset").arg(quoted(called))
                                : tr("%1 is imported and used as %2, since there is one of that name")
                                      .arg(quoted(called), quoted(preset.name)),
          preset.name, fromPreset(preset.name));
}

QString PresetMenu::folder() const
{
    return m_folder.isEmpty() ? QDir::homePath() : m_folder;
}

bool PresetMenu::isDone(const QString &problem)
{
    if (!problem.isEmpty())
        emit failed(problem);
    return problem.isEmpty();
}

} // namespace bv
