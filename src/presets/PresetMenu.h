// SPDX-License-Identifier: GPL-2.0-or-later
// The menu of everything that choices can start from: the printer's defaults, the last job, and the user's presets,
// which it saves, renames, deletes, exports and imports.
#pragma once

#include "presets/PresetStore.h"
#include "presets/PresetUse.h"

#include <QPushButton>
#include <functional>
#include <map>
#include <optional>

class QMenu;

namespace bv {

class PresetMenu final : public QPushButton
{
    Q_OBJECT

public:
    // The printer that the menu acts on.
    struct Target
    {
        QString queue;
        QString title;                                    // on screen
        QString model;                                    // of the printer, for the files
        QString started;                                  // what the choices come from at first
        std::function<Result<PrintDictionary>()> choices; // the present ones; a failure is a sentence for the user
        // Makes these the choices. The sentence says where they come from, for the tips of values; it may be empty.
        std::function<PresetOutcome(const PrintDictionary &options, const QString &origin)> use;
        std::function<std::optional<PrintDictionary>()> lastTime; // nothing: no job was printed yet
    };

    explicit PresetMenu(QWidget *parent);

    void setTarget(Target target);
    // Uses a preset of the target. A failure is reported by a signal.
    void use(const QString &name);
    // Compares the present choices with those that were chosen here, and says on the button when they differ.
    void follow(const PrintDictionary &choices);

signals:
    // What was done, or why it was not, in sentences for the user.
    void done(const QString &sentences);
    void failed(const QString &sentence);
    // The choices are others now.
    void used();

private:
    void fill();
    void refill();
    void useDefaults();
    void useLastTime();
    void apply(const PrintDictionary &options, const QString &what, const QString &preset, const QString &origin);
    void save();
    void rename();
    void remove();
    void exportFile();
    void importFile();
    // Reports a failure. True if there is none.
    bool isDone(const QString &problem);
    void showName();
    QString askName(const QString &title, const QString &proposed);
    bool mayReplace(const QString &name);
    // Names come from other people's files and from the print server, so they are shown letter by letter.
    bool isAgreed(const QString &title, const QString &question);

    // What is in use for a printer.
    struct State
    {
        QString preset;                        // its name; empty: none
        QString what;                          // what the choices come from, on the button
        std::optional<PrintDictionary> chosen; // the choices right after that
        bool isChanged = false;
    };
    State &state() { return m_states[m_target.queue]; }
    void setState(const QString &preset, const QString &what);

    PresetStore m_store;
    QMenu *m_menu;
    Target m_target;
    std::map<QString, State> m_states; // by queue
};

} // namespace bv
