#include "ScenarioReport.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "common_src/platform/WideFormat.h"
#include "plugin/protocol/AgentProtocol.h"
#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Sim {
namespace {

using namespace Orva::Plugin;

struct WindowRole {
    std::wstring_view name;
    std::wstring_view role;
};

constexpr WindowRole kRoles[] = {
    {kControllerWindowTitle, L"controller"},
    {kAgentWindowTitle, L"agent"},
    {kSuiteWindowTitle, L"suite"},
    {kMailClientMainClass, L"main window"},
};

struct MessageMeaning {
    std::wstring_view role;
    uint32_t message;
    std::wstring_view meaning;
};

constexpr MessageMeaning kMeanings[] = {
    {L"controller", ControllerMessage::Create, L"WM_CREATE"},
    {L"controller", ControllerMessage::Close, L"WM_CLOSE"},
    {L"controller", ControllerMessage::CopyData, L"WM_COPYDATA"},
    {L"controller", ControllerMessage::AgentReady, L"the agent is ready"},
    {L"controller", ControllerMessage::FolderSelected, L"folder selected"},
    {L"controller", ControllerMessage::ReQueryDefaultAccount, L"re-query the default account"},
    {L"controller", ControllerMessage::BuildUi, L"build the user interface"},
    {L"controller", ControllerMessage::MailClientShutdown, L"the mail client shuts down"},
    {L"controller", ControllerMessage::ButtonClicked, L"button clicked"},
    {L"agent", AgentMessage::Close, L"WM_CLOSE"},
    {L"agent", AgentMessage::ReportSpam, L"report the selected messages as spam"},
    {L"agent", AgentMessage::ReportNotSpam, L"report the selected messages as not spam"},
    {L"agent", AgentMessage::Stop, L"stop"},
    {L"agent", AgentMessage::DefaultAccountChanged, L"the default account changed"},
    {L"agent", AgentMessage::DefaultAccountReady, L"the default account information is ready"},
};

std::wstring_view RoleOf(std::wstring_view window) {
    for (const WindowRole& known : kRoles) {
        if (known.name == window) {
            return known.role;
        }
    }
    return {};
}

std::wstring_view MeaningOf(std::wstring_view role, std::wstring_view messageText) {
    for (const MessageMeaning& known : kMeanings) {
        if (known.role == role && std::to_wstring(known.message) == messageText) {
            return known.meaning;
        }
    }
    return {};
}

}  // namespace

std::wstring DescribeEntry(const std::wstring& entry) {
    // "<verb> <window> ...", where the window's name has no blanks.
    constexpr std::wstring_view kVerbs[] = {L"post ", L"send ", L"window opens ", L"window closes ",
                                            L"window destroyed "};
    const std::wstring_view text(entry);
    for (const std::wstring_view verb : kVerbs) {
        if (!text.starts_with(verb)) {
            continue;
        }
        const std::wstring_view window =
            text.substr(verb.size(), text.find(L' ', verb.size()) - verb.size());
        const std::wstring_view role = RoleOf(window);
        if (role.empty()) {
            return entry;
        }
        std::wstring rest(text.substr(std::min(text.size(), verb.size() + window.size() + 1)));
        const bool message = verb.starts_with(L"post") || verb.starts_with(L"send");
        if (!message) {
            return std::wstring(verb) + std::wstring(role);
        }
        const std::wstring_view meaning = MeaningOf(role, rest.substr(0, rest.find(L' ')));
        // A sign-extended -1 (the drop-down's group) reads better as what it was.
        const std::wstring minusOne = L" " + std::to_wstring(UINTPTR_MAX) + L" ";
        if (const size_t at = rest.find(minusOne); at != std::wstring::npos) {
            rest.replace(at, minusOne.size(), L" -1 ");
        }
        std::wstring described = std::wstring(verb) + std::wstring(role) + L" " + rest;
        if (!meaning.empty()) {
            described += L"   (" + std::wstring(meaning) + L")";
        }
        return described;
    }
    return entry;
}

std::wstring RenderScenario(int mailClientVersion, const std::vector<ScenarioStep>& steps) {
    std::wstring out = ZelCommon::Text::Format(
        L"Simulated mail client, major version %d, with the add-in loaded\n", mailClientVersion);
    out += L"Windows by role:\n";
    for (const WindowRole& known : kRoles) {
        out += ZelCommon::Text::Format(L"  %-12s%s\n", known.role, known.name);
    }
    for (const ScenarioStep& step : steps) {
        out += ZelCommon::Text::Format(L"\n%d. %s\n", step.number, step.title);
        if (step.entries.empty()) {
            out += L"      (nothing)\n";
        }
        for (const std::wstring& entry : step.entries) {
            out += L"      " + DescribeEntry(entry) + L"\n";
        }
    }
    return out;
}

}  // namespace Orva::Sim
