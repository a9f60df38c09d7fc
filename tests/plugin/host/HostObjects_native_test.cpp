#include "plugin/host/HostObjects.h"

#include <gtest/gtest.h>

#include "plugin/controller/ControllerRig.h"

namespace {

TEST(HostObjectsNative, NoHost_NothingIsCreatedOrAdvised) {
    Orva::Testing::ControllerRig rig;
    Orva::Plugin::CHostEventRelay relay(rig.messaging, rig.log);
    const auto host = Orva::Plugin::CreateSystemHostObjects(relay, rig.log);
    host->InitializeCom();
    EXPECT_FALSE(host->CreateInitObject());
    EXPECT_FALSE(host->AdviseInitSink());
    EXPECT_FALSE(host->CreateApiObject());
    EXPECT_FALSE(host->HasApiObject());
    EXPECT_FALSE(host->AdviseApiSink());
    EXPECT_NO_THROW(host->UnadviseApiSink());
    EXPECT_NO_THROW(host->UnadviseInitSink());
    EXPECT_TRUE(rig.Journal().empty());
}

}  // namespace
