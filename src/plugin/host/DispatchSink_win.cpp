#include "plugin/host/DispatchSink_win.h"

#include <oleauto.h>
#include <wchar.h>

#include <algorithm>

namespace Orva::Plugin {
namespace {

using HostContract::ArgKind;

// A VARIANT cleared when it goes, whatever it came to hold.
class ScopedVariant {
public:
    ScopedVariant() { ::VariantInit(&m_value); }
    ~ScopedVariant() { ::VariantClear(&m_value); }
    ScopedVariant(const ScopedVariant&) = delete;
    ScopedVariant& operator=(const ScopedVariant&) = delete;
    VARIANT* get() { return &m_value; }

private:
    VARIANT m_value;
};

HRESULT ToInt32(VARIANT& plain, uint64_t& value) {
    ScopedVariant converted;
    if (FAILED(::VariantChangeType(converted.get(), &plain, 0, VT_I4))) {
        return DISP_E_TYPEMISMATCH;
    }
    value = static_cast<uint32_t>(V_I4(converted.get()));
    return S_OK;
}

// Folder ids are unsigned, but hosts written against signed 64-bit types pass VT_I8, whose
// "no folder" value -1 VariantChangeType would refuse as an overflow: the bits are the id.
HRESULT ToUInt64(VARIANT& plain, uint64_t& value) {
    switch (V_VT(&plain)) {
        case VT_I8:
            value = static_cast<uint64_t>(V_I8(&plain));
            return S_OK;
        case VT_I4:
            value = static_cast<uint64_t>(static_cast<int64_t>(V_I4(&plain)));
            return S_OK;
        default:
            break;
    }
    ScopedVariant converted;
    if (FAILED(::VariantChangeType(converted.get(), &plain, 0, VT_UI8))) {
        return DISP_E_TYPEMISMATCH;
    }
    value = V_UI8(converted.get());
    return S_OK;
}

HRESULT Convert(VARIANT& source, ArgKind kind, uint64_t& value) {
    ScopedVariant plain;
    if (FAILED(::VariantCopyInd(plain.get(), &source)) || V_VT(plain.get()) == VT_EMPTY) {
        return DISP_E_TYPEMISMATCH;
    }
    return kind == ArgKind::Int32 ? ToInt32(*plain.get(), value) : ToUInt64(*plain.get(), value);
}

}  // namespace

std::atomic<long> CDispatchSink::s_live{0};

CDispatchSink::CDispatchSink(std::wstring_view sinkName,
                             std::span<const HostContract::EventDecl> events,
                             ZelCommon::Library::DebugLog& log)
    : m_sinkName(sinkName), m_events(events), m_log(log) {
    for (const HostContract::EventDecl& decl : events) {
        m_dispIds.push_back(decl.dispId);
    }
    ++s_live;
}

CDispatchSink::~CDispatchSink() {
    --s_live;
}

STDMETHODIMP CDispatchSink::QueryInterface(REFIID iid, void** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    if (iid == IID_IUnknown || iid == IID_IDispatch ||
        (iid == m_eventIid && m_eventIid != IID_NULL)) {
        *object = static_cast<IDispatch*>(this);
        AddRef();
        return S_OK;
    }
    *object = nullptr;
    return E_NOINTERFACE;
}

STDMETHODIMP_(ULONG) CDispatchSink::AddRef() {
    return ++m_references;
}

STDMETHODIMP_(ULONG) CDispatchSink::Release() {
    const ULONG left = --m_references;
    if (left == 0) {
        delete this;
    }
    return left;
}

STDMETHODIMP CDispatchSink::GetTypeInfoCount(UINT* count) {
    if (count == nullptr) {
        return E_POINTER;
    }
    *count = 0;
    return S_OK;
}

STDMETHODIMP CDispatchSink::GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** info) {
    if (info != nullptr) {
        *info = nullptr;
    }
    return E_NOTIMPL;
}

STDMETHODIMP CDispatchSink::GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID /*locale*/,
                                          DISPID* ids) {
    if (iid != IID_NULL) {
        return DISP_E_UNKNOWNINTERFACE;
    }
    if (names == nullptr || ids == nullptr) {
        return E_POINTER;
    }
    HRESULT status = S_OK;
    for (UINT i = 0; i < count; ++i) {
        ids[i] = DISPID_UNKNOWN;
        if (i > 0 || names[i] == nullptr) {
            status = DISP_E_UNKNOWNNAME;
            continue;
        }
        const auto found = std::find_if(m_events.begin(), m_events.end(), [&](const auto& decl) {
            return ::_wcsicmp(std::wstring(decl.name).c_str(), names[i]) == 0;
        });
        if (found == m_events.end()) {
            status = DISP_E_UNKNOWNNAME;
        } else {
            ids[i] = m_dispIds[static_cast<std::size_t>(found - m_events.begin())];
        }
    }
    return status;
}

void CDispatchSink::ResolveDispIds(ITypeInfo& eventInterface) {
    for (std::size_t i = 0; i < m_events.size(); ++i) {
        std::wstring name(m_events[i].name);
        LPOLESTR names[] = {name.data()};
        MEMBERID id = MEMBERID_NIL;
        if (SUCCEEDED(eventInterface.GetIDsOfNames(names, 1, &id))) {
            m_dispIds[i] = id;
        }
    }
}

HRESULT CDispatchSink::ReadArguments(const HostContract::EventDecl& decl, const DISPPARAMS* params,
                                     EventArgs& args, UINT* argError) {
    if (params == nullptr || params->cArgs != decl.argCount ||
        (decl.argCount > 0 && params->rgvarg == nullptr)) {
        return DISP_E_BADPARAMCOUNT;
    }
    // The host passes the arguments last one first.
    for (std::size_t i = 0; i < decl.argCount; ++i) {
        const std::size_t slot = decl.argCount - 1 - i;
        uint64_t value = 0;
        if (FAILED(Convert(params->rgvarg[slot], decl.args[i], value))) {
            if (argError != nullptr) {
                *argError = static_cast<UINT>(slot);
            }
            return DISP_E_TYPEMISMATCH;
        }
        args.Set(i, value);
    }
    return S_OK;
}

STDMETHODIMP CDispatchSink::Invoke(DISPID id, REFIID iid, LCID /*locale*/, WORD /*flags*/,
                                   DISPPARAMS* params, VARIANT* result, EXCEPINFO* /*exception*/,
                                   UINT* argError) {
    if (iid != IID_NULL) {
        return DISP_E_UNKNOWNINTERFACE;
    }
    if (result != nullptr) {
        ::VariantInit(result);
    }
    const auto found = std::find(m_dispIds.begin(), m_dispIds.end(), id);
    if (found == m_dispIds.end()) {
        return S_OK;
    }
    const HostContract::EventDecl& decl =
        m_events[static_cast<std::size_t>(found - m_dispIds.begin())];
    try {
        EventArgs args;
        if (decl.checksArguments) {
            if (const HRESULT status = ReadArguments(decl, params, args, argError);
                FAILED(status)) {
                m_log.LogText(L"XXX %s::%s wrong arguments, hr(0x%08X)", m_sinkName, decl.name,
                              static_cast<uint32_t>(status));
                return status;
            }
        }
        OnEvent(static_cast<std::size_t>(found - m_dispIds.begin()), args);
        return S_OK;
    } catch (...) {
        try {
            m_log.LogText(L"xxx %s::%s failed", m_sinkName, decl.name);
        } catch (...) {
        }
        return E_FAIL;
    }
}

}  // namespace Orva::Plugin
