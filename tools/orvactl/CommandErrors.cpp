#include "CommandErrors.h"

#include "Orvactl.h"

namespace Orva::Orvactl {

int ReportUsageError(ITextSink& err, std::wstring_view message) {
    err.Write(L"orvactl: ");
    err.Write(message);
    err.Write(L"\nTry 'orvactl --help' for more information.\n");
    return kExitUsage;
}

int ReportFailure(ITextSink& err, std::wstring_view message) {
    err.Write(L"orvactl: ");
    err.Write(message);
    err.Write(L"\n");
    return kExitFailure;
}

}  // namespace Orva::Orvactl
