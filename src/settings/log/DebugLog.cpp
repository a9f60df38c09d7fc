#include "settings/log/DebugLog.h"

#include <mutex>

#include "common_src/platform/AppendFile.h"
#include "common_src/platform/Path.h"
#include "common_src/platform/TextCodec.h"

namespace ZelCommon::Library {
namespace {

// A formatted message is bounded like a 1024-character buffer with its terminator.
constexpr size_t kMessageCapacity = 1024;
constexpr size_t kLongLine = 500;
constexpr size_t kLongLineKept = 495;

std::wstring Bounded(std::wstring text) {
    if (text.size() > kMessageCapacity - 1) {
        text.resize(kMessageCapacity - 1);
    }
    return text;
}

std::wstring SourceFileName(std::string_view sourcePath) {
    return std::wstring(Path::FileNameOf(Text::Utf8ToWide(sourcePath)));
}

const wchar_t* LevelPrefix(int level) {
    switch (level) {
        case LogError:
            return L"!!! ";
        case LogWarning:
            return L"### ";
        case LogInfo:
            return L"@@@ ";
        default:
            return L"??? ";
    }
}

std::wstring Place(std::string_view sourcePath, unsigned line) {
    return Text::Format(L", at: %s line: %u\n", SourceFileName(sourcePath), line);
}

std::atomic<bool> g_hiddenFunctions{false};

}  // namespace

struct DebugLog::State {
    std::mutex lock;
    Platform::AppendFile file;
    std::wstring basePath;
    bool textOnly = false;
    uint16_t year = 0;
    uint16_t month = 0;
    uint16_t day = 0;
};

DebugLog::DebugLog(Platform::IClock& clock, Platform::IProcessContext& process,
                   Platform::IDebuggerOutput& debugger)
    : m_clock(clock),
      m_process(process),
      m_debugger(debugger),
      m_state(std::make_unique<State>()) {}

DebugLog::~DebugLog() = default;

std::wstring DebugLog::DatedPath(const std::wstring& basePath, const Platform::LocalTime& date) {
    const std::wstring stamp = Text::Format(L".%04d%02d%02d", date.year, date.month, date.day);
    if (basePath.empty()) {
        return stamp;
    }
    const size_t dot = basePath.rfind(L'.');
    // Without a dot the stamp lands before the last character; old logs are named that way.
    const size_t at = dot == std::wstring::npos ? basePath.size() - 1 : dot;
    std::wstring dated = basePath;
    dated.insert(at, stamp);
    return dated;
}

void DebugLog::OpenLog(const std::wstring& basePath) {
    std::lock_guard guard(m_state->lock);
    m_state->basePath = basePath;
    const Platform::LocalTime today = m_clock.Now();
    m_state->textOnly = false;
    m_state->file.Close();
    m_state->file = Platform::AppendFile::Open(DatedPath(basePath, today));
    m_state->year = today.year;
    m_state->month = today.month;
    m_state->day = today.day;
    m_on = m_state->file.IsOpen();
}

void DebugLog::OpenTextOnly() {
    std::lock_guard guard(m_state->lock);
    m_state->file.Close();
    m_state->textOnly = true;
    m_on = true;
}

bool DebugLog::IsLogOn() const {
    return m_on.load(std::memory_order_acquire);
}

void DebugLog::WriteLine(const std::wstring& text) {
    if (!IsLogOn()) {
        return;
    }
    std::lock_guard guard(m_state->lock);
    State& state = *m_state;
    if (state.textOnly) {
        m_debugger.Write(text);
        return;
    }
    if (!state.file.IsOpen()) {
        return;
    }
    const Platform::LocalTime now = m_clock.Now();
    std::wstring line =
        Text::Format(L"%04x:%04x %04u/%02u/%02u %02u:%02u:%02u:%03u ",
                     m_process.ProcessId() & 0xFFFFu, m_process.ThreadId() & 0xFFFFu, now.year,
                     now.month, now.day, now.hour, now.minute, now.second, now.milliseconds);
    line += text;
    if (line.size() >= kLongLine) {
        line.resize(kLongLineKept);
        line += L"...n";
    }
    m_debugger.Write(line);

    if (now.year != state.year || now.month != state.month || now.day != state.day) {
        state.file.Close();
        state.file = Platform::AppendFile::Open(DatedPath(state.basePath, now));
        state.year = now.year;
        state.month = now.month;
        state.day = now.day;
        if (!state.file.IsOpen()) {
            m_on = false;
            return;
        }
    }
    state.file.Write(Text::WideToAnsi(line));
}

void DebugLog::WriteMessage(int level, const char* sourcePath, unsigned line,
                            std::wstring_view format, std::span<const Text::FormatArg> args) {
    std::wstring text = LevelPrefix(level);
    text += Bounded(Text::FormatV(format, args));
    text += Place(sourcePath != nullptr ? sourcePath : "", line);
    WriteLine(text);
}

void DebugLog::WriteText(std::wstring_view format, std::span<const Text::FormatArg> args) {
    std::wstring text = Bounded(Text::FormatV(format, args));
    if (text.empty() || text.back() != L'\n') {
        text += L'\n';
    }
    WriteLine(text);
}

DebugLog& TheLog() {
    static DebugLog log(Platform::SystemClock(), Platform::SystemProcessContext(),
                        Platform::SystemDebuggerOutput());
    return log;
}

bool HiddenFunctionsEnabled() {
    return g_hiddenFunctions.load(std::memory_order_acquire);
}

void SetHiddenFunctionsEnabled(bool enabled) {
    g_hiddenFunctions.store(enabled, std::memory_order_release);
}

std::wstring FormatWhere(std::wstring_view function, std::wstring_view message,
                         std::string_view sourcePath, unsigned line) {
    return Text::Format(L"%s() - %s [%s(%u)]", function, message, SourceFileName(sourcePath), line);
}

ScopeTracer::ScopeTracer(std::wstring function, const char* sourcePath, unsigned line,
                         DebugLog& log)
    : m_log(log), m_function(std::move(function)), m_sourcePath(sourcePath), m_line(line) {
    if (m_log.IsLogOn()) {
        m_log.WriteLine(L" ==> [" + m_function + L"] in" +
                        Place(m_sourcePath != nullptr ? m_sourcePath : "", m_line));
    }
}

ScopeTracer::~ScopeTracer() {
    if (m_log.IsLogOn()) {
        m_log.WriteLine(L" <== [" + m_function + L"] out" +
                        Place(m_sourcePath != nullptr ? m_sourcePath : "", m_line));
    }
}

}  // namespace ZelCommon::Library
