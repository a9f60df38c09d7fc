#pragma once

#include "ui/CategoryLevels.h"
#include "ui/PageServices.h"
#include "ui/PendingWrite.h"

namespace Orva::Ui {

// The spam-detection page without its windows: the choice between the default level (a
// three-position slider) and the custom level (one level per category), and the cloud lookup,
// which each mode's panel shows in a check box of its own.
class CSpamDetectionPageModel {
public:
    explicit CSpamDetectionPageModel(PageServices& services);

    // Reads the page's settings; the page is unmodified afterwards.
    void Load();
    bool Loaded() const { return m_loaded; }

    // True for the default level, false for the custom level.
    bool IsDefaultMode() const { return m_defaultMode; }
    int SliderPosition() const { return m_sliderPosition; }
    void MoveSlider(int position);
    // The cloud check boxes of the default and of the custom panel.
    bool DefaultCloud() const { return m_defaultCloud; }
    bool CustomCloud() const { return m_customCloud; }
    // Also sets the custom panel's box, which is shown next.
    void SetDefaultCloud(bool on);
    void SetCustomCloud(bool on);
    const CategoryPositions& Categories() const { return m_categories; }
    // The category dialog's OK: the custom level applies from now on.
    void AcceptCategories(const CategoryPositions& positions);
    // The custom panel's way back: the default level at its middle position.
    void BackToDefault();

    bool Modified() const { return m_modified; }
    // What the page's OK writes once something changed, in the order it writes it; nothing
    // before the page was read.
    Ui::PendingWrites PendingWrites() const;
    // The sheet's OK: only for a read and modified page, writes PendingWrites(), then posts the
    // agent 1036. False when it wrote nothing or a value could not be written (then the page
    // stays modified and the agent is not told).
    bool Apply();

private:
    void Change() { m_modified = true; }

    PageServices& m_services;
    bool m_loaded = false;
    bool m_modified = false;
    bool m_defaultMode = true;
    int m_sliderPosition = 1;
    bool m_defaultCloud = true;
    bool m_customCloud = true;
    CategoryPositions m_categories{1, 1, 1, 1, 1, 1, 1};
};

}  // namespace Orva::Ui
