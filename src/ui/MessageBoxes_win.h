#pragma once

#include "ui/MessageBoxes.h"

namespace Orva::Ui {

// The system's message boxes (MessageBoxW).
class CMessageBoxes final : public IMessageBoxes {
public:
    BoxAnswer Show(ZelCommon::Platform::WindowHandle owner, const std::wstring& text,
                   const std::wstring& caption, uint32_t style) override;
};

}  // namespace Orva::Ui
