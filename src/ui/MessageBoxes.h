#pragma once

#include <cstdint>
#include <string>

#include "common_src/platform/WindowMessaging.h"

namespace Orva::Ui {

enum class BoxAnswer { Ok, Cancel, Yes, No };

// The style bits of a message box, with the values of the MB_* constants.
namespace BoxStyle {
inline constexpr uint32_t kOk = 0x0;
inline constexpr uint32_t kOkCancel = 0x1;
inline constexpr uint32_t kYesNo = 0x4;
inline constexpr uint32_t kIconError = 0x10;
inline constexpr uint32_t kIconQuestion = 0x20;
inline constexpr uint32_t kIconExclamation = 0x30;
inline constexpr uint32_t kIconInformation = 0x40;
}  // namespace BoxStyle

// Message boxes, so that what follows the user's answer is tested without a window.
class IMessageBoxes {
public:
    virtual ~IMessageBoxes() = default;
    // Modal over `owner`; a box that cannot be shown answers Cancel.
    virtual BoxAnswer Show(ZelCommon::Platform::WindowHandle owner, const std::wstring& text,
                           const std::wstring& caption, uint32_t style) = 0;
};

}  // namespace Orva::Ui
