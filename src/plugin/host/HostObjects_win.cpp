#include "plugin/host/HostObjects_win.h"

// GDI+'s headers expect the min and max of windows.h.
#include <algorithm>
using std::max;
using std::min;
#include <gdiplus.h>
#include <objbase.h>

#include <optional>
#include <utility>

#include "plugin/host/HostConnection_win.h"
#include "plugin/host/HostContract_win.h"
#include "plugin/host/HostEventSinks_win.h"
#include "plugin/host/HostToolbar_win.h"

namespace Orva::Plugin {
namespace {

using Microsoft::WRL::ComPtr;

// One host object with its sink and their connection.
template <class Sink>
struct HostObject {
    ComPtr<IUnknown> object;
    ComPtr<Sink> sink;
    std::optional<CHostConnection> connection;

    bool Advise(CHostEventRelay& relay, ZelCommon::Library::DebugLog& log) {
        if (object == nullptr) {
            return false;
        }
        sink = MakeSink<Sink>(relay, log);
        connection = ConnectSink(*object.Get(), *sink.Get());
        if (!connection) {
            sink.Reset();
            return false;
        }
        return true;
    }

    // Our references go first, so that a refused unadvise still leaves nothing of ours behind.
    void Unadvise(bool releaseObject) {
        std::optional<CHostConnection> current = std::exchange(connection, std::nullopt);
        sink.Reset();
        if (releaseObject) {
            object.Reset();
        }
        if (current) {
            current->Unadvise();
        }
    }
};

class SystemHostObjects final : public IHostObjects {
public:
    SystemHostObjects(CHostEventRelay& relay, ZelCommon::Library::DebugLog& log,
                      HostObjectCreator creator)
        : m_relay(relay), m_log(log), m_creator(std::move(creator)), m_toolbar(relay, log) {}

    ~SystemHostObjects() override {
        m_toolbar.Release();
        m_api = {};
        m_init = {};
        ShutdownGdiplus();
        UninitializeCom();
    }

    bool CreateInitObject() override { return Create(HostContract::kInitProgId, m_init.object); }
    bool AdviseInitSink() override { return m_init.Advise(m_relay, m_log); }
    void UnadviseInitSink() override { m_init.Unadvise(false); }
    void ReleaseInitObject() override { m_init.object.Reset(); }

    bool HasApiObject() const override { return m_api.object != nullptr; }
    bool CreateApiObject() override {
        const bool created = Create(HostContract::kApiProgId, m_api.object);
        m_toolbar.Attach(m_api.object);
        return created;
    }
    bool AdviseApiSink() override { return m_api.Advise(m_relay, m_log); }
    // The ribbon's entry sinks go with the object that made them.
    void UnadviseApiSink() override {
        m_toolbar.Release();
        m_api.Unadvise(true);
    }
    IHostToolbar& Toolbar() override { return m_toolbar; }

    void InitializeCom() override {
        if (!m_comInitialized && SUCCEEDED(::CoInitialize(nullptr))) {
            m_comInitialized = true;
        }
    }
    void UninitializeCom() override {
        if (std::exchange(m_comInitialized, false)) {
            ::CoUninitialize();
        }
    }

    void StartGdiplus() override {
        if (m_gdiplusToken != 0) {
            return;
        }
        const Gdiplus::GdiplusStartupInput input;
        ULONG_PTR token = 0;
        if (Gdiplus::GdiplusStartup(&token, &input, nullptr) == Gdiplus::Ok) {
            m_gdiplusToken = token;
        }
    }
    void ShutdownGdiplus() override {
        if (const ULONG_PTR token = std::exchange(m_gdiplusToken, 0); token != 0) {
            Gdiplus::GdiplusShutdown(token);
        }
    }

private:
    bool Create(const wchar_t* progId, ComPtr<IUnknown>& object) {
        object = m_creator ? m_creator(progId) : nullptr;
        if (object == nullptr) {
            m_log.LogText(L"XXX %s could not be created", progId);
        }
        return object != nullptr;
    }

    CHostEventRelay& m_relay;
    ZelCommon::Library::DebugLog& m_log;
    HostObjectCreator m_creator;
    HostObject<CWLMApiInitEventSink> m_init;
    HostObject<CWLMAApiEventSink> m_api;
    CHostToolbar m_toolbar;
    bool m_comInitialized = false;
    ULONG_PTR m_gdiplusToken = 0;
};

}  // namespace

ComPtr<IUnknown> CreateRegisteredHostObject(const wchar_t* progId) {
    CLSID classId{};
    ComPtr<IUnknown> object;
    if (FAILED(::CLSIDFromProgID(progId, &classId)) ||
        FAILED(::CoCreateInstance(classId, nullptr, CLSCTX_ALL, IID_PPV_ARGS(&object)))) {
        return nullptr;
    }
    return object;
}

std::unique_ptr<IHostObjects> CreateHostObjects(CHostEventRelay& relay,
                                                ZelCommon::Library::DebugLog& log,
                                                HostObjectCreator creator) {
    return std::make_unique<SystemHostObjects>(relay, log, std::move(creator));
}

std::unique_ptr<IHostObjects> CreateSystemHostObjects(CHostEventRelay& relay,
                                                      ZelCommon::Library::DebugLog& log) {
    return CreateHostObjects(relay, log, CreateRegisteredHostObject);
}

}  // namespace Orva::Plugin
