#pragma once

#include <cstdint>
#include <string>

namespace Orva::Plugin {

// The host's ribbon, as its toolbar interface offers it: the six calls the add-in needs. Each
// call that makes an item returns the host's id for it; every call throws HostCallError
// (HostObjects.h) with the host's failure.
class IHostToolbar {
public:
    virtual ~IHostToolbar() = default;

    virtual int32_t CreateGroup(const std::wstring& caption) = 0;
    // A plain button of `group`; `imageFile` is the full path of its bitmap.
    virtual int32_t AddButton(int32_t group, const std::wstring& caption,
                              const std::wstring& imageFile) = 0;
    // An entry of the drop-down of `button`; its clicks reach the controller as the drop-down
    // event `entryEvent` (DropDownEntry in ControllerProtocol.h).
    virtual int32_t AddDropDownEntry(int32_t group, int32_t button, const std::wstring& caption,
                                     int32_t entryEvent) = 0;
    virtual void SetTooltip(int32_t group, int32_t button, const std::wstring& tooltip) = 0;
    virtual void SetCaption(int32_t group, int32_t button, const std::wstring& caption) = 0;
    virtual void EnableButton(int32_t group, int32_t button, bool enable) = 0;
};

}  // namespace Orva::Plugin
