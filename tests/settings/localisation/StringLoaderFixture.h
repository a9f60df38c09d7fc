#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "common_src/ZelCommon/MemoryRegistry.h"
#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/ZelCommon/Registry.h"
#include "common_src/platform/Path.h"
#include "settings/localisation/ZelResourceStringLoader.h"
#include "settings/probes/ProbeLog.h"
#include "support/TempFolder.h"
#include "support/fakes/platform/FakeLocale.h"
#include "support/fakes/platform/FakeProcessContext.h"

namespace Orva::Testing {

// The log lines hold `wanted` in this order, other lines between them allowed.
MATCHER_P(HasInOrder, wanted, "holds " + testing::PrintToString(wanted) + " in this order") {
    auto at = arg.begin();
    for (const std::wstring& line : wanted) {
        at = std::find(at, arg.end(), line);
        if (at == arg.end()) {
            return false;
        }
        ++at;
    }
    return true;
}

// An installed product in a temporary folder: the add-in module and its installation file in
// "install/", the product key naming "install/" as the installation path, string tables under
// "install/ORVA/Resource/x86/<locale>/", and a system locale, registry and log of the test's.
class StringLoaderTest : public testing::Test {
protected:
    static constexpr const wchar_t* kProductKey = L"SOFTWARE\\Halvion\\Corelane\\1700\\ORVA";

    StringLoaderTest() {
        process.SetModuleFilePath(ZelCommon::Path::ChildFile(InstallFolder(), L"ORVA_WLMA.dll"));
        ZelCommon::Path::CreateFolderWithParents(InstallFolder());
        SetMachineValue(kProductKey, L"ORVAInstallPath", InstallFolder());
    }

    // A relative path written with "/" in this build's separator.
    static std::wstring Native(std::wstring path) {
        std::replace(path.begin(), path.end(), L'/', ZelCommon::Path::kSeparator);
        return path;
    }

    std::wstring InstallFolder() const { return temp.Folder(L"install"); }
    std::wstring InstallFile() const {
        return ZelCommon::Path::ChildFile(InstallFolder(), L"ORVA_WLM.ini");
    }
    std::wstring ResourceFolder() const {
        using ZelCommon::Path::ChildFolder;
        return ChildFolder(ChildFolder(ChildFolder(InstallFolder(), L"ORVA"), L"Resource"), L"x86");
    }
    std::wstring TableOf(const std::wstring& localeName) const {
        return ZelCommon::Path::ChildFile(
            ZelCommon::Path::ChildFolder(ResourceFolder(), localeName), L"StringTable.ini");
    }

    void WriteEntry(const std::wstring& file, const std::wstring& section, const std::wstring& key,
                    const std::wstring& value) {
        ZelCommon::Path::CreateFolderWithParents(ZelCommon::Path::FolderOf(file));
        ASSERT_TRUE(profile.WriteString(section.c_str(), key.c_str(), value.c_str(), file.c_str()));
    }
    void WriteTable(const std::wstring& localeName, const std::wstring& key,
                    const std::wstring& value, const std::wstring& section = L"ORVA_WLM") {
        WriteEntry(TableOf(localeName), section, key, value);
    }
    void WriteLanguageMap(uint32_t lcid, const std::wstring& localeName) {
        WriteEntry(ZelCommon::Path::ChildFile(ResourceFolder(), L"LanguageMap.ini"), L"LCID2NAME",
                   std::to_wstring(lcid), localeName);
    }
    void SetMachineValue(const std::wstring& key, const std::wstring& name,
                         const std::wstring& value) {
        ZelCommon::Storage::Registry store(registry);
        store.Create(ZelCommon::Storage::RegRoot::LocalMachine, key, 0);
        store.SetString(name, value);
    }

    Settings::StringLoaderServices Services() {
        return Settings::StringLoaderServices{profile,
                                              registry,
                                              locale,
                                              process,
                                              log.Log(),
                                              [this] { return windows64; },
                                              DefaultInstallFolder()};
    }
    std::wstring DefaultInstallFolder() const { return temp.Folder(L"default-install"); }

    // The log lines written since the last call, without their line breaks.
    std::vector<std::wstring> TakeLines() {
        std::vector<std::wstring> lines;
        const std::vector<std::wstring> all = log.Lines();
        for (std::size_t i = m_linesSeen; i < all.size(); ++i) {
            std::wstring line = all[i];
            if (!line.empty() && line.back() == L'\n') {
                line.pop_back();
            }
            lines.push_back(line);
        }
        m_linesSeen = all.size();
        return lines;
    }

    TempFolder temp;
    ZelCommon::Storage::IProfileApi& profile = ZelCommon::Storage::SystemProfileApi();
    ZelCommon::Storage::MemoryRegistry registry;
    ZelCommon::Fakes::FakeLocale locale;
    ZelCommon::Fakes::FakeProcessContext process;
    ProbeLog log;
    bool windows64 = false;

private:
    std::size_t m_linesSeen = 0;
};

}  // namespace Orva::Testing
