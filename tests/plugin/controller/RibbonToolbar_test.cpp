#include "plugin/controller/RibbonToolbar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "common_src/platform/Path.h"
#include "settings/probes/ProbeLog.h"
#include "support/fakes/platform/FakeProcessContext.h"
#include "support/fakes/plugin/FakeHostToolbar.h"
#include "support/fakes/plugin/FakePluginPorts.h"

namespace {

using Orva::Plugin::RibbonIds;
using ZelCommon::Fakes::FakeRibbonItem;
using ZelCommon::Path::ChildFile;
using ZelCommon::Path::ChildFolder;

// Three calls make the group and the logo, five the entries, four the reporting buttons.
constexpr int kBuildCalls = 12;

struct RibbonRig {
    RibbonRig() {
        process.SetModuleFilePath(ChildFile(addinFolder, L"ORVA_WLMA.dll"));
        for (const wchar_t* id :
             {L"IDS_PRODUCT_NAME", L"IDS_POPUP_CAPTION", L"IDS_ZEL_TOOLTIP",
              L"IDS_STRING_FILTERING_SHEET", L"IDS_STATIST_CAPTION", L"IDS_DISABLE_CAPTION",
              L"IDS_ENABLE_CAPTION", L"IDS_HELP_CAPTION", L"IDS_ABOUT_CAPTION",
              L"IDS_RPTSPAM_CAPTION", L"IDS_RPTSPAM_TOOLTIP", L"IDS_RPTFP_CAPTION",
              L"IDS_RPTFP_TOOLTIP"}) {
            strings.texts[id] = std::wstring(L"text of ") + id;
        }
    }

    const FakeRibbonItem& Item(int32_t id) const {
        const FakeRibbonItem* item = toolbar.Find(id);
        EXPECT_NE(item, nullptr) << id;
        static const FakeRibbonItem none;
        return item ? *item : none;
    }

