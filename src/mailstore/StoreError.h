#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace Orva::MailStore {

// E_POINTER: a store call gave no object where the operation needs one.
inline constexpr int32_t kPointerError = static_cast<int32_t>(0x80004003u);

// A failed call of the mail client's store: the call's HRESULT and its narrow description.
// Thrown by value and caught per operation, which logs what() and gives up.
class StoreError : public std::runtime_error {
public:
    StoreError(int32_t result, const std::string& text)
        : std::runtime_error(text), m_result(result) {}
    int32_t Result() const { return m_result; }

private:
    int32_t m_result;
};

// The object an operation cannot go on without; raises E_POINTER when there is none.
template <class Pointer>
Pointer Required(Pointer object) {
    if (object == nullptr) {
        throw StoreError(kPointerError, "Invalid pointer");
    }
    return object;
}

}  // namespace Orva::MailStore
