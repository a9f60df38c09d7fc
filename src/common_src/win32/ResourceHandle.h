#pragma once

#include <memory>
#include <string>

namespace ZelCommon::Win32 {

// Owns a module loaded as a data file only (LoadLibraryExW with LOAD_LIBRARY_AS_DATAFILE): the
// language resource module, whose resources are read but whose code never runs. Natively only
// the file's existence is checked. Move-only; the module is freed with its owner.
class ResourceHandle {
public:
    ResourceHandle();
    ResourceHandle(ResourceHandle&&) noexcept;
    ResourceHandle& operator=(ResourceHandle&&) noexcept;
    ResourceHandle(const ResourceHandle&) = delete;
    ResourceHandle& operator=(const ResourceHandle&) = delete;
    ~ResourceHandle();

    // Frees what was loaded before, then loads `path`; returns whether it is loaded.
    bool Load(const std::wstring& path);
    void Reset();

    bool IsLoaded() const { return m_module != nullptr; }
    // The HMODULE on Windows, for the resource functions; null while nothing is loaded.
    void* Module() const;
    const std::wstring& Path() const { return m_path; }

private:
    // The module as each platform holds it.
    struct Loaded;

    std::unique_ptr<Loaded> m_module;
    std::wstring m_path;
};

}  // namespace ZelCommon::Win32
