#include "common_src/ZelCommon/StorageBase.h"

namespace ZelCommon::Storage {

Base::~Base() = default;

void Base::Open(const Location&, const std::wstring&, int) {}
void Base::Create(const Location&, const std::wstring&, int) {}
void Base::OpenForWriteAndDelete(const Location&, const std::wstring&, int) {}
void Base::OpenForEnumerate(const Location&, const std::wstring&, int) {}
void Base::Close(bool) {}
void Base::Flush() {}

void Base::GetBinary(const wchar_t* name, void* buffer, uint32_t size) {
    GetBinary(std::wstring(name ? name : L""), buffer, size);
}
void Base::GetBinary(const std::wstring&, void*, uint32_t) {}

std::wstring Base::GetString(const wchar_t* name, const std::wstring& defaultValue) {
    return GetString(std::wstring(name ? name : L""), defaultValue);
}
std::wstring Base::GetString(const std::wstring&, const std::wstring& defaultValue) {
    return defaultValue;
}

int32_t Base::GetSigned(const wchar_t* name) { return GetSigned(std::wstring(name ? name : L"")); }
int32_t Base::GetSigned(const std::wstring&) { return 0; }

uint32_t Base::GetDword(const wchar_t* name, uint32_t defaultValue) {
    return GetDword(std::wstring(name ? name : L""), defaultValue);
}
uint32_t Base::GetDword(const std::wstring&, uint32_t defaultValue) { return defaultValue; }

void Base::SetBinary(const std::wstring&, const void*, uint32_t) {}

void Base::SetString(const wchar_t* name, const std::wstring& value) {
    SetString(std::wstring(name ? name : L""), value);
}
void Base::SetString(const std::wstring&, const std::wstring&) {}

void Base::SetDword(const std::wstring&, uint32_t) {}

void Base::DeleteKey() {}

void Base::DeleteValue(const wchar_t* name) { DeleteValue(std::wstring(name ? name : L"")); }
void Base::DeleteValue(const std::wstring&) {}

void Base::EnumKeys(StringList&) {}
void Base::EnumValues(StringList&) {}

}  // namespace ZelCommon::Storage
