#include "plugin/host/HostToolbar_win.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plugin/host/FakeRibbonHost_win.h"
#include "plugin/host/HostEventRig_win.h"
#include "plugin/host/HostObjects.h"

namespace Orva::Plugin {
namespace {

using Testing::ControllerMessageRecord;
using testing::ElementsAre;
using Testing::FakeRibbonHost;
using testing::HasSubstr;
using Testing::Signed;

struct ToolbarRig {
    ToolbarRig() { toolbar.Attach(host.object); }

    Testing::HostEventRig events;
    FakeRibbonHost host;
    CHostToolbar toolbar{events.relay, events.log};
};

// The calls reach the host's members by name with their arguments in the declared order and
// of the types a host expects; the ids come back from its answers.
TEST(HostToolbar, CallsTheHostsMembersByNameWithTypedArguments) {
    ToolbarRig rig;
    const int32_t group = rig.toolbar.CreateGroup(L"ORVA");
    const int32_t logo = rig.toolbar.AddButton(group, L"Logo", L"C:\\Res\\Q-orb.bmp");
    const int32_t entry = rig.toolbar.AddDropDownEntry(group, logo, L"Statistics", 1);
    rig.toolbar.SetTooltip(group, logo, L"Tip");
    rig.toolbar.SetCaption(group, entry, L"Off");
    rig.toolbar.EnableButton(group, logo, false);

    EXPECT_EQ((std::vector<int32_t>{group, logo, entry}), (std::vector<int32_t>{500, 501, 502}));
    EXPECT_THAT(rig.host.calls,
                ElementsAre(L"CreateToolbar(\"ORVA\")",
                            L"AddToolbarButton(500, \"Logo\", \"C:\\Res\\Q-orb.bmp\")",
                            L"AddToolbarSubButton(500, 501, \"Statistics\")",
                            L"SetToolbarButtonTooltip(500, 501, \"Tip\")",
                            L"SetToolbarButtonCaption(500, 502, \"Off\")",
                            L"EnableToolbarButton(500, 501, false)"));
}

// Each entry's clicks reach the controller as the entry's event, until the object is released.
TEST(HostToolbar, DropDownEntry_ClicksPostItsEventUntilReleased) {
    ToolbarRig rig;
    rig.toolbar.AddDropDownEntry(500, 501, L"On/Off", DropDownEntry::OnOff);
    rig.toolbar.AddDropDownEntry(500, 501, L"About", DropDownEntry::About);
    ASSERT_EQ(rig.host.entries.size(), 2u);

    EXPECT_EQ(rig.host.entries[1]->Fire(1, {}), S_OK);
    EXPECT_EQ(rig.host.entries[0]->Fire(2, {}), S_OK);
    EXPECT_THAT(rig.events.Messages(),
                ElementsAre(ControllerMessageRecord{4031, Signed(-1), DropDownEntry::About},
                            ControllerMessageRecord{4031, Signed(-1), DropDownEntry::OnOff}));

    rig.toolbar.Release();
    EXPECT_EQ(rig.host.entries[0]->sink, nullptr);
    EXPECT_EQ(rig.host.entries[1]->sink, nullptr);
    EXPECT_THROW(rig.toolbar.CreateGroup(L"ORVA"), HostCallError);
}

// A host's refusal, a member it does not have and a missing object all become the host error
// the ribbon catches, with the host's own words when it gave any.
TEST(HostToolbar, Failures_BecomeHostErrorsWithTheHostsWords) {
    ToolbarRig rig;
    rig.host.failing = L"AddToolbarButton";
    try {
        rig.toolbar.AddButton(500, L"Spam", L"Spam.bmp");
        ADD_FAILURE() << "no error";
    } catch (const HostCallError& error) {
        EXPECT_THAT(error.what(), HasSubstr("The ribbon is locked"));
    }

    Testing::HostEventRig events;
    CHostToolbar detached(events.relay, events.log);
    EXPECT_THROW(detached.CreateGroup(L"ORVA"), HostCallError);
    const auto notAHost = Testing::MakeMemberDispatch();
    detached.Attach(notAHost);
    EXPECT_THROW(detached.CreateGroup(L"ORVA"), HostCallError);
    detached.Release();
}

}  // namespace
}  // namespace Orva::Plugin
