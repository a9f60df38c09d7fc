#pragma once

#include <windows.h>
#include <wrl/client.h>

#include <memory>
#include <string>
#include <vector>

#include "plugin/host/FakeHostObject_win.h"
#include "support/MemberDispatch_win.h"

namespace Orva::Testing {

// The host's API object as far as the ribbon goes: `object` records each call in `calls` as
// "Member(arg, ...)" with strings quoted, hands out ids from 500 and gives every drop-down entry
// an object of its own, whose clicks come from its connection point in `entries`. The member
// named `failing` fails as a host does, with a description. The API object's own events come
// from `events`.
class FakeRibbonHost {
public:
    FakeRibbonHost() {
        object->connections = static_cast<IConnectionPointContainer*>(&events);
        object->refusal = L"The ribbon is locked";
        for (const wchar_t* member :
             {L"CreateToolbar", L"AddToolbarButton", L"AddToolbarSubButton",
              L"SetToolbarButtonTooltip", L"SetToolbarButtonCaption", L"EnableToolbarButton"}) {
            object->members[member] = [this, member](const std::vector<VARIANT>& args,
                                                     VARIANT& result) {
                return OnCall(member, args, result);
            };
        }
    }

    std::vector<std::wstring> calls;
    std::wstring failing;
    FakeHostObject events;
    std::vector<std::unique_ptr<FakeHostObject>> entries;
    Microsoft::WRL::ComPtr<MemberDispatch> object = MakeMemberDispatch();

private:
    HRESULT OnCall(const std::wstring& member, const std::vector<VARIANT>& args, VARIANT& result) {
        std::wstring call = member + L"(";
        for (size_t i = 0; i < args.size(); ++i) {
            call += (i > 0 ? L", " : L"") + Describe(args[i]);
        }
        calls.push_back(call + L")");
        if (member == failing) {
            return E_FAIL;
        }
        const LONG id = m_nextId++;
        if (member == L"AddToolbarSubButton") {
            entries.push_back(std::make_unique<FakeHostObject>());
            auto entry = MakeMemberDispatch();
            entry->connections = static_cast<IConnectionPointContainer*>(entries.back().get());
            entry->members[L"Id"] = [id](auto&, VARIANT& answer) {
                V_VT(&answer) = VT_I4;
                V_I4(&answer) = id;
                return S_OK;
            };
            V_VT(&result) = VT_DISPATCH;
            V_DISPATCH(&result) = entry.Detach();
        } else if (member.starts_with(L"Create") || member.starts_with(L"Add")) {
            V_VT(&result) = VT_I4;
            V_I4(&result) = id;
        }
        return S_OK;
    }

    static std::wstring Describe(const VARIANT& arg) {
        switch (V_VT(&arg)) {
            case VT_I4:
                return std::to_wstring(V_I4(&arg));
            case VT_BOOL:
                return V_BOOL(&arg) ? L"true" : L"false";
            case VT_BSTR:
                return L"\"" + std::wstring(V_BSTR(&arg), ::SysStringLen(V_BSTR(&arg))) + L"\"";
            default:
                return L"vt" + std::to_wstring(V_VT(&arg));
        }
    }

    LONG m_nextId = 500;
};

}  // namespace Orva::Testing
