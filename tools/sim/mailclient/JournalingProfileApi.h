#pragma once

#include <cstdint>

#include "common_src/ZelCommon/ProfileApi.h"
#include "support/fakes/platform/FakeJournal.h"

namespace Orva::Sim {

// The process's profile functions, with every write also put into a journal as
// "ini <file name> [<section>] <key> = <value>", so that a run shows which settings changed.
// Reads pass straight through.
class JournalingProfileApi final : public ZelCommon::Storage::IProfileApi {
public:
    explicit JournalingProfileApi(ZelCommon::Storage::IProfileApi& inner) : m_inner(inner) {}

    // Writes are journaled only while a journal is set.
    void SetJournal(ZelCommon::Fakes::FakeJournal* journal) { m_journal = journal; }

    uint32_t GetString(const wchar_t* section, const wchar_t* key, const wchar_t* defaultValue,
                       wchar_t* buffer, uint32_t size, const wchar_t* file) override {
        return m_inner.GetString(section, key, defaultValue, buffer, size, file);
    }
    uint32_t GetInt(const wchar_t* section, const wchar_t* key, int32_t defaultValue,
                    const wchar_t* file) override {
        return m_inner.GetInt(section, key, defaultValue, file);
    }
    uint32_t GetSection(const wchar_t* section, wchar_t* buffer, uint32_t size,
                        const wchar_t* file) override {
        return m_inner.GetSection(section, buffer, size, file);
    }
    uint32_t GetSectionNames(wchar_t* buffer, uint32_t size, const wchar_t* file) override {
        return m_inner.GetSectionNames(buffer, size, file);
    }
    bool WriteString(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                     const wchar_t* file) override;
    uint32_t LastError() const override { return m_inner.LastError(); }

private:
    ZelCommon::Storage::IProfileApi& m_inner;
    ZelCommon::Fakes::FakeJournal* m_journal = nullptr;
};

}  // namespace Orva::Sim
