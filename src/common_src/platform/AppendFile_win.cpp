#include <stdio.h>

#include "common_src/platform/AppendFile.h"

namespace ZelCommon::Platform {

AppendFile AppendFile::Open(const std::wstring& path) {
    return AppendFile(::_wfopen(path.c_str(), L"a"));
}

}  // namespace ZelCommon::Platform
