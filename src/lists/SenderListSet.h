#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include <boost/thread/lock_types.hpp>
#include <boost/thread/shared_mutex.hpp>

#include "lists/ListFileStatus.h"
#include "lists/ListKinds.h"
#include "lists/SenderEntry.h"
#include "lists/SenderIndex.h"

namespace Orva::Lists {

// Results of Add.
enum AddResult : int { kAddExisted = 0, kAddAdded = 1, kAddFull = 2 };

// One sender list in memory: the entries ordered by their key, the lower-cased address, and an
// index of the keys that hold "*". Finds share the lock; changes, load and save take it
// upgradeable, then unique.
template <class Kind>
class CSenderListSet {
public:
    CSenderListSet() = default;
    CSenderListSet(const CSenderListSet&) = delete;
    CSenderListSet& operator=(const CSenderListSet&) = delete;

    // False when the address is null or its lower-cased form is not a key.
    bool Find(const wchar_t* address) const;
    // True only when the key is present and its entry's name equals `name` exactly.
    bool Find(const wchar_t* address, const wchar_t* name) const;
    // kAddAdded, kAddExisted (nothing changes), or kAddFull (8000 entries, or a null address).
    int Add(const wchar_t* address, const SenderEntry& entry);
    void Remove(const wchar_t* address);
    // Renames and re-keys an entry. A new address already held by another entry does not merge:
    // that entry stays as it was and the old key is still erased.
    bool Modify(const wchar_t* oldAddress, const std::wstring& newName,
                const std::wstring& newAddress);

    // Replaces the set with the file's entries; a file that is not Loaded leaves it empty.
    ListLoad Load(const std::wstring& path);
    // Always 1: a file that cannot be written leaves the old one and is not reported.
    int Save(const std::wstring& path);
    // Save, telling what happened. The file that the last Load refused (RejectedHeader,
    // Unreadable) is never written over: it may be another program's, or a list this version
    // cannot read.
    ListSave SaveTo(const std::wstring& path);

    size_t Count() const;
    // The entries in key order.
    std::vector<SenderEntry> Entries() const;
    // The keys holding "*", in order.
    std::vector<std::wstring> WildcardKeys() const;

private:
    int AddLoaded(SenderEntry&& entry, std::string_view formattedLine);

    mutable boost::upgrade_mutex m_lock;
    SenderIndex m_entries;
    std::string m_fileText;  // the loaded file's text, which entries' formatted lines point into
    std::map<std::wstring, uint32_t> m_wildcards;
    std::wstring m_refusedFile;
};

extern template class CSenderListSet<BlockedList>;
extern template class CSenderListSet<ApprovedList>;

using CBListSet = CSenderListSet<BlockedList>;
using CWListSet = CSenderListSet<ApprovedList>;

}  // namespace Orva::Lists
