#pragma once

#include <filesystem>
#include <string>

namespace Orva::Sim {

// A fresh folder under the system's temporary folder that stands in for the add-in's and the
// machine's folders during one run; removed with everything in it at the end.
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    // Ends with the separator, as the add-in's folders do.
    std::wstring Path() const;
    // A sub-folder, created with its parents; ends with the separator.
    std::wstring Folder(const std::wstring& name) const;

private:
    std::filesystem::path m_root;
};

}  // namespace Orva::Sim
