#pragma once

#include <cstdint>
#include <list>
#include <string>

#include "common_src/ZelCommon/RegistryApi.h"

namespace ZelCommon::Storage {

// Where a store lives: a file path for an ini store, a predefined root key for the registry.
struct Location {
    Location(RegRoot rootKey) : root(rootKey) {}                    // NOLINT: implicit by design
    Location(std::wstring filePath) : path(std::move(filePath)) {}  // NOLINT
    Location(const wchar_t* filePath) : path(filePath) {}           // NOLINT

    RegRoot root = RegRoot::LocalMachine;
    std::wstring path;
};

using StringList = std::list<std::wstring>;

// One key/value store with an ini and a registry back end. Every failure throws a
// ZelCommon::Storage::Exception (or RegException) by pointer; nothing returns an error code.
// Operations a back end does not support are these do-nothing stubs. Each name-taking
// operation has a thin overload for a plain character array that forwards to its main form.
class Base {
public:
    virtual ~Base();

    virtual void Open(const Location& location, const std::wstring& name, int view);
    virtual void Create(const Location& location, const std::wstring& name, int view);
    virtual void OpenForWriteAndDelete(const Location& location, const std::wstring& name,
                                       int view);
    virtual void OpenForEnumerate(const Location& location, const std::wstring& name, int view);
    virtual void Close(bool flush);
    virtual void Flush();

    virtual void GetBinary(const wchar_t* name, void* buffer, uint32_t size);
    virtual void GetBinary(const std::wstring& name, void* buffer, uint32_t size);

    virtual std::wstring GetString(const wchar_t* name, const std::wstring& defaultValue);
    virtual std::wstring GetString(const std::wstring& name, const std::wstring& defaultValue);

    // The second 32-bit getter: a REG_DWORD read as a signed number, no default.
    virtual int32_t GetSigned(const wchar_t* name);
    virtual int32_t GetSigned(const std::wstring& name);

    virtual uint32_t GetDword(const wchar_t* name, uint32_t defaultValue);
    virtual uint32_t GetDword(const std::wstring& name, uint32_t defaultValue);

    // The first setter: raw bytes as REG_BINARY.
    virtual void SetBinary(const std::wstring& name, const void* data, uint32_t size);

    virtual void SetString(const wchar_t* name, const std::wstring& value);
    virtual void SetString(const std::wstring& name, const std::wstring& value);

    virtual void SetDword(const std::wstring& name, uint32_t value);

    virtual void DeleteKey();

    virtual void DeleteValue(const wchar_t* name);
    virtual void DeleteValue(const std::wstring& name);

    virtual void EnumKeys(StringList& names);
    virtual void EnumValues(StringList& entries);

protected:
    Base() = default;
    Base(const Base&) = delete;
    Base& operator=(const Base&) = delete;
};

}  // namespace ZelCommon::Storage
