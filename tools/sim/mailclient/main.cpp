#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "MailClientScenario.h"
#include "ScenarioReport.h"
#include "SimulatorOptions.h"
#include "common_src/platform/TextCodec.h"

int main(int argc, char** argv) {
    using namespace Orva::Sim;
    using ZelCommon::Text::WideToUtf8;
    try {
        const std::vector<std::string> arguments(argv + 1, argv + argc);
        const SimulatorOptions options = ParseSimulatorOptions(arguments);
        if (!options.error.empty()) {
            std::cerr << WideToUtf8(options.error) << "\n\n" << WideToUtf8(SimulatorUsage());
            return 2;
        }
        if (options.help) {
            std::cout << WideToUtf8(SimulatorUsage());
            return 0;
        }
        const std::vector<ScenarioStep> steps =
            RunMailClientScenario(options.mailClientVersion, options.defaultAccount);
        std::cout << WideToUtf8(RenderScenario(options.mailClientVersion, steps));
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "orva-mailclient-sim: " << error.what() << "\n";
    } catch (...) {
        std::cerr << "orva-mailclient-sim: unexpected failure\n";
    }
    return 1;
}
