// SPDX-License-Identifier: GPL-2.0-or-later
// The options in a panel's view, known by the properties of its controls (platform/HostProtocol.h), and what the window
// says about them at the controls.
#pragma once

#include <QSet>
#include <QString>
#include <map>

class QWidget;

namespace bv {

// An option that a control of the view holds.
struct PaneOption
{
    QWidget *control = nullptr;
    QString instead; // the choice that counts in place of the control's own, a keyword; empty: its own counts
    QString reason;  // why the user cannot choose, or another choice counts: a sentence; empty: the choice is free
};

// All of them by keyword. The view may be null.
std::map<QString, PaneOption> paneOptions(const QWidget *view);

// Choices that the job will have in place of a control's own: choice by option, in keywords. The view may be null.
std::map<QString, QString> overrulingChoices(const QWidget *view);

// Whether the user sees a control that could be changed without any effect, because another one decides.
bool showsOverruledControls(const QWidget *view);

// Adds what is said about an option to the tool tip of its control, behind the panel's own words, and replaces what was
// added before. Conflicts are added to the accessible description as well, and the control is marked. Both maps hold
// sentences by keyword.
void explainPane(const QWidget *view, const std::map<QString, QString> &conflicts,
                 const std::map<QString, QString> &origins);

} // namespace bv
