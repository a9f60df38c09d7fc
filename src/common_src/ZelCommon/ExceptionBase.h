#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace ZelCommon::Exception {

// Root of the shared library's exceptions. They are thrown as pointers to heap objects
// (`throw new T(...)`), so that one catch of the pointer type can see every derived kind;
// ThrowNew and CatchThrown are the only places that create or adopt those objects.
class Base {
public:
    virtual ~Base() = default;
    virtual const char* TypeName() const = 0;

protected:
    Base() = default;
    Base(const Base&) = default;
    Base& operator=(const Base&) = default;
};

// A failed Win32 call: its error code, and the line and file of our statement that threw.
class Win32Failure : public Base {
public:
    uint32_t ErrorCode() const { return m_errorCode; }
    uint32_t SourceLine() const { return m_sourceLine; }
    const std::string& SourceFile() const { return m_sourceFile; }

protected:
    Win32Failure(uint32_t errorCode, uint32_t sourceLine, std::string sourceFile)
        : m_errorCode(errorCode), m_sourceLine(sourceLine), m_sourceFile(std::move(sourceFile)) {}

private:
    uint32_t m_errorCode;
    uint32_t m_sourceLine;
    std::string m_sourceFile;
};

template <class T, class... Args>
[[noreturn]] void ThrowNew(Args&&... args) {
    throw new T(std::forward<Args>(args)...);
}

// Runs `body`; an exception of type T (or derived) thrown as a pointer is taken into ownership
// and handed to `onError` as a reference, so no caller can forget to delete it. Returns whether
// `body` completed.
template <class T, class Body, class OnError>
bool CatchThrown(Body&& body, OnError&& onError) {
    try {
        std::forward<Body>(body)();
        return true;
    } catch (T* raw) {
        std::unique_ptr<T> owned(raw);
        std::forward<OnError>(onError)(*owned);
        return false;
    }
}

}  // namespace ZelCommon::Exception
