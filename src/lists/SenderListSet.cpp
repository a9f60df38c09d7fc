#include "lists/SenderListSet.h"

#include "lists/SenderListFile.h"
#include "settings/log/DebugLog.h"

namespace Orva::Lists {
namespace {

using ZelCommon::Library::LogInfo;
using ZelCommon::Library::TheLog;

// The approved twin is the same class, so both lists write the blocked list's log texts.
constexpr const char* kLogSource = "BlackList";

bool HoldsStar(std::wstring_view key) {
    return key.find(L'*') != std::wstring_view::npos;
}

}  // namespace

template <class Kind>
bool CSenderListSet<Kind>::Find(const wchar_t* address) const {
    if (address == nullptr) {
        return false;
    }
    TheLog().LogMessage(LogInfo, kLogSource, __LINE__, L"CBListSet::Find %s", address);
    const std::wstring key = ListKeyOf(address);
    boost::shared_lock<boost::upgrade_mutex> shared(m_lock);
    if (m_entries.Find(key) == nullptr) {
        return false;
    }
    TheLog().LogMessage(LogInfo, kLogSource, __LINE__, L"CBListSet::Find %s", address);
    return true;
}

template <class Kind>
bool CSenderListSet<Kind>::Find(const wchar_t* address, const wchar_t* name) const {
    if (address == nullptr || name == nullptr) {
        return false;
    }
    TheLog().LogMessage(LogInfo, kLogSource, __LINE__, L"CBListSet::Find %s", address);
    const std::wstring key = ListKeyOf(address);
    boost::shared_lock<boost::upgrade_mutex> shared(m_lock);
    const KeyedEntry* found = m_entries.Find(key);
    if (found == nullptr) {
        return false;
    }
    TheLog().LogMessage(LogInfo, kLogSource, __LINE__, L"CBListSet::Find %s", address);
    return found->Entry().name == name;
}

template <class Kind>
int CSenderListSet<Kind>::Add(const wchar_t* address, const SenderEntry& entry) {
    if (address == nullptr) {
        return kAddFull;
    }
    TheLog().LogMessage(LogInfo, kLogSource, __LINE__, L"CBListSet::Add %s", address);
    boost::upgrade_lock<boost::upgrade_mutex> upgradeable(m_lock);
    if (m_entries.size() >= kListLimit) {
        return kAddFull;
    }
    std::wstring key = ListKeyOf(address);
    if (m_entries.Find(key) != nullptr) {
        return kAddExisted;
    }
    boost::upgrade_to_unique_lock<boost::upgrade_mutex> unique(upgradeable);
    if (HoldsStar(key)) {
        m_wildcards.emplace(key, 0u);
    }
    m_entries.Insert(KeyedEntry(std::move(key), entry));
    return kAddAdded;
}

// Load's Add, under the unique lock already held.
template <class Kind>
int CSenderListSet<Kind>::AddLoaded(SenderEntry&& entry, std::string_view formattedLine) {
    TheLog().LogMessage(LogInfo, kLogSource, __LINE__, L"CBListSet::Add %s", entry.address);
    if (m_entries.size() >= kListLimit) {
        return kAddFull;
    }
    KeyedEntry keyed(std::move(entry), formattedLine);
    const bool wildcard = HoldsStar(keyed.Key());
    std::wstring wildcardKey = wildcard ? std::wstring(keyed.Key()) : std::wstring();
    if (!m_entries.Insert(std::move(keyed))) {
        return kAddExisted;
    }
    if (wildcard) {
        m_wildcards.emplace(std::move(wildcardKey), 0u);
    }
    return kAddAdded;
}

template <class Kind>
void CSenderListSet<Kind>::Remove(const wchar_t* address) {
    if (address == nullptr) {
        return;
    }
    const std::wstring key = ListKeyOf(address);
    boost::upgrade_lock<boost::upgrade_mutex> upgradeable(m_lock);
    if (m_entries.Find(key) == nullptr) {
        return;
    }
    boost::upgrade_to_unique_lock<boost::upgrade_mutex> unique(upgradeable);
    m_entries.Erase(key);
    m_wildcards.erase(key);
}

template <class Kind>
bool CSenderListSet<Kind>::Modify(const wchar_t* oldAddress, const std::wstring& newName,
                                  const std::wstring& newAddress) {
    if (oldAddress == nullptr) {
        return false;
    }
    const std::wstring oldKey = ListKeyOf(oldAddress);
    boost::upgrade_lock<boost::upgrade_mutex> upgradeable(m_lock);
    if (m_entries.Find(oldKey) == nullptr) {
        return false;
    }
    boost::upgrade_to_unique_lock<boost::upgrade_mutex> unique(upgradeable);
    std::wstring newKey = ListKeyOf(newAddress);
    if (newKey == oldKey) {
        m_entries.SetName(oldKey, newName);
        return true;
    }
    m_entries.Erase(oldKey);
    m_wildcards.erase(oldKey);
    if (HoldsStar(newKey)) {
        m_wildcards.emplace(newKey, 0u);
    }
    // The entry takes the lower-cased new address as its address. An entry already under the new
    // key stays as it was: no merge, and the old key is gone.
    m_entries.Insert(KeyedEntry(SenderEntry{newName, std::move(newKey)}));
    return true;
}

template <class Kind>
ListLoad CSenderListSet<Kind>::Load(const std::wstring& path) {
    boost::upgrade_lock<boost::upgrade_mutex> upgradeable(m_lock);
    boost::upgrade_to_unique_lock<boost::upgrade_mutex> unique(upgradeable);
    m_entries.clear();
    m_wildcards.clear();
    const ListLoad load = SenderListFile<Kind>::Read(
        path, m_fileText, [this](SenderEntry&& entry, std::string_view formattedLine) {
            AddLoaded(std::move(entry), formattedLine);
        });
    m_refusedFile = MayWriteOver(load) ? std::wstring() : path;
    return load;
}

template <class Kind>
int CSenderListSet<Kind>::Save(const std::wstring& path) {
    SaveTo(path);
    return 1;
}

template <class Kind>
ListSave CSenderListSet<Kind>::SaveTo(const std::wstring& path) {
    boost::upgrade_lock<boost::upgrade_mutex> upgradeable(m_lock);
    boost::upgrade_to_unique_lock<boost::upgrade_mutex> unique(upgradeable);
    if (!m_refusedFile.empty() && path == m_refusedFile) {
        return ListSave::KeptRefusedFile;
    }
    const ByteBuffer bytes = SenderListFile<Kind>::Format(m_entries);
    return SenderListFile<Kind>::Write(path, bytes.View()) ? ListSave::Saved : ListSave::Unwritable;
}

template <class Kind>
size_t CSenderListSet<Kind>::Count() const {
    boost::shared_lock<boost::upgrade_mutex> shared(m_lock);
    return m_entries.size();
}

template <class Kind>
std::vector<SenderEntry> CSenderListSet<Kind>::Entries() const {
    boost::shared_lock<boost::upgrade_mutex> shared(m_lock);
    std::vector<SenderEntry> entries;
    entries.reserve(m_entries.size());
    for (const KeyedEntry& entry : m_entries) {
        entries.push_back(entry.Entry());
    }
    return entries;
}

template <class Kind>
std::vector<std::wstring> CSenderListSet<Kind>::WildcardKeys() const {
    boost::shared_lock<boost::upgrade_mutex> shared(m_lock);
    std::vector<std::wstring> keys;
    keys.reserve(m_wildcards.size());
    for (const auto& [key, unused] : m_wildcards) {
        keys.push_back(key);
    }
    return keys;
}

template class CSenderListSet<BlockedList>;
template class CSenderListSet<ApprovedList>;

}  // namespace Orva::Lists
