#include "plugin/host/HostObjects.h"

namespace Orva::Plugin {
namespace {

// Without a host every ribbon call fails as a call on a missing object would.
class AbsentToolbar final : public IHostToolbar {
public:
    int32_t CreateGroup(const std::wstring&) override { Fail(); }
    int32_t AddButton(int32_t, const std::wstring&, const std::wstring&) override { Fail(); }
    int32_t AddDropDownEntry(int32_t, int32_t, const std::wstring&, int32_t) override { Fail(); }
    void SetTooltip(int32_t, int32_t, const std::wstring&) override { Fail(); }
    void SetCaption(int32_t, int32_t, const std::wstring&) override { Fail(); }
    void EnableButton(int32_t, int32_t, bool) override { Fail(); }

private:
    [[noreturn]] static void Fail() { throw HostCallError("Invalid pointer"); }
};

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
    IHostToolbar& Toolbar() override { return m_toolbar; }

private:
    AbsentToolbar m_toolbar;
};

}  // namespace

std::unique_ptr<IHostObjects> CreateSystemHostObjects(CHostEventRelay& /*relay*/,
                                                      ZelCommon::Library::DebugLog& /*log*/) {
    return std::make_unique<AbsentHostObjects>();
}

}  // namespace Orva::Plugin
