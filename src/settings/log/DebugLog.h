#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "common_src/platform/Clock.h"
#include "common_src/platform/ProcessContext.h"
#include "common_src/platform/WideFormat.h"

namespace ZelCommon::Library {

// Levels of LogMessage; each only chooses the line's prefix ("!!! ", "### ", "@@@ ", "??? ").
enum LogLevel : int { LogError = 0, LogWarning = 1, LogInfo = 2 };

// The process-wide, opt-in trace: every line goes to the debugger output and to a daily file
// "<base>.YYYYMMDD.<ext>", but only while that file is open. Any thread may write.
class DebugLog {
public:
    DebugLog(Platform::IClock& clock, Platform::IProcessContext& process,
             Platform::IDebuggerOutput& debugger);
    ~DebugLog();
    DebugLog(const DebugLog&) = delete;
    DebugLog& operator=(const DebugLog&) = delete;

    void OpenLog(const std::wstring& basePath);
    // Switches the log on without a file: each line's text alone, without the head, goes to the
    // debugger output. The administrator's tool shows the add-in's trace this way.
    void OpenTextOnly();
    bool IsLogOn() const;
    // Writes the text, behind the process/thread/time head, as one line (callers end it with
    // "\n").
    void WriteLine(const std::wstring& text);

    // A printf-style message (Windows wide-format meaning), prefixed by level and followed by
    // ", at: <file> line: <n>\n".
    template <class... Args>
    void LogMessage(int level, const char* sourcePath, unsigned line, std::wstring_view format,
                    const Args&... args) {
        if (!IsLogOn()) {
            return;
        }
        const Text::FormatArg list[] = {Text::FormatArg(0), Text::FormatArg(args)...};
        WriteMessage(level, sourcePath, line, format,
                     std::span<const Text::FormatArg>(list).subspan(1));
    }

    // A free-form formatted text with its own markers ("@@@ %s  IN"), written as one line.
    template <class... Args>
    void LogText(std::wstring_view format, const Args&... args) {
        if (!IsLogOn()) {
            return;
        }
        const Text::FormatArg list[] = {Text::FormatArg(0), Text::FormatArg(args)...};
        WriteText(format, std::span<const Text::FormatArg>(list).subspan(1));
    }

    // The file name of the log opened on `date` for `basePath`: ".YYYYMMDD" goes before the last
    // dot, or before the last character when there is no dot.
    static std::wstring DatedPath(const std::wstring& basePath, const Platform::LocalTime& date);

private:
    void WriteMessage(int level, const char* sourcePath, unsigned line, std::wstring_view format,
                      std::span<const Text::FormatArg> args);
    void WriteText(std::wstring_view format, std::span<const Text::FormatArg> args);

    struct State;
    Platform::IClock& m_clock;
    Platform::IProcessContext& m_process;
    Platform::IDebuggerOutput& m_debugger;
    std::unique_ptr<State> m_state;
    std::atomic<bool> m_on{false};
};

// The one log of the process, on the system clock, process and debugger output.
DebugLog& TheLog();

// Set at start-up when hidden functions are switched on; other parts test it.
bool HiddenFunctionsEnabled();
void SetHiddenFunctionsEnabled(bool enabled);

// "%s() - %s [%s(%u)]": function, message, file-name part of the source path, line.
std::wstring FormatWhere(std::wstring_view function, std::wstring_view message,
                         std::string_view sourcePath, unsigned line);

// Writes " ==> [name] in" when built and " <== [name] out" when destroyed, with the place.
class ScopeTracer {
public:
    ScopeTracer(std::wstring function, const char* sourcePath, unsigned line,
                DebugLog& log = TheLog());
    ~ScopeTracer();
    ScopeTracer(const ScopeTracer&) = delete;
    ScopeTracer& operator=(const ScopeTracer&) = delete;

private:
    DebugLog& m_log;
    std::wstring m_function;
    const char* m_sourcePath;
    unsigned m_line;
};

}  // namespace ZelCommon::Library

#define ZEL_LOG(level, ...) \
    ::ZelCommon::Library::TheLog().LogMessage((level), __FILE__, __LINE__, __VA_ARGS__)
#define ZEL_LOG_TEXT(...) ::ZelCommon::Library::TheLog().LogText(__VA_ARGS__)
#define ZEL_TRACE_SCOPE(name) \
    ::ZelCommon::Library::ScopeTracer zelScopeTracer_((name), __FILE__, __LINE__)
