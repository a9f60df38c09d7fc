#pragma once

#include <string>
#include <vector>

#include "support/fakes/platform/FakeClock.h"
#include "support/fakes/platform/FakeProcessContext.h"
#include "settings/log/DebugLog.h"
#include "support/TempFolder.h"

namespace Orva::Testing {

// A switched-on debug log of its own whose lines the test reads back without their head.
class ProbeLog {
public:
    ProbeLog() { m_log.OpenLog(m_folder.File(L"probe.log")); }

    ZelCommon::Library::DebugLog& Log() { return m_log; }

    std::vector<std::wstring> Lines() const {
        std::vector<std::wstring> lines;
        for (const std::wstring& text : m_debugger.Texts()) {
            // The head "pppp:tttt yyyy/mm/dd hh:mm:ss:mmm " is 34 characters.
            lines.push_back(text.size() >= kHeadChars ? text.substr(kHeadChars) : text);
        }
        return lines;
    }

private:
    static constexpr std::size_t kHeadChars = 34;

    TempFolder m_folder;
    ZelCommon::Fakes::FakeClock m_clock{ZelCommon::Fakes::FakeClock::At(2024, 1, 31, 9, 5, 7, 42)};
    ZelCommon::Fakes::FakeProcessContext m_process;
    ZelCommon::Fakes::FakeDebuggerOutput m_debugger;
    ZelCommon::Library::DebugLog m_log{m_clock, m_process, m_debugger};
};

}  // namespace Orva::Testing
