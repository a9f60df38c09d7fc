#include "plugin/DefaultEncodings.h"

#include "common_src/platform/AtomicFile.h"
#include "lists/SenderLists.h"

namespace Orva::Plugin {
namespace {

constexpr uint32_t kFileNotFound = 2;
constexpr uint32_t kPathNotFound = 3;

}  // namespace

DefaultEncodingsCopy CopyDefaultEncodings(const std::wstring& addinFolder,
                                          const std::wstring& dataFolder,
                                          ZelCommon::Library::DebugLog& log) {
    namespace Files = ZelCommon::Platform;
    const std::wstring userFile = Lists::EncodingsPath(dataFolder);
    // Anything but an absence (a folder of that name, a file that cannot be opened) is the
    // user's and stays as it is. A data folder that is missing is tried, to log its failure.
    Files::FileStamp stamp;
    if (const uint32_t found = Files::QueryFileStamp(userFile, stamp);
        found != kFileNotFound && found != kPathNotFound) {
        return DefaultEncodingsCopy::UserHasFile;
    }
    const std::wstring defaultFile = Lists::EncodingsPath(addinFolder);
    std::string bytes;
    if (const uint32_t error = Files::ReadWholeFile(defaultFile, bytes); error != 0) {
        log.LogText(L"### Encodings: no default file %s (error %u)\n", defaultFile, error);
        return DefaultEncodingsCopy::NoDefault;
    }
    if (const uint32_t error = Files::ReplaceFileContents(userFile, bytes); error != 0) {
        log.LogText(L"xxx Encodings: cannot copy %s to %s, error %u\n", defaultFile, userFile,
                    error);
        return DefaultEncodingsCopy::NotWritten;
    }
    log.LogText(L"@@@ Encodings: default groups copied to %s\n", userFile);
    return DefaultEncodingsCopy::Copied;
}

}  // namespace Orva::Plugin
