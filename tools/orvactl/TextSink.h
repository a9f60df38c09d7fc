#pragma once

#include <string>
#include <string_view>

namespace Orva::Orvactl {

// Where the tool's text goes: the console natively or under Windows, a string in tests.
class ITextSink {
public:
    virtual ~ITextSink() = default;
    virtual void Write(std::wstring_view text) = 0;
};

class StringSink : public ITextSink {
public:
    void Write(std::wstring_view text) override { m_text.append(text); }
    const std::wstring& Text() const { return m_text; }

private:
    std::wstring m_text;
};

// The process's standard output and error. Natively UTF-8. On Windows a console gets the wide
// text through WriteConsoleW, so every character shows whatever the console code page is; a
// redirected handle (file or pipe) gets UTF-8 without a byte-order mark.
ITextSink& StandardOutput();
ITextSink& StandardError();

}  // namespace Orva::Orvactl
