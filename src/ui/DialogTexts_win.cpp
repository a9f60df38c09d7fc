#include "ui/DialogTexts_win.h"

#include <commctrl.h>

#include <algorithm>

#include "ui/Headline.h"

namespace Orva::Ui {

using ZelCommon::Platform::unique_hfont;

void ApplyControlTexts(HWND dialog, std::span<const ControlText> texts,
                       Settings::ILocalisedStrings& strings) {
    for (const ControlText& text : texts) {
        const std::wstring shown = strings.LoadShown(std::wstring(text.stringId));
        if (!shown.empty()) {
            ::SetDlgItemTextW(dialog, text.controlId, shown.c_str());
        }
    }
}

namespace {

int CALLBACK NoteFaceFound(const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM found) {
    *reinterpret_cast<bool*>(found) = true;
    return 0;
}

bool FaceInstalled(HDC dc, const std::wstring& face) {
    LOGFONTW wanted{};
    wanted.lfCharSet = DEFAULT_CHARSET;
    face.copy(wanted.lfFaceName, LF_FACESIZE - 1);
    bool found = false;
    ::EnumFontFamiliesExW(dc, &wanted, &NoteFaceFound, reinterpret_cast<LPARAM>(&found), 0);
    return found;
}

// A bold headline font of `points` in `face`, as tall on this screen as the point size says;
// the dialog's own face when `face` is empty or not installed.
unique_hfont CreateHeadlineFont(HWND dialog, const std::wstring& face, int points) {
    LOGFONTW font{};
    if (const auto dialogFont = reinterpret_cast<HFONT>(::SendMessageW(dialog, WM_GETFONT, 0, 0))) {
        ::GetObjectW(dialogFont, sizeof(font), &font);
    }
    const HDC dc = ::GetDC(dialog);
    if (dc == nullptr) {
        return unique_hfont();
    }
    font.lfHeight = FontHeight(points, ::GetDeviceCaps(dc, LOGPIXELSY));
    font.lfWidth = 0;
    font.lfWeight = FW_BOLD;
    if (!face.empty() && face.size() < LF_FACESIZE && FaceInstalled(dc, face)) {
        face.copy(font.lfFaceName, LF_FACESIZE - 1);
        font.lfFaceName[face.size()] = L'\0';
    }
    ::ReleaseDC(dialog, dc);
    return unique_hfont(::CreateFontIndirectW(&font));
}

}  // namespace

CToolTips::CToolTips(HWND owner)
    : m_owner(owner),
      m_tips(::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                               WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, CW_USEDEFAULT,
                               CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, owner, nullptr, nullptr,
                               nullptr)) {
    if (m_tips) {
        // Long tooltips wrap instead of running across the screen.
        ::SendMessageW(m_tips.get(), TTM_SETMAXTIPWIDTH, 0, 300);
        ::SendMessageW(m_tips.get(), TTM_ACTIVATE, TRUE, 0);
    }
}

void CToolTips::Add(HWND control, const std::wstring& text) {
    if (!m_tips || control == nullptr || text.empty()) {
        return;
    }
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof(tool);
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = m_owner;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = const_cast<wchar_t*>(text.c_str());
    ::SendMessageW(m_tips.get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

unique_hfont SetHeadlineFont(HWND dialog, std::initializer_list<int> headlines,
                             Settings::ILocalisedStrings& strings, std::wstring_view faceId,
                             std::wstring_view sizeId) {
    const FontSpec wanted = HeadlineFont(strings, faceId, sizeId);
    unique_hfont font = CreateHeadlineFont(dialog, wanted.face, wanted.points);
    for (const int headline : headlines) {
        ::SendDlgItemMessageW(dialog, headline, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()),
                              FALSE);
    }
    return font;
}

std::wstring WindowText(HWND window) {
    const int length = ::GetWindowTextLengthW(window);
    std::wstring text(static_cast<std::size_t>(std::max(length, 0)) + 1, L'\0');
    const int copied = ::GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(std::clamp(copied, 0, length)));
    return text;
}

}  // namespace Orva::Ui
