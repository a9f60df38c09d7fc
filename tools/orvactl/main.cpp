#include "CommandLine.h"
#include "Orvactl.h"
#include "TextSink.h"

int main(int argc, char** argv) {
    return Orva::Orvactl::RunOrvactl(Orva::Orvactl::CommandLineArguments(argc, argv),
                                     Orva::Orvactl::StandardOutput(),
                                     Orva::Orvactl::StandardError());
}
