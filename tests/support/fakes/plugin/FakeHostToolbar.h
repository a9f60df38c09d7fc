#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "plugin/host/HostToolbar.h"

namespace ZelCommon::Fakes {

// One item the host's ribbon was given. A group has no parent; a drop-down entry has its event.
struct FakeRibbonItem {
    int32_t id = 0;
    int32_t group = 0;
    int32_t parent = 0;
    std::wstring caption;
    std::wstring image;
    std::wstring tooltip;
    int32_t entryEvent = -1;
    bool enabled = true;

    // "1003 entry 1 of 1001 \"Statistics\"", with the image's file name and the tooltip when the
    // item has them, and "disabled" when it is greyed.
    std::wstring Describe() const;
};

// The host's ribbon as a list of items, ids handed out from `firstId` up. A test can make one
// call fail, counting every call from 1, as the host fails with a COM error.
class FakeHostToolbar final : public Orva::Plugin::IHostToolbar {
public:
    int32_t CreateGroup(const std::wstring& caption) override;
    int32_t AddButton(int32_t group, const std::wstring& caption,
                      const std::wstring& imageFile) override;
    int32_t AddDropDownEntry(int32_t group, int32_t button, const std::wstring& caption,
                             int32_t entryEvent) override;
    void SetTooltip(int32_t group, int32_t button, const std::wstring& tooltip) override;
    void SetCaption(int32_t group, int32_t button, const std::wstring& caption) override;
    void EnableButton(int32_t group, int32_t button, bool enable) override;

    void FailCall(int number) { m_failingCall = number; }
    int Calls() const { return m_calls; }
    // The item with `id`, or null.
    const FakeRibbonItem* Find(int32_t id) const;

    std::vector<FakeRibbonItem> items;
    int32_t firstId = 1000;

private:
    void Call();
    int32_t Add(FakeRibbonItem item);
    FakeRibbonItem& Existing(int32_t group, int32_t button);

    int m_calls = 0;
    int m_failingCall = 0;
};

}  // namespace ZelCommon::Fakes
