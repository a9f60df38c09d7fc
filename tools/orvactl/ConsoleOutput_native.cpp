#include <cstdio>

#include "TextSink.h"
#include "common_src/platform/TextCodec.h"

namespace Orva::Orvactl {
namespace {

class Utf8StreamSink : public ITextSink {
public:
    explicit Utf8StreamSink(std::FILE* stream) : m_stream(stream) {}
    void Write(std::wstring_view text) override {
        const std::string bytes = ZelCommon::Text::WideToUtf8(text);
        std::fwrite(bytes.data(), 1, bytes.size(), m_stream);
        std::fflush(m_stream);
    }

private:
    std::FILE* m_stream;
};

}  // namespace

ITextSink& StandardOutput() {
    static Utf8StreamSink sink(stdout);
    return sink;
}

ITextSink& StandardError() {
    static Utf8StreamSink sink(stderr);
    return sink;
}

}  // namespace Orva::Orvactl
