#include "common_src/platform/AppendFile.h"

namespace ZelCommon::Platform {

bool AppendFile::Write(std::string_view bytes) {
    if (!m_file) {
        return false;
    }
    const size_t written =
        bytes.empty() ? 0 : std::fwrite(bytes.data(), 1, bytes.size(), m_file.get());
    return std::fflush(m_file.get()) == 0 && written == bytes.size();
}

}  // namespace ZelCommon::Platform
