#include <gtest/gtest.h>

#include <string>

#include "lists/SenderListSet.h"

namespace Orva::Lists {
namespace {

// The key is the address argument, lower-cased; the entry keeps its spelling; a second add of
// the key in any case changes nothing; star keys also enter the wildcard index.
TEST(CBListSet, Add_KeysByTheAddressArgumentIgnoringCase) {
    CBListSet set;
    EXPECT_EQ(kAddAdded, set.Add(L"Ann@B.com", {L"Ann", L"Ann@B.com"}));
    EXPECT_EQ(kAddExisted, set.Add(L"ANN@B.COM", {L"Second", L"ANN@B.COM"}));
    EXPECT_EQ(kAddFull, set.Add(nullptr, {L"", L"a@b.com"}));
    EXPECT_EQ(kAddAdded, set.Add(L"*@Spam.COM", {L"", L"*@Spam.COM"}));
    EXPECT_EQ(kAddAdded, set.Add(L"key@b.com", {L"N", L"stored@b.com"}));
    EXPECT_EQ((std::vector<SenderEntry>{
                  {L"", L"*@Spam.COM"}, {L"Ann", L"Ann@B.com"}, {L"N", L"stored@b.com"}}),
              set.Entries());
    EXPECT_EQ(std::vector<std::wstring>{L"*@spam.com"}, set.WildcardKeys());
    EXPECT_TRUE(set.Find(L"key@b.com"));
    EXPECT_FALSE(set.Find(L"stored@b.com"));
}

TEST(CBListSet, Add_Entry8001_ReturnsFullAndKeeps8000) {
    CWListSet set;
    for (int i = 0; i < 8000; ++i) {
        const std::wstring address = L"user" + std::to_wstring(i) + L"@b.com";
        ASSERT_EQ(kAddAdded, set.Add(address.c_str(), {L"", address}));
    }
    EXPECT_EQ(kAddFull, set.Add(L"late@b.com", {L"", L"late@b.com"}));
    // A full list refuses before it looks for the key.
    EXPECT_EQ(kAddFull, set.Add(L"user1@b.com", {L"", L"user1@b.com"}));
    EXPECT_EQ(8000u, set.Count());
    EXPECT_FALSE(set.Find(L"late@b.com"));
}

TEST(CBListSet, Entries_AreInCodeUnitOrderOfLowerCasedKeys) {
    CBListSet set;
    for (const wchar_t* address : {L"b@x.com", L"A@x.com", L"_@x.com", L"*@x.com", L"Z@x.com"}) {
        set.Add(address, {L"", address});
    }
    // "_" sorts between the upper and lower case letters, so this also shows the keys are lowered.
    std::vector<SenderEntry> sorted;
    for (const wchar_t* address : {L"*@x.com", L"_@x.com", L"A@x.com", L"b@x.com", L"Z@x.com"}) {
        sorted.push_back({L"", address});
    }
    EXPECT_EQ(sorted, set.Entries());
}

TEST(CBListSet, Find_IgnoresCaseAndNull_AGivenNameMustMatchExactly) {
    CBListSet set;
    set.Add(L"Ann@b.com", {L"Ann", L"Ann@b.com"});
    EXPECT_TRUE(set.Find(L"aNN@B.COM"));
    EXPECT_FALSE(set.Find(L"bob@b.com"));
    EXPECT_FALSE(set.Find(nullptr));
    // With a name, the name must match exactly.
    EXPECT_TRUE(set.Find(L"ANN@b.com", L"Ann"));
    EXPECT_FALSE(set.Find(L"ann@b.com", L"ann"));
    EXPECT_FALSE(set.Find(L"ann@b.com", L"An"));
    EXPECT_FALSE(set.Find(L"bob@b.com", L"Ann"));
    EXPECT_FALSE(set.Find(nullptr, L"Ann"));
    EXPECT_FALSE(set.Find(L"ann@b.com", nullptr));
}

TEST(CBListSet, Remove_DropsKeyAndWildcardAndIgnoresAbsentKey) {
    CBListSet set;
    set.Add(L"*@b.com", {L"", L"*@b.com"});
    set.Add(L"a@b.com", {L"", L"a@b.com"});
    set.Remove(L"*@B.COM");
    set.Remove(L"absent@b.com");
    set.Remove(nullptr);
    EXPECT_EQ((std::vector<SenderEntry>{{L"", L"a@b.com"}}), set.Entries());
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
        {"absent old address", {{L"A", L"a@b.com"}}, L"x@b.com", L"X", L"x@b.com", false,
         {{L"A", L"a@b.com"}}, {}},
        {"null old address", {{L"A", L"a@b.com"}}, nullptr, L"X", L"x@b.com", false,
         {{L"A", L"a@b.com"}}, {}},
        {"same address in other case", {{L"Ann", L"Ann@b.com"}}, L"ann@b.com", L"Anna",
         L"ANN@B.COM", true, {{L"Anna", L"Ann@b.com"}}, {}},
        {"new address", {{L"Old", L"*@old.com"}}, L"*@old.com", L"New", L"*@New.com", true,
         {{L"New", L"*@new.com"}}, {L"*@new.com"}},
        {"address held by another", {{L"A", L"a@b.com"}, {L"C", L"c@d.com"}},
         L"a@b.com", L"Renamed", L"C@D.com", true, {{L"C", L"c@d.com"}}, {}},
        {"star to plain", {{L"", L"*@b.com"}}, L"*@b.com", L"", L"x@b.com", true,
         {{L"", L"x@b.com"}}, {}},
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
