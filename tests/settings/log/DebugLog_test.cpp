#include "settings/log/DebugLog.h"
#include "support/FileBytes.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <functional>
#include <numeric>
#include <regex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "common_src/platform/TextCodec.h"
#include "support/fakes/platform/FakeClock.h"
#include "support/fakes/platform/FakeProcessContext.h"

namespace {

namespace fs = std::filesystem;
using Orva::Testing::ReadFileBytes;
using Orva::Testing::TempFolder;
using ZelCommon::Fakes::FakeClock;
using ZelCommon::Fakes::FakeDebuggerOutput;
using ZelCommon::Fakes::FakeProcessContext;
using ZelCommon::Library::DebugLog;
using ZelCommon::Library::FormatWhere;
using ZelCommon::Library::ScopeTracer;

// Text-mode files on Windows end their lines with CR LF.
std::string OnDisk(const std::string& text) {
#ifdef _WIN32
    return std::regex_replace(text, std::regex("\n"), "\r\n");
#else
    return text;
#endif
}

// A log of its own over a fixed clock and process, and a temporary folder for its files.
struct LogRig {
    LogRig() {
        process.SetProcessId(0x51234);
        process.SetThreadId(0xA000B);
    }

    TempFolder temp;
    FakeClock clock{FakeClock::At(2024, 1, 31, 9, 5, 7, 42)};
    FakeProcessContext process;
    FakeDebuggerOutput debugger;
    DebugLog log{clock, process, debugger};
};

class DebugLogTest : public ::testing::Test, protected LogRig {
protected:
    std::wstring Base(const wchar_t* name) const { return (m_folder / name).wstring(); }
    std::vector<fs::path> Files() const {
        std::vector<fs::path> files;
        for (const auto& entry : fs::directory_iterator(m_folder)) {
            files.push_back(entry.path().filename());
        }
        return files;
    }
    // The lines of a log file, without their line ends.
    std::vector<std::string> FileLines(const char* name) const {
        std::string text = ReadFileBytes(m_folder / name);
        std::erase(text, '\r');
        std::vector<std::string> lines;
        for (size_t start = 0; start < text.size();) {
            const size_t end = text.find('\n', start);
            EXPECT_NE(end, std::string::npos) << "unterminated last line";
            lines.push_back(text.substr(start, end - start));
            start = end == std::string::npos ? text.size() : end + 1;
        }
        return lines;
    }

