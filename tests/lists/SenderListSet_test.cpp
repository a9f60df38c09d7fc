#include <gtest/gtest.h>

#include <string>

#include "lists/SenderListSet.h"

namespace Orva::Lists {
namespace {

SenderEntry Entry(const std::wstring& name, const std::wstring& address) {
    return SenderEntry{name, address};
}

// The key is the address argument, lower-cased; the entry keeps its spelling; a second add of
// the key in any case changes nothing; star keys also enter the wildcard index.
TEST(CBListSet, Add_KeysByTheAddressArgumentIgnoringCase) {
    CBListSet set;
    EXPECT_EQ(kAddAdded, set.Add(L"Ann@B.com", Entry(L"Ann", L"Ann@B.com")));
    EXPECT_EQ(kAddExisted, set.Add(L"ANN@B.COM", Entry(L"Second", L"ANN@B.COM")));
    EXPECT_EQ(kAddFull, set.Add(nullptr, Entry(L"", L"a@b.com")));
    EXPECT_EQ(kAddAdded, set.Add(L"*@Spam.COM", Entry(L"", L"*@Spam.COM")));
    EXPECT_EQ(kAddAdded, set.Add(L"key@b.com", Entry(L"N", L"stored@b.com")));
    EXPECT_EQ((std::vector<SenderEntry>{Entry(L"", L"*@Spam.COM"), Entry(L"Ann", L"Ann@B.com"),
                                        Entry(L"N", L"stored@b.com")}),
              set.Entries());
    EXPECT_EQ(std::vector<std::wstring>{L"*@spam.com"}, set.WildcardKeys());
    EXPECT_TRUE(set.Find(L"key@b.com"));
    EXPECT_FALSE(set.Find(L"stored@b.com"));
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

// A new address rekeys the entry and is stored lower-cased; one that another entry holds keeps
// that entry and drops the modified one.
TEST(CBListSet, Modify_RekeysRenamesOrRefuses) {
    using Entries = std::vector<SenderEntry>;
    using Keys = std::vector<std::wstring>;
    const struct {
        const char* name;
        Entries before;
        const wchar_t* old;
        const wchar_t* newName;
        const wchar_t* address;
        bool modified;
        Entries after;
        Keys wildcards;
    } cases[] = {
        // clang-format off
        {"absent old address", {Entry(L"A", L"a@b.com")}, L"x@b.com", L"X", L"x@b.com", false,
         {Entry(L"A", L"a@b.com")}, {}},
        {"null old address", {Entry(L"A", L"a@b.com")}, nullptr, L"X", L"x@b.com", false,
         {Entry(L"A", L"a@b.com")}, {}},
        {"same address in other case", {Entry(L"Ann", L"Ann@b.com")}, L"ann@b.com", L"Anna",
         L"ANN@B.COM", true, {Entry(L"Anna", L"Ann@b.com")}, {}},
        {"new address", {Entry(L"Old", L"*@old.com")}, L"*@old.com", L"New", L"*@New.com", true,
         {Entry(L"New", L"*@new.com")}, {L"*@new.com"}},
        {"address held by another", {Entry(L"A", L"a@b.com"), Entry(L"C", L"c@d.com")},
         L"a@b.com", L"Renamed", L"C@D.com", true, {Entry(L"C", L"c@d.com")}, {}},
        {"star to plain", {Entry(L"", L"*@b.com")}, L"*@b.com", L"", L"x@b.com", true,
         {Entry(L"", L"x@b.com")}, {}},
        // clang-format on
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        CBListSet set;
        for (const SenderEntry& entry : each.before) {
            set.Add(entry.address.c_str(), entry);
        }
        EXPECT_EQ(each.modified, set.Modify(each.old, each.newName, each.address));
        EXPECT_EQ(each.after, set.Entries());
        EXPECT_EQ(each.wildcards, set.WildcardKeys());
    }
}

}  // namespace
}  // namespace Orva::Lists
