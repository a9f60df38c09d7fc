#include "mailstore/QuarantineMark.h"

#include <gtest/gtest.h>

namespace Orva::MailStore {
namespace {

struct MarkCase {
    const wchar_t* header;
    bool marked;
};

TEST(IsQuarantineMarked, NeedsTheQuarantineTimeAndAFamilyHeader) {
    const MarkCase cases[] = {
        {L"X-HALVION-ANTISPAMADDIN-QUARANTINETIME: 1700000000\r\n", true},
        {L"x-halvion-antispamaddin-quarantinetime: 1\r\n", true},
        {L"X-Zel-AS-Score: 9\r\nX-Halvion-AntiSpamAddin-QuarantineTime: 1\r\n", true},
        {L"Subject: hi\r\n\r\nbody X-HALVION-ANTISPAMADDIN-QUARANTINETIME", true},
        {L"X-ZEL-AS-Score: 9\r\nX-ZEL-AS-Spam: yes\r\n", false},
        {L"X-HALVION-Score: 9\r\n", false},
        {L"X-HALVION-ANTISPAMADDIN-QUARANTINE: 1\r\n", false},
        {L"From: a@b\r\nSubject: X-ZEL-AS\r\n", false},
        {L"", false},
    };
    for (const MarkCase& c : cases) {
        EXPECT_EQ(IsQuarantineMarked(c.header), c.marked) << testing::PrintToString(c.header);
    }
}

}  // namespace
}  // namespace Orva::MailStore
