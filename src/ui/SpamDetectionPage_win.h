#pragma once

#include <windows.h>

#include "ui/LevelPanels_win.h"
#include "ui/PageServices.h"
#include "ui/PropertyPage_win.h"
#include "ui/SpamDetectionPageModel.h"

namespace Orva::Ui {

// The first page of the sheet: one of its two panels at a time, the default level or the
// custom one, as the model's mode says.
class CSpamDetectionPage final : public CPropertyPage {
public:
    CSpamDetectionPage(CSpamDetectionPageModel& model, PageServices& services);

private:
    bool OnInitDialog() override;
    bool OnApply() override;

    void Customize();
    void BackToDefault();
    void ShowPanelOfMode();

    CSpamDetectionPageModel& m_model;
    PageServices& m_services;
    CDefaultLevel m_default;
    CCustomLevel m_custom;
};

}  // namespace Orva::Ui
