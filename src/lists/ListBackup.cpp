#include "lists/ListBackup.h"

#include <string_view>

#include "common_src/platform/AtomicFile.h"
#include "lists/ListFileText.h"
#include "lists/ListKinds.h"
#include "lists/SenderListFile.h"

namespace Orva::Lists {

using ZelCommon::Platform::ReadWholeFile;
using ZelCommon::Platform::ReplaceFileContents;

std::wstring BackupPathOf(const std::wstring& listPath) {
    return listPath + L".bak";
}

uint32_t KeepBackup(const std::wstring& listPath) {
    std::string bytes;
    if (const uint32_t error = ReadWholeFile(listPath, bytes); error != 0) {
        return error;
    }
    return ReplaceFileContents(BackupPathOf(listPath), bytes);
}

BackupRestore RestoreBackup(const std::wstring& listPath) {
    const std::wstring backup = BackupPathOf(listPath);
    std::string bytes;
    if (ReadWholeFile(backup, bytes) != 0) {
        return BackupRestore::NoBackup;
    }
    // The same reader as the list's own load: what it refuses would load as an empty list.
    std::string text;
    const ListLoad load =
        SenderListFile<BlockedList>::Read(backup, text, [](SenderEntry&&, std::string_view) {});
    if (load != ListLoad::Loaded) {
        return BackupRestore::NotAListFile;
    }
    return ReplaceFileContents(listPath, bytes) == 0 ? BackupRestore::Restored
                                                     : BackupRestore::Unwritable;
}

}  // namespace Orva::Lists
