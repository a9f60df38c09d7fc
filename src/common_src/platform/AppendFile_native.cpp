#include "common_src/platform/AppendFile.h"
#include "common_src/platform/TextCodec.h"

namespace ZelCommon::Platform {

AppendFile AppendFile::Open(const std::wstring& path) {
    return AppendFile(std::fopen(Text::WideToUtf8(path).c_str(), "a"));
}

}  // namespace ZelCommon::Platform
