// SPDX-License-Identifier: GPL-2.0-or-later
// A control table with all controls that the rules name. It needs no interface file and no PPD.
#pragma once

#include "colorrules/OptionConstraints.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace bvtest {

class RuleTable
{
public:
    RuleTable()
    {
        addButton("GoToAdvancedOptionsButton");
        for (const char *name : {"ColorAsGrayCheckBox", "ColorSeparationCheckBox", "EconoModeCheckBox"})
            add<QCheckBox>(name, kPDEControlCheckBox);
        for (const char *name : {"QuickColorPopup", "EdgeTypePopup", "SimulationSourcePopup",
                                 "SimulationRenderIntentPopup", "SimulationGrayTreatmentPopup"})
            addMenu(name);
        for (const char *object : {"Image", "Text", "Graphics"}) {
            for (const char *setting : {"RGBSourcePopup", "RenderIntentPopup", "GrayTreatmentPopup",
                                        "DestinationProfilePopup", "EdgeEnhancePopup"})
                addMenu(std::string(object) + setting);
        }
        m_rows.push_back(endControlItem());
    }

    PDEControlTable table() { return m_rows.data(); }
    QCheckBox *box(const char *name) { return qobject_cast<QCheckBox *>(m_controls.at(name).get()); }
    QComboBox *menu(const std::string &name) { return qobject_cast<QComboBox *>(m_controls.at(name).get()); }
    bool enabled(const std::string &name) { return m_controls.at(name)->isEnabled(); }
    QWidget *control(const std::string &name) { return m_controls.at(name).get(); }

private:
    template <typename Control> Control *add(const std::string &name, PDEControlKind kind)
    {
        auto control = std::make_unique<Control>();
        Control *raw = control.get();
        const auto placed = m_controls.emplace(name, std::move(control)).first;
        m_rows.push_back({raw, kind, "", nullptr, placed->first.c_str(), placed->first.c_str(), 0, nullptr});
        return raw;
    }
    void addButton(const char *name) { add<QPushButton>(name, kPDEControlButton); }
    void addMenu(const std::string &name)
    {
        auto *menu = add<QComboBox>(name, kPDEControlPopUp);
        menu->addItems({"first", "second", "third", "fourth"});
        menu->setCurrentIndex(0);
    }

    std::map<std::string, std::unique_ptr<QWidget>> m_controls;
    std::vector<PDEControlItem> m_rows;
};

} // namespace bvtest
