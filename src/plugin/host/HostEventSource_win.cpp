#include "plugin/host/HostEventSource_win.h"

#include <oaidl.h>

namespace Orva::Plugin {
namespace {

using Microsoft::WRL::ComPtr;

std::optional<IID> FirstConnectionPointIid(IUnknown& object) {
    ComPtr<IConnectionPointContainer> container;
    ComPtr<IEnumConnectionPoints> points;
    if (FAILED(object.QueryInterface(IID_PPV_ARGS(&container))) ||
        FAILED(container->EnumConnectionPoints(&points)) || points == nullptr) {
        return std::nullopt;
    }
    ComPtr<IConnectionPoint> first;
    ULONG fetched = 0;
    IID iid{};
    if (points->Next(1, &first, &fetched) != S_OK || fetched != 1 || first == nullptr ||
        FAILED(first->GetConnectionInterface(&iid))) {
        return std::nullopt;
    }
    return iid;
}

// Frees a TYPEATTR with the type information that gave it.
class TypeAttr {
public:
    explicit TypeAttr(ITypeInfo& info) : m_info(info) {
        if (FAILED(info.GetTypeAttr(&m_attr))) {
            m_attr = nullptr;
        }
    }
    ~TypeAttr() {
        if (m_attr != nullptr) {
            m_info.ReleaseTypeAttr(m_attr);
        }
    }
    TypeAttr(const TypeAttr&) = delete;
    TypeAttr& operator=(const TypeAttr&) = delete;
    const TYPEATTR* get() const { return m_attr; }

private:
    ITypeInfo& m_info;
    TYPEATTR* m_attr = nullptr;
};

}  // namespace

std::optional<IID> FindEventIid(IUnknown& object) {
    ComPtr<IProvideClassInfo2> classInfo;
    IID iid{};
    if (SUCCEEDED(object.QueryInterface(IID_PPV_ARGS(&classInfo))) &&
        SUCCEEDED(classInfo->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &iid))) {
        return iid;
    }
    return FirstConnectionPointIid(object);
}

ComPtr<ITypeInfo> FindEventTypeInfo(IUnknown& object) {
    ComPtr<IProvideClassInfo> provider;
    ComPtr<ITypeInfo> coclass;
    if (FAILED(object.QueryInterface(IID_PPV_ARGS(&provider))) ||
        FAILED(provider->GetClassInfo(&coclass)) || coclass == nullptr) {
        return nullptr;
    }
    const TypeAttr attr(*coclass.Get());
    if (attr.get() == nullptr) {
        return nullptr;
    }
    constexpr INT kDefaultSource = IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE;
    for (UINT i = 0; i < attr.get()->cImplTypes; ++i) {
        INT flags = 0;
        HREFTYPE reference = 0;
        ComPtr<ITypeInfo> source;
        if (SUCCEEDED(coclass->GetImplTypeFlags(i, &flags)) &&
            (flags & kDefaultSource) == kDefaultSource &&
            SUCCEEDED(coclass->GetRefTypeOfImplType(i, &reference)) &&
            SUCCEEDED(coclass->GetRefTypeInfo(reference, &source))) {
            return source;
        }
    }
    return nullptr;
}

}  // namespace Orva::Plugin
