#include "ui/MessageBoxes_win.h"

#include <windows.h>

namespace Orva::Ui {

static_assert(BoxStyle::kOk == MB_OK && BoxStyle::kOkCancel == MB_OKCANCEL &&
              BoxStyle::kYesNo == MB_YESNO && BoxStyle::kIconError == MB_ICONERROR &&
              BoxStyle::kIconQuestion == MB_ICONQUESTION &&
              BoxStyle::kIconExclamation == MB_ICONEXCLAMATION &&
              BoxStyle::kIconInformation == MB_ICONINFORMATION);

BoxAnswer CMessageBoxes::Show(ZelCommon::Platform::WindowHandle owner, const std::wstring& text,
                              const std::wstring& caption, uint32_t style) {
    switch (::MessageBoxW(reinterpret_cast<HWND>(owner), text.c_str(), caption.c_str(), style)) {
        case IDOK:
            return BoxAnswer::Ok;
        case IDYES:
            return BoxAnswer::Yes;
        case IDNO:
            return BoxAnswer::No;
        default:
            // IDCANCEL, and 0 when the box could not be shown.
            return BoxAnswer::Cancel;
    }
}

}  // namespace Orva::Ui
