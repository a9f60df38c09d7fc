#pragma once

#include <cstdint>
#include <string>

namespace Orva::Lists {

// One generation of a list file kept beside it, as "<file>.bak": the import of contacts rewrites
// the blocked list, and the user can bring the previous one back.
std::wstring BackupPathOf(const std::wstring& listPath);

// Copies the list file to its backup, replacing an older backup in one step. A Win32 error code:
// 0 when kept, 2 when there is no list file (nothing to keep; no backup is touched).
uint32_t KeepBackup(const std::wstring& listPath);

enum class BackupRestore {
    Restored,
    NoBackup,
    NotAListFile,  // the backup's first line is not a list header: the list file stays as it is
    Unwritable,    // the list file stays as it was
};

// Puts the backup's bytes in place of the list file, in one step; the backup stays.
BackupRestore RestoreBackup(const std::wstring& listPath);

}  // namespace Orva::Lists
