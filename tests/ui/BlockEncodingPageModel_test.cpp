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

// A data folder whose "BlockEncodings.dat" holds line-2 value 7 and three groups.
class BlockEncodingPageTest : public ::testing::Test {
protected:
    BlockEncodingPageTest() {
        std::filesystem::create_directories(m_file.parent_path());
        Testing::WriteFileBytes(m_file, kHead + "7\nThai\t0\t874\nArabic\t1\t708\nGreek\t0\n");
    }

    Testing::PageRig m_rig;
    std::wstring m_folder = m_rig.files.temp.Folder(L"data");
    std::filesystem::path m_file = std::filesystem::path(m_folder) / "BlockEncodings.dat";
    CBlockEncodingPageModel m_page{m_rig.services, m_folder};
};

// Rows in name order; only a tick that changes a group modifies, and OK then writes it with
// line 2 as read and posts 1034 once.
TEST_F(BlockEncodingPageTest, TickThenApply_WritesAndPosts1034OnlyWhenModified) {
    m_page.Load();
    EXPECT_EQ(m_page.Rows(),
              (std::vector<EncodingRow>{{L"Arabic", true}, {L"Greek", false}, {L"Thai", false}}));
    EXPECT_TRUE(m_page.SetBlocked(0, true));
    EXPECT_FALSE(m_page.SetBlocked(3, true));
    EXPECT_FALSE(m_page.Apply());
    EXPECT_TRUE(m_page.SetBlocked(2, true));
    EXPECT_TRUE(m_page.Apply());
    EXPECT_FALSE(m_page.Apply());
    EXPECT_EQ(Testing::ReadFileBytes(m_file),
              kHead + "7\nArabic\t1\t708\nGreek\t0\nThai\t1\t874\n");
    EXPECT_EQ(m_rig.AgentReceived(),
              std::vector{m_rig.Received(Plugin::AgentMessage::EncodingsChanged)});
}

TEST_F(BlockEncodingPageTest, Apply_PageNeverShown_WritesNothing) {
    std::filesystem::remove(m_file);
    EXPECT_FALSE(m_page.Apply());
    EXPECT_FALSE(std::filesystem::exists(m_file));
    EXPECT_TRUE(m_rig.AgentReceived().empty());
}

TEST_F(BlockEncodingPageTest, Apply_UnwritableFile_LoggedNotAnnounced) {
    m_page.Load();
    m_page.SetBlocked(1, true);
    std::filesystem::remove_all(m_file.parent_path());
    EXPECT_FALSE(m_page.Apply());
    EXPECT_TRUE(m_page.Modified());
    EXPECT_TRUE(m_rig.AgentReceived().empty());
    ASSERT_EQ(m_rig.log.Lines().size(), 1u);
    EXPECT_TRUE(
        m_rig.log.Lines()[0].starts_with(L"xxx CBlockEncodingPage::OnApply() cannot write"));
}

}  // namespace
}  // namespace Orva::Ui
