#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <random>
#include <string>

#include "ListTestFiles.h"
#include "lists/EncodingSet.h"
#include "lists/SenderListSet.h"

namespace Orva::Lists {
namespace {

// Runs for ORVA_FUZZ_SECONDS (default 2) seconds; set it higher for a longer run by hand.
std::chrono::milliseconds FuzzBudget() {
    const char* seconds = std::getenv("ORVA_FUZZ_SECONDS");
    const int value = seconds != nullptr ? std::atoi(seconds) : 0;
    return std::chrono::milliseconds(value > 0 ? value * 1000 : 2000);
}

const std::string kSeeds[] = {
    std::string(Testing::kMark) + Testing::kHeader +
        "\n<BL_REC><SN_ATTR>Ann<\\SN_ATTR><SA_ATTR>a@b.com<\\SA_ATTR><\\BL_REC>\n"
        "<WL_REC><SN_ATTR> x <\\SN_ATTR><SA_ATTR>**@c.org<\\SA_ATTR><\\WL_REC>\r\n",
    std::string(Testing::kHeader) + "\n7\nThai\t1\t874\nKorean\t0\t949\t51949\n",
};

const std::string kTokens[] = {"<BL_REC>",     "<\\BL_REC>",
                               "<WL_REC>",     "<\\WL_REC>",
                               "<SN_ATTR>",    "<\\SN_ATTR>",
                               "<SA_ATTR>",    "<\\SA_ATTR>",
                               "\n",           "\r\n",
                               "\t",           "*",
                               "\xEF\xBB\xBF", "\xC3",
                               "\xE4\xB8",     "\xF0\x9F\x98\x80",
                               "\xFF",         std::string(1, '\0'),
                               "-2147483649",  "99999999999"};

std::string Mutate(std::string bytes, std::mt19937& random) {
    std::uniform_int_distribution<int> operation(0, 4);
    std::uniform_int_distribution<int> count(1, 8);
    std::uniform_int_distribution<size_t> token(0, std::size(kTokens) - 1);
    for (int n = count(random); n > 0; --n) {
        std::uniform_int_distribution<size_t> at(0, bytes.size());
        const size_t where = at(random);
        switch (operation(random)) {
            case 0:
                bytes.insert(where, kTokens[token(random)]);
                break;
            case 1:
                bytes.erase(where, static_cast<size_t>(count(random)));
                break;
            case 2:
                if (where < bytes.size()) {
                    bytes[where] = static_cast<char>(random());
                }
                break;
            case 3:
                bytes.insert(where, bytes.substr(where / 2, static_cast<size_t>(count(random))));
                break;
            default:
                bytes.resize(where);
                break;
        }
    }
    return bytes;
}

std::string RandomBytes(std::mt19937& random) {
    std::uniform_int_distribution<size_t> length(0, 400);
    std::string bytes(length(random), '\0');
    for (char& c : bytes) {
        c = static_cast<char>(random());
    }
    return bytes;
}

// Random and mutated files go through every reader; nothing may crash, and whatever a reader
// takes in must be written out again in a form it reads back the same.
TEST(ListFuzz, ReadersSurviveRandomAndMutatedFiles) {
    Testing::TempFolder folder;
    const std::wstring input = folder.File(L"input.dat");
    const std::wstring output = folder.File(L"output.dat");
    const std::wstring freshOutput = folder.File(L"fresh.dat");
    std::mt19937 random(12345);
    const auto deadline = std::chrono::steady_clock::now() + FuzzBudget();
    size_t runs = 0;
    while (std::chrono::steady_clock::now() < deadline) {
        const std::string bytes =
            (random() % 4 == 0) ? RandomBytes(random) : Mutate(kSeeds[random() % 2], random);
        Testing::WriteFileBytes(input, bytes);

        CBListSet blocked;
        blocked.Load(input);
        blocked.Save(output);
        CBListSet blockedAgain;
        blockedAgain.Load(output);
        ASSERT_EQ(blocked.Entries(), blockedAgain.Entries());
        // A save copies the lines it loaded unchanged: it must write what formatting the same
        // entries afresh writes.
        CBListSet fresh;
        for (const SenderEntry& entry : blocked.Entries()) {
            fresh.Add(entry.address.c_str(), entry);
        }
        fresh.Save(freshOutput);
        ASSERT_EQ(Testing::ReadFileBytes(freshOutput), Testing::ReadFileBytes(output));

        CWListSet approved;
        approved.Load(input);
        ASSERT_LE(approved.Count(), kListLimit);

        CEncodingSet encodings;
        encodings.Load(input);
        encodings.Save(output);
        CEncodingSet encodingsAgain;
        encodingsAgain.Load(output);
        ASSERT_EQ(encodings.Groups(), encodingsAgain.Groups());
        ASSERT_EQ(encodings.Value(), encodingsAgain.Value());
        ++runs;
    }
    EXPECT_GT(runs, 50u);
}

}  // namespace
}  // namespace Orva::Lists
