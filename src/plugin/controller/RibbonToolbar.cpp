#include "plugin/controller/RibbonToolbar.h"

#include <array>
#include <utility>

#include "common_src/platform/Path.h"
#include "plugin/host/HostObjects.h"
#include "plugin/protocol/ControllerProtocol.h"
#include "settings/SettingsPaths.h"

namespace Orva::Plugin {
namespace {

constexpr wchar_t kBuildName[] = L"CToolBarWnd::OnBuildRibbonToolbar";

const wchar_t* OnOffCaptionId(bool enabled) {
    return enabled ? L"IDS_DISABLE_CAPTION" : L"IDS_ENABLE_CAPTION";
}

struct EntryItem {
    int32_t RibbonIds::*id;
    const wchar_t* caption;  // none for the switch, whose caption follows the flag
    int32_t event;
};

constexpr std::array kEntries{
    EntryItem{&RibbonIds::settings, L"IDS_STRING_FILTERING_SHEET", DropDownEntry::Settings},
    EntryItem{&RibbonIds::statistics, L"IDS_STATIST_CAPTION", DropDownEntry::Statistics},
    EntryItem{&RibbonIds::onOff, nullptr, DropDownEntry::OnOff},
    EntryItem{&RibbonIds::help, L"IDS_HELP_CAPTION", DropDownEntry::Help},
    EntryItem{&RibbonIds::about, L"IDS_ABOUT_CAPTION", DropDownEntry::About},
};

}  // namespace

CRibbonToolbar::CRibbonToolbar(IHostToolbar& toolbar, ILocalisedStrings& strings,
                               ZelCommon::Platform::IProcessContext& process,
                               std::wstring defaultInstallFolder, ZelCommon::Library::DebugLog& log)
    : m_toolbar(toolbar),
      m_strings(strings),
      m_process(process),
      m_defaultInstallFolder(std::move(defaultInstallFolder)),
      m_log(log) {}

RibbonIds CRibbonToolbar::BuildRibbonToolbar(bool toolbarEnabled) {
    m_ids = {};
    CallLogged(kBuildName, [&] { BuildItems(toolbarEnabled); });
    m_log.LogText(L"@@@ %s dump button ID: %ld, %ld, %ld, %ld, %ld, %ld, %ld, %ld, %ld", kBuildName,
                  m_ids.group, m_ids.logo, m_ids.settings, m_ids.statistics, m_ids.onOff,
                  m_ids.help, m_ids.about, m_ids.reportSpam, m_ids.notSpam);
    return m_ids;
}

// Each id is kept the moment the host gives it, so that a failure later leaves the items made so
// far clickable.
void CRibbonToolbar::BuildItems(bool toolbarEnabled) {
    m_ids.group = m_toolbar.CreateGroup(m_strings.LoadShown(L"IDS_PRODUCT_NAME"));
    const std::wstring images = ImageFolder();
    m_ids.logo = m_toolbar.AddButton(m_ids.group, m_strings.LoadShown(L"IDS_POPUP_CAPTION"),
                                     images + L"Q-orb.bmp");
    m_toolbar.SetTooltip(m_ids.group, m_ids.logo, m_strings.LoadShown(L"IDS_ZEL_TOOLTIP"));
    for (const EntryItem& entry : kEntries) {
        const wchar_t* caption = entry.caption ? entry.caption : OnOffCaptionId(toolbarEnabled);
        m_ids.*entry.id = m_toolbar.AddDropDownEntry(m_ids.group, m_ids.logo,
                                                     m_strings.LoadShown(caption), entry.event);
    }
    AddReportingButton(m_ids.reportSpam, L"IDS_RPTSPAM_CAPTION", L"Spam.bmp",
                       L"IDS_RPTSPAM_TOOLTIP", images);
    AddReportingButton(m_ids.notSpam, L"IDS_RPTFP_CAPTION", L"NotSpam.bmp", L"IDS_RPTFP_TOOLTIP",
                       images);
}

void CRibbonToolbar::AddReportingButton(int32_t& id, const wchar_t* caption, const wchar_t* image,
                                        const wchar_t* tooltip, const std::wstring& images) {
    id = m_toolbar.AddButton(m_ids.group, m_strings.LoadShown(caption), images + image);
    m_toolbar.SetTooltip(m_ids.group, id, m_strings.LoadShown(tooltip));
}

std::wstring CRibbonToolbar::ImageFolder() {
    using ZelCommon::Path::ChildFolder;
    const std::wstring module = m_process.ModuleFilePath();
    if (!module.empty()) {
        return ChildFolder(Orva::Settings::AddinFolderOf(module), L"Res");
    }
    m_log.LogText(L"!!! Query plugin path failed error[%u], try to use default",
                  m_process.LastError());
    return ChildFolder(ChildFolder(ChildFolder(m_defaultInstallFolder, L"ORVA"), L"ORVA_WLM"),
                       L"Res");
}

void CRibbonToolbar::SetOnOffCaption(bool enabled) {
    if (m_ids.onOff == 0) {
        return;
    }
    CallLogged(L"CToolBarWnd::EnableRibbonToolbar", [&] {
        m_toolbar.SetCaption(m_ids.group, m_ids.onOff,
                             m_strings.LoadShown(OnOffCaptionId(enabled)));
    });
}

void CRibbonToolbar::EnableButtons(bool enable) {
    CallLogged(L"CToolBarWnd::EnableRibbonToolbar", [&] {
        for (const int32_t button : {m_ids.reportSpam, m_ids.notSpam}) {
            if (button != 0) {
                m_toolbar.EnableButton(m_ids.group, button, enable);
            }
        }
    });
}

template <class Call>
void CRibbonToolbar::CallLogged(const wchar_t* function, Call call) {
    try {
        call();
    } catch (const HostCallError& error) {
        m_log.LogText(L"!!! %s host call failed:[%S]", function, error.what());
    }
}

}  // namespace Orva::Plugin
