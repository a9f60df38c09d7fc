#include <gtest/gtest.h>

#include <random>
#include <string>

#include "common_src/platform/TextCodec.h"
#include "mailstore/AccountSettingsFile.h"

namespace Orva::MailStore {
namespace {

// Damaged account files: random bytes, cut or odd-length files, tags cut anywhere. Whatever the
// bytes, the field is a part of the text and nothing is read outside it (built with the address
// and undefined-behaviour sanitizers as well).
TEST(AccountFileFuzz, AnyBytes_GiveAFieldInsideTheText) {
    const std::string tagged =
        "\xFF\xFE" + ZelCommon::Text::WideToUtf16Le(L"<IMAP_Server type=\"SZ\">x</IMAP_Server>");
    std::mt19937 random(20261124);
    int found = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string bytes = tagged.substr(0, random() % (tagged.size() + 1));
        const size_t noise = random() % 64;
        for (size_t at = 0; at < noise; ++at) {
            bytes.insert(random() % (bytes.size() + 1), 1, static_cast<char>(random() & 0xFF));
        }
        const std::wstring text = AccountFileText(bytes);
        found += FieldBetweenTags(text, kImapServer) == L"x" ? 1 : 0;
        ASSERT_LE(text.size(), bytes.size() / 2);
        for (const AccountField* field : {&kImapServer, &kHttpMailUserName}) {
            const std::wstring_view value = FieldBetweenTags(text, *field);
            ASSERT_TRUE(value.empty() ||
                        (value.data() >= text.data() &&
                         value.data() + value.size() <= text.data() + text.size()));
        }
    }
    // The rounds that left the tags whole found the field.
    EXPECT_GT(found, 0);
}

}  // namespace
}  // namespace Orva::MailStore
