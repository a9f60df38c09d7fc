#pragma once

#include <string>
#include <vector>

#include "tools/orvactl/Orvactl.h"
#include "tools/orvactl/TextSink.h"

namespace Orva::Testing {

// One orvactl run in-process: its exit code and what it wrote to each stream.
struct OrvactlRun {
    int exitCode;
    std::wstring out;
    std::wstring err;
};

inline OrvactlRun RunTool(const std::vector<std::wstring>& args) {
    Orvactl::StringSink out;
    Orvactl::StringSink err;
    const int exitCode = Orvactl::RunOrvactl(args, out, err);
    return OrvactlRun{exitCode, out.Text(), err.Text()};
}

}  // namespace Orva::Testing
