#include <windows.h>

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace {

struct LibraryCloser {
    void operator()(HMODULE module) const { FreeLibrary(module); }
};
using UniqueModule = std::unique_ptr<std::remove_pointer_t<HMODULE>, LibraryCloser>;

// The build copies the add-in beside this test program, where LoadLibrary looks first.
UniqueModule LoadAddin() { return UniqueModule(LoadLibraryW(L"ORVA_WLMA.dll")); }

template <class Function>
Function ExportAs(FARPROC address) {
    // Going through void(*)() is the documented way to silence the function-type cast warning.
    return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(address));
}

TEST(PluginExports, ExportsAreFoundByNameAndByOrdinal) {
    UniqueModule addin = LoadAddin();
    ASSERT_NE(addin, nullptr) << GetLastError();

    FARPROC initialize = GetProcAddress(addin.get(), "InitializePlugin");
    ASSERT_NE(initialize, nullptr);
    EXPECT_EQ(initialize, GetProcAddress(addin.get(), MAKEINTRESOURCEA(2000)));

    FARPROC setWnd = GetProcAddress(addin.get(), "SetWLMBrowserWnd");
    ASSERT_NE(setWnd, nullptr);
    EXPECT_EQ(setWnd, GetProcAddress(addin.get(), MAKEINTRESOURCEA(1000)));
}

TEST(PluginExports, InitializePluginReturnsTrue) {
    UniqueModule addin = LoadAddin();
    ASSERT_NE(addin, nullptr) << GetLastError();
    auto initialize = ExportAs<BOOL (*)()>(GetProcAddress(addin.get(), "InitializePlugin"));
    ASSERT_NE(initialize, nullptr);
    EXPECT_EQ(initialize(), TRUE);
}

}  // namespace
