#include "lists/SenderListSet.h"

#include <ranges>

#include "common_src/platform/TextCodec.h"
#include "lists/SenderListFile.h"
#include "settings/log/DebugLog.h"

namespace Orva::Lists {
namespace {

using ZelCommon::Library::LogInfo;
using ZelCommon::Library::TheLog;

// The approved twin is the same class, so both lists write the blocked list's log texts.
constexpr const char* kLogSource = "BlackList";

bool HoldsStar(const std::wstring& key) {
    return key.find(L'*') != std::wstring::npos;
}

}  // namespace

template <class Kind>
bool CSenderListSet<Kind>::Find(const wchar_t* address) const {
    if (address == nullptr) {
        return false;
    }
    TheLog().LogMessage(LogInfo, kLogSource, __LINE__, L"CBListSet::Find %s", address);
    const std::wstring key = ZelCommon::Text::ToLower(address);
    boost::shared_lock<boost::upgrade_mutex> shared(m_lock);
    if (!m_entries.contains(key)) {
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
    const std::wstring key = ZelCommon::Text::ToLower(address);
    boost::shared_lock<boost::upgrade_mutex> shared(m_lock);
    const auto found = m_entries.find(key);
    if (found == m_entries.end()) {
        return false;
    }
    TheLog().LogMessage(LogInfo, kLogSource, __LINE__, L"CBListSet::Find %s", address);
    return found->second.name == name;
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
    std::wstring key = ZelCommon::Text::ToLower(address);
    const auto at = m_entries.lower_bound(key);
    if (at != m_entries.end() && at->first == key) {
        return kAddExisted;
    }
    boost::upgrade_to_unique_lock<boost::upgrade_mutex> unique(upgradeable);
    if (HoldsStar(key)) {
        m_wildcards.emplace(key, 0u);
    }
    m_entries.emplace_hint(at, std::move(key), entry);
    return kAddAdded;
}

// Load's Add, under the unique lock already held. Files are written in key order, so the
// common case appends at the end of the map.
template <class Kind>
int CSenderListSet<Kind>::AddLoaded(SenderEntry&& entry) {
    TheLog().LogMessage(LogInfo, kLogSource, __LINE__, L"CBListSet::Add %s", entry.address);
    if (m_entries.size() >= kListLimit) {
        return kAddFull;
    }
    std::wstring key = ZelCommon::Text::ToLower(entry.address);
    auto at = m_entries.end();
    if (!m_entries.empty() && !(std::prev(at)->first < key)) {
        at = m_entries.lower_bound(key);
        if (at != m_entries.end() && at->first == key) {
            return kAddExisted;
        }
    }
    if (HoldsStar(key)) {
        m_wildcards.emplace(key, 0u);
    }
    m_entries.emplace_hint(at, std::move(key), std::move(entry));
    return kAddAdded;
}

template <class Kind>
void CSenderListSet<Kind>::Remove(const wchar_t* address) {
    if (address == nullptr) {
        return;
    }
    const std::wstring key = ZelCommon::Text::ToLower(address);
    boost::upgrade_lock<boost::upgrade_mutex> upgradeable(m_lock);
    const auto found = m_entries.find(key);
    if (found == m_entries.end()) {
        return;
    }
    boost::upgrade_to_unique_lock<boost::upgrade_mutex> unique(upgradeable);
    m_entries.erase(found);
    m_wildcards.erase(key);
}

template <class Kind>
bool CSenderListSet<Kind>::Modify(const wchar_t* oldAddress, const std::wstring& newName,
                                  const std::wstring& newAddress) {
    if (oldAddress == nullptr) {
        return false;
    }
    const std::wstring oldKey = ZelCommon::Text::ToLower(oldAddress);
    boost::upgrade_lock<boost::upgrade_mutex> upgradeable(m_lock);
    const auto found = m_entries.find(oldKey);
    if (found == m_entries.end()) {
        return false;
    }
    boost::upgrade_to_unique_lock<boost::upgrade_mutex> unique(upgradeable);
    found->second.name = newName;
    std::wstring newKey = ZelCommon::Text::ToLower(newAddress);
    if (newKey != oldKey) {
        found->second.address = newKey;
        // insert keeps an entry already stored under the new key: no merge, and the old key goes.
        m_entries.insert({newKey, found->second});
        m_entries.erase(found);
        m_wildcards.erase(oldKey);
        if (HoldsStar(newKey)) {
            m_wildcards.emplace(std::move(newKey), 0u);
        }
    }
    return true;
}

template <class Kind>
ListLoad CSenderListSet<Kind>::Load(const std::wstring& path) {
    boost::upgrade_lock<boost::upgrade_mutex> upgradeable(m_lock);
    boost::upgrade_to_unique_lock<boost::upgrade_mutex> unique(upgradeable);
    m_entries.clear();
    m_wildcards.clear();
    const ListLoad load = SenderListFile<Kind>::Read(
        path, [this](SenderEntry&& entry) { AddLoaded(std::move(entry)); });
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
    const std::string bytes = SenderListFile<Kind>::Format(std::views::values(m_entries));
    return SenderListFile<Kind>::Write(path, bytes) ? ListSave::Saved : ListSave::Unwritable;
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
    for (const auto& [key, entry] : m_entries) {
        entries.push_back(entry);
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
