#pragma once

#include "ui/PageServices.h"
#include "ui/PendingWrite.h"
#include "ui/WorryFreeLevelModel.h"

namespace Orva::Ui {

// The link-filter page without its windows: it hosts the URL-filtering panel and, once shown,
// saves it and tells the agent on every OK, changed or not.
class CLinkFilterPageModel {
public:
    explicit CLinkFilterPageModel(PageServices& services) : m_services(services) {}

    void Load();
    bool Loaded() const { return m_loaded; }

    int SliderPosition() const { return m_panel.SliderPosition(); }
    void MoveSlider(int position) { m_panel.MoveSlider(position); }
    bool FilterEnabled() const { return m_panel.FilterEnabled(); }
    void SetFilterEnabled(bool on) { m_panel.SetFilterEnabled(on); }

    // Both keys, as every OK writes them; nothing before the page was read.
    Ui::PendingWrites PendingWrites() const;
    // The sheet's OK, changed or not: writes PendingWrites(), then posts the agent 1037. False
    // before the page was read or when a value could not be written (the agent is not told).
    bool Apply();

private:
    PageServices& m_services;
    CWorryFreeLevelModel m_panel;
    bool m_loaded = false;
};

}  // namespace Orva::Ui
