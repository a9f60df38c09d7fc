#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "StringLoaderFixture.h"
#include "settings/localisation/OnlineHelpAddress.h"
#include "settings/localisation/ZelResourceStringLoader.h"

namespace Orva::Testing {
namespace {

using testing::ElementsAre;

using StringLoaderLocationTest = StringLoaderTest;

TEST_F(StringLoaderLocationTest, OrvaRegInTheInstallationFile_NamesTheProductKey) {
    WriteEntry(InstallFile(), L"General", L"OrvaReg", L"SOFTWARE\\Elsewhere\\ORVA");
    SetMachineValue(L"SOFTWARE\\Elsewhere\\ORVA", L"ORVAInstallPath", temp.Folder(L"other"));
    ZelResourceStringLoader loader(Services());
    TakeLines();

    EXPECT_EQ(loader.GetResourcePath(), temp.Folder(L"other") + Native(L"ORVA/Resource/x86/"));
    EXPECT_THAT(TakeLines(), ElementsAre(L"ORVA registry path: [SOFTWARE\\Elsewhere\\ORVA]",
                                         L"String Table Path: [" + temp.Folder(L"other") +
                                             Native(L"ORVA/Resource/x86/]")));
}

TEST_F(StringLoaderLocationTest, BlankOrvaReg_MeansTheUsualProductKey) {
    WriteEntry(InstallFile(), L"General", L"OrvaReg", L"");
    ZelResourceStringLoader loader(Services());

    EXPECT_EQ(loader.GetOrvaRegPath(), kProductKey);
    EXPECT_EQ(loader.GetResourcePath(), ResourceFolder());
}

TEST_F(StringLoaderLocationTest, NoInstallPathInTheRegistry_UsesTheDefaultFolder) {
    WriteEntry(InstallFile(), L"General", L"OrvaReg", L"SOFTWARE\\Missing");
    ZelResourceStringLoader loader(Services());
    TakeLines();

    EXPECT_EQ(loader.GetResourcePath(), DefaultInstallFolder() + Native(L"ORVA/Resource/x86/"));
    EXPECT_THAT(TakeLines(), ElementsAre(L"ORVA registry path: [SOFTWARE\\Missing]",
                                         L"Can't find resource folder path from registry",
                                         L"String Table Path: [" + DefaultInstallFolder() +
                                             Native(L"ORVA/Resource/x86/]")));
}

// Records the access every key is opened with, and lets the in-memory registry answer.
class AccessRecordingRegistry : public ZelCommon::Storage::MemoryRegistry {
public:
    int32_t OpenKey(ZelCommon::Storage::RegHandle parent, const wchar_t* subKey, uint32_t access,
                    ZelCommon::Storage::RegHandle* result) override {
        accesses.push_back(access);
        return MemoryRegistry::OpenKey(parent, subKey, access, result);
    }
    std::vector<uint32_t> accesses;
};

TEST_F(StringLoaderLocationTest, ProductKey_IsReadFromThe32BitViewOnA64BitWindows) {
    for (const bool on64 : {false, true}) {
        AccessRecordingRegistry recording;
        ZelCommon::Storage::Registry key(recording);
        key.Create(ZelCommon::Storage::RegRoot::LocalMachine, kProductKey, 0);
        key.SetString(L"ORVAInstallPath", InstallFolder());
        int probes = 0;
        const auto probe = [&probes, on64] {
            ++probes;
            return on64;
        };
        ZelResourceStringLoader loader(Settings::StringLoaderServices{
            profile, recording, locale, process, log.Log(), probe, DefaultInstallFolder()});
        EXPECT_EQ(probes, 0);

        EXPECT_EQ(loader.GetResourcePath(), ResourceFolder());

        EXPECT_EQ(probes, 1);
        ASSERT_EQ(recording.accesses.size(), 1u);
        EXPECT_EQ(recording.accesses[0] & ZelCommon::Storage::RegAccess::Wow64_32Key,
                  on64 ? ZelCommon::Storage::RegAccess::Wow64_32Key : 0u);
    }
}

TEST_F(StringLoaderLocationTest, ResourceFolder_FollowsTheLanguageChoice) {
    locale.SetSystemDefaultLcid(0x0C07);  // de-AT
    ZelCommon::Path::CreateFolderWithParents(ResourceFolder() + L"de-DE");
    ZelCommon::Path::CreateFolderWithParents(ResourceFolder() + L"en-US");
    ZelResourceStringLoader loader(Services());
    TakeLines();

    EXPECT_EQ(loader.GetResFolderByAutoDetectLanguage(), ResourceFolder() + Native(L"de-DE/"));
    EXPECT_THAT(TakeLines(),
                HasInOrder(std::vector<std::wstring>{
                    L"Start mapping primary language ID due to <de-AT> resource folder is not "
                    L"existed: [" +
                        ResourceFolder() + Native(L"de-AT/]"),
                    L"Primary language mapped result: [de-DE]",
                    L"Lang: [de-DE], Resource Folder: [" + ResourceFolder() + Native(L"de-DE/]")}));
}

TEST_F(StringLoaderLocationTest, NoLocaleFolderAtAll_GivesNothing) {
    locale.SetSystemDefaultLcid(0x0411);
    ZelResourceStringLoader loader(Services());
    TakeLines();

    EXPECT_EQ(loader.GetResFolderByAutoDetectLanguage(), L"");
    EXPECT_THAT(TakeLines(),
                HasInOrder(std::vector<std::wstring>{
                    L"<ja-JP> Language not support!!\n Mapped primary language, but still not "
                    L"existed: [" +
                        ResourceFolder() + Native(L"ja-JP/]"),
                    L"Using default language <en-US>: [" + ResourceFolder() + Native(L"en-US/]"),
                    L"*** Error occurred!! Resource folder is not existed: [" + ResourceFolder() +
                        Native(L"en-US/]")}));
}

// The help parts as an administrator would register them.
class OnlineHelpTest : public StringLoaderTest {
protected:
    static constexpr const wchar_t* kRoot = L"SOFTWARE\\Halvion\\Corelane\\1700";