    const std::wstring addinFolder = ChildFolder(ChildFolder(L"", L"Addin"), L"ORVA");
    ZelCommon::Fakes::FakeHostToolbar toolbar;
    ZelCommon::Fakes::FakeLocalisedStrings strings;
    ZelCommon::Fakes::FakeProcessContext process;
    Orva::Testing::ProbeLog log;
    Orva::Plugin::CRibbonToolbar ribbon{toolbar, strings, process, ChildFolder(L"", L"Default"),
                                        log.Log()};
};

std::vector<int32_t> InOrder(const RibbonIds& ids) {
    return {ids.group, ids.logo,  ids.settings,   ids.statistics, ids.onOff,
            ids.help,  ids.about, ids.reportSpam, ids.notSpam};
}

std::vector<std::wstring> Ribbon(const ZelCommon::Fakes::FakeHostToolbar& toolbar) {
    std::vector<std::wstring> items;
    for (const FakeRibbonItem& item : toolbar.items) {
        items.push_back(item.Describe());
    }
    return items;
}

TEST(RibbonToolbar, Build_MakesTheGroupWithItsLogoEntriesAndReportingButtons) {
    for (const bool enabled : {true, false}) {
        SCOPED_TRACE(enabled);
        RibbonRig rig;
        EXPECT_EQ(InOrder(rig.ribbon.BuildRibbonToolbar(enabled)),
                  (std::vector<int32_t>{1000, 1001, 1002, 1003, 1004, 1005, 1006, 1007, 1008}));
        const std::wstring onOff = enabled ? L"IDS_DISABLE_CAPTION" : L"IDS_ENABLE_CAPTION";
        EXPECT_EQ(
            Ribbon(rig.toolbar),
            (std::vector<std::wstring>{
                L"1000 group \"text of IDS_PRODUCT_NAME\"",
                L"1001 button \"text of IDS_POPUP_CAPTION\" image Q-orb.bmp tooltip \"text of "
                L"IDS_ZEL_TOOLTIP\"",
                L"1002 entry 0 of 1001 \"text of IDS_STRING_FILTERING_SHEET\"",
                L"1003 entry 1 of 1001 \"text of IDS_STATIST_CAPTION\"",
                L"1004 entry 2 of 1001 \"text of " + onOff + L"\"",
                L"1005 entry 3 of 1001 \"text of IDS_HELP_CAPTION\"",
                L"1006 entry 4 of 1001 \"text of IDS_ABOUT_CAPTION\"",
                L"1007 button \"text of IDS_RPTSPAM_CAPTION\" image Spam.bmp tooltip \"text of "
                L"IDS_RPTSPAM_TOOLTIP\"",
                L"1008 button \"text of IDS_RPTFP_CAPTION\" image NotSpam.bmp tooltip \"text of "
                L"IDS_RPTFP_TOOLTIP\""}));
        // The bitmaps lie in the add-in's own folder.
        EXPECT_EQ(rig.Item(1007).image, ChildFolder(rig.addinFolder, L"Res") + L"Spam.bmp");
        EXPECT_EQ(rig.toolbar.Calls(), kBuildCalls);
        EXPECT_EQ(rig.log.Lines(),
                  std::vector<std::wstring>{
                      L"@@@ CToolBarWnd::OnBuildRibbonToolbar dump button ID: 1000, 1001, 1002, "
                      L"1003, 1004, 1005, 1006, 1007, 1008\n"});
    }
}

// Whichever call fails, the ids made before it are kept in their places and every later one
// stays 0, so that a click on a missing item matches nothing.
TEST(RibbonToolbar, Build_KeepsTheIdsMadeBeforeAHostFailure) {
    for (int failing = 1; failing <= kBuildCalls; ++failing) {
        SCOPED_TRACE(failing);
        RibbonRig rig;
        rig.toolbar.FailCall(failing);
        const std::vector<int32_t> ids = InOrder(rig.ribbon.BuildRibbonToolbar(true));

        const auto made = static_cast<size_t>(std::count_if(
            ids.begin(), ids.end(), [&](int32_t id) { return rig.toolbar.Find(id) != nullptr; }));
        EXPECT_EQ(made, rig.toolbar.items.size());
        EXPECT_TRUE(std::all_of(ids.begin() + static_cast<std::ptrdiff_t>(made), ids.end(),
                                [](int32_t id) { return id == 0; }));
        EXPECT_EQ(rig.toolbar.Calls(), failing);
        const std::vector<std::wstring> lines = rig.log.Lines();
        ASSERT_EQ(lines.size(), 2u);
        EXPECT_EQ(lines[0],
                  L"!!! CToolBarWnd::OnBuildRibbonToolbar host call failed:[Unspecified error]\n");
    }
}

TEST(RibbonToolbar, Build_TakesTheDefaultFolderWhenTheModulePathIsUnknown) {
    RibbonRig rig;
    rig.process.SetModuleFilePath(L"");
    rig.process.SetLastError(122);
    const RibbonIds ids = rig.ribbon.BuildRibbonToolbar(true);
    EXPECT_EQ(
        rig.Item(ids.logo).image,
        ChildFolder(ChildFolder(ChildFolder(ChildFolder(L"", L"Default"), L"ORVA"), L"ORVA_WLM"),
                    L"Res") +
            L"Q-orb.bmp");
    EXPECT_EQ(rig.log.Lines().front(),
              L"!!! Query plugin path failed error[122], try to use default\n");
}

// The switch's caption and the reporting buttons follow it; the logo that holds the switch
// stays usable, and nothing is asked of the host for items it never made.
TEST(RibbonToolbar, Switch_ChangesTheCaptionAndOnlyTheReportingButtons) {
    RibbonRig rig;
    const RibbonIds ids = rig.ribbon.BuildRibbonToolbar(true);
    rig.ribbon.SetOnOffCaption(false);
    rig.ribbon.EnableButtons(false);
    EXPECT_EQ(rig.Item(ids.onOff).caption, L"text of IDS_ENABLE_CAPTION");
    EXPECT_FALSE(rig.Item(ids.reportSpam).enabled);
    EXPECT_FALSE(rig.Item(ids.notSpam).enabled);
    EXPECT_TRUE(rig.Item(ids.logo).enabled);
    rig.ribbon.SetOnOffCaption(true);
    rig.ribbon.EnableButtons(true);
    EXPECT_EQ(rig.Item(ids.onOff).caption, L"text of IDS_DISABLE_CAPTION");
    EXPECT_TRUE(rig.Item(ids.reportSpam).enabled);

    RibbonRig failed;
    failed.toolbar.FailCall(1);
    failed.ribbon.BuildRibbonToolbar(true);
    const int calls = failed.toolbar.Calls();
    failed.ribbon.SetOnOffCaption(false);
    failed.ribbon.EnableButtons(false);
    EXPECT_EQ(failed.toolbar.Calls(), calls);
}

}  // namespace
