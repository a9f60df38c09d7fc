#pragma once

#include <memory>
#include <string>

namespace ZelCommon::Win32 {

// Owns a module loaded as a data file only (LoadLibraryExW with LOAD_LIBRARY_AS_DATAFILE): the
// language resource module, whose resources are read but whose code never runs. Natively only
// the file's existence is checked. Move-only; the module is freed with its owner.
class ResourceHandle {
public:
    ResourceHandle() = default;
    ResourceHandle(ResourceHandle&&) noexcept = default;
    ResourceHandle& operator=(ResourceHandle&&) noexcept = default;
    ResourceHandle(const ResourceHandle&) = delete;
    ResourceHandle& operator=(const ResourceHandle&) = delete;
    ~ResourceHandle() = default;

    // Frees what was loaded before, then loads `path`; returns whether it is loaded.
    bool Load(const std::wstring& path);
    void Reset();

    bool IsLoaded() const { return static_cast<bool>(m_module); }
    // The HMODULE on Windows, for the resource functions; null while nothing is loaded.
    void* Module() const { return m_module.get(); }
    const std::wstring& Path() const { return m_path; }

private:
    struct Closer {
        void operator()(void* module) const;
    };

    std::unique_ptr<void, Closer> m_module;
    std::wstring m_path;
};

}  // namespace ZelCommon::Win32
