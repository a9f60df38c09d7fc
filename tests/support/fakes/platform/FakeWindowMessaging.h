#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "common_src/platform/WindowMessaging.h"
#include "support/fakes/platform/FakeJournal.h"

namespace ZelCommon::Fakes {

// Windows that exist only in memory. Every post and send is recorded in order, delivered or not
// (a message to a window that does not exist is recorded with delivered == false).
class FakeWindowMessaging final : public Platform::IWindowMessaging {
public:
    enum class Delivery { Posted, Sent };

    struct Message {
        Platform::WindowHandle window = 0;
        uint32_t message = 0;
        uintptr_t wParam = 0;
        intptr_t lParam = 0;
        Delivery delivery = Delivery::Posted;
        bool delivered = false;
        bool operator==(const Message&) const = default;
    };

    // Answers a delivered post or send; its result is what Send returns.
    using Handler = std::function<intptr_t(const Message&)>;

    Platform::WindowHandle FindByTitle(const std::wstring& title) override;
    Platform::WindowHandle FindByClass(const std::wstring& className) override;
    bool Post(Platform::WindowHandle window, uint32_t message, uintptr_t wParam,
              intptr_t lParam) override;
    intptr_t Send(Platform::WindowHandle window, uint32_t message, uintptr_t wParam,
                  intptr_t lParam) override;

    // Creates a window; an empty title or class never matches a search by it. The window stays
    // hidden from the first `missedLookups` searches that would have found it.
    Platform::WindowHandle AddWindow(std::wstring title, std::wstring className = {},
                                     unsigned missedLookups = 0);
    void RemoveWindow(Platform::WindowHandle window);
    bool Exists(Platform::WindowHandle window) const;

    // What Send returns for `message` to `window` when no handler is set (0 otherwise).
    void SetSendResult(Platform::WindowHandle window, uint32_t message, intptr_t result);
    void SetHandler(Platform::WindowHandle window, Handler handler);
    // The next `count` posts to `window` fail as a full message queue would (not delivered).
    void FailPosts(Platform::WindowHandle window, unsigned count);

    std::vector<Message> Messages() const;
    void ClearMessages();
    unsigned LookupCount() const;
    // Also writes each post and send into `journal` as "post|send <title, else class, else
    // handle> <message> <wParam> <lParam>", with " (no window)" when it was not delivered.
    void SetJournal(FakeJournal* journal);

private:
    struct Window {
        Platform::WindowHandle handle = 0;
        std::wstring title;
        std::wstring className;
        unsigned missedLookups = 0;
    };

    Platform::WindowHandle Find(const std::wstring Window::*field, const std::wstring& value);
    intptr_t Deliver(Platform::WindowHandle window, uint32_t message, uintptr_t wParam,
                     intptr_t lParam, Delivery delivery, bool& delivered);

    mutable std::mutex m_mutex;
    std::vector<Window> m_windows;
    std::vector<Message> m_messages;
    std::map<std::tuple<Platform::WindowHandle, uint32_t>, intptr_t> m_sendResults;
    std::map<Platform::WindowHandle, Handler> m_handlers;
    std::map<Platform::WindowHandle, unsigned> m_postFailures;
    Platform::WindowHandle m_nextHandle = 0x10010;
    unsigned m_lookups = 0;
    FakeJournal* m_journal = nullptr;
};

}  // namespace ZelCommon::Fakes
