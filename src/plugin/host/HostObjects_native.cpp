#include "plugin/host/HostObjects.h"

namespace Orva::Plugin {
namespace {

// No plug-in host exists outside Windows: nothing is ever created or advised.
class AbsentHostObjects final : public IHostObjects {
public:
    bool CreateInitObject() override { return false; }
    bool AdviseInitSink() override { return false; }
    void UnadviseInitSink() override {}
    void ReleaseInitObject() override {}
    bool HasApiObject() const override { return false; }
    bool CreateApiObject() override { return false; }
    bool AdviseApiSink() override { return false; }
    void UnadviseApiSink() override {}
    void InitializeCom() override {}
    void UninitializeCom() override {}
    void StartGdiplus() override {}
    void ShutdownGdiplus() override {}
};

}  // namespace

std::unique_ptr<IHostObjects> CreateSystemHostObjects(CHostEventRelay& /*relay*/,
                                                      ZelCommon::Library::DebugLog& /*log*/) {
    return std::make_unique<AbsentHostObjects>();
}

}  // namespace Orva::Plugin
