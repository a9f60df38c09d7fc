#include "support/fakes/plugin/FakeContacts.h"

#include <cstdint>

namespace ZelCommon::Fakes {
namespace {

using Orva::Plugin::ContactAddress;
using Orva::Plugin::HostCallError;
using Orva::Plugin::IContact;

class Contact final : public IContact {
public:
    Contact(FakeContacts& book, std::size_t position) : m_book(book), m_position(position) {}

    std::wstring DisplayName() override {
        if (m_book.onRead) {
            m_book.onRead(m_position);
        }
        return Read().name;
    }
    std::wstring Address(ContactAddress field) override {
        return Read().addresses.at(static_cast<std::size_t>(field));
    }

private:
    const FakeContact& Read() const {
        if (m_book.failAt == m_position) {
            throw HostCallError(m_book.failure);
        }
        return m_book.contacts.at(m_position);
    }

    FakeContacts& m_book;
    std::size_t m_position;
};

class Manager final : public Orva::Plugin::IContactManager {
public:
    explicit Manager(FakeContacts& book) : m_book(book) {}

    int32_t Count() override { return static_cast<int32_t>(m_book.contacts.size()); }
    std::unique_ptr<IContact> FirstContact() override {
        m_next = 0;
        return NextContact();
    }
    std::unique_ptr<IContact> NextContact() override {
        if (m_next >= m_book.contacts.size()) {
            return nullptr;
        }
        return std::make_unique<Contact>(m_book, m_next++);
    }

private:
    FakeContacts& m_book;
    std::size_t m_next = 0;
};

}  // namespace

std::unique_ptr<Orva::Plugin::IContactManager> FakeContacts::CreateContactManager() {
    if (failCreate) {
        throw HostCallError(failure);
    }
    return std::make_unique<Manager>(*this);
}

}  // namespace ZelCommon::Fakes
