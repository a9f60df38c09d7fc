#include "plugin/host/HostConnection_win.h"

#include <algorithm>
#include <array>
#include <utility>

#include "plugin/host/HostEventSource_win.h"
#include "plugin/host/HostObjects.h"

namespace Orva::Plugin {

using Microsoft::WRL::ComPtr;

std::string HResultText(HRESULT status) {
    std::array<char, 512> buffer{};
    const DWORD length = ::FormatMessageA(
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
        static_cast<DWORD>(status), 0, buffer.data(), static_cast<DWORD>(buffer.size()), nullptr);
    std::string text(buffer.data(), std::min<std::size_t>(length, buffer.size()));
    while (!text.empty() && (text.back() == '\r' || text.back() == '\n' || text.back() == ' ')) {
        text.pop_back();
    }
    if (!text.empty()) {
        return text;
    }
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string hex = "0x";
    const auto bits = static_cast<uint32_t>(status);
    for (int shift = 28; shift >= 0; shift -= 4) {
        hex += kDigits[(bits >> shift) & 0xFu];
    }
    return hex;
}

CHostConnection::CHostConnection(ComPtr<IConnectionPoint> point, DWORD cookie)
    : m_point(std::move(point)), m_cookie(cookie) {}

CHostConnection::~CHostConnection() {
    UnadviseQuietly();
}

CHostConnection::CHostConnection(CHostConnection&& other) noexcept
    : m_point(std::exchange(other.m_point, nullptr)), m_cookie(std::exchange(other.m_cookie, 0)) {}

CHostConnection& CHostConnection::operator=(CHostConnection&& other) noexcept {
    if (this != &other) {
        UnadviseQuietly();
        m_point = std::exchange(other.m_point, nullptr);
        m_cookie = std::exchange(other.m_cookie, 0);
    }
    return *this;
}

void CHostConnection::Unadvise() {
    const ComPtr<IConnectionPoint> point = std::exchange(m_point, nullptr);
    if (point == nullptr) {
        return;
    }
    if (const HRESULT status = point->Unadvise(std::exchange(m_cookie, 0)); FAILED(status)) {
        throw HostCallError(HResultText(status));
    }
}

void CHostConnection::UnadviseQuietly() noexcept {
    if (const ComPtr<IConnectionPoint> point = std::exchange(m_point, nullptr); point != nullptr) {
        point->Unadvise(std::exchange(m_cookie, 0));
    }
}

std::optional<CHostConnection> ConnectSink(IUnknown& object, CDispatchSink& sink) {
    const std::optional<IID> iid = FindEventIid(object);
    ComPtr<IConnectionPointContainer> container;
    ComPtr<IConnectionPoint> point;
    // A host may report success and hand back nothing.
    if (!iid || FAILED(object.QueryInterface(IID_PPV_ARGS(&container))) || container == nullptr ||
        FAILED(container->FindConnectionPoint(*iid, &point)) || point == nullptr) {
        return std::nullopt;
    }
    if (const ComPtr<ITypeInfo> events = FindEventTypeInfo(object); events != nullptr) {
        sink.ResolveDispIds(*events.Get());
    }
    sink.SetEventIid(*iid);
    DWORD cookie = 0;
    if (FAILED(point->Advise(static_cast<IDispatch*>(&sink), &cookie))) {
        return std::nullopt;
    }
    return CHostConnection(std::move(point), cookie);
}

}  // namespace Orva::Plugin