    OnlineHelpTest() {
        WriteTable(L"en-US", L"IDS_OK", L"OK");
        WriteTable(L"de-DE", L"IDS_OK", L"Gut");
        RegisterHelp(InstallFile());
        SetMachineValue(kRoot, L"PID", L"1700");
        SetMachineValue(std::wstring(kRoot) + L"\\OnlineHelp", L"URL", L"https://help.example/");
        SetMachineValue(std::wstring(kRoot) + L"\\OnlineHelp\\Topics", L"FunID_LINK_FILTER",
                        L"link-filter.htm");
    }
    void RegisterHelp(const std::wstring& file, const wchar_t* topic = L"FunID_LINK_FILTER") {
        for (const auto& [key, value] : {std::pair{L"ProductRootRegKey", kRoot},
                                         {L"URLKey", L"OnlineHelp\\URL"},
                                         {L"PIDKey", L"PID"},
                                         {topic, L"OnlineHelp\\Topics\\FunID_LINK_FILTER"}}) {
            WriteEntry(file, L"OnlinHelp", key, value);
        }
    }
    std::wstring Address() {
        ZelResourceStringLoader loader(Services());
        TakeLines();
        return loader.GetORVA_OLH_URL(L"FunID_LINK_FILTER", L"ORVA_WLM.ini", L"");
    }
    // The help lines only, without those of the resource folder and the language choice.
    std::vector<std::wstring> HelpLines() {
        std::vector<std::wstring> lines;
        for (const std::wstring& line : TakeLines()) {
            if (line.rfind(L"!!! ", 0) == 0) {
                lines.push_back(line);
            }
        }
        return lines;
    }
};

TEST_F(OnlineHelpTest, EveryPartRegistered_JoinsSiteLocaleProductAndPage) {
    EXPECT_EQ(Address(), L"https://help.example/en-US/1700/link-filter.htm");
    EXPECT_THAT(HelpLines(), testing::IsEmpty());
    locale.SetSystemDefaultLcid(0x0807);  // a German system puts its locale in
    EXPECT_EQ(Address(), L"https://help.example/de-DE/1700/link-filter.htm");
}

TEST_F(OnlineHelpTest, LocaleWithoutTable_UsesEnglishWithTheShortMessages) {
    locale.SetSystemDefaultLcid(0x0411);
    ZelResourceStringLoader loader(Services());
    TakeLines();

    EXPECT_EQ(loader.GetORVA_OLH_URL(L"FunID_LINK_FILTER", L"ORVA_WLM.ini", L""),
              L"https://help.example/en-US/1700/link-filter.htm");
    EXPECT_THAT(TakeLines(),
                HasInOrder(std::vector<std::wstring>{L"Primary language mapped result: [ja-JP]",
                                                     L"<ja-JP> Language not support!!",
                                                     L"Using default language <en-US>"}));
}

TEST_F(OnlineHelpTest, BaseFolder_NamesWhereTheSettingsFileIs) {
    const std::wstring elsewhere = temp.Folder(L"elsewhere");
    RegisterHelp(ZelCommon::Path::ChildFile(elsewhere, L"Help.ini"), L"FunID_X");
    ZelResourceStringLoader loader(Services());

    EXPECT_EQ(loader.GetORVA_OLH_URL(L"FunID_X", L"Help.ini", elsewhere),
              L"https://help.example/en-US/1700/link-filter.htm");
}

// Each part that cannot be found gives no address and one line naming where it was looked for.
TEST_F(OnlineHelpTest, MissingPart_LogsTheStepAndGivesNothing) {
    const std::wstring root = kRoot;
    const struct {
        const wchar_t* helpKey;  // the entry of the installation file pointed elsewhere
        const wchar_t* pointTo;
        const wchar_t* topic;
        std::wstring line;
    } cases[] = {
        {L"ProductRootRegKey", L"SOFTWARE\\Nowhere", L"FunID_LINK_FILTER",
         L"!!! Get Product Root RegKey failed: from=[" + InstallFile() +
             L"], result=[SOFTWARE\\Nowhere]"},
        {L"URLKey", L"OnlineHelp\\Site", L"FunID_LINK_FILTER",
         L"!!! Get URL SubKey failed: from=[" + root + L"\\OnlineHelp\\Site], result=[]"},
        {L"PIDKey", L"ProductId", L"FunID_LINK_FILTER",
         L"!!! Get PID SubKey failed: from=[" + root + L"\\ProductId], result=[]"},
        {nullptr, nullptr, L"FunID_ADVANCED_SETTINGS",
         L"!!! Get FunID failed: from=[" + root + L"\\], result=[]"},
    };
    for (const auto& each : cases) {
        RegisterHelp(InstallFile());
        if (each.helpKey) {
            WriteEntry(InstallFile(), L"OnlinHelp", each.helpKey, each.pointTo);
        }
        ZelResourceStringLoader loader(Services());
        TakeLines();
        EXPECT_EQ(loader.GetORVA_OLH_URL(each.topic, L"ORVA_WLM.ini", L""), L"");
        EXPECT_THAT(HelpLines(), ElementsAre(each.line));
    }
}

TEST(JoinHelpAddress, SlashesAroundParts_GiveOneSlashBetweenThem) {
    const struct {
        const wchar_t* site;
        const wchar_t* page;
        const wchar_t* expected;
    } cases[] = {
        {L"https://h.example", L"a.htm", L"https://h.example/en-US/1700/a.htm"},
        {L"https://h.example/", L"a.htm", L"https://h.example/en-US/1700/a.htm"},
        {L"https://h.example//", L"/a.htm", L"https://h.example/en-US/1700/a.htm"},
        {L"https://h.example/help", L"x/a.htm", L"https://h.example/help/en-US/1700/x/a.htm"},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(Settings::JoinHelpAddress(each.site, L"en-US", L"1700", each.page),
                  each.expected);
    }
}

TEST(SplitRegistryLocation, LastBackslash_SeparatesKeyAndValue) {
    const Settings::RegistryLocation nested = Settings::SplitRegistryLocation(L"A\\B\\Value");
    EXPECT_EQ(nested.subKey, L"A\\B");
    EXPECT_EQ(nested.valueName, L"Value");
    const Settings::RegistryLocation flat = Settings::SplitRegistryLocation(L"Value");
    EXPECT_EQ(flat.subKey, L"");
    EXPECT_EQ(flat.valueName, L"Value");
}

}  // namespace
}  // namespace Orva::Testing
