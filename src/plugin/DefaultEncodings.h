#pragma once

#include <string>

#include "settings/log/DebugLog.h"

namespace Orva::Plugin {

enum class DefaultEncodingsCopy { Copied, UserHasFile, NoDefault, NotWritten };

// Gives a user whose data folder holds no "BlockEncodings.dat" the installation's default one
// from the add-in folder, so that the encodings page has groups to offer. A user's own file is
// never touched; a missing default and a failed copy are only logged. The copy is written whole
// or not at all.
DefaultEncodingsCopy CopyDefaultEncodings(const std::wstring& addinFolder,
                                          const std::wstring& dataFolder,
                                          ZelCommon::Library::DebugLog& log);

}  // namespace Orva::Plugin
