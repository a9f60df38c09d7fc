#include "ui/Headline.h"

#include <gtest/gtest.h>

#include "PageRig.h"
#include "common_src/platform/Path.h"

namespace Orva::Ui {
namespace {

using Settings::SettingId;

TEST(Headline, ExpandCorpName_InstallFileElseLocalisedName) {
    Testing::PageRig rig;
    rig.strings.texts[L"IDS_CORP_NAME"] = L"Halvion";
    const std::wstring text = L"<$CORP_NAME> protects <$CORP_NAME>'s users";
    EXPECT_EQ(ExpandCorpName(text, rig.files.store, rig.strings),
              L"Halvion protects Halvion's users");
    rig.files.SetInstall(SettingId::InstallCorpName, L"Acme");
    EXPECT_EQ(ExpandCorpName(text, rig.files.store, rig.strings), L"Acme protects Acme's users");
    EXPECT_EQ(ExpandCorpName(L"<$SPAM_NAME>", rig.files.store, rig.strings), L"<$SPAM_NAME>");
}

TEST(Headline, HeadlineFont_SizeFromOneTo72ElseNine) {
    const std::pair<const wchar_t*, int> cases[] = {{L" 12 ", 12},      {L"72", 72}, {L"", 9},
                                                    {L"0", 9},          {L"73", 9},  {L"1O", 9},
                                                    {L"99999999999", 9}};
    for (const auto& [size, points] : cases) {
        Testing::MapStrings strings;
        strings.texts = {{L"IDS_FACE", L"Tahoma"}, {L"IDS_SIZE", size}};
        const FontSpec font = HeadlineFont(strings, L"IDS_FACE", L"IDS_SIZE");
        EXPECT_EQ(font.points, points) << testing::PrintToString(size);
        EXPECT_EQ(font.face, L"Tahoma");
    }
}

TEST(Headline, FontHeight_NegativePointsTimesDpiOver72) {
    EXPECT_EQ(FontHeight(9, 96), -12);
    EXPECT_EQ(FontHeight(10, 120), -16);
}

TEST(Headline, SliderBitmapPath_InTheModuleFolderOnlyWhenNamed) {
    Testing::PageRig rig;
    const std::wstring folder = rig.files.temp.Path();
    EXPECT_EQ(SliderBitmapPath(rig.files.store, folder), L"");
    rig.files.SetInstall(SettingId::InstallSliderBitmap, L"slider.bmp");
    EXPECT_EQ(SliderBitmapPath(rig.files.store, folder),
              ZelCommon::Path::ChildFile(folder, L"slider.bmp"));
}

}  // namespace
}  // namespace Orva::Ui
