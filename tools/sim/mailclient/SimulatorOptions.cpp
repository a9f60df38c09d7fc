#include "SimulatorOptions.h"

#include <charconv>
#include <optional>

#include "common_src/platform/TextCodec.h"

namespace Orva::Sim {
namespace {

// Versions far outside what a mail client ever had are typing errors, not a scenario.
constexpr int kHighestVersion = 99;

}  // namespace

SimulatorOptions ParseSimulatorOptions(std::span<const std::string> arguments) {
    SimulatorOptions options;
    for (size_t index = 0; index < arguments.size(); ++index) {
        const std::string& argument = arguments[index];
        if (argument == "--help" || argument == "-h") {
            options.help = true;
        } else if (argument == "--client-version") {
            if (index + 1 == arguments.size()) {
                options.error = L"--client-version needs a number";
                return options;
            }
            const std::string& value = arguments[++index];
            int version = 0;
            const auto [end, failure] =
                std::from_chars(value.data(), value.data() + value.size(), version);
            if (failure != std::errc() || end != value.data() + value.size() || version < 1 ||
                version > kHighestVersion) {
                options.error = L"not a mail client version: " + ZelCommon::Text::Utf8ToWide(value);
                return options;
            }
            options.mailClientVersion = version;
        } else if (argument == "--default-account") {
            const std::optional<AccountKind> kind =
                index + 1 < arguments.size() ? AccountKindNamed(arguments[++index]) : std::nullopt;
            if (!kind) {
                options.error = L"--default-account needs pop, imap or web";
                return options;
            }
            options.defaultAccount = *kind;
        } else {
            options.error = L"unknown argument: " + ZelCommon::Text::Utf8ToWide(argument);
            return options;
        }
    }
    return options;
}

std::wstring SimulatorUsage() {
    return L"usage: orva-mailclient-sim [--client-version N] [--default-account KIND] [--help]\n"
           L"\n"
           L"Runs the add-in's application object and controller inside a simulated mail client\n"
           L"and prints, step by step, what the add-in did: its log lines, the messages to the\n"
           L"agent and to its own window, the settings it wrote.\n"
           L"\n"
           L"  --client-version N  the mail client's major version (default 16): 15 and 16 have\n"
           L"                      the ribbon, 14 the classic toolbar band, others are not\n"
           L"                      supported\n"
           L"  --default-account KIND  the user's default account: pop (default), or imap or\n"
           L"                      web, which the add-in does not serve\n"
           L"  --help              this text\n";
}

}  // namespace Orva::Sim
