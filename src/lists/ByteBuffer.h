#pragma once

#include <algorithm>
#include <cstring>
#include <memory>
#include <string_view>

namespace Orva::Lists {

// Bytes written through a cursor, without the zero-filling that growing a std::string costs.
class ByteBuffer {
public:
    explicit ByteBuffer(size_t capacity) : m_data(Allocate(capacity)), m_capacity(capacity) {}

    // The end of the bytes, with room for at least `bytes` more; SetEnd commits them.
    char* Room(size_t bytes) {
        if (m_capacity - m_size < bytes) {
            m_capacity = std::max(m_capacity * 2, m_size + bytes);
            std::unique_ptr<char[]> grown = Allocate(m_capacity);
            std::memcpy(grown.get(), m_data.get(), m_size);
            m_data = std::move(grown);
        }
        return m_data.get() + m_size;
    }
    void SetEnd(const char* end) { m_size = static_cast<size_t>(end - m_data.get()); }
    void Append(std::string_view bytes) {
        char* at = Room(bytes.size());
        std::memcpy(at, bytes.data(), bytes.size());
        m_size += bytes.size();
    }
    std::string_view View() const { return {m_data.get(), m_size}; }

private:
    static std::unique_ptr<char[]> Allocate(size_t capacity) {
        return std::make_unique_for_overwrite<char[]>(std::max<size_t>(capacity, 1));
    }

    std::unique_ptr<char[]> m_data;
    size_t m_size = 0;
    size_t m_capacity = 0;
};

}  // namespace Orva::Lists
