#include "support/fakes/platform/FakeWindowMessaging.h"

#include <algorithm>

#include "common_src/platform/WideFormat.h"

namespace ZelCommon::Fakes {

using Platform::WindowHandle;

WindowHandle FakeWindowMessaging::FindByTitle(const std::wstring& title) {
    return Find(&Window::title, title);
}

WindowHandle FakeWindowMessaging::FindByClass(const std::wstring& className) {
    return Find(&Window::className, className);
}

WindowHandle FakeWindowMessaging::Find(const std::wstring Window::*field,
                                       const std::wstring& value) {
    std::lock_guard lock(m_mutex);
    ++m_lookups;
    for (Window& window : m_windows) {
        if (value.empty() || window.*field != value) {
            continue;
        }
        if (window.missedLookups > 0) {
            --window.missedLookups;
            return 0;
        }
        return window.handle;
    }
    return 0;
}

bool FakeWindowMessaging::Post(WindowHandle window, uint32_t message, uintptr_t wParam,
                               intptr_t lParam) {
    bool delivered = false;
    Deliver(window, message, wParam, lParam, Delivery::Posted, delivered);
    return delivered;
}

intptr_t FakeWindowMessaging::Send(WindowHandle window, uint32_t message, uintptr_t wParam,
                                   intptr_t lParam) {
    bool delivered = false;
    return Deliver(window, message, wParam, lParam, Delivery::Sent, delivered);
}

intptr_t FakeWindowMessaging::Deliver(WindowHandle window, uint32_t message, uintptr_t wParam,
                                      intptr_t lParam, Delivery delivery, bool& delivered) {
    Handler handler;
    Message record{window, message, wParam, lParam, delivery, false};
    intptr_t result = 0;
    {
        std::lock_guard lock(m_mutex);
        bool exists = std::any_of(m_windows.begin(), m_windows.end(),
                                  [&](const Window& w) { return w.handle == window; });
        bool refused = false;
        if (const auto failing = m_postFailures.find(window);
            exists && delivery == Delivery::Posted && failing != m_postFailures.end() &&
            failing->second > 0) {
            --failing->second;
            refused = true;
            exists = false;
        }
        record.delivered = exists;
        delivered = exists;
        m_messages.push_back(record);
        if (m_journal != nullptr) {
            std::wstring name = Text::Format(L"0x%Ix", window);
            for (const Window& w : m_windows) {
                if (w.handle == window) {
                    name = !w.title.empty() ? w.title : !w.className.empty() ? w.className : name;
                }
            }
            m_journal->Add(Text::Format(L"%s %s %u %Iu %Id%s",
                                        delivery == Delivery::Posted ? L"post" : L"send", name,
                                        message, wParam, lParam,
                                        refused  ? L" (failed)"
                                        : exists ? L""
                                                 : L" (no window)"));
        }
        if (!exists) {
            return 0;
        }
        if (const auto found = m_handlers.find(window); found != m_handlers.end()) {
            handler = found->second;
        } else if (const auto preset = m_sendResults.find({window, message});
                   preset != m_sendResults.end()) {
            result = preset->second;
        }
    }
    // Outside the lock, so that a handler may post or send in turn.
    if (handler) {
        result = handler(record);
    }
    return delivery == Delivery::Sent ? result : 0;
}

WindowHandle FakeWindowMessaging::AddWindow(std::wstring title, std::wstring className,
                                            unsigned missedLookups) {
    std::lock_guard lock(m_mutex);
    const WindowHandle handle = m_nextHandle;
    m_nextHandle += 0x10;
    m_windows.push_back({handle, std::move(title), std::move(className), missedLookups});
    return handle;
}

void FakeWindowMessaging::RemoveWindow(WindowHandle window) {
    std::lock_guard lock(m_mutex);
    std::erase_if(m_windows, [&](const Window& w) { return w.handle == window; });
    m_handlers.erase(window);
}

bool FakeWindowMessaging::Exists(WindowHandle window) const {
    std::lock_guard lock(m_mutex);
    return std::any_of(m_windows.begin(), m_windows.end(),
                       [&](const Window& w) { return w.handle == window; });
}

void FakeWindowMessaging::SetSendResult(WindowHandle window, uint32_t message, intptr_t result) {
    std::lock_guard lock(m_mutex);
    m_sendResults[{window, message}] = result;
}

void FakeWindowMessaging::SetHandler(WindowHandle window, Handler handler) {
    std::lock_guard lock(m_mutex);
    m_handlers[window] = std::move(handler);
}

std::vector<FakeWindowMessaging::Message> FakeWindowMessaging::Messages() const {
    std::lock_guard lock(m_mutex);
    return m_messages;
}

void FakeWindowMessaging::ClearMessages() {
    std::lock_guard lock(m_mutex);
    m_messages.clear();
}

void FakeWindowMessaging::FailPosts(WindowHandle window, unsigned count) {
    std::lock_guard lock(m_mutex);
    m_postFailures[window] = count;
}

void FakeWindowMessaging::SetJournal(FakeJournal* journal) {
    std::lock_guard lock(m_mutex);
    m_journal = journal;
}

unsigned FakeWindowMessaging::LookupCount() const {
    std::lock_guard lock(m_mutex);
    return m_lookups;
}

}  // namespace ZelCommon::Fakes