    const fs::path m_folder = temp.Root();
};

const std::string kHead = "1234:000b 2024/01/31 09:05:07:042 ";

// Never opened, or opened in a folder that does not exist: every kind of write is dropped.
TEST_F(DebugLogTest, NotOpenOrOpenFailed_WritesNothingAnywhere) {
    for (const bool tryOpen : {false, true}) {
        if (tryOpen) {
            log.OpenLog((m_folder / "missing" / "ORVAAgent.log").wstring());
        }
        log.WriteLine(L"line\n");
        log.LogMessage(0, "a.cpp", 1, L"message %d", 1);
        log.LogText(L"@@@ %s  IN", L"Step");
        { ScopeTracer tracer(L"CFoo::Bar", "Foo.cpp", 10, log); }
        EXPECT_FALSE(log.IsLogOn());
        EXPECT_TRUE(Files().empty());
        EXPECT_TRUE(debugger.Texts().empty());
    }
}

TEST_F(DebugLogTest, OpenLog_CreatesTodaysDatedFile) {
    log.OpenLog(Base(L"ORVAAgent.log"));
    EXPECT_TRUE(log.IsLogOn());
    EXPECT_EQ(Files(), std::vector<fs::path>{"ORVAAgent.20240131.log"});
}

using Writes = std::function<void(DebugLog&, FakeClock&, FakeProcessContext&)>;

// Every line is "pid:tid date time " and the text, in the file (ANSI, no byte-order mark) and
// for the debugger alike. A line of 500 characters or more with its head keeps 495 and ends with
// "...n", without a line break.
TEST(DebugLog, Lines_AreHeadAndTextInTheFileAndForTheDebugger) {
    const auto write = [](std::wstring text) {
        return [text](DebugLog& log, FakeClock&, FakeProcessContext&) { log.WriteLine(text); };
    };
    const struct {
        const char* name;
        Writes writes;
        std::string written;
    } cases[] = {
        {"head then text",
         [](DebugLog& log, FakeClock& clock, FakeProcessContext& process) {
             log.WriteLine(L"hello\n");
             clock.Set(FakeClock::At(2024, 1, 31, 23, 59, 59, 999));
             process.SetProcessId(0xFFFFFFFF);
             process.SetThreadId(0x10000);
             log.WriteLine(L"second\n");
         },
         kHead + "hello\nffff:0000 2024/01/31 23:59:59:999 second\n"},
        {"ANSI", write(L"caf\u00E9\n"), kHead + ZelCommon::Text::WideToAnsi(L"caf\u00E9") + "\n"},
        {"499 characters", write(std::wstring(464, L'a') + L"\n"),
         kHead + std::string(464, 'a') + "\n"},
        {"500 characters", write(std::wstring(465, L'a') + L"\n"),
         kHead + std::string(495 - kHead.size(), 'a') + "...n"},
        {"a formatted message of 5000",
         [](DebugLog& log, FakeClock&, FakeProcessContext&) {
             log.LogMessage(2, "x.cpp", 1, L"%s", std::wstring(5000, L'z'));
         },
         kHead + "@@@ " + std::string(495 - kHead.size() - 4, 'z') + "...n"},
        {"level prefixes and source file names",
         [](DebugLog& log, FakeClock&, FakeProcessContext&) {
             log.LogMessage(0, "C:\\work\\src\\settings\\SettingsStore.cpp", 120, L"value %d", 0);
             log.LogMessage(1, "C:\\work\\src\\settings\\SettingsStore.cpp", 120, L"value %d", 1);
             log.LogMessage(2, "/work/main/src/plugin/ToolBarWnd.cpp", 120, L"value %d", 2);
             log.LogMessage(7, "SettingsStore.cpp", 120, L"value %d", 7);
             log.LogMessage(-1, "SettingsStore.cpp", 120, L"value %d", -1);
         },
         kHead + "!!! value 0, at: SettingsStore.cpp line: 120\n" + kHead +
             "### value 1, at: SettingsStore.cpp line: 120\n" + kHead +
             "@@@ value 2, at: ToolBarWnd.cpp line: 120\n" + kHead +
             "??? value 7, at: SettingsStore.cpp line: 120\n" + kHead +
             "??? value -1, at: SettingsStore.cpp line: 120\n"},
        {"LogText adds a line break only when missing",
         [](DebugLog& log, FakeClock&, FakeProcessContext&) {
             log.LogText(L"@@@ %s  IN", L"CToolBarWnd::OnBuildUI");
             log.LogText(L"######the nPos = %d!\n", 3);
             log.LogText(L"");
         },
         kHead + "@@@ CToolBarWnd::OnBuildUI  IN\n" + kHead + "######the nPos = 3!\n" + kHead +
             "\n"},
        {"scope tracer",
         [](DebugLog& log, FakeClock&, FakeProcessContext&) {
             ScopeTracer tracer(L"CToolBarWnd::OnCreate", "src\\plugin\\ToolBarWnd.cpp", 88, log);
             log.WriteLine(L"body\n");
         },
         kHead + " ==> [CToolBarWnd::OnCreate] in, at: ToolBarWnd.cpp line: 88\n" + kHead +
             "body\n" + kHead + " <== [CToolBarWnd::OnCreate] out, at: ToolBarWnd.cpp line: 88\n"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        LogRig rig;
        rig.log.OpenLog((rig.temp.Root() / "ORVAAgent.log").wstring());
        each.writes(rig.log, rig.clock, rig.process);
        EXPECT_EQ(ReadFileBytes(rig.temp.Root() / "ORVAAgent.20240131.log"), OnDisk(each.written));
        const std::vector<std::wstring> texts = rig.debugger.Texts();
        const std::wstring shown = std::accumulate(texts.begin(), texts.end(), std::wstring());
        EXPECT_EQ(OnDisk(ZelCommon::Text::WideToAnsi(shown)), OnDisk(each.written));
    }
}

// Checks whether this process still holds the file open.
bool IsHeldOpen(const fs::path& path) {
#ifdef _WIN32
    // A file opened by _wfopen cannot be renamed while open.
    const fs::path moved = path.string() + ".moved";
    std::error_code error;
    fs::rename(path, moved, error);
    if (error) {
        return true;
    }
    fs::rename(moved, path, error);
    return false;
#else
    std::error_code error;
    const fs::path wanted = fs::canonical(path, error);
    for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
        std::error_code ignored;
        if (fs::read_symlink(entry.path(), ignored) == wanted) {
            return true;
        }
    }
    return false;
#endif
}

TEST_F(DebugLogTest, FirstLineAfterMidnight_GoesToNewDaysFileAndOldIsClosed) {
    clock.Set(FakeClock::At(2024, 1, 31, 23, 59, 59, 999));
    log.OpenLog(Base(L"ORVAAgent.log"));
    log.WriteLine(L"before\n");
    EXPECT_TRUE(IsHeldOpen(m_folder / "ORVAAgent.20240131.log"));
    clock.Advance(1);
    log.WriteLine(L"after\n");
    EXPECT_EQ(ReadFileBytes(m_folder / "ORVAAgent.20240131.log"),
              OnDisk("1234:000b 2024/01/31 23:59:59:999 before\n"));
    EXPECT_EQ(ReadFileBytes(m_folder / "ORVAAgent.20240201.log"),
              OnDisk("1234:000b 2024/02/01 00:00:00:000 after\n"));
    EXPECT_FALSE(IsHeldOpen(m_folder / "ORVAAgent.20240131.log"));
    EXPECT_TRUE(IsHeldOpen(m_folder / "ORVAAgent.20240201.log"));
}

TEST_F(DebugLogTest, NewDaysFileCannotOpen_LogGoesOffWithoutWriting) {
    log.OpenLog(Base(L"ORVAAgent.log"));
    fs::create_directory(m_folder / "ORVAAgent.20240201.log");
    clock.Set(FakeClock::At(2024, 2, 1, 0, 0, 1, 0));
    log.WriteLine(L"lost\n");
    EXPECT_FALSE(log.IsLogOn());
    log.WriteLine(L"also lost\n");
    EXPECT_EQ(ReadFileBytes(m_folder / "ORVAAgent.20240131.log"), "");
    EXPECT_EQ(debugger.Texts().size(), 1u);
}

TEST_F(DebugLogTest, ManyThreads_LinesNeverInterleave) {
    log.OpenLog(Base(L"ORVAAgent.log"));
    constexpr int kThreads = 8;
    constexpr int kLines = 150;
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([this, t] {
            const std::wstring filler(static_cast<size_t>(100 + t * 30),
                                      static_cast<wchar_t>(L'a' + t));
            for (int n = 0; n < kLines; ++n) {
                log.LogMessage(2, "Worker.cpp", 5, L"T%d N%03d %s", t, n, filler);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    const std::regex shape(
        "1234:000b 2024/01/31 09:05:07:042 @@@ T([0-7]) N([0-9]{3}) ([a-h]+), at: Worker.cpp "
        "line: 5");
    std::vector<int> counts(kThreads, 0);
    const std::vector<std::string> lines = FileLines("ORVAAgent.20240131.log");
    for (const std::string& line : lines) {
        std::smatch match;
        ASSERT_TRUE(std::regex_match(line, match, shape)) << line;
        const int t = std::stoi(match[1]);
        EXPECT_EQ(std::stoi(match[2]), counts[static_cast<size_t>(t)]++);
        EXPECT_EQ(match[3].str(),
                  std::string(static_cast<size_t>(100 + t * 30), static_cast<char>('a' + t)));
    }
    EXPECT_EQ(lines.size(), static_cast<size_t>(kThreads * kLines));
    EXPECT_EQ(debugger.Texts().size(), static_cast<size_t>(kThreads * kLines));
}

TEST_F(DebugLogTest, WritersAcrossMidnight_EachLineLandsInTheFileOfItsOwnDate) {
    clock.Set(FakeClock::At(2024, 1, 31, 23, 59, 59, 0));
    log.OpenLog(Base(L"ORVAAgent.log"));
    std::atomic<bool> stop{false};
    std::vector<std::thread> writers;
    for (int t = 0; t < 4; ++t) {
        writers.emplace_back([this, &stop, t] {
            int n = 0;
            while (!stop) {
                log.LogText(L"writer %d line %d", t, n++);
            }
            // Past midnight by now: every writer also reaches the new day's file.
            log.LogText(L"writer %d line %d", t, n);
        });
    }
    for (int step = 0; step < 2000; ++step) {
        clock.Advance(1);
        std::this_thread::yield();
    }
    stop = true;
    for (std::thread& writer : writers) {
        writer.join();
    }
    const std::regex shape("1234:000b (2024/01/31|2024/02/01) [0-9:]{12} writer [0-3] line [0-9]+");
    size_t total = 0;
    for (const auto& [file, date] : {std::pair{"ORVAAgent.20240131.log", "2024/01/31"},
                                     std::pair{"ORVAAgent.20240201.log", "2024/02/01"}}) {
        for (const std::string& line : FileLines(file)) {
            std::smatch match;
            ASSERT_TRUE(std::regex_match(line, match, shape)) << line;
            EXPECT_EQ(match[1].str(), date) << file;
            ++total;
        }
    }
    EXPECT_EQ(total, debugger.Texts().size());
    EXPECT_GE(total, 4u);
}

struct DatedRow {
    const wchar_t* base;
    const wchar_t* dated;
};

TEST(DebugLogDatedPath, DateGoesBeforeLastDotOrLastCharacter) {
    const DatedRow rows[] = {
        {L"C:\\Users\\u\\AppData\\Local\\Halvion\\WLM\\log\\ORVAAgent.log",
         L"C:\\Users\\u\\AppData\\Local\\Halvion\\WLM\\log\\ORVAAgent.20240131.log"},
        {L"agent.trace.txt", L"agent.trace.20240131.txt"},
        {L"C:\\log\\ORVAAgent", L"C:\\log\\ORVAAgen.20240131t"},
        {L"x", L".20240131x"},
        {L"C:\\my.folder\\ORVAAgent", L"C:\\my.20240131.folder\\ORVAAgent"},
        {L"name.", L"name.20240131."},
        {L"", L".20240131"},
    };
    const auto date = FakeClock::At(2024, 1, 31);
    for (const DatedRow& row : rows) {
        EXPECT_EQ(DebugLog::DatedPath(row.base, date), row.dated);
    }
    EXPECT_EQ(DebugLog::DatedPath(L"a.log", FakeClock::At(987, 12, 5)), L"a.09871205.log");
}

TEST(DebugLogFormatWhere, FunctionMessageFileAndLine) {
    EXPECT_EQ(
        FormatWhere(L"CSettings::Load", L"cannot read", "C:\\src\\settings\\Settings.cpp", 42),
        L"CSettings::Load() - cannot read [Settings.cpp(42)]");
    EXPECT_EQ(FormatWhere(L"f", L"", "plain.cpp", 0), L"f() -  [plain.cpp(0)]");
}

}  // namespace
