#include <windows.h>

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace {

struct LibraryCloser {
    void operator()(HMODULE module) const { FreeLibrary(module); }
};
using UniqueModule = std::unique_ptr<std::remove_pointer_t<HMODULE>, LibraryCloser>;

UniqueModule LoadAddin() {
    return UniqueModule(LoadLibraryA(ORVA_ADDIN_DLL_PATH));
}

TEST(PluginExports, ExportsAreFoundByNameAndByOrdinal) {
    UniqueModule addin = LoadAddin();
    ASSERT_NE(addin, nullptr) << GetLastError();

    FARPROC byName = GetProcAddress(addin.get(), "InitializePlugin");
    FARPROC byOrdinal = GetProcAddress(addin.get(), MAKEINTRESOURCEA(2000));
    ASSERT_NE(byName, nullptr);
    EXPECT_EQ(byName, byOrdinal);

    FARPROC setWnd = GetProcAddress(addin.get(), "SetWLMBrowserWnd");
    ASSERT_NE(setWnd, nullptr);
    EXPECT_EQ(setWnd, GetProcAddress(addin.get(), MAKEINTRESOURCEA(1000)));
}

TEST(PluginExports, InitializePluginReturnsTrue) {
    UniqueModule addin = LoadAddin();
    ASSERT_NE(addin, nullptr);
    auto initialize =
        reinterpret_cast<BOOL (*)()>(GetProcAddress(addin.get(), "InitializePlugin"));
    ASSERT_NE(initialize, nullptr);
    EXPECT_EQ(initialize(), TRUE);
}

}  // namespace
