#pragma once

#include <cstdint>

#include "plugin/controller/ControllerParts.h"
#include "settings/log/DebugLog.h"

namespace Orva::Plugin {

// The add-in has no classic toolbar band for the mail client 14: the controller runs its
// protocol complete without one. The first request for the band is logged; none pretends to
// succeed.
class CAbsentClassicBand final : public IClassicBand {
public:
    explicit CAbsentClassicBand(ZelCommon::Library::DebugLog& log) : m_log(log) {}

    void OnBuildUserInterface(uintptr_t, intptr_t) override { Requested(); }
    bool IsBuilt() const override { return false; }
    bool Exists() const override { return false; }
    void Refresh() override {}
    void TearDown() override {}
    bool HasDeferredObject() const override { return false; }
    void CreateDeferredObject() override { Requested(); }

private:
    void Requested();

    ZelCommon::Library::DebugLog& m_log;
    bool m_reported = false;
};

}  // namespace Orva::Plugin
