#include "IniCommands.h"

#include <cstdint>
#include <limits>
#include <optional>

#include "CommandErrors.h"
#include "FileChecks.h"
#include "Orvactl.h"
#include "common_src/platform/WideFormat.h"
#include "common_src/ZelCommon/ProfileLists.h"

namespace Orva::Orvactl {
namespace {

using ZelCommon::Storage::IProfileApi;
using Args = std::span<const std::wstring>;

std::optional<int32_t> ParseInt(const std::wstring& text) {
    const bool negative = !text.empty() && text[0] == L'-';
    size_t at = !text.empty() && (text[0] == L'-' || text[0] == L'+') ? 1 : 0;
    if (at == text.size()) {
        return std::nullopt;
    }
    constexpr int64_t kLargestMagnitude = int64_t{std::numeric_limits<int32_t>::max()} + 1;
    int64_t magnitude = 0;
    for (; at < text.size(); ++at) {
        if (text[at] < L'0' || text[at] > L'9') {
            return std::nullopt;
        }
        magnitude = magnitude * 10 + (text[at] - L'0');
        if (magnitude > kLargestMagnitude) {
            return std::nullopt;
        }
    }
    const int64_t value = negative ? -magnitude : magnitude;
    if (value > std::numeric_limits<int32_t>::max()) {
        return std::nullopt;
    }
    return static_cast<int32_t>(value);
}

bool CheckArity(Args args, size_t least, size_t most, ITextSink& err, int& exitCode) {
    if (args.size() < least || args.size() > most) {
        exitCode = ReportUsageError(err, L"wrong number of arguments for 'ini " + args[0] + L"'");
        return false;
    }
    return true;
}

void WriteLines(ITextSink& out, const std::vector<std::wstring>& lines) {
    for (const std::wstring& line : lines) {
        out.Write(line);
        out.Write(L"\n");
    }
}

int Get(Args args, ITextSink& out, IProfileApi& api) {
    const std::wstring defaultValue = args.size() > 4 ? args[4] : std::wstring();
    out.Write(ZelCommon::Storage::ReadProfileString(api, args[1], args[2], args[3], defaultValue));
    out.Write(L"\n");
    return kExitOk;
}

int GetInt(Args args, ITextSink& out, ITextSink& err, IProfileApi& api) {
    int32_t defaultValue = 0;
    if (args.size() > 4) {
        const std::optional<int32_t> parsed = ParseInt(args[4]);
        if (!parsed) {
            return ReportUsageError(err, L"DEFAULT must be a whole number: " + args[4]);
        }
        defaultValue = *parsed;
    }
    const uint32_t value =
        api.GetInt(args[2].c_str(), args[3].c_str(), defaultValue, args[1].c_str());
    // GetPrivateProfileIntW hands back a signed value in an unsigned type.
    out.Write(ZelCommon::Text::Format(L"%d\n", static_cast<int32_t>(value)));
    return kExitOk;
}

int Write(const std::wstring& file, const wchar_t* section, const wchar_t* key,
          const wchar_t* value, ITextSink& err, IProfileApi& api) {
    if (!api.WriteString(section, key, value, file.c_str())) {
        return ReportFailure(err, ZelCommon::Text::Format(L"%s: cannot be written (error %u)", file,
                                                          api.LastError()));
    }
    return kExitOk;
}

struct Command {
    std::wstring_view name;
    size_t leastArgs;  // counting the sub-command itself
    size_t mostArgs;
    bool writes;
};

constexpr Command kCommands[] = {
    {L"get", 4, 5, false},   {L"getint", 4, 5, false},   {L"set", 5, 5, true},
    {L"delete", 3, 4, true}, {L"sections", 2, 2, false}, {L"keys", 3, 3, false},
};

}  // namespace

int RunIniCommand(Args args, ITextSink& out, ITextSink& err, IProfileApi& api) {
    if (args.empty()) {
        return ReportUsageError(err,
                                L"'ini' needs a command: get, getint, set, delete, "
                                L"sections or keys");
    }
    const Command* command = nullptr;
    for (const Command& candidate : kCommands) {
        if (candidate.name == args[0]) {
            command = &candidate;
        }
    }
    if (command == nullptr) {
        return ReportUsageError(err, L"unknown ini command: " + args[0]);
    }
    int exitCode = kExitOk;
    if (!CheckArity(args, command->leastArgs, command->mostArgs, err, exitCode)) {
        return exitCode;
    }
    const std::wstring& file = args[1];
    const std::optional<std::wstring> problem =
        command->writes ? WhyNotWritableFile(file) : WhyNotReadableFile(file);
    if (problem) {
        return ReportFailure(err, *problem);
    }

    if (args[0] == L"get") {
        return Get(args, out, api);
    }
    if (args[0] == L"getint") {
        return GetInt(args, out, err, api);
    }
    if (args[0] == L"set") {
        return Write(file, args[2].c_str(), args[3].c_str(), args[4].c_str(), err, api);
    }
    if (args[0] == L"delete") {
        return Write(file, args[2].c_str(), args.size() > 3 ? args[3].c_str() : nullptr, nullptr,
                     err, api);
    }
    if (args[0] == L"sections") {
        WriteLines(out, ZelCommon::Storage::ReadSectionNames(api, file));
        return kExitOk;
    }
    WriteLines(out, ZelCommon::Storage::ReadKeyNames(api, file, args[2]));
    return kExitOk;
}

}  // namespace Orva::Orvactl
