#include <windows.h>

#include "TextSink.h"
#include "common_src/platform/TextCodec.h"

namespace Orva::Orvactl {
namespace {

class HandleSink : public ITextSink {
public:
    explicit HandleSink(DWORD which) : m_which(which) {}
    void Write(std::wstring_view text) override {
        const HANDLE handle = GetStdHandle(m_which);
        if (handle == nullptr || handle == INVALID_HANDLE_VALUE) {
            return;
        }
        DWORD mode = 0;
        if (GetFileType(handle) == FILE_TYPE_CHAR && GetConsoleMode(handle, &mode)) {
            WriteConsoleText(handle, text);
            return;
        }
        const std::string bytes = ZelCommon::Text::WideToUtf8(text);
        DWORD written = 0;
        WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    }

private:
    static void WriteConsoleText(HANDLE console, std::wstring_view text) {
        // Chunks keep each call well under the console's buffer limit.
        constexpr size_t kChunk = 8192;
        for (size_t at = 0; at < text.size(); at += kChunk) {
            const std::wstring_view part = text.substr(at, kChunk);
            DWORD written = 0;
            WriteConsoleW(console, part.data(), static_cast<DWORD>(part.size()), &written, nullptr);
        }
    }

    DWORD m_which;
};

}  // namespace

ITextSink& StandardOutput() {
    static HandleSink sink(STD_OUTPUT_HANDLE);
    return sink;
}

ITextSink& StandardError() {
    static HandleSink sink(STD_ERROR_HANDLE);
    return sink;
}

}  // namespace Orva::Orvactl
