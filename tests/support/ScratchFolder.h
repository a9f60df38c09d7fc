#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace ZelCommon::Fakes {

// A fresh folder under the system's temporary folder that stands in for the add-in's and the
// machine's folders (in a test or a simulated session); removed with everything in it at the
// end. Paths of folders end with the separator, as the add-in's folders do.
class ScratchFolder {
public:
    // `prefix` names the folder's owner, for whoever finds one left behind by a crash.
    explicit ScratchFolder(std::string_view prefix = "orva-test");
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    std::wstring Path() const;
    // The path of a sub-folder; nothing is created.
    std::wstring Folder(const std::wstring& name) const;
    std::wstring File(const std::wstring& name) const;
    const std::filesystem::path& Root() const { return m_root; }
    // How many files and folders it holds.
    std::size_t FileCount() const;

private:
    std::filesystem::path m_root;
};

}  // namespace ZelCommon::Fakes
