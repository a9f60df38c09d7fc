#include "support/fakes/plugin/FakeHostToolbar.h"

#include "plugin/host/HostObjects.h"

namespace ZelCommon::Fakes {

std::wstring FakeRibbonItem::Describe() const {
    std::wstring text = std::to_wstring(id);
    if (id == group) {
        text += L" group";
    } else if (entryEvent >= 0) {
        text += L" entry " + std::to_wstring(entryEvent) + L" of " + std::to_wstring(parent);
    } else {
        text += L" button";
    }
    text += L" \"" + caption + L"\"";
    if (!image.empty()) {
        text += L" image " + image.substr(image.find_last_of(L"\\/") + 1);
    }
    if (!tooltip.empty()) {
        text += L" tooltip \"" + tooltip + L"\"";
    }
    return enabled ? text : text + L" disabled";
}

void FakeHostToolbar::Call() {
    if (++m_calls == m_failingCall) {
        throw Orva::Plugin::HostCallError("Unspecified error");
    }
}

int32_t FakeHostToolbar::Add(FakeRibbonItem item) {
    item.id = firstId + static_cast<int32_t>(items.size());
    items.push_back(item);
    return item.id;
}

const FakeRibbonItem* FakeHostToolbar::Find(int32_t id) const {
    for (const FakeRibbonItem& item : items) {
        if (item.id == id) {
            return &item;
        }
    }
    return nullptr;
}

// The host refuses an item it never made, or one named with the wrong group.
FakeRibbonItem& FakeHostToolbar::Existing(int32_t group, int32_t button) {
    for (FakeRibbonItem& item : items) {
        if (item.id == button && item.group == group) {
            return item;
        }
    }
    throw Orva::Plugin::HostCallError("Invalid argument");
}

int32_t FakeHostToolbar::CreateGroup(const std::wstring& caption) {
    Call();
    FakeRibbonItem group;
    group.caption = caption;
    const int32_t id = Add(group);
    items.back().group = id;
    return id;
}

int32_t FakeHostToolbar::AddButton(int32_t group, const std::wstring& caption,
                                   const std::wstring& imageFile) {
    Call();
    Existing(group, group);
    FakeRibbonItem button;
    button.group = group;
    button.parent = group;
    button.caption = caption;
    button.image = imageFile;
    return Add(button);
}

int32_t FakeHostToolbar::AddDropDownEntry(int32_t group, int32_t button,
                                          const std::wstring& caption, int32_t entryEvent) {
    Call();
    Existing(group, button);
    FakeRibbonItem entry;
    entry.group = group;
    entry.parent = button;
    entry.caption = caption;
    entry.entryEvent = entryEvent;
    return Add(entry);
}

void FakeHostToolbar::SetTooltip(int32_t group, int32_t button, const std::wstring& tooltip) {
    Call();
    Existing(group, button).tooltip = tooltip;
}

void FakeHostToolbar::SetCaption(int32_t group, int32_t button, const std::wstring& caption) {
    Call();
    Existing(group, button).caption = caption;
}

void FakeHostToolbar::EnableButton(int32_t group, int32_t button, bool enable) {
    Call();
    Existing(group, button).enabled = enable;
}

}  // namespace ZelCommon::Fakes
