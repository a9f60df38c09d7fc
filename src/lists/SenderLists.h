#pragma once

#include <string>

#include "lists/EncodingSet.h"
#include "lists/ListChangeNotifier.h"

namespace Orva::Lists {

// The two list files of a data folder (which ends with its separator, or is empty).
std::wstring ApprovedListPath(const std::wstring& dataFolder);
std::wstring BlockedListPath(const std::wstring& dataFolder);

struct SenderListPaths {
    std::wstring approved;
    std::wstring blocked;
};
SenderListPaths SenderListPathsIn(const std::wstring& dataFolder);

std::wstring EncodingsPath(const std::wstring& dataFolder);

// Saves the blocked encodings, then tells the agent; an agent told of a file that could not be
// written would reread the old one. False when the file could not be written.
bool ApplyEncodings(const CEncodingSet& encodings, const std::wstring& dataFolder,
                    IListChangeNotifier& notifier);

}  // namespace Orva::Lists
