#include <gtest/gtest.h>

#include <random>
#include <string>

#include "ListTestFiles.h"
#include "lists/SenderListSet.h"
#include "lists/SenderValidation.h"

namespace Orva::Lists {
namespace {

// Names drawn from everything a user or a contact could type, tags and line breaks included.
std::wstring RandomName(std::mt19937& random) {
    static const std::wstring kPieces[] = {
        L"Ann",      L" ",      L"\t",        L"\r",          L"\n",       L"<",
        L">",        L"\\",     L"<SN_ATTR>", L"<\\SN_ATTR>", L"<SA_ATTR", L"<\\BL_REC>",
        L"<WL_REC>", L"\u00e9", L"\u4e2d",    L"\u0001",      L"\u007f",   L"\u0085",
        L"\uFFFD",   L";",      L"*",         L"\"",          L"SN_ATTR>", L"\u2028"};
    std::uniform_int_distribution<int> parts(0, 8);
    std::uniform_int_distribution<size_t> piece(0, std::size(kPieces) - 1);
    std::wstring name;
    for (int i = parts(random); i > 0; --i) {
        name.append(kPieces[piece(random)]);
    }
    return name;
}

// Address-shaped texts, stars and blanks included, of which validation accepts a good share.
std::wstring RandomAddress(std::mt19937& random) {
    static const std::wstring kLocalPieces[] = {L"a", L"B", L"9", L"-", L"_", L".", L"*", L"**"};
    static const std::wstring kLabels[] = {L"com", L"x-y", L"Q_9", L"*", L"a", L"-"};
    std::uniform_int_distribution<int> parts(1, 5);
    std::uniform_int_distribution<size_t> local(0, std::size(kLocalPieces) - 1);
    std::uniform_int_distribution<size_t> label(0, std::size(kLabels) - 1);
    std::wstring address = (random() % 4 == 0) ? L" " : L"";
    for (int i = parts(random); i > 0; --i) {
        address += kLocalPieces[local(random)];
    }
    address += L"@";
    for (int i = parts(random); i > 0; --i) {
        address += kLabels[label(random)];
        address += i > 1 ? L"." : L"";
    }
    return address + ((random() % 4 == 0) ? L"\t" : L"");
}

template <class Set>
void ExpectEveryAddableEntryRoundTrips(const std::wstring& fileName) {
    Testing::TempFolder folder;
    const std::wstring path = folder.File(fileName);
    std::mt19937 random(7);
    Set set;
    size_t accepted = 0;
    for (int i = 0; i < 20000 && set.Count() < kListLimit; ++i) {
        const SenderValidation checked = ValidateSender(RandomName(random), RandomAddress(random));
        if (checked.Accepted() &&
            set.Add(checked.address.c_str(), {checked.name, checked.address}) == kAddAdded) {
            ++accepted;
        }
    }
    ASSERT_GT(accepted, 200u);
    set.Save(path);
    const std::string firstBytes = Testing::ReadFileBytes(path);
    Set reloaded;
    reloaded.Load(path);
    EXPECT_EQ(set.Entries(), reloaded.Entries());
    EXPECT_FALSE(set.WildcardKeys().empty());
    EXPECT_EQ(set.WildcardKeys(), reloaded.WildcardKeys());
    reloaded.Save(path);
    EXPECT_EQ(firstBytes, Testing::ReadFileBytes(path));
}

TEST(SenderListRoundTrip, BothLists_EveryValidatedEntryComesBackByteForByte) {
    ExpectEveryAddableEntryRoundTrips<CBListSet>(L"BlackList.dat");
    ExpectEveryAddableEntryRoundTrips<CWListSet>(L"WhiteList.dat");
}

struct SavedNameCase {
    std::wstring name;
    std::wstring reloaded;
};

// Names from contacts carry whatever their source held; the entry must survive the save.
TEST(SenderListRoundTrip, Save_KeepsTheEntryAndCleansOnlyItsName) {
    const std::wstring loneSurrogate(1, static_cast<wchar_t>(0xDC00));
    const SavedNameCase cases[] = {
        {L" \tAnn Lee\t ", L"Ann Lee"},
        {L"Ann\r\nLee", L"AnnLee"},
        {L"A\u0001nn\u007f", L"Ann\u007f"},
        {L"Ann" + loneSurrogate + L" Lee", L"Ann Lee"},
        {L"Ann<\\SN_ATTR>Lee", L"AnnLee"},
        {L"<SN<SA_ATTR>_ATTR>x", L"x"},
        {L"Ann <WL_REC>", L"Ann"},
        {L"<\\BL_REC>\n", L""},
        {L"a\tb <Ann> \u00e9", L"a\tb <Ann> \u00e9"},
    };
    Testing::TempFolder folder;
    const std::wstring path = folder.File(L"BlackList.dat");
    CBListSet set;
    std::vector<SenderEntry> expected;
    for (size_t i = 0; i < std::size(cases); ++i) {
        const std::wstring address = L"n" + std::to_wstring(i) + L"@b.com";
        set.Add(address.c_str(), {cases[i].name, address});
        expected.push_back({cases[i].reloaded, address});
    }
    set.Add(L"a\nb@c.com", {L"Kept out", L"a\nb@c.com"});
    set.Save(path);
    CBListSet reloaded;
    reloaded.Load(path);
    EXPECT_EQ(expected, reloaded.Entries());
}

}  // namespace
}  // namespace Orva::Lists
