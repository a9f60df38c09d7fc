#include <gtest/gtest.h>

#include <string>

#include "lists/SenderListSet.h"

namespace Orva::Lists {
namespace {

SenderEntry Entry(const std::wstring& name, const std::wstring& address) {
    return SenderEntry{name, address};
}

TEST(CBListSet, Add_NewAddress_ReturnsAddedAndKeepsCase) {
    CBListSet set;
    EXPECT_EQ(kAddAdded, set.Add(L"Ann@B.com", Entry(L"Ann", L"Ann@B.com")));
    EXPECT_EQ((std::vector<SenderEntry>{Entry(L"Ann", L"Ann@B.com")}), set.Entries());
}

TEST(CBListSet, Add_SameAddressInOtherCase_ReturnsExistedAndChangesNothing) {
    CBListSet set;
    set.Add(L"ann@b.com", Entry(L"First", L"ann@b.com"));
    EXPECT_EQ(kAddExisted, set.Add(L"ANN@B.COM", Entry(L"Second", L"ANN@B.COM")));
    EXPECT_EQ((std::vector<SenderEntry>{Entry(L"First", L"ann@b.com")}), set.Entries());
}

TEST(CBListSet, Add_NullAddress_ReturnsFull) {
    CBListSet set;
    EXPECT_EQ(kAddFull, set.Add(nullptr, Entry(L"", L"a@b.com")));
    EXPECT_EQ(0u, set.Count());
}

TEST(CBListSet, Add_Entry8001_ReturnsFullAndKeeps8000) {
    CWListSet set;
    for (int i = 0; i < 8000; ++i) {
        const std::wstring address = L"user" + std::to_wstring(i) + L"@b.com";
        ASSERT_EQ(kAddAdded, set.Add(address.c_str(), Entry(L"", address)));
    }
    EXPECT_EQ(kAddFull, set.Add(L"late@b.com", Entry(L"", L"late@b.com")));
    // A full list refuses before it looks for the key.
    EXPECT_EQ(kAddFull, set.Add(L"user1@b.com", Entry(L"", L"user1@b.com")));
    EXPECT_EQ(8000u, set.Count());
    EXPECT_FALSE(set.Find(L"late@b.com"));
}

TEST(CBListSet, Add_KeyUsesTheAddressArgumentNotTheEntrysAddress) {
    CBListSet set;
    set.Add(L"key@b.com", Entry(L"N", L"stored@b.com"));
    EXPECT_TRUE(set.Find(L"key@b.com"));
    EXPECT_FALSE(set.Find(L"stored@b.com"));
}

TEST(CBListSet, Entries_AreInCodeUnitOrderOfLowerCasedKeys) {
    CBListSet set;
    for (const wchar_t* address : {L"b@x.com", L"A@x.com", L"_@x.com", L"*@x.com", L"Z@x.com"}) {
        set.Add(address, Entry(L"", address));
    }
    std::vector<std::wstring> order;
    for (const SenderEntry& entry : set.Entries()) {
        order.push_back(entry.address);
    }
    // "_" sorts between the upper and lower case letters, so this also shows the keys are lowered.
    EXPECT_EQ(
        (std::vector<std::wstring>{L"*@x.com", L"_@x.com", L"A@x.com", L"b@x.com", L"Z@x.com"}),
        order);
}

TEST(CBListSet, Add_StarAddress_EntersWildcardIndexLowerCased) {
    CBListSet set;
    set.Add(L"*@Spam.COM", Entry(L"", L"*@Spam.COM"));
    set.Add(L"plain@b.com", Entry(L"", L"plain@b.com"));
    EXPECT_EQ(std::vector<std::wstring>{L"*@spam.com"}, set.WildcardKeys());
}

TEST(CBListSet, Find_IgnoresCaseAndNull) {
    CBListSet set;
    set.Add(L"Ann@b.com", Entry(L"Ann", L"Ann@b.com"));
    EXPECT_TRUE(set.Find(L"aNN@B.COM"));
    EXPECT_FALSE(set.Find(L"bob@b.com"));
    EXPECT_FALSE(set.Find(nullptr));
}

TEST(CBListSet, FindWithName_NeedsTheExactName) {
    CBListSet set;
    set.Add(L"ann@b.com", Entry(L"Ann Lee", L"ann@b.com"));
    EXPECT_TRUE(set.Find(L"ANN@b.com", L"Ann Lee"));
    EXPECT_FALSE(set.Find(L"ann@b.com", L"ann lee"));
    EXPECT_FALSE(set.Find(L"ann@b.com", L"Ann"));
    EXPECT_FALSE(set.Find(L"bob@b.com", L"Ann Lee"));
    EXPECT_FALSE(set.Find(nullptr, L"Ann Lee"));
    EXPECT_FALSE(set.Find(L"ann@b.com", nullptr));
}

TEST(CBListSet, Remove_DropsKeyAndWildcardAndIgnoresAbsentKey) {
    CBListSet set;
    set.Add(L"*@b.com", Entry(L"", L"*@b.com"));
    set.Add(L"a@b.com", Entry(L"", L"a@b.com"));
    set.Remove(L"*@B.COM");
    set.Remove(L"absent@b.com");
    set.Remove(nullptr);
    EXPECT_EQ((std::vector<SenderEntry>{Entry(L"", L"a@b.com")}), set.Entries());
    EXPECT_TRUE(set.WildcardKeys().empty());
}

TEST(CBListSet, Modify_AbsentOldAddress_ReturnsFalse) {
    CBListSet set;
    set.Add(L"a@b.com", Entry(L"A", L"a@b.com"));
    EXPECT_FALSE(set.Modify(L"x@b.com", L"X", L"x@b.com"));
    EXPECT_FALSE(set.Modify(nullptr, L"X", L"x@b.com"));
    EXPECT_EQ((std::vector<SenderEntry>{Entry(L"A", L"a@b.com")}), set.Entries());
}

TEST(CBListSet, Modify_SameAddressInOtherCase_ChangesOnlyTheName) {
    CBListSet set;
    set.Add(L"Ann@b.com", Entry(L"Ann", L"Ann@b.com"));
    EXPECT_TRUE(set.Modify(L"ann@b.com", L"Anna", L"ANN@B.COM"));
    EXPECT_EQ((std::vector<SenderEntry>{Entry(L"Anna", L"Ann@b.com")}), set.Entries());
}

TEST(CBListSet, Modify_NewAddress_RekeysAndStoresItLowerCased) {
    CBListSet set;
    set.Add(L"*@old.com", Entry(L"Old", L"*@old.com"));
    EXPECT_TRUE(set.Modify(L"*@old.com", L"New", L"*@New.com"));
    EXPECT_EQ((std::vector<SenderEntry>{Entry(L"New", L"*@new.com")}), set.Entries());
    EXPECT_EQ(std::vector<std::wstring>{L"*@new.com"}, set.WildcardKeys());
    EXPECT_FALSE(set.Find(L"*@old.com"));
}

TEST(CBListSet, Modify_ToAddressHeldByAnotherEntry_KeepsThatEntryAndErasesOld) {
    CBListSet set;
    set.Add(L"a@b.com", Entry(L"A", L"a@b.com"));
    set.Add(L"c@d.com", Entry(L"C", L"c@d.com"));
    EXPECT_TRUE(set.Modify(L"a@b.com", L"Renamed", L"C@D.com"));
    EXPECT_EQ((std::vector<SenderEntry>{Entry(L"C", L"c@d.com")}), set.Entries());
}

TEST(CBListSet, Modify_StarAddressToPlain_LeavesWildcardIndex) {
    CBListSet set;
    set.Add(L"*@b.com", Entry(L"", L"*@b.com"));
    EXPECT_TRUE(set.Modify(L"*@b.com", L"", L"x@b.com"));
    EXPECT_TRUE(set.WildcardKeys().empty());
}

}  // namespace
}  // namespace Orva::Lists
