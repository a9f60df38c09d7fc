#pragma once

#include <string>

#include "support/fakes/platform/FakeJournal.h"
#include "common_src/platform/ProcessContext.h"

namespace ZelCommon::Fakes {

// Puts each debug-log line into the journal as "log <text>", without its head and line end.
class JournalDebuggerOutput final : public Platform::IDebuggerOutput {
public:
    explicit JournalDebuggerOutput(FakeJournal& journal) : m_journal(journal) {}
    void Write(const std::wstring& text) override {
        // The head "pppp:tttt yyyy/mm/dd hh:mm:ss:mmm " is 34 characters.
        std::wstring line = text.size() >= 34 ? text.substr(34) : text;
        if (!line.empty() && line.back() == L'\n') {
            line.pop_back();
        }
        m_journal.Add(L"log " + line);
    }

private:
    FakeJournal& m_journal;
};

// Plain debugger lines (not the log's) as "debugger <text>".
class JournalPlainDebugger final : public Platform::IDebuggerOutput {
public:
    explicit JournalPlainDebugger(FakeJournal& journal) : m_journal(journal) {}
    void Write(const std::wstring& text) override { m_journal.Add(L"debugger " + text); }

private:
    FakeJournal& m_journal;
};

}  // namespace ZelCommon::Fakes
