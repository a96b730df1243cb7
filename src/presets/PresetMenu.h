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
        PrintDictionary usual;                            // the printer's defaults
        std::function<Result<PrintDictionary>()> choices; // the present ones; a failure is a sentence for the user
        // Makes these the choices. The sentence says where they come from, for the tips of values; it may be empty.
        std::function<PresetOutcome(const PrintDictionary &options, const QString &origin)> use;
        std::function<std::optional<PrintDictionary>()> lastTime; // nothing: no job was printed yet
    };

    explicit PresetMenu(QWidget *parent);

    void setTarget(Target target);
    // Uses a preset of the target. A failure is reported by a signal.
    void use(const QString &name);
    // Says that the choices are the printer's defaults now. follow() hears of them next.
    void showDefaults();
    // Compares the present choices with those that were chosen here and with the printer's defaults, and says on the
    // button which they are, or that they are neither.
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
    // `said` begins the message, like `what` or with more.
    void apply(const PrintDictionary &options, const QString &what, const QString &said, const QString &preset,
               const QString &origin);
    void save();
    void rename(const QString &from);
    void remove(const QString &name);
    void exportFile(const QString &name);
    void importFile();
    // Where files are looked for.
    QString folder() const;
    // Reports a failure. True if there is none.
    bool isDone(const QString &problem);
    void showName();

    // What the choices are, compared with what was chosen here.
    enum class Look { AsChosen, AsUsual, Changed };
    // What is in use for a printer.
    struct State
    {
        QString preset;                        // its name; empty: none
        QString what;                          // what the choices come from, on the button
        std::optional<PrintDictionary> chosen; // the choices right after that
        Look look = Look::AsChosen;
    };
    State &state() { return m_states[m_target.queue]; }
    // The preset in use; empty: none.
    QString inUse() { return state().look == Look::AsUsual ? QString() : state().preset; }
    void setState(const QString &preset, const QString &what);

    PresetStore m_store;
    QMenu *m_menu;
    Target m_target;
    QString m_folder;                  // of the last file that was written or read
    std::map<QString, State> m_states; // by queue
};

} // namespace bv
