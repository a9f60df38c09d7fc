#include "common_src/win32/MuiResource.h"

#include <new>

#include "common_src/platform/Path.h"

namespace ZelCommon::Win32 {

std::unique_ptr<ResourceHandle> LoadMuiResource(const std::function<std::wstring()>& resourceFolder,
                                                Platform::IDebuggerOutput& debugger) {
    std::unique_ptr<ResourceHandle> holder;
    try {
        holder = std::make_unique<ResourceHandle>();
    } catch (const std::bad_alloc&) {
        debugger.Write(L"Failed to create mui resource");
        return nullptr;
    }
    const std::wstring folder = resourceFolder ? resourceFolder() : std::wstring();
    if (folder.empty()) {
        debugger.Write(L"Failed to get mui resource folder path!!");
        return holder;
    }
    if (!holder->Load(Path::ChildFile(folder, kMuiFileName))) {
        debugger.Write(L"Failed to load MUI resource");
    }
    return holder;
}

}  // namespace ZelCommon::Win32
