#include "settings/probes/FileVersionReader.h"

namespace Orva::Settings {

// Natively no file carries a Windows version resource.
struct FileVersionReader::Block {};

FileVersionReader::FileVersionReader(const std::wstring&) {}
FileVersionReader::~FileVersionReader() = default;

std::optional<std::wstring> FileVersionReader::Query(const std::wstring&) const {
    return std::nullopt;
}

bool FileVersionReader::HasVersionBlock() const {
    return false;
}

}  // namespace Orva::Settings
