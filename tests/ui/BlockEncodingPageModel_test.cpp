#include "ui/BlockEncodingPageModel.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "PageRig.h"
#include "support/FileBytes.h"

namespace Orva::Ui {
namespace {

const std::string kHead = "\xEF\xBB\xBF; Written by ORVA v3.5 (c) 2005 Halvion\n";

// A data folder of its own, holding "BlockEncodings.dat" with line-2 value 7 and three groups.
class BlockEncodingPageTest : public ::testing::Test {
protected:
    BlockEncodingPageTest() {
        std::filesystem::create_directories(m_data);
        Testing::WriteFileBytes(File(),
                                kHead + "7\nThai\t0\t874\nArabic\t1\t708\t1256\nGreek\t0\n");
    }
    std::filesystem::path File() const { return m_data / "BlockEncodings.dat"; }

    Testing::PageRig m_rig;
    std::wstring m_folder = m_rig.files.temp.Folder(L"data");
    std::filesystem::path m_data{m_folder};
    CBlockEncodingPageModel m_page{m_rig.services, m_folder};
};

TEST_F(BlockEncodingPageTest, Load_OneRowPerGroupInNameOrder_Unmodified) {
    m_page.Load();
    EXPECT_EQ(m_page.Rows(),
              (std::vector<EncodingRow>{{L"Arabic", true}, {L"Greek", false}, {L"Thai", false}}));
    EXPECT_FALSE(m_page.Modified());
}

TEST_F(BlockEncodingPageTest, SetBlocked_OnlyAChangeModifies_UnknownRowRefused) {
    m_page.Load();
    EXPECT_TRUE(m_page.SetBlocked(0, true));
    EXPECT_FALSE(m_page.Modified());
    EXPECT_FALSE(m_page.SetBlocked(3, true));
    EXPECT_FALSE(m_page.Modified());
    EXPECT_TRUE(m_page.SetBlocked(2, true));
    EXPECT_TRUE(m_page.Modified());
    EXPECT_TRUE(m_page.Rows()[2].blocked);
}

// An untouched page writes nothing; a tick is written with line 2 as read and announced once.
TEST_F(BlockEncodingPageTest, Apply_WritesAndPosts1034OnlyWhenModified) {
    m_page.Load();
    EXPECT_FALSE(m_page.Apply());
    EXPECT_TRUE(m_rig.AgentReceived().empty());
    m_page.SetBlocked(0, false);
    m_page.SetBlocked(2, true);
    EXPECT_TRUE(m_page.Apply());
    EXPECT_EQ(Testing::ReadFileBytes(File()),
              kHead + "7\nArabic\t0\t708\t1256\nGreek\t0\nThai\t1\t874\n");
    EXPECT_FALSE(m_page.Modified());
    EXPECT_FALSE(m_page.Apply());
    EXPECT_EQ(m_rig.AgentReceived(),
              std::vector{m_rig.Received(Plugin::AgentMessage::EncodingsChanged)});
}

TEST_F(BlockEncodingPageTest, Apply_PageNeverShown_ReadsAndWritesNothing) {
    std::filesystem::remove(File());
    EXPECT_FALSE(m_page.Apply());
    EXPECT_FALSE(std::filesystem::exists(File()));
    EXPECT_TRUE(m_rig.AgentReceived().empty());
}

TEST_F(BlockEncodingPageTest, Apply_UnwritableFile_LoggedNotAnnounced_StillModified) {
    m_page.Load();
    m_page.SetBlocked(1, true);
    std::filesystem::remove_all(m_data);
    EXPECT_FALSE(m_page.Apply());
    EXPECT_TRUE(m_page.Modified());
    EXPECT_TRUE(m_rig.AgentReceived().empty());
    const std::vector<std::wstring> lines = m_rig.log.Lines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_TRUE(lines[0].starts_with(L"xxx CBlockEncodingPage::OnApply() cannot write"));
}

}  // namespace
}  // namespace Orva::Ui
